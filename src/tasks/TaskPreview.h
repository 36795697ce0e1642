// Tasks in the preview of a run.
#pragma once

#include "exchange/KindPreview.h"

namespace tasks
{

extern const exchange::KindPreview kTaskPreview;

} // namespace tasks
