#include "data/Permissions.h"

#include "state/SharedState.h"
#include "tests/support/FakeHost.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/WithLanguage.h"

#include <gtest/gtest.h>

namespace
{

using data::CheckPermission;
using data::HasPermission;
using test_support::MessagesDuring;
using test_support::ShownMessage;

class Permissions : public testing::Test
{
  protected:
    // What the host is asked for: "module|function|right".
    std::wstring Codes(long kind, long scope, long operation)
    {
        Host->Calls.clear();
        HasPermission(kind, scope, operation);
        const std::wstring kAsked = L"PermissionOn(";
        const std::wstring last = Host->Calls.empty() ? L"" : Host->Calls.back();
        return last.starts_with(kAsked) ? last.substr(kAsked.size(), last.size() - kAsked.size() - 1)
                                        : L"(nothing)";
    }

    // The text of the one message that a refused check shows.
    std::wstring Refusal(long kind, long operation)
    {
        Host->Permission = 1;
        const auto shown = MessagesDuring([=] { EXPECT_FALSE(CheckPermission(kind, 1, operation)); });
        EXPECT_EQ(shown.size(), 1u);
        return shown.empty() ? L"(no message)" : shown.front().text;
    }

    test_support::WithFakeHost Host;
};

TEST_F(Permissions, KindsAndScopesBecomeTheHostsModulesAndFunctions)
{
    struct
    {
        long kind, scope;
        const wchar_t* codes;
    } const kRows[] = {
        {1, 0, L"1|2|1"}, {1, 1, L"1|2|1"},  {1, 2, L"1|3|1"}, {1, 3, L"1|4|1"}, {2, 0, L"2|2|1"},
        {2, 1, L"2|2|1"}, {2, 2, L"2|3|1"},  {2, 3, L"2|4|1"}, {3, 0, L"4|5|1"}, {3, 1, L"4|5|1"},
        {3, 6, L"4|6|1"}, {3, 2, L"4|7|1"},  {3, 3, L"4|8|1"}, {4, 0, L"6|9|1"}, {4, 1, L"6|9|1"},
        {4, 6, L"6|9|1"}, {4, 99, L"6|9|1"},
    };
    for (const auto& row : kRows)
    {
        EXPECT_EQ(Codes(row.kind, row.scope, 1), row.codes) << row.kind << " in scope " << row.scope;
    }
}

TEST_F(Permissions, OperationsBecomeTheHostsRights)
{
    struct
    {
        long operation, right;
    } const kRows[] = {{1, 1}, {2, 2}, {3, 2}, {4, 8}, {5, 4}, {0, 0}, {6, 0}, {8, 0}, {-1, 0}};
    for (const auto& row : kRows)
    {
        EXPECT_EQ(Codes(2, 1, row.operation), L"2|2|" + std::to_wstring(row.right)) << row.operation;
    }
}

TEST_F(Permissions, AKindOrScopeOutsideTheTablesIsAskedForWithCodeZero)
{
    EXPECT_EQ(Codes(5, 1, 2), L"0|0|2");
    EXPECT_EQ(Codes(0, 1, 2), L"0|0|2");
    EXPECT_EQ(Codes(1, 6, 2), L"1|0|2");
    EXPECT_EQ(Codes(3, 4, 2), L"4|0|2");
}

TEST_F(Permissions, ZeroAndThreePermitAndEveryOtherAnswerDenies)
{
    const std::pair<long, bool> kAnswers[] = {{0, true},  {3, true},  {1, false},
                                              {2, false}, {4, false}, {-1, false}};
    for (const auto& [answer, permitted] : kAnswers)
    {
        Host->Permission = answer;
        EXPECT_EQ(HasPermission(2, 1, 2), permitted) << answer;
    }
}

TEST_F(Permissions, OperationSevenNeverReachesTheHostAndNeverShowsAMessage)
{
    Host->Permission = 1;
    EXPECT_TRUE(MessagesDuring([] { EXPECT_TRUE(CheckPermission(2, 1, 7)); }).empty());
    EXPECT_TRUE(Host->Calls.empty());
}

TEST_F(Permissions, AnErrorRaisedByTheHostMeansThatTheRightIsMissing)
{
    Host->Failing = {L"PermissionOn"};
    EXPECT_FALSE(HasPermission(2, 1, 2));
    const auto shown = MessagesDuring([] { EXPECT_FALSE(CheckPermission(2, 1, 2)); });
    EXPECT_EQ(shown.size(), 1u);
}

TEST_F(Permissions, WithoutAHostTheRightIsMissing)
{
    state::Shared().gDTC = {};
    EXPECT_FALSE(HasPermission(2, 1, 2));
}

TEST_F(Permissions, APermittedCheckShowsNothing)
{
    EXPECT_TRUE(MessagesDuring([] { EXPECT_TRUE(CheckPermission(2, 1, 5)); }).empty());
}

TEST_F(Permissions, ARefusalIsShownWithTheExclamationIconUnderTheApplicationsTitle)
{
    const test_support::WithLanguage english(resources::Language::English);
    Host->Permission = 2;
    const std::vector<ShownMessage> expected = {
        {L"You are not permit to add contact record(s)!", L"Telvix", IDI_EXCLAMATION}};
    EXPECT_EQ(MessagesDuring([] { EXPECT_FALSE(CheckPermission(2, 1, 2)); }), expected);
}

TEST_F(Permissions, TheRefusalSaysInEnglishWhichRightIsMissing)
{
    const test_support::WithLanguage english(resources::Language::English);
    EXPECT_EQ(Refusal(2, 2), L"You are not permit to add contact record(s)!");
    EXPECT_EQ(Refusal(2, 5), L"You are not permit to modify contact record(s)!");
    EXPECT_EQ(Refusal(3, 2), L"You are not permit to add activity record(s)!");
    EXPECT_EQ(Refusal(3, 5), L"You are not permit to modify activity record(s)!");
    EXPECT_EQ(Refusal(1, 2), L"You are not permit to add account record(s)!");
    EXPECT_EQ(Refusal(1, 5), L"You are not permit to modify account record(s)!");
    EXPECT_EQ(Refusal(4, 2), L"You are not permit to add account calendar record(s)!");
    EXPECT_EQ(Refusal(4, 5), L"You are not permit to modify account calendar record(s)!");
}

TEST_F(Permissions, TheRefusalSaysInChineseWhichRightIsMissing)
{
    const test_support::WithLanguage chinese(resources::Language::Chinese);
    EXPECT_EQ(Refusal(2, 2), L"你没有添加联系人的权限!");
    EXPECT_EQ(Refusal(2, 5), L"你没有修改联系人的权限!");
    EXPECT_EQ(Refusal(3, 2), L"你没有添加任务的权限!");
    EXPECT_EQ(Refusal(3, 5), L"你没有修改任务的权限!");
    EXPECT_EQ(Refusal(1, 2), L"你没有添加单位的权限!");
    EXPECT_EQ(Refusal(1, 5), L"你没有修改单位的权限!");
    EXPECT_EQ(Refusal(4, 2), L"你没有添加日历的权限!");
    EXPECT_EQ(Refusal(4, 5), L"你没有修改日历的权限!");
}

TEST_F(Permissions, ADeniedCheckForAnotherKindOrOperationShowsAnEmptyText)
{
    EXPECT_EQ(Refusal(5, 2), L"");
    EXPECT_EQ(Refusal(0, 5), L"");
    EXPECT_EQ(Refusal(2, 1), L"");
    EXPECT_EQ(Refusal(2, 4), L"");
}

} // namespace
