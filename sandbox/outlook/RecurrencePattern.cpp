#include "sandbox/outlook/RecurrencePattern.h"

#include <cwchar>

namespace sandbox::outlook
{

namespace
{

constexpr size_t kPrefix = std::char_traits<wchar_t>::length(L"Recurrence.");

ItemDraft& DraftOfPattern(DispatchObject& self)
{
    return static_cast<RecurrencePattern&>(self).Draft();
}

MemberTable MadeMembers()
{
    MemberTable members = {Constant(L"Class", 28L)};
    for (const PropertyId id : PropertiesOf(ItemKind::Appointment))
    {
        if (IsOfPattern(id) && id != PropertyId::RecurrenceEndsByDate)
        {
            members.push_back(
                {PropertyOf(id).name + kPrefix,
                 [id](DispatchObject& self, const Call&) { return DraftOfPattern(self).Read(id); },
                 [id](DispatchObject& self, const Call& call) {
                     DraftOfPattern(self).Assign(id, call.Assigned());
                 }});
        }
    }
    return members;
}

} // namespace

const MemberTable& RecurrencePattern::Members() const
{
    static const MemberTable members = MadeMembers();
    return members;
}

} // namespace sandbox::outlook
