#include "run/FrmMessage.h"

#include "resources/Strings.h"
#include "state/SynParameter.h"

namespace run
{

namespace
{

using resources::Choose;

struct HeadingRow
{
    long transType;
    ConfirmSection section;
    const wchar_t* chineseBefore; // before the category's text
    const wchar_t* english;       // before the category's text, which ends the line
};

constexpr wchar_t kChineseAfter[] = L"记录的更新信息:";

// The one-way heading towards Outlook has its small "outlook" on purpose.
constexpr HeadingRow kHeadings[] = {
    {state::kBothWays, ConfirmSection::QuenlarToOutlook, L"以下是本系统到Outlook中,",
     L"Below are update messages from our system to Outlook "},
    {state::kBothWays, ConfirmSection::OutlookToQuenlar, L"以下是从Outlook到Quenlar中,",
     L"Below are update messages from Outlook to our system "},
    {state::kQuenlarToOutlook, ConfirmSection::QuenlarToOutlook, L"以下是从本系统到Outlook",
     L"Below are update messages from our system to outlook "},
    {state::kOutlookToQuenlar, ConfirmSection::OutlookToQuenlar, L"以下是从Outlook到本系统",
     L"Below are update messages from Outlook to our system "},
};

} // namespace

std::wstring ConfirmCaption(const std::wstring& categoryText)
{
    return Choose(L"确认", L"Confirm ") + categoryText + Choose(L"的改变", L" Change");
}

std::optional<std::wstring> ConfirmHeading(long transType, ConfirmSection section,
                                           const std::wstring& categoryText)
{
    for (const HeadingRow& row : kHeadings)
    {
        if (row.transType == transType && row.section == section)
        {
            return Choose(row.chineseBefore, row.english) + categoryText + Choose(kChineseAfter, L"");
        }
    }
    return std::nullopt;
}

std::wstring AdditionsLine(long count)
{
    return resources::String(IDS_CONFIRM_ADDITIONS) + std::to_wstring(count);
}

std::wstring ModificationsLine(long count)
{
    return resources::String(IDS_CONFIRM_MODIFICATIONS) + std::to_wstring(count);
}

} // namespace run
