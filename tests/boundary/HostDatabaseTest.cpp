#include "automation/Text.h"
#include "tests/boundary/Site.h"
#include "tests/support/Drive.h"
#include "tests/support/Thoroughness.h"

#include <optional>

namespace boundary_tests
{

namespace
{

using sandbox::Connection;

constexpr wchar_t kAway[] = L".away";

// The other program that holds a lock, where there is one.
using Other = std::optional<Connection>;

void Lock(Site& site, Other& other, const wchar_t* statement)
{
    site.Host().Database().Query(L"PRAGMA busy_timeout=20"); // who waits gives up soon
    other.emplace(site.Host().ConnectionString());
    other->Execute(statement);
}

void Unlock(Site&, Other& other)
{
    other->Execute(L"ROLLBACK");
    other.reset();
}

// Small pages, all of them filled, and no further one to be had.
void Fill(Site& site, Other&)
{
    Connection& database = site.Host().Database();
    database.Query(L"PRAGMA page_size=512");
    database.Execute(L"VACUUM");
    const long pages = automation::LongOf(database.QueryValue(L"PRAGMA page_count"));
    database.Query(L"PRAGMA max_page_count=" + std::to_wstring(pages));
}

template<const wchar_t* const& statement>
void Query(Site& site, Other&)
{
    site.Host().Database().Query(statement);
}

template<const wchar_t* const& table>
void TakeAway(Site& site, Other&)
{
    site.Host().Database().Execute(std::wstring(L"ALTER TABLE ") + table + L" RENAME TO Away");
}

template<const wchar_t* const& table>
void GiveBack(Site& site, Other&)
{
    site.Host().Database().Execute(std::wstring(L"ALTER TABLE Away RENAME TO ") + table);
}

void MoveFileAway(Site& site, Other&)
{
    ASSERT_TRUE(MoveFileW(site.HostFile().c_str(), (site.HostFile() + kAway).c_str()));
}

void MoveFileBack(Site& site, Other&)
{
    // Who asks for the file meanwhile may have got an empty one.
    ASSERT_TRUE(
        MoveFileExW((site.HostFile() + kAway).c_str(), site.HostFile().c_str(), MOVEFILE_REPLACE_EXISTING));
}

constexpr const wchar_t* kNoMorePages = L"PRAGMA max_page_count=1000000";
constexpr const wchar_t* kQueryOnly = L"PRAGMA query_only=1";
constexpr const wchar_t* kQueryAndWrite = L"PRAGMA query_only=0";
constexpr const wchar_t* kRelations = L"SynRelation";
constexpr const wchar_t* kCatalogue = L"SynFields";
constexpr const wchar_t* kContacts = L"TBLCONTACT";
constexpr const wchar_t* kActivities = L"TBLACTIVITY";

// The outcome of a run whose changes the user has accepted.
enum class Outcome
{
    Fails,       // nothing can be written in either direction
    PassesOver,  // what cannot be written to the host is passed over
    MayPassOver, // likewise, where it concerns this kind of data
};

struct Trouble
{
    const char* name;
    Outcome outcome;
    void (*begin)(Site& site, Other& other);
    void (*end)(Site& site, Other& other);
};

const Trouble kTroubles[] = {
    {"locked", Outcome::Fails, [](Site& s, Other& o) { Lock(s, o, L"BEGIN EXCLUSIVE"); }, Unlock},
    {"locked against writing", Outcome::PassesOver, [](Site& s, Other& o) { Lock(s, o, L"BEGIN IMMEDIATE"); },
     Unlock},
    {"full", Outcome::MayPassOver, Fill, Query<kNoMorePages>},
    {"read-only", Outcome::PassesOver, Query<kQueryOnly>, Query<kQueryAndWrite>},
    {"without its file", Outcome::Fails, MoveFileAway, MoveFileBack},
    {"without relations", Outcome::Fails, TakeAway<kRelations>, GiveBack<kRelations>},
    {"without a field catalogue", Outcome::MayPassOver, TakeAway<kCatalogue>, GiveBack<kCatalogue>},
    {"without contacts", Outcome::MayPassOver, TakeAway<kContacts>, GiveBack<kContacts>},
    {"without activities", Outcome::MayPassOver, TakeAway<kActivities>, GiveBack<kActivities>},
};

// With a short patience of the database's own, since the tests lock it.
std::wstring ImpatientConnection(const Site& site)
{
    return L"Driver=SQLite3;Timeout=20;Database=" + site.HostFile();
}

class HostDatabase : public testing::Test
{
  protected:
    static std::vector<Task> TasksFor(size_t trouble)
    {
        if (!test_support::IsLongRun())
        {
            return {{kKinds[(trouble + 1) % kKinds.size()], kBoth}};
        }
        std::vector<Task> tasks;
        for (const wchar_t* kind : kKinds)
        {
            for (const long direction : kDirections)
            {
                tasks.push_back({kind, direction});
            }
        }
        return tasks;
    }

