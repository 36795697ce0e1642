// The ways in which ADO's recordsets are documented to be awkward, as switches: all are off at first. A
// recordset takes those that it is made with: the host's its own (Host::Recordsets), one that a client
// creates those of the process. The registered DLL reads them from the value "Ado" of the current user's key
// "Software\TelvixSandbox": "Name=Value;Name=Value".
#pragma once

#include "sandbox/dispatch/Switches.h"

#include <string>
#include <vector>

namespace sandbox
{

enum class IntegersAs : long
{
    Longs = 0,
    Shorts = 1,     // VT_I2, where they fit
    Bytes = 2,      // VT_UI1, where they fit
    Decimals = 3,   // VT_DECIMAL, doubles as well
    Currencies = 4, // VT_CY, doubles as well
};

enum class RowsAs : long
{
    Snapshot = 0, // static
    Keyset = 1,   // the rows' values are those of the database, and deleted rows are gone
};

struct AwkwardAdo
{
    // A bookmark says nothing about a row's position, and a position is no bookmark.
    bool opaqueBookmarks = false;
    RowsAs rows = RowsAs::Snapshot;
    // The owner of the recordset sorts ("F_SURNAME DESC") or filters it ("F_SURNAME > 'B'"): at once, or
    // before the client's n-th move.
    std::wstring sort;
    std::wstring filter;
    long atMove = 0;
    IntegersAs integers = IntegersAs::Longs;
    bool guids = false; // texts that are GUIDs come in braces
    long charWidth = 0; // texts are padded with blanks to a multiple of this
};

using AwkwardAdoSwitch = Switch<AwkwardAdo>;

// All switches, for those who want to go through them.
const std::vector<AwkwardAdoSwitch>& AwkwardAdoSwitches();
// Throws automation::Error for a name that is no switch and for a value that it does not take.
void SetSwitch(AwkwardAdo& awkward, const std::wstring& name, const automation::Value& value);
// Sets the switches in a text "Name=Value;Name=Value".
void SetSwitches(AwkwardAdo& awkward, const std::wstring& text);

// Those of the recordsets that clients create in this process.
AwkwardAdo& RecordsetsOfProcess() noexcept;

} // namespace sandbox
