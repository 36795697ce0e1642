// Tasks: unset dates, and how status, percent and completion move each other.
#include "automation/Dates.h"
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

namespace conformance
{

using automation::Object;
using automation::Value;

namespace
{

std::wstring StateOf(const Object& task)
{
    return Joined({AnswerOf([&] { return task.Get(L"Status"); }),
                   AnswerOf([&] { return task.Get(L"PercentComplete"); }),
                   AnswerOf([&] { return task.Get(L"Complete"); })});
}

std::wstring StateAfter(Scratch& scratch, const wchar_t* member, const Value& value)
{
    const Object task = scratch.New(Kind::Task);
    task.Put(member, value);
    return StateOf(task);
}

std::wstring StateAfterReopening(Scratch& scratch)
{
    const Object task = scratch.New(Kind::Task);
    task.Put(L"Complete", true);
    task.Put(L"Complete", false);
    return StateOf(task);
}

std::wstring DatesAfter(Scratch& scratch, const automation::Date& start, const automation::Date& due,
                        bool startFirst)
{
    const Object task = scratch.New(Kind::Task);
    task.Put(startFirst ? L"StartDate" : L"DueDate", startFirst ? start : due);
    task.Put(startFirst ? L"DueDate" : L"StartDate", startFirst ? due : start);
    return Joined(
        {AnswerOf([&] { return task.Get(L"StartDate"); }), AnswerOf([&] { return task.Get(L"DueDate"); })});
}

std::wstring Read(Scratch& scratch, const wchar_t* member)
{
    return AnswerOf([&] { return scratch.New(Kind::Task).Get(member); });
}

constexpr Question kTaskQuestions[] = {
    {L"task.start.unset", [](Scratch& s) { return Read(s, L"StartDate"); }},
    {L"task.due.unset", [](Scratch& s) { return Read(s, L"DueDate"); }},
    {L"task.completed.unset", [](Scratch& s) { return Read(s, L"DateCompleted"); }},
    {L"task.reminder.new", [](Scratch& s) { return Read(s, L"ReminderSet"); }},
    {L"task.importance.new", [](Scratch& s) { return Read(s, L"Importance"); }},
    {L"task.state.new", [](Scratch& s) { return StateOf(s.New(Kind::Task)); }},
    {L"task.state.percent-50", [](Scratch& s) { return StateAfter(s, L"PercentComplete", 50L); }},
    {L"task.state.percent-100", [](Scratch& s) { return StateAfter(s, L"PercentComplete", 100L); }},
    {L"task.state.percent-101",
     [](Scratch& s) {
         return AnswerOf([&] {
             s.New(Kind::Task).Put(L"PercentComplete", 101L);
             return Value(L"taken");
         });
     }},
    {L"task.state.complete", [](Scratch& s) { return StateAfter(s, L"Complete", true); }},
    {L"task.state.reopened", StateAfterReopening},
    {L"task.state.status-complete", [](Scratch& s) { return StateAfter(s, L"Status", 2L); }},
    {L"task.state.status-waiting", [](Scratch& s) { return StateAfter(s, L"Status", 3L); }},
    {L"task.dates.due-before-start",
     [](Scratch& s) {
         return DatesAfter(s, automation::DateOf({2024, 5, 17}), automation::DateOf({2024, 5, 10}), true);
     }},
    {L"task.dates.start-after-due",
     [](Scratch& s) {
         return DatesAfter(s, automation::DateOf({2024, 5, 17}), automation::DateOf({2024, 5, 10}), false);
     }},
    {L"task.due.time-of-day",
     [](Scratch& s) {
         const Object task = s.New(Kind::Task);
         task.Put(L"DueDate", automation::DateOf({2024, 5, 17, 13, 30, 0}));
         return AnswerOf([&] { return task.Get(L"DueDate"); });
     }},
};

} // namespace

std::span<const Question> TaskQuestions()
{
    return kTaskQuestions;
}

} // namespace conformance
