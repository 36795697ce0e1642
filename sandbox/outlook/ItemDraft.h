// An item as one client sees it: what is stored, overlaid with what this client has changed and not yet
// saved. It knows the rules of its kind (what follows from what) and nothing of automation objects.
#pragma once

#include "sandbox/outlook/Mailbox.h"

#include <span>

namespace sandbox::outlook
{

class ItemDraft
{
  public:
    // A new item, which is in no folder until it is saved into this one.
    ItemDraft(Mailbox& mailbox, MailFolder& folder, ItemKind kind);
    // A stored item.
    ItemDraft(Mailbox& mailbox, StoredItemRef item);

    ItemKind Kind() const noexcept { return mKind; }
    Mailbox& Box() const noexcept { return mMailbox; }
    // The folder that the item is in, or will be saved to.
    MailFolder& Folder() const noexcept { return mFolder; }
    // Null for an item that has not been saved.
    const StoredItemRef& Stored() const noexcept { return mStored; }
    bool HasChanges() const noexcept { return mIsDirty; }

    // The property as a client reads it.
    Value Read(PropertyId id) const;
    // The same without a copy where there is none to be made; the result lives as long as scratch and item.
    const Value& Peek(PropertyId id, Value& scratch) const;
    // The item's own value; null where it has none.
    const Value* Find(PropertyId id) const;
    std::wstring Text(PropertyId id) const { return automation::TextOf(Read(id)); }
    long Number(PropertyId id) const { return automation::LongOf(Read(id)); }
    bool Truth(PropertyId id) const { return automation::TruthOf(Read(id)); }
    automation::Date Date(PropertyId id) const { return automation::DateOf(Read(id)); }

    // Assigns as a client does: converted to the property's type, with everything that follows from it.
    // Throws automation::Error with a description, and has changed nothing then.
    void Assign(PropertyId id, const Value& given);
    // Puts a value of the property's own type, and nothing else; Empty takes the item's own value away.
    void Put(PropertyId id, Value value);

    const std::vector<std::wstring>& Links() const;
    void SetLinks(std::vector<std::wstring> links);

    // Writes the changes; a new item is then the last of its folder. Throws automation::Error.
    void Save();
    void Delete();

  private:
    void FailIfGone() const;

    Mailbox& mMailbox;
    MailFolder& mFolder;
    StoredItemRef mStored;
    ItemKind mKind;
    PropertyBag mChanges;
    std::unique_ptr<std::vector<std::wstring>> mLinks;
    bool mIsDirty = false;
};

// What a kind of item does beyond keeping a value.
struct PropertyRule
{
    PropertyId id;
    Value (*read)(const ItemDraft& item);                   // null: the plain value
    void (*write)(ItemDraft& item, const Value& converted); // null: the plain value
};

std::span<const PropertyRule> ContactRules();
std::span<const PropertyRule> TaskRules();
std::span<const PropertyRule> AppointmentRules();
std::span<const PropertyRule> NoteRules();
std::span<const PropertyRule> DistributionListRules();
std::span<const PropertyRule> PatternTypeRules();
std::span<const PropertyRule> PatternRules();
// Gives an appointment that has just been created its time, and the reminder that Outlook sets on its own.
void StartAppointment(ItemDraft& item);
// Writes out what follows from a recurrence pattern, for those who read the mailbox file. Throws for a
// pattern without an occurrence.
void SettlePattern(ItemDraft& item);

// Where a recurring task is complete: keeps the completed instance as a task of its own and makes this one
// the next instance.
void GenerateNextTask(ItemDraft& item);

} // namespace sandbox::outlook
