#include "ui/ApplyFormFont.h"

#include "state/SharedState.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include <windows.h>

namespace ui
{

namespace
{

constexpr wchar_t kDefaultName[] = L"MS Shell Dlg";
constexpr long kDefaultSize = 8;
constexpr long kLargestSize = 72; // beyond it no dialog fits on a screen

// The start of a DIALOGEX template; the SDK documents this structure without declaring it.
#pragma pack(push, 1)
struct TemplateHeader
{
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD extendedStyle;
    DWORD style;
    WORD itemCount;
    short x;
    short y;
    short width;
    short height;
};
struct TemplateFont
{
    WORD size;
    WORD weight;
    BYTE italic;
    BYTE charset;
};
#pragma pack(pop)

constexpr WORD kExtendedSignature = 0xFFFF;
constexpr WORD kOrdinalMark = 0xFFFF;

// Walks a template from its start.
class Reader
{
  public:
    explicit Reader(std::span<const std::byte> bytes) : mBytes(bytes) {}

    template<typename T>
    T Read()
    {
        T value;
        if (mPosition + sizeof(T) > mBytes.size())
        {
            throw std::invalid_argument("a dialog template that ends early");
        }
        std::memcpy(&value, mBytes.data() + mPosition, sizeof(T));
        mPosition += sizeof(T);
        return value;
    }

    // A zero-terminated text, or a resource number after its mark.
    void SkipTextOrOrdinal()
    {
        WORD unit = Read<WORD>();
        if (unit == kOrdinalMark)
        {
            Read<WORD>();
            return;
        }
        while (unit != 0)
        {
            unit = Read<WORD>();
        }
    }

    // The controls start at a multiple of four.
    void Align() { mPosition = std::min((mPosition + 3) & ~size_t{3}, mBytes.size()); }

    std::span<const std::byte> Before() const { return mBytes.first(mPosition); }
    std::span<const std::byte> Rest() const { return mBytes.subspan(mPosition); }

  private:
    std::span<const std::byte> mBytes;
    size_t mPosition = 0;
};

void Append(std::vector<std::byte>& bytes, std::span<const std::byte> more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

} // namespace

FormFont FontOfForms()
{
    const auto& shared = state::Shared();
    const bool hasSize = shared.gFontSize > 0;
    return {shared.gFontName.empty() ? kDefaultName : shared.gFontName.substr(0, LF_FACESIZE - 1),
            hasSize ? std::min(shared.gFontSize, kLargestSize) : kDefaultSize};
}

std::vector<std::byte> ApplyFormFont(std::span<const std::byte> dialogTemplate, const FormFont& font)
{
    Reader reader(dialogTemplate);
    const auto header = reader.Read<TemplateHeader>();
    if (header.signature != kExtendedSignature || (header.style & DS_SETFONT) == 0)
    {
        throw std::invalid_argument("a dialog template without a font");
    }
    for (int part = 0; part < 3; ++part) // menu, window class, caption
    {
        reader.SkipTextOrOrdinal();
    }
    std::vector<std::byte> result;
    Append(result, reader.Before());

    auto oldFont = reader.Read<TemplateFont>();
    reader.SkipTextOrOrdinal();
    reader.Align();

    oldFont.size = static_cast<WORD>(font.Size);
    oldFont.charset = DEFAULT_CHARSET;
    Append(result, std::as_bytes(std::span(&oldFont, 1)));
    Append(result, std::as_bytes(std::span(font.Name.c_str(), font.Name.size() + 1)));
    result.resize((result.size() + 3) & ~size_t{3});
    Append(result, reader.Rest());
    return result;
}

} // namespace ui
