// How readers of properties see an automation object: as the object itself, or as properties that have been
// read already, from a table or earlier in a pass. Refers to its source; lives as long as one call.
#pragma once

#include "automation/Object.h"

namespace automation
{

// Properties of one object that need not be asked of the object.
class PropertySource
{
  public:
    virtual ~PropertySource() = default;

    // Both throw Error when the object refuses.
    virtual Value Get(const wchar_t* property) = 0;
    // The object itself, for what no property tells.
    virtual const Object& Item() = 0;
};

class ItemView
{
  public:
    ItemView(const Object& item) noexcept : mItem(&item) {}
    ItemView(PropertySource& source) noexcept : mSource(&source) {}

    // Both throw Error when the object refuses.
    Value Get(const wchar_t* property) const
    {
        return mSource != nullptr ? mSource->Get(property) : mItem->Get(property);
    }
    const Object& Item() const { return mSource != nullptr ? mSource->Item() : *mItem; }

  private:
    const Object* mItem = nullptr;
    PropertySource* mSource = nullptr;
};

} // namespace automation
