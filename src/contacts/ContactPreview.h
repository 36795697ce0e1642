// Contacts in the preview of a run.
#pragma once

#include "exchange/KindPreview.h"

namespace contacts
{

extern const exchange::KindPreview kContactPreview;

} // namespace contacts
