// An Outlook item to which nothing is written: it shows the values of a real item, and over them those that a
// mapping has put. So a preview can let the workers' own mapping write to it, and ask it for the outcome. The
// real item is only read, and none of its methods is called.
#pragma once

#include "automation/LateBound.h"
#include "automation/Object.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace exchange
{

class RecordedItem;

// What Outlook does when a property is assigned, as far as it bears on others: the value, converted to the
// property's type, is to be kept by RecordedItem::Keep.
struct Reaction
{
    const wchar_t* Property;
    void (*Put)(RecordedItem& item, const automation::Value& value);
};

struct ItemBehaviour
{
    std::span<const Reaction> Reactions{};
    // What an item that is made a recurring one gives its pattern (RecordedItem::Assume); null for nothing.
    void (*StartPattern)(RecordedItem& item, RecordedItem& pattern) = nullptr;
    // What follows from the pattern when the item is saved; null for nothing.
    void (*Settle)(RecordedItem& item, RecordedItem& pattern) = nullptr;
};

class RecordedItem : public automation::LateBound
{
  public:
    // item: the real one, or a new one that is not saved; nothing for no values. The behaviour outlives the
    // recorded item.
    RecordedItem(automation::Object item, const ItemBehaviour& behaviour);

    // The item for callers that know items as automation objects.
    automation::Object AsObject() { return automation::Object(this); }

    // The property as it would be after everything that has been put. Throw automation::Error when Outlook
    // does not tell it, or would not take a value of that type.
    automation::Value Get(const std::wstring& property);
    void Put(const std::wstring& property, const automation::Value& value);
    // For the reactions: no other property follows.
    void Keep(const std::wstring& property, const automation::Value& value);
    // The real item is taken to have this value.
    void Assume(const std::wstring& property, const automation::Value& value);
    // Everything has been put.
    void Settle();
    // A link to this contact is added.
    void AddLink(const std::wstring& contact);

    // The property as the real item has it; Empty where there is none, or Outlook refuses to tell it: what a
    // client may not read it may still write.
    automation::Value Before(const std::wstring& property);
    // The properties that have been put, in the order of their first values.
    const std::vector<std::wstring>& Changed() const noexcept { return mOrder; }
    // The recurrence pattern that has been asked for; null for none.
    RecordedItem* Pattern() const noexcept { return mPattern; }
    const std::vector<std::wstring>& NewLinks() const noexcept { return mLinks; }

  private:
    automation::Value Read(const std::wstring& member, std::span<const automation::Value> arguments) override;
    void Write(const std::wstring& member, const automation::Value& value) override { Put(member, value); }
    // Throws automation::Error when Outlook refuses.
    automation::Value Real(const std::wstring& property);
    automation::Object PatternOf();
    void StartPattern();

    automation::Object mItem;
    const ItemBehaviour& mBehaviour;
    std::map<std::wstring, automation::Value> mBefore;
    std::map<std::wstring, automation::Value> mAfter;
    std::vector<std::wstring> mOrder;
    std::vector<std::wstring> mLinks;
    RecordedItem* mPattern = nullptr;
    automation::Object mPatternObject; // keeps mPattern
};

} // namespace exchange
