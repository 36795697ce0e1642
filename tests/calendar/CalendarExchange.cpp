#include "tests/calendar/CalendarExchange.h"

#include "run/ChangeCollection.h"
#include "tests/support/InsertStatement.h"

#include <map>

namespace test_support
{

namespace
{

std::wstring NameOfRow(const exchange::Run& run, long position)
{
    run.HostRows.MoveTo(position);
    return automation::TextOf(run.HostRows.ValueOf(L"F_ACTNAME"));
}

std::wstring NameOfItem(const exchange::Run& run, const std::wstring& position)
{
    return Text(run.Items.GetObject(L"Item", std::stol(position)), L"Subject");
}

} // namespace

CalendarExchange::CalendarExchange()
{
    TheHost.SetSysDateTime(Day(2003, 5, 6, 12, 0));
}

void CalendarExchange::AddEntry(const std::wstring& name, const Pairs& columns)
{
    std::map<std::wstring, std::wstring> entry{
        {L"F_ACTID", L"(SELECT 'ACT' || (COUNT(*) + 1) FROM TBLACTIVITY)"},
        {L"F_ACTORID", std::to_wstring(TheHost.UserId())},
        {L"F_ACTNAME", L"'" + name + L"'"},
        {L"F_ACTESDATE", L"'2003-05-06 00:00:00'"},
        {L"F_ACTESTIME", L"'1899-12-30 09:30:00'"},
        {L"F_ACTEETIME", L"'1899-12-30 11:00:00'"}};
    for (const auto& [column, literal] : columns)
    {
        entry[column] = literal;
    }
    Execute(InsertStatement(L"TBLACTIVITY", entry));
}

void CalendarExchange::AddRepeatingEntry(const std::wstring& name, long rule, const std::wstring& firstDay,
                                         const std::wstring& lastDay)
{
    AddEntry(name, {{L"F_ACTREPTIDX", std::to_wstring(rule)},
                    {L"F_ACTESDATE", L"'" + firstDay + L" 00:00:00'"},
                    {L"F_ACTREPTEDATE", lastDay.empty() ? L"NULL" : L"'" + lastDay + L" 00:00:00'"}});
}

void CalendarExchange::Collect(exchange::Run& run, long transType, long conflictOption)
{
    state::Shared().gSynParameter.TransConflictOption = conflictOption;
    run::ChangeCollection collection(calendar::kCalendar, run);
    if (transType != state::kOutlookToQuenlar)
    {
        EXPECT_FALSE(collection.CollectToOutlook());
    }
    if (transType != state::kQuenlarToOutlook)
    {
        EXPECT_FALSE(collection.CollectFromOutlook());
    }
}

CalendarExchange::Proposals CalendarExchange::Propose(long transType, long conflictOption)
{
    exchange::Run run = OpenRun(kCalendarKind, Display);
    Collect(run, transType, conflictOption);
    Proposals proposals;
    for (const data::ClsSalesRecord& record : run.Pending.NewHostRecords)
    {
        proposals.NewInOutlook.insert(NameOfRow(run, record.RecordBookmark));
    }
    for (const data::ClsSalesRecord& record : run.Pending.ChangedHostRecords)
    {
        (record.RecordState == 1 ? proposals.ChangedInOutlook : proposals.ChangedInHost)
            .insert(NameOfRow(run, record.RecordBookmark));
    }
    for (const data::ClsOlRecord& record : run.Pending.NewOutlookItems)
    {
        proposals.NewInHost.insert(NameOfItem(run, record.ItemIndex));
    }
    automation::CloseRecordset(run.HostRows);
    return proposals;
}

void CalendarExchange::Exchange(long transType, long conflictOption)
{
    exchange::Run run = OpenRun(kCalendarKind, Display);
    Collect(run, transType, conflictOption);
    if (transType != state::kOutlookToQuenlar)
    {
        EXPECT_FALSE(calendar::kCalendar.ToOutlook(run));
    }
    if (transType != state::kQuenlarToOutlook)
    {
        EXPECT_FALSE(calendar::kCalendar.FromOutlook(run));
    }
    EXPECT_EQ(L"", TheHost.LastRejection());
    automation::CloseRecordset(run.HostRows);
}

void CalendarExchange::ExpectAllMatched()
{
    const Proposals proposals = Propose(state::kBothWays, state::kNotifyMe);
    EXPECT_EQ(Names{}, proposals.NewInOutlook);
    EXPECT_EQ(Names{}, proposals.NewInHost);
    EXPECT_EQ(static_cast<size_t>(CountEntries()), proposals.ChangedInOutlook.size());
    EXPECT_EQ(static_cast<size_t>(CountAppointments()), proposals.ChangedInHost.size());
}

std::wstring CalendarExchange::Stored(const std::wstring& column)
{
    return automation::TextOrEmpty(
        TheHost.Database().QueryValue(L"SELECT CAST(" + column + L" AS TEXT) FROM TBLACTIVITY"));
}

long CalendarExchange::CountEntries()
{
    return automation::LongOf(TheHost.Database().QueryValue(L"SELECT COUNT(*) FROM TBLACTIVITY"));
}

} // namespace test_support
