#include "sandbox/outlook/RecurrencePattern.h"

#include "sandbox/outlook/Exceptions.h"

namespace sandbox::outlook
{

namespace
{

ItemDraft& DraftOfPattern(DispatchObject& self)
{
    return static_cast<RecurrencePattern&>(self).Draft();
}

} // namespace

MemberTable MembersOfPattern()
{
    MemberTable members = {Constant(L"Class", 28L),
                           {L"Exceptions", Reads(&RecurrencePattern::Exceptions), nullptr}};
    for (const PropertyId id : PropertiesOf(ItemKind::Appointment))
    {
        if (IsOfPattern(id) && MemberNameOf(id) != nullptr)
        {
            members.push_back(
                {MemberNameOf(id),
                 [id](DispatchObject& self, const Call&) { return DraftOfPattern(self).Read(id); },
                 [id](DispatchObject& self, const Call& call) {
                     DraftOfPattern(self).Assign(id, call.Assigned());
                 }});
        }
    }
    return AsPublished(L"RecurrencePattern", std::move(members));
}

const MemberTable& RecurrencePattern::Members() const
{
    static const MemberTable members = MembersOfPattern();
    return members;
}

Value RecurrencePattern::Exceptions(const Call&)
{
    return MakeObject<ExceptionsObject>(Box(), mDraft);
}

} // namespace sandbox::outlook
