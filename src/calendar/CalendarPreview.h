// Calendar entries in the preview of a run.
#pragma once

#include "exchange/KindPreview.h"

namespace calendar
{

extern const exchange::KindPreview kCalendarPreview;

} // namespace calendar
