#include "resources/Strings.h"
#include "tests/calendar/CalendarWritingFixture.h"
#include "tests/support/OpenedRecordsets.h"

namespace test_support
{

TEST_F(CalendarWriting, AnAppointmentWithoutASubjectIsLeftOutSilently)
{
    const Object appointment = AddMeeting();
    appointment.Put(L"Subject", L"");
    appointment.Call(L"Save");
    EXPECT_TRUE(MessagesOf(data::kNewRecord, 0).empty());
    EXPECT_TRUE(MessagesOf(data::kExistingRecord, 0).empty());
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(CalendarWriting, ANewRowTakesItsOwnColumnsBeforeTheMappedOneAndItsKeysLast)
{
    AddMeeting();
    EXPECT_EQ(0, Write(data::kNewRecord));
    const std::wstring expected =
        L"Insert(TBLACTIVITY|F_ACTNAME,F_ACTTYPE,F_ACTESTIME,F_ACTESDATE,F_ACTREMIND,F_ACTEEDATE,F_ACTEETIME,"
        L"F_ACTCOMPLETED,F_ACCID,F_ACTORID,F_CREATORID,F_ACTID|'Meeting','(Unspecified)','09:30:00',"
        L"'05/06/2003',0,'05/06/2003','11:00:00',0,NULL,7,7,'KEY-1'|KEY-1)";
    EXPECT_EQ(std::vector<std::wstring>{expected}, CallsOf(L"Insert"));
}

TEST_F(CalendarWriting, AnExistingRowIsUpdatedByItsKey)
{
    AddMeeting();
    AddEntry();
    EXPECT_EQ(0, Write(data::kExistingRecord));
    const std::wstring expected =
        L"Update(TBLACTIVITY|F_ACTNAME='Meeting',F_ACTTYPE='(Unspecified)',F_ACTESTIME='09:30:00',"
        L"F_ACTESDATE='05/06/2003',F_ACTREMIND=0,F_ACTEEDATE='05/06/2003',F_ACTEETIME='11:00:00',"
        L"F_ACTCOMPLETED=0,F_ACCID=NULL||F_ACTID='ACT1')";
    EXPECT_EQ(std::vector<std::wstring>{expected}, CallsOf(L"Update"));
}

TEST_F(CalendarWriting, WithoutRelationRowsANewRowHasItsKeysOnly)
{
    Relate({});
    AddMeeting();
    Host->Permission = 1; // no right to link an account, so that there is no other column either
    EXPECT_EQ(0, Write(data::kNewRecord));
    EXPECT_EQ(
        std::vector<std::wstring>{L"Insert(TBLACTIVITY|F_ACTORID,F_CREATORID,F_ACTID|7,7,'KEY-1'|KEY-1)"},
        CallsOf(L"Insert"));
}

TEST_F(CalendarWriting, WithoutRelationRowsThereIsNothingToUpdate)
{
    Relate({});
    AddMeeting();
    AddEntry();
    Host->Permission = 1;
    EXPECT_TRUE(MessagesOf(data::kExistingRecord, 0).empty());
    EXPECT_TRUE(CallsOf(L"Update").empty());
}

TEST_F(CalendarWriting, RelationRowsThatNoRuleKnowsWriteNothing)
{
    Relate({{L"F_ACTNAME", L"Subject"}, {L"F_CNTCTID", L"Recipients"}, {L"F_ACTTYPE", L"categories"}});
    AddMeeting();
    const Columns written = InsertFirstAppointment();
    EXPECT_FALSE(written.contains(L"F_CNTCTID"));
    EXPECT_FALSE(written.contains(L"F_ACTTYPE"));
    EXPECT_EQ(L"'Meeting'", written.at(L"F_ACTNAME"));
}

TEST_F(CalendarWriting, NeitherATransactionNorAContactLinkIsMade)
{
    const Object appointment = AddMeeting();
    Mailbox->AddItem(kContactKind.folder, {{L"FirstName", L"Mary"}, {L"LastName", L"Smith"}});
    const Object contact = DefaultFolder(kContactKind).GetObject(L"Items").GetObject(L"Item", 1L);
    appointment.GetObject(L"Links").Call(L"Add", contact);
    appointment.Call(L"Save");
    EXPECT_FALSE(InsertFirstAppointment().contains(L"F_CNTCTID"));
    for (const wchar_t* member : {L"BeginTrans", L"CommitTrans", L"RollbackTrans", L"InTransaction"})
    {
        EXPECT_TRUE(CallsOf(member).empty());
    }
}

TEST_F(CalendarWriting, TheAccountOfTheCompanyIsLinked)
{
    AddMeetingOf(L"Miller & Sons");
    Host->Rows = {{{L"F_ACCID", sandbox::ColumnType::Text}}, {{L"ACC-7"}}};
    EXPECT_EQ(L"'ACC-7'", InsertFirstAppointment().at(L"F_ACCID"));
    AddEntry();
    EXPECT_EQ(L"'ACC-7'", UpdateFirstAppointment().at(L"F_ACCID"));
}

TEST_F(CalendarWriting, ACompanyOfBlanksIsNone)
{
    AddMeetingOf(L"  ");
    EXPECT_EQ(L"NULL", InsertFirstAppointment().at(L"F_ACCID"));
    EXPECT_TRUE(CallsOf(L"OpenRecordsetByString").empty());
}

TEST_F(CalendarWriting, TheRelationRowsAreOpenedAsTheContractHasIt)
{
    AddMeeting();
    const OpenedRecordsets opened;
    EXPECT_EQ(0, Write(data::kNewRecord));
    EXPECT_EQ(
        (std::vector<std::wstring>{
            L"location 3: SELECT * FROM HostRows (cursor 1, lock 1, options 1)", // the test's own
            L"location 3: Select * From SynRelation Where QuenlarTblName='VW_CALENDAR' (cursor 1, lock 1, "
            L"options 1)",
            L"SynFields (cursor -1, lock 1, options 2)"}),
        opened.Texts);
}

TEST_F(CalendarWriting, RelationRowsThatCannotBeReadAreReported)
{
    AddMeeting();
    Execute(L"DROP TABLE SynRelation");
    const std::vector<ShownMessage> messages = MessagesOf(data::kNewRecord, 0);
    ASSERT_EQ(1u, messages.size());
    EXPECT_TRUE(messages[0].text.starts_with(L":"));
}

TEST_F(CalendarWriting, AModeOtherThanNewAndExistingDoesNothing)
{
    AddMeeting();
    for (const long mode : {0L, 3L, -1L})
    {
        EXPECT_TRUE(MessagesOf(mode, 0).empty());
    }
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(CalendarWriting, APairIsWrittenOnlyWhenItsMarkIsZeroButTheProgressAdvances)
{
    AddMeeting();
    AddEntry();
    exchange::Run run = NewRun();
    for (const long mark : {1L, 0L, 2L})
    {
        run.Pending.ChangedHostRecords.Add(1L, mark);
        run.Pending.ChangedOutlookItems.Add(L"1", mark);
    }
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    EXPECT_EQ(1u, CallsOf(L"Update").size());
    EXPECT_EQ(1.0, Display.Progress.back());
    EXPECT_EQ(resources::String(1044), Display.Status);
    EXPECT_FALSE(Display.IsShown);
}

TEST_F(CalendarWriting, ThePassContinuesAfterARefusedAppointment)
{
    AddMeeting();
    AddMeeting();
    Host->Status[L"Insert"] = -1;
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    run.Pending.NewOutlookItems.Add(L"2", 0);
    bool failed = true;
    const auto messages = MessagesDuring([&] { failed = calendar::SynCalendarFromOutlook(run); });
    EXPECT_FALSE(failed);
    EXPECT_EQ(2u, messages.size());
    EXPECT_EQ(2u, CallsOf(L"Insert").size());
}

TEST_F(CalendarWriting, AnItemThatIsGoneIsSkippedAndCounted)
{
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(calendar::SynCalendarFromOutlook(run));
    EXPECT_EQ(1, run.Report.Vanished());
    EXPECT_FALSE(Display.IsShown);
}

} // namespace test_support
