// Which calendar entries a run takes into account, by the range code of the parameters and the host's clock.
#pragma once

#include "exchange/Kind.h"

namespace calendar
{

// An entry's first moment is its start; its last moment is its end, for a repeating one the end of its last
// day (an endless one never ends).
struct EntrySpan
{
    automation::Date First;
    automation::Date Last;
};

// Code 1 keeps the entries that end after now; code 2 those that overlap the days from today minus prior to
// today plus after, both included; any other code keeps all.
bool IsWithinRange(const EntrySpan& span, const state::SynParameter& parameter, automation::Date now);

EntrySpan SpanOfRow(const automation::Recordset& rows);
EntrySpan SpanOfItem(const automation::ItemView& item);

// The filters of the calendar; reads the host's clock once, and only for a code that needs it.
exchange::Filters WithinCalendarRange(const state::SynParameter& parameter, const data::Host& host);

} // namespace calendar
