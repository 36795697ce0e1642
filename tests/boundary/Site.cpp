#include "tests/boundary/Site.h"

#include "tests/support/CallWatch.h"
#include "tools/demo/Installation.h"
#include "tools/sample_data/SampleData.h"

#include <map>
#include <set>
#include <stdexcept>
#include <utility>

namespace boundary_tests
{

using automation::ByRef;
using automation::Object;

namespace
{

constexpr size_t kRecords = 4; // of each kind on either side
constexpr auto kRunPatience =
    std::chrono::seconds(90); // more than what the component has with a busy Outlook

std::wstring NewFile(const wchar_t* name)
{
    static int number = 0;
    wchar_t folder[MAX_PATH];
    GetTempPathW(ARRAYSIZE(folder), folder);
    return folder + (L"telvix-boundary-" + std::to_wstring(GetCurrentProcessId())) + L"-" +
           std::to_wstring(++number) + L"-" + name;
}

// The files that every site starts from, written once.
class Pattern
{
  public:
    Pattern()
    {
        tools::WriteNumberedHost(mHost, sandbox::Edition::English, kRecords);
        tools::WriteNumberedMailbox(mMailbox, kRecords);
    }
    ~Pattern()
    {
        DeleteFileW(mHost.c_str());
        DeleteFileW(mMailbox.c_str());
    }

    void CopyTo(const std::wstring& host, const std::wstring& mailbox) const
    {
        CopyFileW(mHost.c_str(), host.c_str(), FALSE);
        CopyFileW(mMailbox.c_str(), mailbox.c_str(), FALSE);
    }

  private:
    std::wstring mHost = NewFile(L"host.db");
    std::wstring mMailbox = NewFile(L"outlook.db");
};

BOOL CALLBACK CountDialog(HWND window, LPARAM count)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, ARRAYSIZE(name));
    *reinterpret_cast<int*>(count) += lstrcmpW(name, L"#32770") == 0 ? 1 : 0;
    return TRUE;
}

// A call of one of Outlook's objects.
bool IsOutlooks(const std::wstring& name)
{
    static const std::set<std::wstring> kOthers = {L"DTC", L"MyInfo", L"Recordset", L"Fields", L"Field"};
    return !kOthers.contains(name.substr(0, name.find(L'.')));
}

Course FollowedCourse(const Task& task)
{
    Site site;
    const InProcess inProcess(site);
    site.Prepare(task.direction);
    Course course;
    course.before = site.Look();
    const test_support::CallWatch calls;
    Seen seen;
    site.SynLoad([&](Robot& robot) {
        User user(robot);
        seen = user.Run(task.kind, [&] { course.callsUntilConfirmation = calls.CountIf(IsOutlooks); });
        user.Leave();
    });
    EXPECT_EQ(SuccessStatus(), seen.status);
    course.callsInAll = calls.CountIf(IsOutlooks);
    course.after = site.Look();
    EXPECT_NE(course.before, course.after) << "a run that does nothing says nothing";
    return course;
}

} // namespace

long RuleOf(long direction)
{
    return direction == kImport   ? test_support::kOutlookWins
           : direction == kExport ? test_support::kHostWins
                                  : test_support::kIgnoreAll;
}

Site::Site() : mHostFile(NewFile(L"host.db")), mMailboxFile(NewFile(L"outlook.db"))
{
    static const Pattern pattern;
    pattern.CopyTo(mHostFile, mMailboxFile);
    OpenHost();
    mMailbox = std::make_unique<sandbox::Connection>(sandbox::ConnectionStringOf(mMailboxFile));
    tools::demo::InstallOutlookProfile(tools::demo::Profiles::Classic);
}

Site::~Site()
{
    mHost.reset();
    mMailbox.reset();
    DeleteFileW(mHostFile.c_str());
    DeleteFileW(mMailboxFile.c_str());
}

void Site::Prepare(long direction)
{
    tools::demo::Options options;
    options.TransType = direction;
    options.ConflictOption = RuleOf(direction);
    tools::demo::StoreSettings(mHost->Database(), std::to_wstring(mHost->UserId()), options);
}

bool Site::SynLoad(Robot::Script user, const Object& dtc)
{
    return SynLoad(std::move(user), dtc, mHost->ConnectionString());
}

bool Site::SynLoad(Robot::Script user, const Object& dtc, const std::wstring& connection)
{
    Robot robot(std::move(user), kRunPatience);
    const Object component = Object::Create(L"TelvixOutlook.ClsSynOutlook");
    Object given = dtc;
    const bool refused = automation::TruthOf(component.Call(L"SynLoad", ByRef(given), connection));
    robot.Finish();
    return refused;
}

Seen Site::Run(const Task& task)
{
    Seen seen;
    const bool refused = SynLoad([&](Robot& robot) {
        User user(robot);
        seen = user.Run(task.kind);
        user.Leave();
    });
    EXPECT_FALSE(refused);
    return seen;
}

void Site::ExpectNothingLeft()
{
    int dialogs = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountDialog, reinterpret_cast<LPARAM>(&dialogs));
    EXPECT_EQ(0, dialogs);
    EXPECT_TRUE(IsWindowEnabled(mWindow.Handle()));
    EXPECT_FALSE(mHost->Database().InTransaction());
}

InProcess::InProcess(const Site& site) : mOutlook(sandbox::OpenMailbox(site.MailboxFile()))
{
    if (std::exchange(gIsThere, true))
    {
        throw std::logic_error("another mailbox is served in this process already");
    }
}

const Course& UndisturbedCourse(const Task& task)
{
    static std::map<std::pair<std::wstring, long>, Course> courses;
    const auto key = std::make_pair(task.kind, task.direction);
    const auto known = courses.find(key);
    return known != courses.end() ? known->second : courses.emplace(key, FollowedCourse(task)).first->second;
}

Excused UnfinishedRecords(const Task& task)
{
    const bool mayBe = task.kind == L"task" && task.direction != kImport;
    return {.rows = mayBe && task.direction == kBoth ? 1u : 0u, .items = mayBe ? 1u : 0u};
}

} // namespace boundary_tests