    static void ExpectNoHarm(const Trouble& trouble, const Task& task)
    {
        const Course& course = UndisturbedCourse(task);
        Site site;
        const InProcess inProcess(site);
        site.Prepare(task.direction);
        Other other;
        const Seen seen = RunInTrouble(site, trouble, task, other);
        trouble.end(site, other);
        EXPECT_TRUE(seen.wasAsked);
        // A record that cannot be written to the host is passed over without a word, as the host contract
        // asks.
        const bool fails = trouble.outcome == Outcome::Fails && task.direction != kImport;
        EXPECT_EQ(fails ? FailureStatus() : SuccessStatus(), seen.status);
        site.ExpectNothingLeft();
        const State between = site.Look();
        ExpectWhole(between, course.before, course.after);
        if (trouble.outcome != Outcome::MayPassOver)
        {
            EXPECT_EQ(course.before.hostRows, between.hostRows);
        }
        EXPECT_EQ(SuccessStatus(), site.Run(task).status);
        ExpectReached(site.Look(), course.after);
    }

    static Seen RunInTrouble(Site& site, const Trouble& trouble, const Task& task, Other& other)
    {
        Seen seen;
        const test_support::MainThread mainThread;
        const bool refused = site.SynLoad(
            [&](Robot& robot) {
                User user(robot);
                seen = user.Run(task.kind, [&] { mainThread.Invoke([&] { trouble.begin(site, other); }); });
                user.Leave();
            },
            site.Host().Dtc(), ImpatientConnection(site));
        EXPECT_FALSE(refused);
        return seen;
    }
};

} // namespace

TEST_F(HostDatabase, InTroubleLosesNothingAndTheNextRunCompletesIt)
{
    size_t tried = 0;
    for (size_t i = 0; i < std::size(kTroubles); ++i)
    {
        for (const Task& task : TasksFor(i))
        {
            SCOPED_TRACE(std::string(kTroubles[i].name) + ", " + automation::ToUtf8(task.kind) +
                         ", direction " + std::to_string(task.direction));
            ExpectNoHarm(kTroubles[i], task);
            ++tried;
        }
    }
    test_support::ReportFigure("runs over a host database in trouble: " + std::to_string(tried));
}

TEST_F(HostDatabase, LockedBeforeARunStopsItAndTheUserTriesAgain)
{
    const Task task{L"contact", kBoth};
    const Course& course = UndisturbedCourse(task);
    Site site;
    const InProcess inProcess(site);
    site.Prepare(task.direction);
    Other other;
    Seen locked;
    Seen again;
    const test_support::MainThread mainThread;
    site.SynLoad([&](Robot& robot) {
        User user(robot);
        mainThread.Invoke([&] { Lock(site, other, L"BEGIN EXCLUSIVE"); });
        locked = user.Run(task.kind);
        mainThread.Invoke([&] { Unlock(site, other); });
        EXPECT_EQ(course.before, site.Look());
        again = user.Run(task.kind);
        user.Leave();
    });
    ASSERT_EQ(1u, locked.messages.size());
    EXPECT_FALSE(locked.wasAsked);
    EXPECT_EQ(L"", locked.status);
    EXPECT_EQ(SuccessStatus(), again.status);
    ExpectReached(site.Look(), course.after);
}

TEST_F(HostDatabase, UnderAWrongConnectionStringIsNotWrittenAndNoItemIs)
{
    for (const std::wstring connection : {L"Driver=SQLite3;Database=Z:\\nowhere\\at\\all\\host.db",
                                          L"Driver=None;Server=None", L"=;;=", L" "})
    {
        for (const wchar_t* kind : kKinds)
        {
            const Course& course = UndisturbedCourse({kind, kBoth});
            Site site;
            const InProcess inProcess(site);
            site.Prepare(kBoth);
            Seen seen;
            EXPECT_FALSE(site.SynLoad(
                [&](Robot& robot) {
                    User user(robot);
                    seen = user.Run(kind);
                    user.Leave();
                },
                site.Host().Dtc(), connection));
            EXPECT_EQ(FailureStatus(), seen.status);
            EXPECT_EQ(course.before, site.Look());
            site.ExpectNothingLeft();
        }
    }
}

} // namespace boundary_tests
