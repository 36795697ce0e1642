#include "tests/faults/FaultTrials.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "run/ChangeCollection.h"
#include "run/FrmMessage.h"
#include "sandbox/ado/Recordset.h"

#include <algorithm>
#include <iterator>

namespace test_support
{

namespace
{

using automation::ToUtf8;
using Records = std::multiset<std::wstring>;

// A question of rights that fails is, by the contract, a right that is missing: the record is then written
// without what the right is for, or not proposed.
bool IsQuestionOfRights(const std::wstring& member)
{
    return member == L"MyInfo" || member == L"PermissionOn";
}

// The contract saves a task after every relation row, so a fault may leave one that is written in part.
bool MayLeavePart(const Exchanged& what)
{
    return what.IsToOutlook() && !what.kind.savesItemOnce;
}

// A contact whose present account cannot be queried is written with the account and the address that it has.
bool MayKeepAddress(const Exchanged& what)
{
    return !what.IsToOutlook() && what.kind.itemKind == sandbox::ItemKind::Contact;
}

Records WithoutAddresses(const Records& records)
{
    Records without;
    for (const std::wstring& record : records)
    {
        without.insert(record.substr(0, record.find(L"ADDR_CITY=")));
    }
    return without;
}

// The contract has a run of tasks succeed where the host does not open their rows.
bool IsPassedOver(const Trial& trial, const std::wstring& struck)
{
    return trial.fault == Fault::Refuses && struck == L"OpenRecordset" &&
           trial.what.kind.succeedsWithoutHostRows;
}

Records Union(const Records& left, const Records& right)
{
    Records all;
    std::ranges::set_union(left, right, std::inserter(all, all.end()));
    return all;
}

Records Without(const Records& all, const Records& known)
{
    Records rest;
    std::ranges::set_difference(all, known, std::inserter(rest, rest.end()));
    return rest;
}

std::string Listed(const Records& records)
{
    std::string text;
    for (const std::wstring& record : records)
    {
        text += "\n  " + ToUtf8(record);
    }
    return text;
}

// Records that a run leaves alone are there, every other one as before or as after it, none is lost.
void ExpectWhole(const Records& now, const Records& before, const Records& after, size_t partsAllowed)
{
    Records kept;
    std::ranges::set_intersection(before, after, std::inserter(kept, kept.end()));
    EXPECT_EQ("", Listed(Without(kept, now))) << "lost";
    EXPECT_LE(before.size(), now.size()) << "a changed record is lost";
    const Records parts = Without(now, Union(before, after));
    EXPECT_LE(parts.size(), partsAllowed) << Listed(parts);
}

void ExpectSame(const Records& now, const Records& wanted, size_t extraAllowed)
{
    EXPECT_EQ("", Listed(Without(wanted, now))) << "missing";
    const Records extra = Without(now, wanted);
    EXPECT_LE(extra.size(), extraAllowed) << Listed(extra);
}

} // namespace

FaultTrials::FaultTrials()
    : TwoSides([this] {
          mFaults->CountCreation();
          return Intercept(sandbox::MakeRecordset(), mFaults);
      })
{
    state::Shared().gSynParameter.TransConflictOption = state::kNotifyMe;
    CloseOutlook();
    mLiveObjects = sandbox::LiveObjects();
}

// The steps of a run one by one, so that the fault strikes within one of them; true when it was reported.
bool FaultTrials::ExchangeInSteps(const Trial& trial)
{
    const exchange::Kind& category = trial.what.kind.tested;
    exchange::Run run = OpenRun(trial.what.kind, Display);
    const automation::RecordsetCloser closer(run.HostRows);
    const auto startCounting = [&] { mFaults->Order(trial.fault, trial.at); };
    if (trial.phase == Phase::Collection)
    {
        startCounting();
    }
    bool failed = false;
    try
    {
        run::ChangeCollection collection(category, run);
        failed = trial.what.IsToOutlook() ? collection.CollectToOutlook() : collection.CollectFromOutlook();
    }
    catch (const automation::Error&) // the run procedures trap what the preparation raises
    {
        failed = true;
    }
    mFaults->Stop();
    if (failed)
    {
        return true;
    }
    if (trial.phase == Phase::Apply)
    {
        startCounting();
    }
    return trial.what.IsToOutlook() ? category.ToOutlook(run) : category.FromOutlook(run);
}

FaultTrials::Outcome FaultTrials::Exchange(const Trial& trial)
{
    state::SharedState& shared = state::Shared();
    mFaults->OrderNone();
    shared.gDTC = Intercept(TheHost.Dtc(), mFaults);
    shared.gOlApplication = Intercept(sandbox::MakeOutlook(Mailbox), mFaults);
    shared.gOlNamespace = shared.gOlApplication.GetObject(L"GetNamespace", L"MAPI");
    shared.gSynParameter.TransType = static_cast<long>(trial.what.direction);
    shared.gSynParameter.CurrentFolder = trial.what.kind.folder;
    Outcome outcome;
    if (trial.phase == Phase::Whole)
    {
        mFaults->Order(trial.fault, trial.at);
        Display.Ask = run::ConfirmChanges;
        outcome.reportedFailure = trial.what.kind.run(Display);
    }
    else
    {
        outcome.reportedFailure = ExchangeInSteps(trial);
    }
    outcome.struck = mFaults->StruckMember();
    mFaults->OrderNone();
    shared.gDTC = {};
    CloseOutlook();
    return outcome;
}

void FaultTrials::ExchangeUndisturbed(const Exchanged& what)
{
    EXPECT_FALSE(Exchange({what, Phase::Apply, Fault::Raises, 0}).reportedFailure);
}

void FaultTrials::LearnStates(const Exchanged& what)
{
    Reset();
    mBefore = Look();
    ExchangeUndisturbed(what);
    mAfter = Look();
    ASSERT_NE(mBefore, mAfter);
    ExchangeUndisturbed(what);
    const TwoStates again = Look();
    ASSERT_EQ("", Listed(Without(again.Host, mAfter.Host))) << "a second run changes the host";
    ASSERT_EQ("", Listed(Without(again.Outlook, mAfter.Outlook))) << "a second run changes Outlook";
}

long FaultTrials::StrikeEveryCall(const Exchanged& what, Phase phase, long step)
{
    LearnStates(what);
    long struck = 0;
    for (const Fault fault : {Fault::Raises, Fault::AnswerLost, Fault::Refuses})
    {
        for (long at = 1; !HasFailure() && Strike({what, phase, fault, at}); at += step)
        {
            ++struck;
        }
    }
    return struck;
}

bool FaultTrials::Strike(const Trial& trial)
{
    Reset();
    const Outcome outcome = Exchange(trial);
    if (outcome.struck.empty())
    {
        return false;
    }
    SCOPED_TRACE(std::string(trial.what.kind.name) + ", fault " +
                 std::to_string(static_cast<int>(trial.fault)) + " at call " + std::to_string(trial.at) +
                 ", " + ToUtf8(outcome.struck));
    ExpectNothingOpen();
    EXPECT_EQ(0, PartsWithoutAWhole());
    if (IsQuestionOfRights(outcome.struck))
    {
        return true;
    }
    const TwoStates now = Look();
    ExpectWholeRecords(trial, now);
    if (trial.what.IsToOutlook() && !outcome.reportedFailure && !IsPassedOver(trial, outcome.struck))
    {
        EXPECT_EQ("", Listed(Without(mAfter.Outlook, now.Outlook))) << "success was reported";
    }
    ExpectPuttingRight(trial);
    return true;
}

void FaultTrials::ExpectNothingOpen()
{
    EXPECT_FALSE(TheHost.Database().InTransaction());
    EXPECT_FALSE(Display.IsShown) << "the progress bar is still shown";
    EXPECT_EQ(0, InterceptedObjects()) << "objects are still held";
    EXPECT_EQ(mLiveObjects, sandbox::LiveObjects()) << "objects are still held";
}

void FaultTrials::ExpectWholeRecords(const Trial& trial, const TwoStates& now)
{
    ExpectWhole(now.Host, mBefore.Host, mAfter.Host, MayKeepAddress(trial.what) ? 1 : 0);
    ExpectWhole(WithoutAddresses(now.Host), WithoutAddresses(mBefore.Host), WithoutAddresses(mAfter.Host), 0);
    ExpectWhole(now.Outlook, mBefore.Outlook, mAfter.Outlook, MayLeavePart(trial.what) ? 1 : 0);
}

void FaultTrials::ExpectPuttingRight(const Trial& trial)
{
    ExchangeUndisturbed(trial.what);
    const TwoStates now = Look();
    ExpectSame(now.Host, mAfter.Host, 0);
    ExpectSame(now.Outlook, mAfter.Outlook, MayLeavePart(trial.what) ? 1 : 0);
    ExpectNothingOpen();
}

} // namespace test_support
