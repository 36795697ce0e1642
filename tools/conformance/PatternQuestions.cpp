// Recurrence patterns: defaults, the order in which members are put, what one changes in another.
#include "automation/Dates.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

#include <utility>
#include <vector>

namespace conformance
{

using automation::Object;
using automation::Value;

namespace
{

constexpr long kDaily = 0;
constexpr long kMonthly = 2;

using Puts = std::vector<std::pair<const wchar_t*, Value>>;

// A member of a new pattern (of an appointment on Friday, 2024-05-17, 9:00) after these have been put in
// order.
std::wstring PatternAfter(Scratch& scratch, const Puts& puts, std::initializer_list<const wchar_t*> members)
{
    const Object appointment = scratch.New(Kind::Appointment);
    appointment.Put(L"Start", automation::DateOf({2024, 5, 17, 9, 0, 0}));
    const Object pattern = appointment.GetObject(L"GetRecurrencePattern");
    std::wstring answers;
    const auto add = [&](const std::wstring& answer) { answers += (answers.empty() ? L"" : L"; ") + answer; };
    for (const auto& [member, value] : puts)
    {
        const std::wstring put = AnswerOf([&, name = member, given = value] {
            pattern.Put(name, given);
            return Value(L"taken");
        });
        if (put != L"text 'taken'")
        {
            add(std::wstring(member) + L": " + put);
        }
    }
    for (const wchar_t* member : members)
    {
        add(AnswerOf([&] { return pattern.Get(member); }));
    }
    return answers;
}

constexpr const wchar_t* kTypePage = L"RecurrencePattern.RecurrenceType property (Outlook)";

constexpr Question kPatternQuestions[] = {
    {L"pattern.new.type",
     [](Scratch& s) {
         return PatternAfter(s, {}, {L"RecurrenceType", L"Interval"});
     }},
    {L"pattern.new.days", [](Scratch& s) { return PatternAfter(s, {}, {L"DayOfWeekMask"}); }},
    {L"pattern.new.end",
     [](Scratch& s) {
         return PatternAfter(s, {}, {L"NoEndDate", L"PatternEndDate", L"Occurrences"});
     }},
    {L"pattern.new.times",
     [](Scratch& s) {
         return PatternAfter(s, {}, {L"StartTime", L"EndTime", L"Duration"});
     }},
    {L"pattern.new.start", [](Scratch& s) { return PatternAfter(s, {}, {L"PatternStartDate"}); }},
    {L"pattern.order.type-last",
     [](Scratch& s) {
         return PatternAfter(s, {{L"Interval", 3L}, {L"RecurrenceType", kDaily}}, {L"Interval"});
     }},
    {L"pattern.order.type-first",
     [](Scratch& s) {
         return PatternAfter(s, {{L"RecurrenceType", kDaily}, {L"Interval", 3L}}, {L"Interval"});
     },
     L"number 3", kTypePage},
    {L"pattern.order.end-before-start",
     [](Scratch& s) {
         return PatternAfter(s,
                             {{L"RecurrenceType", kDaily},
                              {L"PatternEndDate", automation::DateOf({2024, 6, 17})},
                              {L"PatternStartDate", automation::DateOf({2024, 6, 1})}},
                             {L"PatternStartDate", L"PatternEndDate", L"NoEndDate"});
     }},
    {L"pattern.member.of-another-type",
     [](Scratch& s) {
         return PatternAfter(s, {{L"RecurrenceType", kDaily}, {L"DayOfMonth", 5L}}, {L"DayOfMonth"});
     }},
    {L"pattern.end.by-occurrences",
     [](Scratch& s) {
         return PatternAfter(s, {{L"RecurrenceType", kDaily}, {L"Occurrences", 5L}},
                             {L"NoEndDate", L"PatternEndDate"});
     }},
    {L"pattern.end.by-date",
     [](Scratch& s) {
         return PatternAfter(
             s, {{L"RecurrenceType", kDaily}, {L"PatternEndDate", automation::DateOf({2024, 5, 20})}},
             {L"NoEndDate", L"Occurrences"});
     }},
    {L"pattern.monthly.day",
     [](Scratch& s) {
         return PatternAfter(s, {{L"RecurrenceType", kMonthly}}, {L"DayOfMonth", L"Interval"});
     }},
    {L"pattern.start-of-appointment",
     [](Scratch& s) {
         const Object appointment = s.New(Kind::Appointment);
         appointment.Call(L"GetRecurrencePattern");
         return AnswerOf([&] {
             appointment.Put(L"Start", automation::DateOf({2024, 5, 17, 9, 0, 0}));
             return appointment.Get(L"Start");
         });
     }},
};

} // namespace

std::span<const Question> PatternQuestions()
{
    return kPatternQuestions;
}

} // namespace conformance
