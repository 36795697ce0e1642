#include "sandbox/outlook/OutlookItem.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/Folders.h"
#include "sandbox/outlook/Links.h"
#include "sandbox/outlook/PatternRules.h"
#include "sandbox/outlook/RecurrencePattern.h"

#include <map>

namespace sandbox::outlook
{

namespace
{

// Answered by the fake's own items only, to tell them from what a client may put before them.
constexpr GUID kOutlookItemId = {
    0x5a1e0f7c, 0x3b52, 0x4f0e, {0x9d, 0x3c, 0x62, 0x1b, 0x0e, 0x8f, 0x47, 0xa1}};

struct KindRow
{
    ItemKind kind;
    long classNumber; // OlObjectClass
    const wchar_t* className;
};

constexpr KindRow kKindRows[] = {
    {ItemKind::Mail, 43, L"MailItem"},
    {ItemKind::Appointment, 26, L"AppointmentItem"},
    {ItemKind::Contact, 40, L"ContactItem"},
    {ItemKind::Task, 48, L"TaskItem"},
    {ItemKind::Note, 44, L"NoteItem"},
    {ItemKind::Post, 45, L"PostItem"},
    {ItemKind::DistributionList, 69, L"DistListItem"},
};

const KindRow& RowOf(ItemKind kind)
{
    return *std::ranges::find(kKindRows, kind, &KindRow::kind);
}

ItemDraft& DraftOfItem(DispatchObject& self)
{
    return const_cast<ItemDraft&>(static_cast<OutlookItem&>(self).Draft());
}

// Writable as far as the kind's interface has it so.
Member MemberOf(ItemKind kind, PropertyId id)
{
    Member member{PropertyOf(id).name,
                  [id](DispatchObject& self, const Call&) { return DraftOfItem(self).Read(id); }, nullptr};
    const PublishedMember* published = Published(InterfaceOf(kind)).Find(member.name);
    if (published != nullptr && published->isWritable)
    {
        member.write = [id](DispatchObject& self, const Call& call) {
            DraftOfItem(self).Assign(id, call.Assigned());
        };
    }
    return member;
}

} // namespace

MemberTable MembersOfKind(ItemKind kind)
{
    MemberTable members;
    for (const PropertyId id : PropertiesOf(kind))
    {
        if (!IsOfPattern(id))
        {
            members.push_back(MemberOf(kind, id));
        }
    }
    members.insert(members.end(), {{L"EntryID", Reads(&OutlookItem::EntryId), nullptr},
                                   {L"Parent", Reads(&OutlookItem::Parent), nullptr},
                                   {L"Saved", Reads(&OutlookItem::Saved), nullptr},
                                   {L"Links", Reads(&OutlookItem::Links), nullptr},
                                   {L"Save", Reads(&OutlookItem::Save), nullptr},
                                   {L"Delete", Reads(&OutlookItem::Delete), nullptr},
                                   {L"Close", Reads(&OutlookItem::Close), nullptr},
                                   Ignored(L"Display"),
                                   Constant(L"Class", RowOf(kind).classNumber)});
    if (kind == ItemKind::Appointment || kind == ItemKind::Task)
    {
        members.push_back({L"GetRecurrencePattern", Reads(&OutlookItem::GetRecurrencePattern), nullptr});
        members.push_back({L"ClearRecurrencePattern", Reads(&OutlookItem::ClearRecurrencePattern), nullptr});
    }
    if (kind == ItemKind::Task)
    {
        members.push_back({L"MarkComplete", Reads(&OutlookItem::MarkComplete), nullptr});
    }
    return AsPublished(InterfaceOf(kind), std::move(members));
}

namespace
{

template<typename T>
using ByKind = std::map<ItemKind, T>;

template<typename T>
ByKind<T> ForEveryKind(T (*make)(ItemKind kind))
{
    ByKind<T> made;
    for (const KindRow& row : kKindRows)
    {
        made.emplace(row.kind, make(row.kind));
    }
    return made;
}

} // namespace

OutlookItem::OutlookItem(MailboxRef mailbox, std::shared_ptr<ItemDraft> draft)
    : OutlookObject(std::move(mailbox)), mDraft(std::move(draft))
{
}

STDMETHODIMP OutlookItem::QueryInterface(REFIID id, void** result)
{
    if (id == kOutlookItemId)
    {
        *result = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    return DispatchObject::QueryInterface(id, result);
}

const wchar_t* OutlookItem::ClassName() const
{
    return RowOf(mDraft->Kind()).className;
}

const MemberTable& OutlookItem::Members() const
{
    static const ByKind<MemberTable> tables = ForEveryKind(MembersOfKind);
    return tables.at(mDraft->Kind());
}

const wchar_t* OutlookItem::InterfaceName() const
{
    return InterfaceOf(mDraft->Kind());
}

const MailFolder* OutlookItem::Place() const
{
    return &mDraft->Folder();
}

// Given when the item is first saved.
Value OutlookItem::EntryId(const Call&)
{
    const StoredItemRef& stored = mDraft->Stored();
    return stored && stored->folder != nullptr ? Mailbox::EntryIdOf(*stored) : std::wstring();
}

Value OutlookItem::Parent(const Call&)
{
    return ObjectOfFolder(Box(), mDraft->Folder());
}

Value OutlookItem::Saved(const Call&)
{
    return !mDraft->HasChanges();
}

// "Links" and all its members are deprecated; a version without them raises.
Value OutlookItem::Links(const Call& call)
{
    if (Box()->Behaviour().linksRaise)
    {
        FailDeprecated(L"Links");
    }
    return WithIndex(MakeObject<LinksObject>(Box(), mDraft), call);
}

Value OutlookItem::Save(const Call&)
{
    mDraft->Save();
    return {};
}

// "Marks the task as completed": sets PercentComplete, Complete and DateCompleted, and saves.
Value OutlookItem::MarkComplete(const Call&)
{
    mDraft->Assign(PropertyId::Complete, true);
    mDraft->Save();
    return {};
}

Value OutlookItem::Delete(const Call&)
{
    mDraft->Delete();
    return {};
}

// OlInspectorClose: 0 saves; 1 discards and 2 would ask, and there is no user to answer.
Value OutlookItem::Close(const Call& call)
{
    if (automation::LongOf(call.At(0)) == 0)
    {
        mDraft->Save();
    }
    return {};
}

Value OutlookItem::GetRecurrencePattern(const Call&)
{
    StartPattern(*mDraft);
    return MakeObject<RecurrencePattern>(Box(), mDraft);
}

Value OutlookItem::ClearRecurrencePattern(const Call&)
{
    ClearPattern(*mDraft);
    return {};
}

automation::Object ObjectOfItem(const MailboxRef& mailbox, const StoredItemRef& item)
{
    return MakeObject<OutlookItem>(mailbox, std::make_shared<ItemDraft>(*mailbox, item));
}

automation::Object ObjectOfNewItem(const MailboxRef& mailbox, MailFolder& folder, ItemKind kind)
{
    return MakeObject<OutlookItem>(mailbox, std::make_shared<ItemDraft>(*mailbox, folder, kind));
}

StoredItemRef ItemBehind(Mailbox& mailbox, const automation::Object& object)
{
    if (!object)
    {
        return nullptr;
    }
    Microsoft::WRL::ComPtr<IDispatch> own;
    if (SUCCEEDED(object.Dispatch()->QueryInterface(kOutlookItemId, &own)))
    {
        const StoredItemRef& stored = static_cast<OutlookItem*>(own.Get())->Draft().Stored();
        return stored && stored->folder != nullptr ? stored : nullptr;
    }
    return mailbox.FindEntry(automation::TextOf(object.Get(L"EntryID")));
}

} // namespace sandbox::outlook
