#include "config/outlook/ProfileText.h"

#include <algorithm>

namespace config
{

namespace
{

std::wstring HexFromLastByte(std::vector<BYTE> bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
    std::wstring text = L"0x";
    for (const BYTE byte : bytes)
    {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return text;
}

} // namespace

std::optional<std::wstring> ProfileText(DWORD type, const automation::Value& value)
{
    switch (type)
    {
    case REG_SZ:
    case REG_EXPAND_SZ:
    case REG_MULTI_SZ:
    case REG_DWORD: return automation::TextOf(value);
    case REG_BINARY: return HexFromLastByte(automation::BytesOf(value));
    default: return std::nullopt;
    }
}

} // namespace config
