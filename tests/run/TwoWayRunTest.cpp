// What a run in both directions makes of a pair that differs, and that it comes to rest: each kind, with the
// rule "notify me", which proposes the pair in both directions.
#include "sandbox/outlook/PropertyTable.h"
#include "tests/run/RunsFixture.h"
#include "tests/support/CallWatch.h"
#include "tests/support/Days.h"
#include "tests/support/RunCodes.h"

#include "automation/Text.h"

namespace
{

using namespace test_support;
using automation::Value;
using sandbox::Mailbox;

struct DifferingPair
{
    const RunKind& kind;
    const wchar_t* row; // a statement that adds the host's record
    Mailbox::NamedValues item;
    const wchar_t* saves; // the member that saves such an item
    // After each run: a query for the host's values, what it gives, and the item's properties.
    const wchar_t* query;
    std::wstring host;
    std::vector<std::pair<std::wstring, std::wstring>> outlook;
};

const DifferingPair kTaskPair{
    .kind = kTaskRun,
    .row = L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTTYPE,F_ACTPRIORITY,F_ACTPERCENT,"
           L"F_ACTSTATUS) VALUES ('T1',1,'Call','Phone',1,0.25,1)",
    .item = {{L"Subject", L"Call"},
             {L"Categories", L"Phone"},
             {L"Importance", 2},
             {L"PercentComplete", 75},
             {L"Status", 1},
             {L"DueDate", Day(2003, 5, 9)}},
    .saves = L"TaskItem.Save",
    .query = L"SELECT F_ACTPRIORITY||'|'||F_ACTPERCENT||'|'||F_ACTPETIME FROM TBLACTIVITY",
    .host = L"3|0.75|2003-05-09 00:00:00",
    .outlook = {{L"Importance", L"2"}, {L"PercentComplete", L"75"}, {L"DueDate", L"5/9/2003"}},
};

const DifferingPair kCalendarPair{
    .kind = kCalendarRun,
    .row = L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTESDATE,F_ACTESTIME,F_ACTEETIME,"
           L"F_ACTREMIND) VALUES ('E1',1,'Board','2003-05-06 00:00:00','1899-12-30 09:30:00',"
           L"'1899-12-30 10:30:00',0)",
    .item = {{L"Subject", L"Board"},
             {L"Start", Day(2003, 5, 6, 9, 30)},
             {L"End", Day(2003, 5, 6, 12, 0)},
             {L"ReminderSet", true}},
    .saves = L"AppointmentItem.Save",
    .query = L"SELECT time(F_ACTEETIME)||'|'||F_ACTREMIND||'|'||F_ACTTYPE||'|'||date(F_ACTEEDATE) FROM "
             L"TBLACTIVITY",
    .host = L"10:30:00|0|(Unspecified)|2003-05-06",
    .outlook = {{L"Duration", L"60"}, {L"ReminderSet", L"False"}},
};

const DifferingPair kContactPair{
    .kind = kContactRun,
    .row = L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME,F_NICKNAME) VALUES "
           L"('C1',1,'Li','Ming','Host')",
    .item = {{L"LastName", L"Li"},
             {L"FirstName", L"Ming"},
             {L"NickName", L"Outlook"},
             {L"JobTitle", L"Buyer"},
             {L"Suffix", L"Jr."}},
    .saves = L"ContactItem.Save",
    .query = L"SELECT F_NICKNAME||'|'||coalesce(F_JOBTITLE,'NULL') FROM TBLCONTACT",
    .host = L"Host|NULL",
    .outlook = {{L"NickName", L"Host"}, {L"JobTitle", L""}, {L"Suffix", L"Jr."}},
};

const DifferingPair* const kPairs[] = {&kTaskPair, &kCalendarPair, &kContactPair};

class TwoWayRun : public RunsFixture
{
  protected:
    void Exchange(const DifferingPair& pair)
    {
        const Outcome outcome = Run(pair.kind, kBoth, Answer::Accept);
        EXPECT_FALSE(outcome.failed);
        EXPECT_EQ(1u, outcome.shown.size());
        EXPECT_EQ(L"", TheHost.LastRejection());
    }

    // Every row of the host's tables of records, and every property of the item that a client can write.
    std::string BothSides(const DifferingPair& pair)
    {
        std::wstring text;
        for (const wchar_t* table : {L"TBLACTIVITY", L"TBLCONTACT", L"TBLACCOUNT", L"TBLADDRESS"})
        {
            for (const auto& row : TheHost.Database().Query(L"SELECT * FROM " + std::wstring(table)).rows)
            {
                for (const Value& value : row)
                {
                    text += automation::TextOrEmpty(value) + L"|";
                }
                text += L"\n";
            }
        }
        for (const auto id : sandbox::outlook::PropertiesOf(pair.kind.itemKind))
        {
            const auto& property = sandbox::outlook::PropertyOf(id);
            text +=
                property.readOnly ? L"" : std::wstring(property.name) + L"=" + TextIn(pair, property.name);
        }
        return automation::ToUtf8(text);
    }

