// A folder of Outlook may hold items of several classes, which have members of the same name under different
// numbers.
#include "exchange/ApplyFromOutlook.h"

#include "automation/Text.h"
#include "sandbox/ado/Recordset.h"
#include "sandbox/outlook/Outlook.h"
#include "tests/support/CallWatch.h"
#include "tests/support/RecordingDisplay.h"

#include <gtest/gtest.h>

namespace
{

using automation::Object;

constexpr long kContactsFolder = 10;        // OlDefaultFolders
constexpr long kItemTypes[] = {2, 3, 1, 0}; // OlItemType: contact, task, appointment, mail
constexpr long kRounds = 3;

std::vector<std::wstring> gRead;

long Read(exchange::Run& /*run*/, data::RecordMode /*mode*/, const automation::ItemView& item)
{
    gRead.push_back(automation::TextOf(item.Get(L"Subject")) + L" " +
                    std::to_wstring(automation::LongOf(item.Get(L"Class"))));
    return 0;
}

// The items of a contacts folder, of every type in turn.
Object MixedItems()
{
    const Object outlook = sandbox::MakeOutlook(sandbox::MakeMailbox());
    Object items = outlook.GetObject(L"GetNamespace", L"MAPI")
                       .GetObject(L"GetDefaultFolder", kContactsFolder)
                       .GetObject(L"Items");
    for (long i = 0; i < kRounds * std::ssize(kItemTypes); ++i)
    {
        const Object item = items.GetObject(L"Add", kItemTypes[i % std::ssize(kItemTypes)]);
        item.Put(L"Subject", std::to_wstring(i + 1));
        item.Call(L"Save");
    }
    return items;
}

} // namespace

TEST(AFolderOfMixedItems, IsReadByEachItemsOwnMembersAskedForOncePerClass)
{
    test_support::RecordingDisplay display;
    exchange::Run run{display};
    run.Items = MixedItems();
    std::vector<std::wstring> expected;
    const wchar_t* classNumbers[] = {L" 40", L" 48", L" 26", L" 43"};
    for (long i = 1; i <= kRounds * std::ssize(kItemTypes); ++i)
    {
        run.Pending.NewOutlookItems.Add(std::to_wstring(i), 0);
        expected.push_back(std::to_wstring(i) + classNumbers[(i - 1) % std::ssize(kItemTypes)]);
    }
    gRead.clear();
    const test_support::CallWatch calls;
    EXPECT_FALSE((exchange::PassFromOutlook{.RelationStatement = L"SELECT", .Write = Read}(run)));
    EXPECT_EQ(expected, gRead);
    for (const wchar_t* name : {L"ContactItem", L"TaskItem", L"AppointmentItem", L"MailItem"})
    {
        EXPECT_EQ(1, calls.LookupsOf(name + std::wstring(L".Subject"))) << automation::ToUtf8(name);
    }
}
