#include "automation/Error.h"
#include "automation/Text.h"
#include "tests/boundary/Site.h"
#include "tests/support/Interceptor.h"
#include "tests/support/Thoroughness.h"

#include <set>

namespace boundary_tests
{

namespace
{

enum class Ending
{
    Refused, // a message says that nothing is chosen for transfer
    Failed,
    Succeeded, // with what could be done
};

// How a run ends whose host raises an error from a member each time.
struct RaisingMember
{
    const wchar_t* name;
    Ending import;
    Ending both; // and a run to Outlook, which does not write to the host
};

constexpr RaisingMember kMembers[] = {
    {L"OpenRecordset", Ending::Failed, Ending::Failed},
    // Parameters and the user's folder cannot be read.
    {L"OpenRecordsetByString", Ending::Refused, Ending::Refused},
    {L"MyInfo", Ending::Refused, Ending::Refused},
    {L"UID", Ending::Refused, Ending::Refused},
    // A record that cannot be written is passed over.
    {L"Insert", Ending::Succeeded, Ending::Succeeded},
    {L"Update", Ending::Succeeded, Ending::Succeeded},
    {L"NewGuid", Ending::Succeeded, Ending::Succeeded},
    {L"BeginTrans", Ending::Succeeded, Ending::Succeeded},
    {L"CommitTrans", Ending::Succeeded, Ending::Succeeded},
    {L"RollbackTrans", Ending::Succeeded, Ending::Succeeded},
    {L"InTransaction", Ending::Succeeded, Ending::Succeeded},
    // A right that cannot be asked for counts as denied.
    {L"PermissionOn", Ending::Succeeded, Ending::Succeeded},
    {L"SysDateTime", Ending::Succeeded, Ending::Succeeded},
    {L"Delete", Ending::Succeeded, Ending::Succeeded},
};

Ending EndingOf(const Seen& seen)
{
    return seen.status == SuccessStatus()   ? Ending::Succeeded
           : seen.status == FailureStatus() ? Ending::Failed
                                            : Ending::Refused;
}

// Members that raise: the one in question, and for a rollback something that makes it necessary.
std::set<std::wstring> Raising(const std::wstring& member)
{
    return member == L"RollbackTrans" ? std::set<std::wstring>{member, L"Insert", L"Update"}
                                      : std::set<std::wstring>{member};
}

class HostRaises : public testing::TestWithParam<const wchar_t*>
{
  protected:
    // Each member with each kind in each direction; in the bounded run each member once.
    static std::vector<long> DirectionsFor(size_t member)
    {
        if (test_support::IsLongRun())
        {
            return {kDirections.begin(), kDirections.end()};
        }
        if (std::wstring(GetParam()) != kKinds[member % kKinds.size()])
        {
            return {};
        }
        return {std::wstring(kMembers[member].name) == L"Update" ? kImport : kBoth};
    }

    void ExpectNoHarm(const RaisingMember& member, const Task& task)
    {
        const Course& course = UndisturbedCourse(task);
        Site site;
        const InProcess inProcess(site);
        site.Prepare(task.direction);
        const auto hooks = std::make_shared<test_support::Hooks>();
        hooks->before = [raising = Raising(member.name)](const std::wstring& called) {
            if (raising.contains(called))
            {
                throw automation::Error(E_FAIL, called, L"The host raises an error");
            }
        };
        const Seen seen = RunWith(site, test_support::Intercept(site.Host().Dtc(), hooks), task);
        mCalls[member.name] += hooks->calls[member.name];
        EXPECT_EQ(task.direction == kImport ? member.import : member.both, EndingOf(seen));
        TakeBackWhatTheHostLeftOpen(site, member.name);
        site.ExpectNothingLeft();
        ExpectWhole(site.Look(), course.before, course.after);
        EXPECT_EQ(SuccessStatus(), site.Run(task).status);
        ExpectReached(site.Look(), course.after);
    }

    static Seen RunWith(Site& site, const automation::Object& dtc, const Task& task)
    {
        Seen seen;
        const bool refused = site.SynLoad(
            [&](Robot& robot) {
                User user(robot);
                seen = user.Run(task.kind);
                user.Leave();
            },
            dtc);
        EXPECT_FALSE(refused);
        return seen;
    }

    // Where the host does not say whether a transaction is open, or does not end it, it is the host's to end.
    static void TakeBackWhatTheHostLeftOpen(Site& site, const std::wstring& member)
    {
        const bool isHosts = member == L"RollbackTrans" || member == L"InTransaction";
        if (isHosts && site.Host().Database().InTransaction())
        {
            site.Host().Database().Rollback();
        }
    }

    // A calendar entry is one row, which needs no transaction; the host's clock is for ranges of days only,
    // and nothing is deleted in a run.
    static bool IsUsed(const std::wstring& member)
    {
        const bool isForTransactions = member.ends_with(L"Trans") || member == L"InTransaction";
        return member != L"SysDateTime" && member != L"Delete" &&
               !(isForTransactions && std::wstring(GetParam()) == L"calendar");
    }

    std::map<std::wstring, long> mCalls;
};

} // namespace

TEST_P(HostRaises, FromAMemberEachTimeAndNothingIsHalfWrittenAndTheNextRunPutsItRight)
{
    size_t tried = 0;
    for (size_t i = 0; i < std::size(kMembers); ++i)
    {
        const RaisingMember& member = kMembers[i];
        for (const long direction : DirectionsFor(i))
        {
            SCOPED_TRACE(automation::ToUtf8(member.name) + ", direction " + std::to_string(direction));
            ExpectNoHarm(member, {GetParam(), direction});
            ++tried;
        }
    }
    for (const auto& [member, calls] : mCalls)
    {
        EXPECT_EQ(IsUsed(member), calls > 0) << automation::ToUtf8(member);
    }
    test_support::ReportFigure("runs in which a host member always raises, " +
                               automation::ToUtf8(GetParam()) + ": " + std::to_string(tried));
}

INSTANTIATE_TEST_SUITE_P(, HostRaises, testing::ValuesIn(kKinds));

} // namespace boundary_tests