    std::wstring TextIn(const DifferingPair& pair, const std::wstring& property)
    {
        return automation::TextOrEmpty(Mailbox->ItemProperty(pair.kind.folder, 1, property)) + L"\n";
    }

    void ExpectSettled(const DifferingPair& pair)
    {
        EXPECT_EQ(1, CountRows(pair.kind));
        EXPECT_EQ(1, CountItems(pair.kind));
        EXPECT_EQ(pair.host, automation::TextOrEmpty(TheHost.Database().QueryValue(pair.query)));
        for (const auto& [property, text] : pair.outlook)
        {
            EXPECT_EQ(text + L"\n", TextIn(pair, property)) << automation::ToUtf8(property);
        }
    }
};

TEST_F(TwoWayRun, TasksEndAsOutlookHasThemAndTheOthersAsTheHostDoesAndNothingMovesAfterwards)
{
    for (const DifferingPair* const pair : kPairs)
    {
        SCOPED_TRACE(pair->kind.name);
        Execute(L"DELETE FROM TBLACTIVITY");
        Execute(pair->row);
        Mailbox->AddItem(pair->kind.folder, pair->item);
        for (int run = 1; run <= 3; ++run)
        {
            SCOPED_TRACE(run);
            Exchange(*pair);
            ExpectSettled(*pair);
        }
        const std::string afterThree = BothSides(*pair);
        Exchange(*pair);
        EXPECT_EQ(afterThree, BothSides(*pair));
    }
}

TEST_F(TwoWayRun, ATaskThatCameFromOutlookIsNotSavedThereAgain)
{
    for (const DifferingPair* const pair : kPairs)
    {
        Execute(L"DELETE FROM TBLACTIVITY");
        Execute(pair->row);
        Mailbox->AddItem(pair->kind.folder, pair->item);
        const CallWatch calls;
        Exchange(*pair);
        EXPECT_EQ(1, calls.Of(L"DTC.Update")) << pair->kind.name;
        EXPECT_EQ(pair == &kTaskPair ? 0 : 1, calls.Of(pair->saves)) << pair->kind.name;
    }
}

TEST_F(TwoWayRun, ATaskThatTheHostRefusesIsWrittenToOutlookAsTheHostHasIt)
{
    Execute(kTaskPair.row);
    Mailbox->AddItem(kTaskPair.kind.folder, kTaskPair.item);
    TheHost.Failures().Order(L"Update", 1, {1});
    EXPECT_FALSE(Run(kTaskRun, kBoth, Answer::Accept).failed);
    EXPECT_EQ(L"0\n", TextIn(kTaskPair, L"Importance"));
    EXPECT_EQ(L"25\n", TextIn(kTaskPair, L"PercentComplete"));
}

TEST_F(TwoWayRun, OnlyTheOverwrittenRowsAreLeftOutOfTheSecondPassOfTasks)
{
    Execute(kTaskPair.row);
    Execute(L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_ACTNAME,F_ACTPRIORITY) VALUES "
            L"('T2',1,'Host only',1)");
    Mailbox->AddItem(kTaskPair.kind.folder, kTaskPair.item);
    Exchange(kTaskPair);
    ASSERT_EQ(2, CountItems(kTaskRun));
    EXPECT_EQ(L"Host only", automation::TextOf(Mailbox->ItemProperty(kTaskRun.folder, 2, L"Subject")));
}

// Tasks and appointments are made before the recordset moves to their row, contacts after.
TEST_F(TwoWayRun, ANewItemIsMadeBeforeOrAfterTheRecordsetMovesByItsKind)
{
    const std::vector<std::wstring> itemFirst{L"Items.Add", L"Recordset.Move"};
    const std::vector<std::wstring> rowFirst{L"Recordset.Move", L"Items.Add"};
    for (const RunKind& kind : kRuns)
    {
        Execute(L"DELETE FROM TBLACTIVITY");
        AddHostRecord(kind);
        const CallWatch watch;
        EXPECT_FALSE(Run(kind, 2, Answer::Accept).failed);
        EXPECT_EQ(&kind == &kContactRun ? rowFirst : itemFirst,
                  watch.InOrder({L"Items.Add", L"Recordset.Move"}))
            << kind.name;
    }
}

} // namespace
