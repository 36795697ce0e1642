#include "tests/sandbox_outlook/OutlookFixture.h"

#include "automation/Text.h"
#include "sandbox/outlook/facts/Published.h"
#include "tests/sandbox_outlook/UsesOfComponent.h"

#include <algorithm>
#include <cwchar>

namespace sandbox
{

namespace
{

struct MemberInSources
{
    const wchar_t* member;
    bool isWritten;
};

constexpr MemberInSources kMembersInSources[] = {
#include "MembersInSources.inc"
};

template<typename Rows>
bool Names(const Rows& rows, const wchar_t* member)
{
    return std::ranges::any_of(rows, [&](const wchar_t* one) { return std::wcscmp(one, member) == 0; });
}

std::string PathOf(const MemberUse& use)
{
    return automation::ToUtf8(use.interfaceName) + "." + automation::ToUtf8(use.member);
}

// A value of the type, as the component would write it.
automation::Value Sample(VARTYPE type, VARTYPE published)
{
    switch (type)
    {
    case VT_DATE: return Day(2003, 5, 6);
    case VT_BOOL: return true;
    case VT_I4: return 2;
    default: return published == VT_DATE ? L" 09:30:00" : L"a text";
    }
}

bool Converts(VARTYPE type, VARTYPE published)
{
    const automation::Value sample = Sample(type, published);
    automation::Value converted;
    return SUCCEEDED(
        VariantChangeType(converted.Receive(), const_cast<VARIANT*>(&sample.Raw()), 0, published));
}

} // namespace

TEST(UsesOfComponent, EveryMemberExistsOnItsClass)
{
    for (const MemberUse& use : kUses)
    {
        EXPECT_NE(nullptr, outlook::Published(use.interfaceName).Find(use.member)) << PathOf(use);
    }
}

TEST(UsesOfComponent, AMemberIsWrittenOnlyWhereItCanBeAndWithATypeThatConverts)
{
    for (const MemberUse& use : kUses)
    {
        const auto* member = outlook::Published(use.interfaceName).Find(use.member);
        if (use.written != VT_EMPTY && member != nullptr)
        {
            EXPECT_TRUE(member->isWritable) << PathOf(use);
            EXPECT_TRUE(Converts(use.written, outlook::TypeOfParameter(member->type))) << PathOf(use);
        }
    }
    EXPECT_FALSE(Converts(VT_BSTR, VT_I4));
}

TEST(UsesOfComponent, ADeprecatedMemberIsUsedForAReasonOnly)
{
    for (const MemberUse& use : kUses)
    {
        const auto* member = outlook::Published(use.interfaceName).Find(use.member);
        const bool isOfDeprecated = std::wcscmp(use.interfaceName, L"Links") == 0;
        const bool hasReason = std::ranges::any_of(kDeprecatedUses, [&](const DeprecatedUse& one) {
            return std::wcscmp(one.member, use.member) == 0 && *one.reason != L'\0';
        });
        if (member != nullptr && !isOfDeprecated)
        {
            EXPECT_EQ(hasReason, member->isDeprecated || member->isHidden) << PathOf(use);
        }
    }
}

TEST(UsesOfComponent, TheMembersThatTheSourcesUseAreListed)
{
    ASSERT_GT(std::size(kMembersInSources), 100u);
    for (const MemberInSources& found : kMembersInSources)
    {
        const bool isListed = std::ranges::any_of(kUses, [&](const MemberUse& use) {
            return std::wcscmp(use.member, found.member) == 0 &&
                   (!found.isWritten || use.written != VT_EMPTY);
        });
        EXPECT_TRUE(isListed || Names(kOfOthers, found.member) || Names(kWritesOthers, found.member))
            << automation::ToUtf8(found.member) << (found.isWritten ? " is written" : " is read");
    }
}

TEST(UsesOfComponent, TheFakesHaveTheMembersThatTheComponentUses)
{
    const auto mailbox = MakeMailbox();
    const auto outlook = MakeOutlook(mailbox);
    const std::pair<const wchar_t*, long> items[] = {
        {L"_ContactItem", 2}, {L"_TaskItem", 3}, {L"_AppointmentItem", 1}};
    for (const auto& [interfaceName, type] : items)
    {
        const auto item = outlook.GetObject(L"CreateItem", type);
        for (const MemberUse& use : kUses)
        {
            if (std::wcscmp(use.interfaceName, interfaceName) == 0)
            {
                LPOLESTR name = const_cast<LPOLESTR>(use.member);
                DISPID id = DISPID_UNKNOWN;
                EXPECT_EQ(S_OK, item.Dispatch()->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &id))
                    << PathOf(use);
            }
        }
    }
}

} // namespace sandbox
