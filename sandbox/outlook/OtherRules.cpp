// Dependent properties of the items that are no records: notes and distribution lists.
#include "sandbox/outlook/ItemDraft.h"

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

// "Returns a String representing the subject for the Outlook item": of a note the first line of its text, and
// read-only (NoteItem.Subject property).
Value SubjectOfNote(const ItemDraft& item)
{
    const std::wstring body = item.Text(Body);
    const Value* own = item.Find(Subject);
    return body.empty() && own != nullptr ? *own : Value(body.substr(0, body.find_first_of(L"\r\n")));
}

Value SubjectOfList(const ItemDraft& item)
{
    const Value* own = item.Find(Subject);
    return own != nullptr ? *own : item.Read(DLName);
}

constexpr PropertyRule kNoteRules[] = {{Subject, SubjectOfNote, nullptr}};
constexpr PropertyRule kDistributionListRules[] = {{Subject, SubjectOfList, nullptr}};

} // namespace

std::span<const PropertyRule> NoteRules()
{
    return kNoteRules;
}

std::span<const PropertyRule> DistributionListRules()
{
    return kDistributionListRules;
}

} // namespace sandbox::outlook
