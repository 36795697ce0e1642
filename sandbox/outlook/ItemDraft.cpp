#include "sandbox/outlook/ItemDraft.h"

#include "automation/Dates.h"
#include "sandbox/outlook/Clock.h"
#include "sandbox/outlook/Exceptions.h"
#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/PropertyValues.h"

#include <array>

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

using RuleTable = std::array<std::array<const PropertyRule*, static_cast<size_t>(Count)>, kItemKinds>;

void Enter(RuleTable& table, ItemKind kind, std::span<const PropertyRule> rules)
{
    for (const PropertyRule& rule : rules)
    {
        table[static_cast<size_t>(kind)][static_cast<size_t>(rule.id)] = &rule;
    }
}

RuleTable MadeRules()
{
    RuleTable table{};
    Enter(table, ItemKind::Contact, ContactRules());
    Enter(table, ItemKind::Task, TaskRules());
    Enter(table, ItemKind::Task, PatternTypeRules());
    Enter(table, ItemKind::Task, PatternRules());
    Enter(table, ItemKind::Appointment, AppointmentRules());
    Enter(table, ItemKind::Appointment, PatternTypeRules());
    Enter(table, ItemKind::Appointment, PatternRules());
    Enter(table, ItemKind::Note, NoteRules());
    Enter(table, ItemKind::DistributionList, DistributionListRules());
    return table;
}

const PropertyRule* RuleOf(ItemKind kind, PropertyId id)
{
    static const RuleTable table = MadeRules();
    return table[static_cast<size_t>(kind)][static_cast<size_t>(id)];
}

} // namespace

ItemDraft::ItemDraft(Mailbox& mailbox, MailFolder& folder, ItemKind kind)
    : mMailbox(mailbox), mFolder(folder), mKind(kind)
{
    Put(MessageClass, MessageClassOf(kind));
    if (kind != ItemKind::Note)
    {
        Put(OutlookVersion, kOutlookVersion);
    }
    if (kind == ItemKind::Appointment)
    {
        StartAppointment(*this);
    }
}

ItemDraft::ItemDraft(Mailbox& mailbox, StoredItemRef item)
    : mMailbox(mailbox), mFolder(*item->folder), mStored(std::move(item)), mKind(mStored->kind)
{
}

const Value* ItemDraft::Find(PropertyId id) const
{
    const Value* changed = mChanges.IsEmpty() ? nullptr : mChanges.Find(id);
    if (changed != nullptr)
    {
        return changed->Type() == VT_EMPTY ? nullptr : changed;
    }
    return mStored ? mStored->properties.Find(id) : nullptr;
}

const Value& ItemDraft::Peek(PropertyId id, Value& scratch) const
{
    const PropertyRule* rule = RuleOf(mKind, id);
    if (rule != nullptr && rule->read != nullptr)
    {
        return scratch = rule->read(*this);
    }
    const Value* own = Find(id);
    return own != nullptr ? *own : DefaultOf(id);
}

Value ItemDraft::Read(PropertyId id) const
{
    Value scratch;
    return Peek(id, scratch);
}

void ItemDraft::Assign(PropertyId id, const Value& given)
{
    const Property& property = PropertyOf(id);
    Value converted = Converted(property, given);
    const PropertyRule* rule = RuleOf(mKind, id);
    if (rule != nullptr && rule->write != nullptr)
    {
        rule->write(*this, converted);
    }
    else
    {
        Put(id, std::move(converted));
    }
    if (IsOfPattern(id))
    {
        CancelExceptions(*this);
    }
}

void ItemDraft::Put(PropertyId id, Value value)
{
    mChanges.Put(id, std::move(value));
    mIsDirty = true;
}

const std::vector<std::wstring>& ItemDraft::Links() const
{
    static const std::vector<std::wstring> none;
    return mLinks ? *mLinks : mStored ? mStored->links : none;
}

void ItemDraft::SetLinks(std::vector<std::wstring> links)
{
    mLinks = std::make_unique<std::vector<std::wstring>>(std::move(links));
    mIsDirty = true;
}

void ItemDraft::FailIfGone() const
{
    mMailbox.FailIfOffline(mFolder, L"Save");
    if (mStored && mStored->folder == nullptr)
    {
        FailDeleted(L"Save");
    }
}

void ItemDraft::Save()
{
    FailIfGone();
    if (!mIsDirty)
    {
        return;
    }
    if (mKind == ItemKind::Appointment || mKind == ItemKind::Task)
    {
        SettlePattern(*this);
    }
    if (mKind == ItemKind::Task)
    {
        GenerateNextTask(*this);
    }
    PropertyBag properties = mChanges;
    if (!mStored)
    {
        properties.Put(CreationTime, Now());
    }
    properties.Put(LastModificationTime, Now());
    mStored = mMailbox.Save(mFolder, mStored, mKind, properties, mLinks.get());
    mChanges.Clear();
    mLinks.reset();
    mIsDirty = false;
}

void ItemDraft::Delete()
{
    FailIfGone();
    if (mStored)
    {
        mMailbox.Delete(mStored);
    }
}

} // namespace sandbox::outlook
