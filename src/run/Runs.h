// The run procedures, one per kind of data: each takes the loaded parameters (gSynParameter) and carries out
// one exchange, from the host's rows and the Outlook folder to the confirmed changes on both sides.
#pragma once

#include "exchange/RunDisplay.h"

namespace run
{

// True when the run failed, False when it succeeded or ended without doing anything. Never throw.
bool RunTaskSync(exchange::RunDisplay& display);
bool RunCalendarSync(exchange::RunDisplay& display);
bool RunContactSync(exchange::RunDisplay& display);

} // namespace run
