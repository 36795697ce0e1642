// The ways in which Outlook is documented to be awkward, as switches of a mailbox: all are off at first,
// apart from the reminders that Outlook sets on its own. A test sets them with Mailbox::Switch; a mailbox
// file has them in its table Switch (Name, Value), for the server program, which also takes them while it
// runs through the control object's member Switch. The names are those of the members, in any case.
#pragma once

#include "sandbox/dispatch/Switches.h"

#include <string>
#include <vector>

namespace sandbox::outlook
{

enum class ItemOrder : long
{
    AsAdded = 0,
    NewestFirst = 1,
    AnotherAtEachSave = 2,
};

enum class Twins : long
{
    None = 0,
    Behind = 1, // a search by name finds the original
    Before = 2, // a search by name finds the twin
};

// In what the length of a table's texts is counted: "will not exceed 255 bytes. This means that string values
// longer than 255 bytes will be truncated at the first 255 characters" may mean either, and any encoding.
enum class TextUnit : long
{
    Characters = 0,
    BytesOfUtf16 = 1,
    BytesOfUtf8 = 2,
};

struct Awkward
{
    ItemOrder order = ItemOrder::AsAdded;
    // Before the n-th fetch from a folder (by Item, GetFirst or GetNext of its Items) an item arrives in it,
    // or its first item vanishes; 0 for never.
    long arriveAtFetch = 0;
    long vanishAtFetch = 0;
    // Contact groups, posts, notes and items of unknown classes stand among those of the folder's own kind.
    bool foreignItems = false;
    // The object model guard refuses what it protects.
    bool guard = false;
    bool linksRaise = false;
    // The store of this name is not connected.
    std::wstring offlineStore;
    bool appointmentReminders = true;
    bool taskReminders = false;
    // Every series has an occurrence that the user has deleted and one that the user has moved.
    bool seriesHaveExceptions = false;
    // Beside each store there is another one that bears its name, with folders of the same names and no
    // items.
    Twins twins = Twins::None;
    // What a table (Folder.GetTable) gets wrong.
    bool noTable = false;       // there is none, as before Outlook 2007
    bool tableReversed = false; // other order than Items
    bool tableStale = false;    // rows as they were when the folder was first seen
    long tableTextLength = 255; // texts are cut here, counted in:
    TextUnit tableTextUnit = TextUnit::Characters;
    long tableUtcMinutes = 0;     // dates added by their built-in names are so many minutes behind local time
    bool tableArrayByRow = false; // GetArray gives (row, column), against its documentation
    long tableMissingRow = 0;     // the n-th row is not there
    long tableDuplicateRow = 0;   // the n-th row is there twice
    long tableFailsAtRow = 0;     // reading the n-th row fails
    std::wstring tableRefuses;    // a column that is refused although the documentation lists it as supported
};

using AwkwardSwitch = Switch<Awkward>;

// All switches, for those who want to go through them.
const std::vector<AwkwardSwitch>& AwkwardSwitches();
// Throws automation::Error for a name that is no switch and for a value that it does not take.
void SetSwitch(Awkward& awkward, const std::wstring& name, const automation::Value& value);

// Whether the object model guard protects the member: the properties when they are read, the methods always.
bool IsGuarded(std::wstring_view interfaceName, std::wstring_view member);

} // namespace sandbox::outlook
