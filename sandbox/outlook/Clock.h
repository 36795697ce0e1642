// The local time, to the second, as Outlook stamps items with it.
#pragma once

#include "automation/Dates.h"

namespace sandbox::outlook
{

automation::Date Now();
automation::Date Today();

} // namespace sandbox::outlook
