// Records that bear numbers: every value of record 3 says that it belongs to record 3, and most say on which
// side it was written. A record that has another one's data shows it.
#pragma once

#include "automation/Value.h"
#include "sandbox/database/Connection.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/support/TestedKind.h"

#include <span>
#include <string>

namespace test_support
{

// What a value tells of its record.
enum class Bears
{
    Label,    // "N003": the number
    Text,     // "H003" or "O003": the side and the number
    Day,      // the third of a month
    Work,     // 103 or 203
    End,      // a time of day, 10:03 or 11:03; 12:03 says nothing of the side
    Reminder, // a truth value: the host reminds of odd numbers, Outlook of even ones
    Names,    // every number in it; it may be missing
};

struct NumberedField
{
    const wchar_t* column;   // of the host's view
    const wchar_t* property; // of Outlook's items
    Bears bears;
    bool isGuarded = false; // the object model guard refuses to tell it
};

struct NumberedKind : TestedKind
{
    wchar_t keyLetter;                     // of the keys of its rows
    std::span<const NumberedField> fields; // the first one names the record
};

extern const NumberedKind kNumberedContacts;
extern const NumberedKind kNumberedTasks;
extern const NumberedKind kNumberedEntries;
inline constexpr const NumberedKind* kNumberedKinds[] = {&kNumberedContacts, &kNumberedTasks,
                                                         &kNumberedEntries};

inline constexpr wchar_t kHost = L'H';
inline constexpr wchar_t kOutlook = L'O';
inline constexpr wchar_t kMixed = L'M'; // values of both sides, or one is missing

// The number and the side that a value bears; 0 for what it does not tell, -1 for a number that is none.
struct Mark
{
    int number = 0;
    wchar_t side = 0;
};
Mark MarkOf(Bears bears, const automation::Value& value, int numberOfRecord);

// The key of the host's row.
std::wstring KeyOf(const NumberedKind& kind, int number);
void AddRow(sandbox::Connection& database, const NumberedKind& kind, int number);
void DeleteRow(sandbox::Connection& database, const NumberedKind& kind, int number);
// What the rows of a kind refer to: companies with an address, and contacts to link.
void AddCompany(sandbox::Connection& database, const NumberedKind& kind, int number);
// Of the folder with this path.
void AddItem(const sandbox::MailboxRef& mailbox, const NumberedKind& kind, const std::wstring& path,
             int number);

} // namespace test_support
