#include "exchange/ApplyToOutlook.h"
#include "automation/OutlookConstants.h"

#include "sandbox/ado/Recordset.h"
#include "sandbox/dispatch/DispatchObject.h"
#include "tests/support/CallWatch.h"
#include "tests/support/RecordingDisplay.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using automation::Object;
using automation::Value;
using exchange::Run;

// Folder.Items that gives an object for every item asked for or added.
class FolderItems : public sandbox::DispatchObject
{
    const wchar_t* ClassName() const override { return L"Items"; }
    const sandbox::MemberTable& Members() const override
    {
        static const sandbox::MemberTable kMembers = {{L"Item", sandbox::Reads(&FolderItems::Another), {}},
                                                      {L"Add", sandbox::Reads(&FolderItems::Another), {}}};
        return kMembers;
    }

    Value Another(const sandbox::Call& /*call*/) { return sandbox::MakeObject<FolderItems>(); }
};

std::vector<long> gWrittenModes; // modes

void WriteMode(Run& /*run*/, data::RecordMode mode, const Object& /*item*/)
{
    gWrittenModes.push_back(mode);
}

class ApplyToOutlook : public testing::Test
{
  protected:
    ApplyToOutlook()
    {
        gWrittenModes.clear();
        TheRun.Items = sandbox::MakeObject<FolderItems>();
        TheRun.HostRows = automation::Recordset(sandbox::MakeRecordset({{{L"Id"}}, {{L"first"}}}));
    }

    bool Apply()
    {
        return exchange::PassToOutlook{
            .ItemType = automation::kTaskItem, .RelationStatement = L"SELECT", .Write = WriteMode}(TheRun);
    }

    test_support::WithLanguage English{resources::Language::English};
    test_support::RecordingDisplay Display;
    exchange::Run TheRun{Display, {}, {}, {}, {}, {}, {}};
};

} // namespace

TEST_F(ApplyToOutlook, NothingPendingShowsTheStatusAsksOutlookForNothingAndSucceeds)
{
    const test_support::CallWatch calls;
    EXPECT_FALSE(Apply());
    const std::vector<std::wstring> events{
        L"Begin Synchronize...", L"0%", L"(shown)", L"0%", L"0%", L"(hidden)"};
    EXPECT_EQ(events, Display.Events);
    EXPECT_EQ(0, calls.Total());
    EXPECT_TRUE(gWrittenModes.empty());
}

TEST_F(ApplyToOutlook, APendingRecordReachesOutlook)
{
    TheRun.Pending.NewHostRecords.Add(1, 0);
    const test_support::CallWatch calls;
    EXPECT_FALSE(Apply());
    EXPECT_EQ(1, calls.Of(L"Items.Add"));
    EXPECT_EQ(std::vector<long>{data::kNewRecord}, gWrittenModes);
}
