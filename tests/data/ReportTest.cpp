// The report of a run as data: which record a remark belongs to, and what is counted.
#include "exchange/Report.h"

#include "automation/Error.h"
#include "state/SharedState.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using exchange::Change;
using exchange::Report;
using state::Cause;

class ReportOfARun : public testing::Test
{
  protected:
    ~ReportOfARun() override { state::Shared() = {}; }

    // A record with this name and these remarks.
    void Record(const wchar_t* name, std::initializer_list<state::Remark> remarks)
    {
        TheReport.Record(
            Change::AddToHost,
            [=, this] {
                ++NamesRead;
                return std::wstring(name);
            },
            [&] {
                for (const state::Remark& remark : remarks)
                {
                    state::Tell(remark);
                }
            });
    }

    Report TheReport;
    state::CollectsRemarks Collects{TheReport};
    int NamesRead = 0;
};

TEST_F(ReportOfARun, RecordsAreCountedByTheirKindOfChange)
{
    Record(L"Written", {});
    Record(L"Without a link", {{.Why = Cause::LinkRefused}});
    Record(L"Gone", {{.Why = Cause::Vanished}});
    TheReport.Record(Change::ChangeInOutlook, {}, [] {});
    EXPECT_EQ(2, TheReport.CountOf(Change::AddToHost).Written);
    EXPECT_EQ(1, TheReport.CountOf(Change::AddToHost).NotWritten);
    EXPECT_EQ(1, TheReport.CountOf(Change::ChangeInOutlook).Written);
    EXPECT_EQ(0, TheReport.CountOf(Change::AddToOutlook).Written);
    EXPECT_EQ(1, TheReport.Vanished());
}

TEST_F(ReportOfARun, ANameIsReadOnlyWhereThereIsSomethingToTell)
{
    Record(L"Written", {});
    EXPECT_EQ(0, NamesRead);
    Record(L"Cut", {{.Why = Cause::TextCut, .Field = L"F_ACTNAME", .Length = 300, .Kept = 100}});
    ASSERT_EQ(1u, TheReport.Rows().size());
    EXPECT_EQ(L"Cut", TheReport.Rows()[0].Name);
    EXPECT_EQ(Change::AddToHost, TheReport.Rows()[0].Of);
    EXPECT_EQ(300, TheReport.Rows()[0].Remark.Length);
}

TEST_F(ReportOfARun, ANameThatCannotBeReadIsEmpty)
{
    TheReport.Record(
        Change::AddToHost, []() -> std::wstring { throw std::runtime_error("gone"); },
        [] { state::Tell({.Why = Cause::Vanished}); });
    ASSERT_EQ(1u, TheReport.Rows().size());
    EXPECT_EQ(L"", TheReport.Rows()[0].Name);
}

TEST_F(ReportOfARun, AnErrorEndsTheRecordWithItsWordsAndGoesOn)
{
    const auto fails = [] { throw automation::Error(E_ACCESSDENIED, L"Save", L"The store is read-only"); };
    EXPECT_THROW(TheReport.Record(
                     Change::AddToOutlook, [] { return L"Ann"; }, fails),
                 automation::Error);
    ASSERT_EQ(1u, TheReport.Rows().size());
    const exchange::ReportRow& row = TheReport.Rows()[0];
    EXPECT_EQ(Cause::Failed, row.Remark.Why);
    EXPECT_EQ(L"Save", row.Remark.Field);
    EXPECT_EQ(L"The store is read-only", row.Remark.Words);
    EXPECT_EQ(E_ACCESSDENIED, row.Remark.Code);
    EXPECT_EQ(1, TheReport.CountOf(Change::AddToOutlook).NotWritten);
    state::Tell({.Why = Cause::NoFolder});
    EXPECT_FALSE(TheReport.Rows()[1].Of.has_value()) << "the record is over";
    EXPECT_EQ(L"", TheReport.Rows()[1].Name);
}

TEST_F(ReportOfARun, OfTheReasonsWhyARecordIsNotWrittenTheFirstIsKept)
{
    Record(L"Ann", {{.Why = Cause::TextCut}, {.Why = Cause::EmptyField}, {.Why = Cause::Failed}});
    ASSERT_EQ(2u, TheReport.Rows().size());
    EXPECT_EQ(Cause::TextCut, TheReport.Rows()[0].Remark.Why);
    EXPECT_EQ(Cause::EmptyField, TheReport.Rows()[1].Remark.Why);
    EXPECT_EQ(1, TheReport.CountOf(Change::AddToHost).NotWritten);
}

TEST_F(ReportOfARun, AMissingRightIsToldOnceAndCounted)
{
    const state::Remark add{.Why = Cause::RightMissing, .Words = L"You may not add"};
    const state::Remark modify{.Why = Cause::RightMissing, .Words = L"You may not modify"};
    state::Tell(add);
    Record(L"Ann", {add, modify});
    Record(L"Bob", {add});
    ASSERT_EQ(2u, TheReport.Rows().size());
    EXPECT_EQ(3, TheReport.Rows()[0].Times);
    EXPECT_EQ(1, TheReport.Rows()[1].Times);
    EXPECT_FALSE(TheReport.Rows()[0].Of.has_value());
    EXPECT_EQ(2, TheReport.CountOf(Change::AddToHost).Written);
}

TEST_F(ReportOfARun, RecordsThatAPassDoesNotReachAreCounted)
{
    TheReport.Accept(Change::AddToHost, 5);
    TheReport.Accept(Change::ChangeInOutlook, 2);
    Record(L"Ann", {});
    Record(L"Bob", {{.Why = Cause::Vanished}});
    TheReport.LeaveAlone(Change::ChangeInOutlook);
    EXPECT_EQ(3, TheReport.CountOf(Change::AddToHost).NotReached());
    EXPECT_EQ(1, TheReport.CountOf(Change::ChangeInOutlook).NotReached());
    EXPECT_EQ(4, TheReport.NotReached());
}

TEST_F(ReportOfARun, ThereIsSomethingToTellOfRemarksOfOtherItemsAndOfRecordsNotReached)
{
    Report plain;
    plain.Accept(Change::AddToHost, 1);
    plain.Record(Change::AddToHost, {}, [] {});
    EXPECT_FALSE(plain.HasSomethingToTell());
    plain.CountOtherItems(1);
    EXPECT_TRUE(plain.HasSomethingToTell());
    Report notReached;
    notReached.Accept(Change::AddToHost, 1);
    EXPECT_TRUE(notReached.HasSomethingToTell());
    state::Tell({.Why = Cause::NoFolder});
    EXPECT_TRUE(TheReport.HasSomethingToTell());
}

TEST_F(ReportOfARun, SecretsAreTakenOutOfTheWords)
{
    state::Shared().gCnnString = L"DSN=crm;PWD=topsecret";
    state::Tell({.Why = Cause::Failed, .Words = L"DSN=crm;PWD=topsecret failed at 'Ann'"});
    EXPECT_EQ(L"*** failed at '***'", TheReport.Rows().at(0).Remark.Words);
}

TEST_F(ReportOfARun, RemarksGoToTheInnerScopeAndWithoutOneNowhere)
{
    Report inner;
    {
        const state::CollectsRemarks collects(inner);
        state::Tell({.Why = Cause::NoFolder});
    }
    EXPECT_EQ(1u, inner.Rows().size());
    EXPECT_TRUE(TheReport.Rows().empty());
    state::Shared().remarks = nullptr;
    state::Tell({.Why = Cause::NoFolder});
    EXPECT_TRUE(TheReport.Rows().empty());
}

} // namespace
