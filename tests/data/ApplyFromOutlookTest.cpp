#include "exchange/ApplyFromOutlook.h"

#include "automation/Error.h"
#include "sandbox/ado/Recordset.h"
#include "tests/support/RecordingDisplay.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using automation::LongOf;
using automation::Object;
using automation::TextOf;
using automation::Value;
using exchange::Run;
using Progress = std::vector<double>;

// Folder.Items with items that only know their position; position 13 fails.
class Items : public sandbox::DispatchObject
{
  public:
    explicit Items(long position = 0) : mPosition(position) {}

  protected:
    const wchar_t* ClassName() const override { return L"Items"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable kMembers = {{L"Item", sandbox::Reads(&Items::Item), {}},
                                                      {L"Position", sandbox::Reads(&Items::Position), {}}};
        return kMembers;
    }

  private:
    Value Item(const sandbox::Call& call)
    {
        const long position = LongOf(call.At(0));
        if (position == 13)
        {
            throw automation::Error(E_FAIL, L"Item", L"The item has been deleted");
        }
        return sandbox::MakeObject<Items>(position);
    }
    Value Position(const sandbox::Call& /*call*/) { return mPosition; }

    long mPosition;
};

std::vector<std::wstring> gWrittenRows;

// Writes down mode, item and host row, and fails for every second item.
long WriteRow(Run& run, data::RecordMode mode, const automation::ItemView& item)
{
    const long position = LongOf(item.Get(L"Position"));
    gWrittenRows.push_back((mode == data::kNewRecord ? L"new " : L"row ") + std::to_wstring(position) +
                           (mode == data::kNewRecord ? L"" : L" " + TextOf(run.HostRows.ValueOf(L"Id"))));
    return position % 2 == 0 ? -1 : 0;
}

class ApplyFromOutlook : public testing::Test
{
  protected:
    ApplyFromOutlook()
    {
        gWrittenRows.clear();
        TheRun.Items = sandbox::MakeObject<Items>();
        TheRun.HostRows =
            automation::Recordset(sandbox::MakeRecordset({{{L"Id"}}, {{L"first"}, {L"second"}, {L"third"}}}));
    }

    void AddPair(const std::wstring& item, long mark, long row)
    {
        TheRun.Pending.ChangedOutlookItems.Add(item, mark);
        TheRun.Pending.ChangedHostRecords.Add(row, mark);
    }

    bool Apply()
    {
        return exchange::PassFromOutlook{.RelationStatement = L"SELECT", .Write = WriteRow}(TheRun);
    }

    test_support::RecordingDisplay Display;
    exchange::Run TheRun{Display, {}, {}, {}, {}, {}, {}};
};

TEST_F(ApplyFromOutlook, NothingPendingWritesNothingAndSucceeds)
{
    const test_support::WithLanguage english(resources::Language::English);
    EXPECT_FALSE(Apply());
    EXPECT_TRUE(gWrittenRows.empty());
    EXPECT_EQ(Display.Status, L"Begin Synchronize...");
    EXPECT_EQ(Display.TimesShown, 1);
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(ApplyFromOutlook, NewItemsAreWrittenInOrderAndAFailedOneDoesNotStopTheWalk)
{
    for (const wchar_t* item : {L"1", L"2", L"5"})
    {
        TheRun.Pending.NewOutlookItems.Add(item, 0);
    }
    EXPECT_FALSE(Apply());
    EXPECT_EQ(gWrittenRows, (std::vector<std::wstring>{L"new 1", L"new 2", L"new 5"}));
}

TEST_F(ApplyFromOutlook, ARecordWithoutAnItemIsPassedOverAndStillAdvancesTheBar)
{
    TheRun.Pending.NewOutlookItems.Add(L"", 0);
    TheRun.Pending.NewOutlookItems.Add(L"3", 0);
    AddPair(L"", 0, 1);
    EXPECT_FALSE(Apply());
    EXPECT_EQ(gWrittenRows, (std::vector<std::wstring>{L"new 3"}));
    EXPECT_EQ(Display.Progress, (Progress{0, 0, 0.5, 1, 0, 1}));
}

TEST_F(ApplyFromOutlook, AChangedItemIsWrittenOverTheRowOfItsPair)
{
    AddPair(L"7", 0, 3);
    AddPair(L"4", 0, 1);
    EXPECT_FALSE(Apply());
    EXPECT_EQ(gWrittenRows, (std::vector<std::wstring>{L"row 7 third", L"row 4 first"}));
}

TEST_F(ApplyFromOutlook, OnlyMarkZeroIsWrittenToTheHostAndTheOthersStillAdvanceTheBar)
{
    AddPair(L"1", 1, 1);
    AddPair(L"3", 2, 2);
    AddPair(L"5", 0, 3);
    AddPair(L"7", -1, 1);
    EXPECT_FALSE(Apply());
    EXPECT_EQ(gWrittenRows, (std::vector<std::wstring>{L"row 5 third"}));
    EXPECT_EQ(Display.Progress, (Progress{0, 0, 0, 0.25, 0.5, 0.75, 1}));
}

TEST_F(ApplyFromOutlook, AnItemThatOutlookDoesNotGiveEndsThePassAsAFailure)
{
    TheRun.Pending.NewOutlookItems.Add(L"1", 0);
    TheRun.Pending.NewOutlookItems.Add(L"13", 0);
    TheRun.Pending.NewOutlookItems.Add(L"3", 0);
    EXPECT_TRUE(Apply());
    EXPECT_EQ(gWrittenRows, (std::vector<std::wstring>{L"new 1"}));
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(ApplyFromOutlook, AHostRowThatIsGoneEndsThePassAsAFailure)
{
    AddPair(L"1", 0, 99);
    EXPECT_TRUE(Apply());
    EXPECT_TRUE(gWrittenRows.empty());
}

TEST_F(ApplyFromOutlook, AChangedItemWithoutAPairEndsThePassAsAFailure)
{
    TheRun.Pending.ChangedOutlookItems.Add(L"1", 0);
    EXPECT_TRUE(Apply());
}

} // namespace
