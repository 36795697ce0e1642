// Collections of items: order, index, what is saved and what is gone.
#include "tools/conformance/Answer.h"
#include "tools/conformance/Questions.h"

namespace conformance
{

using automation::Object;
using automation::Value;

namespace
{

void AddThree(Scratch& scratch)
{
    for (const wchar_t* name : {L"First", L"Second", L"Third"})
    {
        scratch.Saved(Kind::Task, name);
    }
}

std::wstring OrderOf(const Object& items)
{
    std::wstring order;
    const long count = automation::LongOf(items.Get(L"Count"));
    for (long i = 1; i <= count; ++i)
    {
        order +=
            (order.empty() ? L"" : L" ") + automation::TextOf(items.GetObject(L"Item", i).Get(L"Subject"));
    }
    return order;
}

std::wstring OrderAfterChange(Scratch& scratch)
{
    AddThree(scratch);
    const Object first = scratch.Items(Kind::Task).GetObject(L"Item", 1L);
    first.Put(L"Importance", 2L);
    first.Call(L"Save");
    return AnswerOf([&] { return Value(OrderOf(scratch.Items(Kind::Task))); });
}

std::wstring OrderAfterRemove(Scratch& scratch)
{
    AddThree(scratch);
    const Object items = scratch.Items(Kind::Task);
    items.Call(L"Remove", 1L);
    return AnswerOf([&] { return Value(OrderOf(items)); });
}

std::wstring SavedFlags(Scratch& scratch)
{
    const Object item = scratch.Saved(Kind::Task, L"Flag");
    const std::wstring after = AnswerOf([&] { return item.Get(L"Saved"); });
    item.Put(L"Subject", L"Changed");
    return Joined({after, AnswerOf([&] { return item.Get(L"Saved"); })});
}

std::wstring EntryIdAfterSecondSave(Scratch& scratch)
{
    const Object item = scratch.Saved(Kind::Task, L"Identity");
    const std::wstring before = automation::TextOf(item.Get(L"EntryID"));
    item.Put(L"Subject", L"Changed");
    item.Call(L"Save");
    return AnswerOf([&] { return Value(automation::TextOf(item.Get(L"EntryID")) == before); });
}

std::wstring ReadAfterDelete(Scratch& scratch)
{
    const Object item = scratch.Saved(Kind::Task, L"Gone");
    const std::wstring id = automation::TextOf(item.Get(L"EntryID"));
    item.Call(L"Delete");
    return AnswerOf([&] { return scratch.Session().Get(L"GetItemFromID", id); });
}

std::wstring PastTheEnd(Scratch& scratch)
{
    scratch.Saved(Kind::Task, L"Only");
    const Object items = scratch.Items(Kind::Task);
    items.Get(L"GetFirst");
    return AnswerOf([&] { return items.Get(L"GetNext"); });
}

std::wstring ItemAt(Scratch& scratch, const Value& index)
{
    AddThree(scratch);
    return AnswerOf([&] { return ObjectOf(scratch.Items(Kind::Task).Get(L"Item", index)).Get(L"Subject"); });
}

constexpr Question kItemQuestions[] = {
    {L"items.order.after-add",
     [](Scratch& s) {
         AddThree(s);
         return AnswerOf([&] { return Value(OrderOf(s.Items(Kind::Task))); });
     },
     L"any order, that of an offline store reversed", L"Items object (Outlook)"},
    {L"items.order.after-change", OrderAfterChange},
    {L"items.order.after-remove", OrderAfterRemove},
    {L"items.count.before-save",
     [](Scratch& s) {
         const Object item = s.New(Kind::Task);
         return AnswerOf([&] { return s.Items(Kind::Task).Get(L"Count"); });
     }},
    {L"items.count.of-earlier-collection",
     [](Scratch& s) {
         const Object items = s.Items(Kind::Task);
         AddThree(s);
         return AnswerOf([&] { return items.Get(L"Count"); });
     }},
    {L"items.index.1", [](Scratch& s) { return ItemAt(s, 1L); }},
    {L"items.index.double", [](Scratch& s) { return ItemAt(s, 1.0); }},
    {L"items.index.0", [](Scratch& s) { return ItemAt(s, 0L); }},
    {L"items.index.beyond", [](Scratch& s) { return ItemAt(s, 4L); }},
    {L"items.index.name", [](Scratch& s) { return ItemAt(s, L"Second"); }, L"text 'Second'",
     L"Items object (Outlook)"},
    {L"items.next.past-the-end", PastTheEnd, L"nothing", L"Items.GetNext method (Outlook)"},
    {L"items.saved", SavedFlags, L"true; false", L"TaskItem.Saved property (Outlook)"},
    {L"items.entry-id.before-save",
     [](Scratch& s) { return AnswerOf([&] { return s.New(Kind::Task).Get(L"EntryID"); }); }, L"not set",
     L"TaskItem.EntryID property (Outlook)"},
    {L"items.entry-id.same-after-save", EntryIdAfterSecondSave},
    {L"items.entry-id.after-delete", ReadAfterDelete},
};

} // namespace

std::span<const Question> ItemQuestions()
{
    return kItemQuestions;
}

} // namespace conformance
