// The values that an item has of its own, sorted by property. Items have few of the many properties, so a
// sorted vector is both smaller and faster than a map.
#pragma once

#include "sandbox/outlook/PropertyTable.h"

#include <algorithm>
#include <utility>

namespace sandbox::outlook
{

class PropertyBag
{
  public:
    using Entry = std::pair<PropertyId, Value>;

    // Null where the bag has no value.
    const Value* Find(PropertyId id) const
    {
        const auto at = std::ranges::lower_bound(mEntries, id, {}, &Entry::first);
        return at != mEntries.end() && at->first == id ? &at->second : nullptr;
    }

    void Put(PropertyId id, Value value)
    {
        const auto at = std::ranges::lower_bound(mEntries, id, {}, &Entry::first);
        if (at != mEntries.end() && at->first == id)
        {
            at->second = std::move(value);
            return;
        }
        mEntries.emplace(at, id, std::move(value));
    }

    void Remove(PropertyId id)
    {
        std::erase_if(mEntries, [id](const Entry& entry) { return entry.first == id; });
    }

    void Clear() noexcept { mEntries.clear(); }
    bool IsEmpty() const noexcept { return mEntries.empty(); }
    auto begin() const noexcept { return mEntries.begin(); }
    auto end() const noexcept { return mEntries.end(); }

  private:
    std::vector<Entry> mEntries;
};

} // namespace sandbox::outlook
