// The three kinds of data as the tests know them: where their records are, on both sides. It takes nothing
// from the component, so that tests can hold the component against it. Header only.
#pragma once

#include "sandbox/outlook/PropertyTable.h"

#include <array>

namespace test_support
{

struct RecordKind
{
    const char* name;      // in the names of tests
    const wchar_t* option; // of the demo
    sandbox::outlook::ItemKind itemKind;
    long folderNumber;         // OlDefaultFolders
    const wchar_t* folderName; // in its store
    const wchar_t* folder;     // path of the default folder
    const wchar_t* table;      // of the host
    const wchar_t* view;       // of the host
    const wchar_t* keyColumn;
    const wchar_t* numberColumn;  // follows the order of insertion
    const wchar_t* relationTable; // names the kind in SynRelation
    bool writesHostFirst;         // in a two-way run
    bool succeedsWithoutHostRows; // a run whose rows cannot be opened
    bool savesItemOnce;           // and not after each property
    bool hasTransaction;          // around the statements of a row
};

inline constexpr RecordKind kContactRecords{
    .name = "contacts",
    .option = L"contact",
    .itemKind = sandbox::outlook::ItemKind::Contact,
    .folderNumber = 10,
    .folderName = L"Contacts",
    .folder = L"Personal Folders\\Contacts",
    .table = L"TBLCONTACT",
    .view = L"VW_CONTACT",
    .keyColumn = L"F_CNTCTID",
    .numberColumn = L"F_CNTCTNO",
    .relationTable = L"TBLCONTACT",
    .writesHostFirst = false,
    .succeedsWithoutHostRows = false,
    .savesItemOnce = true,
    .hasTransaction = true,
};
inline constexpr RecordKind kTaskRecords{
    .name = "tasks",
    .option = L"task",
    .itemKind = sandbox::outlook::ItemKind::Task,
    .folderNumber = 13,
    .folderName = L"Tasks",
    .folder = L"Personal Folders\\Tasks",
    .table = L"TBLACTIVITY",
    .view = L"VW_ACTIVITY",
    .keyColumn = L"F_ACTID",
    .numberColumn = L"F_ACTNO",
    .relationTable = L"TBLACTIVITY",
    .writesHostFirst = true,
    .succeedsWithoutHostRows = true,
    .savesItemOnce = false,
    .hasTransaction = true,
};
inline constexpr RecordKind kCalendarRecords{
    .name = "calendar",
    .option = L"calendar",
    .itemKind = sandbox::outlook::ItemKind::Appointment,
    .folderNumber = 9,
    .folderName = L"Calendar",
    .folder = L"Personal Folders\\Calendar",
    .table = L"TBLACTIVITY",
    .view = L"VW_CALENDAR",
    .keyColumn = L"F_ACTID",
    .numberColumn = L"F_ACTNO",
    .relationTable = L"VW_CALENDAR",
    .writesHostFirst = false,
    .succeedsWithoutHostRows = false,
    .savesItemOnce = true,
    .hasTransaction = false,
};

inline constexpr std::array<const RecordKind*, 3> kRecordKinds{&kContactRecords, &kTaskRecords,
                                                               &kCalendarRecords};

} // namespace test_support
