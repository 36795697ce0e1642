#include "run/Identities.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <iterator>

namespace run
{

bool Identities::Add(long position, std::wstring_view identity)
{
    const auto index = static_cast<size_t>(position) - 1;
    if (mByPosition.size() <= index)
    {
        mByPosition.resize(index + 1);
    }
    mByPosition[index] = Append(identity);
    return identity.empty() || Insert(mByPosition[index]);
}

std::uint32_t Identities::Append(std::wstring_view identity)
{
    const bool isWide = std::ranges::any_of(identity, [](wchar_t letter) { return letter > 0xFF; });
    if (isWide)
    {
        mBytes.append(reinterpret_cast<const char*>(identity.data()), identity.size() * sizeof(wchar_t));
    }
    else
    {
        std::ranges::transform(identity, std::back_inserter(mBytes),
                               [](wchar_t letter) { return static_cast<char>(letter); });
    }
    mEnds.push_back(2 * mBytes.size() + (isWide ? 1 : 0));
    return static_cast<std::uint32_t>(mEnds.size()) - 1;
}

bool Identities::Insert(std::uint32_t number)
{
    const auto isSame = [&](std::uint32_t other) {
        return IsWide(other) == IsWide(number) && BytesOf(other) == BytesOf(number);
    };
    const bool isNew = mTable.Find(HashOf(number), isSame) == 0;
    if (isNew)
    {
        mTable.Add(number, [&](std::uint32_t one) { return HashOf(one); });
    }
    return isNew;
}

bool Identities::Has(long position) const noexcept
{
    const auto index = static_cast<size_t>(position) - 1;
    return index < mByPosition.size() && mByPosition[index] != 0;
}

std::wstring Identities::At(long position) const
{
    const std::uint32_t number = mByPosition[static_cast<size_t>(position) - 1];
    const std::string_view bytes = BytesOf(number);
    std::wstring identity;
    if (IsWide(number))
    {
        identity.resize(bytes.size() / sizeof(wchar_t));
        std::memcpy(identity.data(), bytes.data(), bytes.size());
    }
    else
    {
        std::ranges::transform(bytes, std::back_inserter(identity),
                               [](char byte) { return static_cast<unsigned char>(byte); });
    }
    return identity;
}

std::string_view Identities::BytesOf(std::uint32_t number) const noexcept
{
    const size_t start = mEnds[number - 1] / 2;
    return std::string_view(mBytes).substr(start, mEnds[number] / 2 - start);
}

size_t Identities::HashOf(std::uint32_t number) const noexcept
{
    return std::hash<std::string_view>()(BytesOf(number));
}

} // namespace run
