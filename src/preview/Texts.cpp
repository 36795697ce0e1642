#include "preview/Texts.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "automation/Text.h"
#include "resources/Strings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace preview
{

using automation::Date;
using automation::Value;
using exchange::Difference;
using exchange::Proposal;
using exchange::Side;
using resources::Choose;

namespace
{

struct ChangeText
{
    const wchar_t* Chinese;
    const wchar_t* English;
};

// By PlaceOfChange.
constexpr ChangeText kChanges[] = {
    {L"添加到 Outlook", L"Add to Outlook"},
    {L"在 Outlook 中修改", L"Change in Outlook"},
    {L"添加到本系统", L"Add to the sales system"},
    {L"在本系统中修改", L"Change in the sales system"},
    {L"两边都修改", L"Change in both"},
};

std::wstring DayText(const SYSTEMTIME& moment)
{
    std::array<wchar_t, 80> text = {};
    GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &moment, nullptr, text.data(),
                   static_cast<int>(text.size()));
    return text.data();
}

std::wstring TimeText(const SYSTEMTIME& moment)
{
    std::array<wchar_t, 80> text = {};
    GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &moment, nullptr, text.data(),
                   static_cast<int>(text.size()));
    return text.data();
}

// A day without a time and a time without a day are shown without the other.
std::wstring DateText(Date date, Dates dates)
{
    const automation::Moment moment = automation::MomentOf(date);
    const bool hasTime = moment.hour != 0 || moment.minute != 0 || moment.second != 0;
    const bool hasDay = !(automation::DayOf(date) == automation::kZeroDate);
    if (dates == Dates::Iso)
    {
        return automation::Formatted(date, !hasDay   ? L"hh:mm"
                                           : hasTime ? L"yyyy-mm-dd hh:mm"
                                                     : L"yyyy-mm-dd");
    }
    const SYSTEMTIME parts = {static_cast<WORD>(moment.year),
                              static_cast<WORD>(moment.month),
                              0,
                              static_cast<WORD>(moment.day),
                              static_cast<WORD>(moment.hour),
                              static_cast<WORD>(moment.minute),
                              static_cast<WORD>(moment.second),
                              0};
    const std::wstring day = hasDay ? DayText(parts) : std::wstring();
    const std::wstring time = hasTime || !hasDay ? TimeText(parts) : std::wstring();
    return day + (day.empty() || time.empty() ? L"" : L" ") + time;
}

template<size_t count>
std::wstring WordOf(const ChangeText (&words)[count], const Value& value, long first = 0)
{
    const auto number = automation::ReadableNumber(value);
    const long place = number ? static_cast<long>(std::lround(*number)) - first : -1;
    return place >= 0 && place < static_cast<long>(count) ? Choose(words[place].Chinese, words[place].English)
                                                          : automation::TextOrEmpty(value);
}

std::wstring StatusText(const Difference& /*field*/, const Value& value)
{
    static constexpr ChangeText kWords[] = {{L"未开始", L"Not started"},
                                            {L"进行中", L"In progress"},
                                            {L"已完成", L"Completed"},
                                            {L"等待他人", L"Waiting on someone else"},
                                            {L"推迟", L"Deferred"}};
    return WordOf(kWords, value);
}

// The host's levels are one higher than Outlook's.
std::wstring ImportanceText(const Difference& field, const Value& value)
{
    static constexpr ChangeText kWords[] = {{L"低", L"Low"}, {L"普通", L"Normal"}, {L"高", L"High"}};
    return WordOf(kWords, value, field.Where == Side::Host ? 1 : 0);
}

// The host stores a fraction from 0 to 1.
std::wstring PercentText(const Difference& field, const Value& value)
{
    const auto number = automation::ReadableNumber(value);
    return number ? std::to_wstring(std::lround(*number * (field.Where == Side::Host ? 100 : 1))) + L"%"
                  : automation::TextOrEmpty(value);
}

std::wstring PatternText(const Difference& /*field*/, const Value& value)
{
    static constexpr ChangeText kWords[] = {{L"每天", L"Day"},   {L"每周", L"Week"}, {L"每月", L"Month"},
                                            {L"每月", L"Month"}, {L"", L""},         {L"每年", L"Year"},
                                            {L"每年", L"Year"}};
    return WordOf(kWords, value);
}

std::wstring WeekdayText(const Difference& /*field*/, const Value& value)
{
    const auto mask = static_cast<long>(automation::ReadableNumber(value).value_or(0));
    std::wstring text;
    for (int day = 0; day < 7; ++day)
    {
        std::array<wchar_t, 80> name = {};
        // The system counts from Monday, the mask from Sunday.
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDAYNAME1 + static_cast<LCTYPE>((day + 6) % 7),
                       name.data(), static_cast<int>(name.size()));
        text += (mask & 1L << day) != 0 ? (text.empty() ? L"" : L", ") + std::wstring(name.data()) : L"";
    }
    return text.empty() ? automation::TextOrEmpty(value) : text;
}

