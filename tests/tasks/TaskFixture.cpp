#include "tests/tasks/TaskFixture.h"

#include "data/RecordMode.h"
#include "state/SharedState.h"
#include "tasks/Tasks.h"
#include "tests/support/InsertStatement.h"

namespace test_support
{

using automation::Object;

namespace
{

constexpr const wchar_t* kTables[] = {
    L"CREATE TABLE SynRelation (QuenlarTblName VARCHAR(50), EnglishName VARCHAR(50), OutlookName "
    L"VARCHAR(50))",
    L"CREATE TABLE SynFields (FieldName VARCHAR(50), FieldType INTEGER, FieldSize INTEGER)",
    L"CREATE TABLE Activities (F_ACTID VARCHAR(40), F_ACTNAME VARCHAR(100), F_ACTTYPE VARCHAR(50), "
    L"F_ACTPSTIME DATETIME, F_ACTPETIME DATETIME, F_ACTCDATE DATETIME, F_ACTMADE DATETIME, F_ACTCOMPLETED "
    L"BOOLEAN, F_ACTPERCENT DOUBLE, F_ACTSTATUS INTEGER, F_ACTLEVEL INTEGER, F_ACTREMIND BOOLEAN, "
    L"F_ACTTOTAL INTEGER, F_ACTUAL INTEGER, CONTACT_SURNAME VARCHAR(50), CONTACT_GIVENNAME VARCHAR(50), "
    L"ACC_SNAME VARCHAR(50))",
    L"INSERT INTO SynFields VALUES ('F_ACTNAME',2,100),('F_ACTTYPE',2,50),('F_ACTPSTIME',6,8),"
    L"('F_ACTPETIME',4,8),('F_ACTCDATE',4,8),('F_ACTMADE',6,8),('F_ACTCOMPLETED',1,4),('F_ACTPERCENT',7,8),"
    L"('F_ACTSTATUS',1,4),('F_ACTLEVEL',1,4),('F_ACTREMIND',3,1),('F_ACTTOTAL',1,4),('F_ACTUAL',1,4),"
    L"('F_ACCSNAME',2,100),('F_ACCCURRIDX',1,4)",
};

} // namespace

TaskFixture::TaskFixture()
{
    state::SharedState& shared = state::Shared();
    shared.gCnnString = mFile.ConnectionString();
    mHost->KeyStem = L"KEY";
    mHost->Unlogged = {L"MyInfo", L"UID", L"NewGuid", L"InTransaction", L"PermissionOn"};
    shared.gOlNamespace = Namespace();
    shared.gCalendarPreviewAlarmTime = 20;
    for (const wchar_t* statement : kTables)
    {
        Execute(statement);
    }
}

TaskFixture::~TaskFixture()
{
    state::Shared().gCnnString.clear();
    state::Shared().gOlNamespace = {};
}

void TaskFixture::Execute(const std::wstring& sql) const
{
    sandbox::Connection(state::Shared().gCnnString).Execute(sql);
}

void TaskFixture::Relate(const Pairs& rows) const
{
    Execute(L"DELETE FROM SynRelation");
    for (const auto& [column, property] : rows)
    {
        Execute(L"INSERT INTO SynRelation VALUES ('TBLACTIVITY','" + column + L"','" + property + L"')");
    }
}

void TaskFixture::AddHostTask(const Pairs& columns) const
{
    Pairs task{{L"F_ACTID", L"'ACT' || (SELECT COUNT(*) + 1 FROM Activities)"}};
    task.insert(task.end(), columns.begin(), columns.end());
    Execute(InsertStatement(L"Activities", task));
}

long TaskFixture::AddOutlookTask(const sandbox::Mailbox::NamedValues& properties) const
{
    return mMailbox->AddItem(kTasks, properties);
}

exchange::Run TaskFixture::NewRun()
{
    const Object folder = Namespace().GetObject(L"GetDefaultFolder", 13L);
    return {.Display = mDisplay,
            .HostRows = automation::OpenRecordset(L"SELECT * FROM Activities", state::Shared().gCnnString,
                                                  {.cursorLocation = automation::kCursorClient}),
            .Folder = folder,
            .Items = folder.GetObject(L"Items")};
}

Object TaskFixture::WriteNewTask()
{
    exchange::Run run = NewRun();
    run.Pending.NewHostRecords.Add(1L, 0);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    return TaskAt(CountTasks());
}

Object TaskFixture::WriteExistingTask()
{
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 1);
    run.Pending.ChangedOutlookItems.Add(L"1", 1);
    EXPECT_FALSE(tasks::SynTaskToOutlook(run));
    return TaskAt(1);
}

void TaskFixture::InsertFirstTask()
{
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(tasks::SynTaskFromOutlook(run));
}

void TaskFixture::UpdateFirstTask()
{
    exchange::Run run = NewRun();
    run.Pending.ChangedHostRecords.Add(1L, 0);
    run.Pending.ChangedOutlookItems.Add(L"1", 0);
    EXPECT_FALSE(tasks::SynTaskFromOutlook(run));
}

Object TaskFixture::Namespace() const
{
    return mOutlook.GetObject(L"GetNamespace", L"MAPI");
}

Object TaskFixture::TaskAt(long position) const
{
    return Namespace().GetObject(L"GetDefaultFolder", 13L).GetObject(L"Items").GetObject(L"Item", position);
}

automation::Value TaskFixture::TaskProperty(long position, const wchar_t* name) const
{
    return mMailbox->ItemProperty(kTasks, position, name);
}

} // namespace test_support
