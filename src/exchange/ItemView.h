// How the key readers and filters of a kind see an Outlook item: as the item itself, or as properties that
// have been read already, from a row of the folder's table or earlier in the pass. Refers to its source;
// lives as long as one call.
#pragma once

#include "automation/Object.h"

namespace exchange
{

// Properties of one item that need not be asked of the item.
class PropertySource
{
  public:
    virtual ~PropertySource() = default;

    // Both throw automation::Error when Outlook refuses.
    virtual automation::Value Get(const wchar_t* property) = 0;
    // The item itself, for what no property tells.
    virtual const automation::Object& Item() = 0;
};

class ItemView
{
  public:
    ItemView(const automation::Object& item) noexcept : mItem(&item) {}
    ItemView(PropertySource& source) noexcept : mSource(&source) {}

    // Both throw automation::Error when Outlook refuses.
    automation::Value Get(const wchar_t* property) const
    {
        return mSource != nullptr ? mSource->Get(property) : mItem->Get(property);
    }
    const automation::Object& Item() const { return mSource != nullptr ? mSource->Item() : *mItem; }

  private:
    const automation::Object* mItem = nullptr;
    PropertySource* mSource = nullptr;
};

} // namespace exchange