struct WordedField
{
    const wchar_t* Property;
    std::wstring (*TextOf)(const Difference& field, const Value& value);
};

constexpr WordedField kWorded[] = {
    {L"Status", StatusText},
    {L"Importance", ImportanceText},
    {L"PercentComplete", PercentText},
    {L"Recurrence.RecurrenceType", PatternText},
    {L"Recurrence.DayOfWeekMask", WeekdayText},
};

} // namespace

int PlaceOfChange(const Proposal& proposal)
{
    return proposal.IsInBoth() ? static_cast<int>(std::size(kChanges)) - 1 : static_cast<int>(proposal.What);
}

std::wstring TextOfChange(const Proposal& proposal)
{
    const ChangeText& text = kChanges[PlaceOfChange(proposal)];
    return Choose(text.Chinese, text.English);
}

std::wstring TextOfDate(const Value& value)
{
    const auto date = automation::OutlookDate(value);
    return date ? DateText(*date, Dates::OfUser) : std::wstring();
}

std::wstring OnOneLine(std::wstring text)
{
    for (wchar_t& character : text)
    {
        character = character < L' ' ? L' ' : character;
    }
    return text;
}

std::wstring TextOfValue(const Difference& field, const Value& value, Dates dates)
{
    if (automation::IsAbsent(value))
    {
        return {};
    }
    if (value.Type() == VT_BOOL)
    {
        return automation::TruthOf(value) ? Choose(L"是", L"Yes") : Choose(L"否", L"No");
    }
    if (value.Type() == VT_DATE)
    {
        const Date date = automation::DateOf(value);
        const bool isNone = date == automation::kOutlookNoDate;
        return isNone ? std::wstring() : DateText(date, dates);
    }
    for (const WordedField& worded : kWorded)
    {
        if (field.Property == worded.Property)
        {
            return worded.TextOf(field, value);
        }
    }
    return automation::TextOrEmpty(value);
}

std::wstring TextAfter(const Difference& field, Dates dates)
{
    const std::wstring text = TextOfValue(field, field.After, dates);
    return field.IsNew ? text + Choose(L"（新单位）", L" (new account)") : text;
}

namespace
{

// A column that is one of the fields has the field's name.
std::wstring NameOfField(const exchange::RecordPreview& preview, const std::wstring& field)
{
    const auto known = std::ranges::find(preview.Fields, field, &Difference::Field);
    return CaptionOf(known == preview.Fields.end() ? Difference{Side::Host, field, {}, {}, {}} : *known);
}

std::wstring NoteOf(const exchange::RecordPreview& preview, const state::Remark& remark)
{
    static constexpr ChangeText kReasons[] = {
        {L"无法写入", L"Cannot be written"},
        {L"不会写入：记录已不存在，或已不是所列的记录",
         L"Will not be written: gone, or no longer what was proposed"},
        {L"不会写入：该字段为空", L"Will not be written: this field is empty"},
        {L"不会写入：该项没有日期", L"Will not be written: the entry has no date"},
        {L"不会写入：重复项的结束日期早于开始日期", L"Will not be written: the series ends before it begins"},
        {L"写入时没有联系人链接", L"Will be written without the link to its contact"},
        {L"写入时不含该字段：Outlook 不允许读取",
         L"Will be written without this field: Outlook does not allow it to be read"},
        {L"写入时不含该字段：Outlook 没有这样的值",
         L"Will be written without this field: Outlook does not know the value"},
        {L"文本将被截短", L"The text will be shortened"},
        {L"缺少权限", L"A right is missing"},
        {L"本系统没有打开记录", L"The sales system did not open its records"},
        {L"没有选择 Outlook 目录，或目录不存在", L"The Outlook folder is not chosen, or not there"},
    };
    static_assert(std::size(kReasons) == static_cast<size_t>(state::Cause::NoFolder) + 1);
    const ChangeText& reason = kReasons[static_cast<size_t>(remark.Why)];
    std::wstring text = Choose(reason.Chinese, reason.English);
    if (!remark.Field.empty())
    {
        text += Choose(L"：", L": ") + NameOfField(preview, remark.Field);
    }
    return remark.Words.empty() ? text : text + L" (" + remark.Words + L")";
}

} // namespace

std::wstring NotesOf(const exchange::RecordPreview& preview)
{
    std::wstring notes;
    for (const state::Remark& remark : preview.Remarks)
    {
        notes += (notes.empty() ? L"" : L"\r\n") + NoteOf(preview, remark);
    }
    return notes;
}

} // namespace preview
