// Texts that stay as long as a run: the keys and identities of all its records. Small, since there are
// several for every record: of one byte a character where that is enough, one after another in large blocks.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace data
{

// A text in a TextStore, which outlives it. By default none at all, which differs from the empty text.
class StoredText
{
  public:
    StoredText() noexcept = default;

    bool IsNone() const noexcept { return mStart == nullptr; }
    bool IsEmpty() const noexcept { return Bytes().size() <= kHeaderSize; }
    // Of none: the empty text.
    std::wstring Text() const;
    size_t Hash() const noexcept { return std::hash<std::string_view>()(Bytes()); }

    // Texts of different stores may be compared as well.
    friend bool operator==(StoredText one, StoredText other) noexcept { return one.Bytes() == other.Bytes(); }

  private:
    friend class TextStore;
    using Header = unsigned; // twice the number of bytes that follow, and 1 for two bytes a character
    static constexpr size_t kHeaderSize = sizeof(Header);

    explicit StoredText(const char* start) noexcept : mStart(start) {}
    Header ReadHeader() const noexcept;
    std::string_view Bytes() const noexcept; // with the header

    const char* mStart = nullptr;
};

class TextStore
{
  public:
    StoredText Keep(std::wstring_view text);

  private:
    char* Room(size_t bytes);

    std::vector<std::unique_ptr<char[]>> mBlocks;
    size_t mSize = 0; // of the last block
    size_t mUsed = 0; // of it
};

} // namespace data
