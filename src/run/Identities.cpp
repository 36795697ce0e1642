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
    if (identity.IsEmpty())
    {
        return true;
    }
    const size_t hash = identity.Hash();
    const auto isSame = [&](std::uint32_t other) { return At(static_cast<long>(other)) == identity; };
    if (mTable.Find(hash, isSame) != 0)
    {
        return false;
    }
    mTable.Add(static_cast<std::uint32_t>(position), hash);
    return true;
}

data::StoredText Identities::At(long position) const noexcept
{
    const auto index = static_cast<size_t>(position) - 1;
    return index < mByPosition.size() ? mByPosition[index] : data::StoredText();
}

} // namespace run
