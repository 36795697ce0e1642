// The names of the fields and of the columns.
#include "preview/Texts.h"

#include "exchange/KindName.h"
#include "resources/Strings.h"

#include <algorithm>
#include <iterator>

namespace preview
{

namespace
{

struct Caption
{
    const wchar_t* Field; // a property of Outlook, or a column that belongs to none
    const wchar_t* Chinese;
    const wchar_t* English;
};

constexpr Caption kCaptions[] = {
    {L"Subject", L"主题", L"Subject"},
    {L"Categories", L"类别", L"Category"},
    {L"Companies", L"单位列表", L"Companies"},
    {L"CompanyName", L"单位", L"Company"},
    {L"ContactNames", L"联系人", L"Contact"},
    {L"Links", L"联系人", L"Linked contacts"},
    {L"Importance", L"重要性", L"Importance"},
    {L"ReminderSet", L"提醒", L"Reminder"},
    {L"ReminderTime", L"提醒时间", L"Reminder time"},
    {L"ReminderMinutesBeforeStart", L"提前提醒(分钟)", L"Reminder, minutes before"},
    // contacts
    {L"LastName", L"姓", L"Last name"},
    {L"FirstName", L"名", L"First name"},
    {L"Suffix", L"后缀", L"Suffix"},
    {L"Title", L"称谓", L"Title"},
    {L"NickName", L"昵称", L"Nickname"},
    {L"Spouse", L"配偶", L"Spouse"},
    {L"Birthday", L"生日", L"Birthday"},
    {L"Anniversary", L"纪念日", L"Anniversary"},
    {L"JobTitle", L"职务", L"Job title"},
    {L"Department", L"部门", L"Department"},
    {L"AssistantName", L"助理", L"Assistant"},
    {L"AssistantTelephoneNumber", L"助理电话", L"Assistant's phone"},
    {L"BusinessTelephoneNumber", L"商务电话", L"Business phone"},
    {L"BusinessFaxNumber", L"商务传真", L"Business fax"},
    {L"MobileTelephoneNumber", L"移动电话", L"Mobile phone"},
    {L"HomeTelephoneNumber", L"住宅电话", L"Home phone"},
    {L"Email1Address", L"电子邮件", L"E-mail"},
    {L"HomeAddressCountry", L"住宅：国家", L"Home country"},
    {L"HomeAddressState", L"住宅：省", L"Home state or province"},
    {L"HomeAddressCity", L"住宅：市", L"Home city"},
    {L"HomeAddressStreet", L"住宅：街道", L"Home street"},
    {L"HomeAddressPostalCode", L"住宅：邮编", L"Home postal code"},
    {L"BusinessAddressCountry", L"商务：国家", L"Business country"},
    {L"BusinessAddressState", L"商务：省", L"Business state or province"},
    {L"BusinessAddressCity", L"商务：市", L"Business city"},
    {L"BusinessAddressStreet", L"商务：街道", L"Business street"},
    {L"BusinessAddressPostalCode", L"商务：邮编", L"Business postal code"},
    // tasks
    {L"StartDate", L"开始日期", L"Start date"},
    {L"DueDate", L"截止日期", L"Due date"},
    {L"DateCompleted", L"完成日期", L"Date completed"},
    {L"CreationTime", L"创建时间", L"Created"},
    {L"PercentComplete", L"完成百分比", L"% complete"},
    {L"Status", L"状态", L"Status"},
    {L"Complete", L"已完成", L"Complete"},
    {L"TotalWork", L"总工时(分钟)", L"Total work, minutes"},
    {L"ActualWork", L"实际工时(分钟)", L"Actual work, minutes"},
    // the calendar
    {L"Start", L"开始", L"Start"},
    {L"End", L"结束", L"End"},
    {L"IsRecurring", L"重复", L"Repeats"},
    {L"Recurrence.RecurrenceType", L"重复：方式", L"Repeats by"},
    {L"Recurrence.Interval", L"重复：间隔", L"Repeats every"},
    {L"Recurrence.DayOfWeekMask", L"重复：星期", L"Repeats on weekday"},
    {L"Recurrence.DayOfMonth", L"重复：日", L"Repeats on day"},
    {L"Recurrence.MonthOfYear", L"重复：月", L"Repeats in month"},
    {L"Recurrence.StartTime", L"重复：开始时间", L"Repeats from"},
    {L"Recurrence.EndTime", L"重复：结束时间", L"Repeats to"},
    {L"Recurrence.PatternStartDate", L"重复：首日", L"First day of series"},
    {L"Recurrence.PatternEndDate", L"重复：末日", L"Last day of series"},
    {L"Recurrence.NoEndDate", L"重复：无结束", L"Repeats without end"},
    {L"F_ACTESTIME", L"开始时间", L"Start time"},
    {L"F_ACTEEDATE", L"结束日期", L"End date"},
    {L"F_ACTEETIME", L"结束时间", L"End time"},
    {L"F_ACTREPTIDX", L"重复规则", L"Repeat rule"},
    {L"F_ACTREPTEDATE", L"重复：末日", L"Last day of series"},
};

} // namespace

std::wstring CaptionOf(const exchange::Difference& field)
{
    const std::wstring& name = field.Property.empty() ? field.Field : field.Property;
    const auto* const caption =
        std::ranges::find_if(kCaptions, [&](const Caption& one) { return name == one.Field; });
    return caption == std::end(kCaptions) ? name : resources::Choose(caption->Chinese, caption->English);
}

std::wstring HeaderOf(Column column, const exchange::Kind& kind)
{
    using resources::Choose;
    const bool isContact = kind.Name.TransObjectID == exchange::kContactName.TransObjectID;
    switch (column)
    {
    case Column::Change: return Choose(L"更改", L"Change");
    case Column::Name: return isContact ? Choose(L"姓名", L"Name") : Choose(L"主题", L"Subject");
    case Column::Group: return isContact ? Choose(L"单位", L"Company") : Choose(L"类别", L"Category");
    default: return isContact ? Choose(L"生日", L"Birthday") : Choose(L"开始", L"Start");
    }
}

} // namespace preview
