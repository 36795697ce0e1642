#include "data/TextStore.h"

#include <algorithm>
#include <cstring>

namespace data
{

StoredText::Header StoredText::ReadHeader() const noexcept
{
    Header header = 0;
    std::memcpy(&header, mStart, sizeof(header));
    return header;
}

std::string_view StoredText::Bytes() const noexcept
{
    return IsNone() ? std::string_view() : std::string_view(mStart, kHeaderSize + ReadHeader() / 2);
}

std::wstring StoredText::Text() const
{
    if (IsEmpty())
    {
        return {};
    }
    const std::string_view bytes = Bytes().substr(kHeaderSize);
    if (ReadHeader() % 2 == 0)
    {
        std::wstring text(bytes.size(), L'\0');
        std::ranges::transform(bytes, text.begin(),
                               [](char byte) { return static_cast<unsigned char>(byte); });
        return text;
    }
    std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes.data(), bytes.size());
    return text;
}

// Equal texts have equal bytes, so that they can be compared as they are stored.
StoredText TextStore::Keep(std::wstring_view text)
{
    const bool isWide = std::ranges::any_of(text, [](wchar_t letter) { return letter > 0xFF; });
    const size_t bytes = text.size() * (isWide ? sizeof(wchar_t) : 1);
    char* const start = Room(StoredText::kHeaderSize + bytes);
    const auto header = static_cast<StoredText::Header>(2 * bytes + (isWide ? 1 : 0));
    std::memcpy(start, &header, sizeof(header));
    char* const at = start + sizeof(header);
    if (isWide)
    {
        std::memcpy(at, text.data(), bytes);
    }
    else
    {
        std::ranges::transform(text, at, [](wchar_t letter) { return static_cast<char>(letter); });
    }
    return StoredText(start);
}

char* TextStore::Room(size_t bytes)
{
    constexpr size_t kUsualSize = 0x4000;
    if (mSize - mUsed < bytes)
    {
        mSize = std::max(kUsualSize, bytes);
        mUsed = 0;
        mBlocks.push_back(std::make_unique_for_overwrite<char[]>(mSize));
    }
    char* const room = mBlocks.back().get() + mUsed;
    mUsed += bytes;
    return room;
}

} // namespace data
