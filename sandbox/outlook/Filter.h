// The conditions of Items.Restrict and Items.Find: comparisons of a property with a value, joined by And, Or
// and Not. A filter is read once and then asked of any number of items.
#pragma once

#include "sandbox/outlook/ItemDraft.h"

#include <memory>
#include <string>
#include <string_view>

namespace sandbox::outlook
{

class Condition
{
  public:
    virtual ~Condition() = default;
    virtual bool Holds(const ItemDraft& item) const = 0;
};

using ConditionRef = std::shared_ptr<const Condition>;

// True for the properties that Find and Restrict refuse.
bool IsUnfiltered(std::wstring_view name);

// Throws automation::Error for a text that is no condition, for a property that Outlook does not have or does
// not filter by and for a value that cannot be compared with the property.
ConditionRef ParsedFilter(const std::wstring& filter);

} // namespace sandbox::outlook
