#include "run/Identities.h"

namespace run
{

bool Identities::Add(long position, data::StoredText identity)
{
    const auto index = static_cast<size_t>(position) - 1;
    if (mByPosition.size() <= index)
    {
        mByPosition.resize(index + 1);
    }
    mByPosition[index] = identity;
    const auto at = [this](std::uint32_t other) { return At(static_cast<long>(other)); };
    if (identity.IsEmpty())
    {
        return true;
    }
    if (mTable.Find(identity.Hash(), [&](std::uint32_t other) { return at(other) == identity; }) != 0)
    {
        return false;
    }
    mTable.Add(static_cast<std::uint32_t>(position), [&](std::uint32_t other) { return at(other).Hash(); });
    return true;
}

data::StoredText Identities::At(long position) const noexcept
{
    const auto index = static_cast<size_t>(position) - 1;
    return index < mByPosition.size() ? mByPosition[index] : data::StoredText();
}

} // namespace run
