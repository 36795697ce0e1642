#include "config/outlook/RegistryValue.h"

#include "automation/Error.h"

#include <algorithm>

namespace config
{

namespace
{

using automation::Value;

constexpr size_t kNumberSize = 4;

std::vector<BYTE> BytesOfText(const std::wstring& text, bool terminated)
{
    const std::string narrow = NarrowText(text);
    std::vector<BYTE> bytes(narrow.begin(), narrow.end());
    if (terminated)
    {
        bytes.push_back(0);
    }
    return bytes;
}

// Least significant byte first.
std::vector<BYTE> BytesOfNumber(long number)
{
    auto rest = static_cast<unsigned long>(number);
    std::vector<BYTE> bytes;
    for (size_t i = 0; i < kNumberSize; ++i)
    {
        bytes.push_back(static_cast<BYTE>(rest & 255));
        rest /= 256;
    }
    return bytes;
}

Value NumberOf(std::vector<BYTE> bytes, bool bigEndian)
{
    bytes.resize(kNumberSize);
    if (bigEndian)
    {
        std::reverse(bytes.begin(), bytes.end());
    }
    unsigned long number = 0;
    for (size_t i = kNumberSize; i-- > 0;)
    {
        number = number * 256 + bytes[i];
    }
    return static_cast<long>(number);
}

// A text of fewer bytes than the shortest that means anything reads as empty.
Value TextOf(const std::vector<BYTE>& bytes, size_t shortest, size_t terminators)
{
    if (bytes.size() < shortest)
    {
        return L"";
    }
    size_t length = bytes.size();
    while (terminators > 0 && length > 0 && bytes[length - 1] == 0)
    {
        --length;
        --terminators;
    }
    return WideText({reinterpret_cast<const char*>(bytes.data()), length});
}

std::vector<BYTE> Reversed(std::vector<BYTE> bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

} // namespace

std::string NarrowText(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring WideText(std::string_view text)
{
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    std::wstring result(static_cast<size_t>(size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, result.data(), size);
    return result;
}

void RaiseUnknownValueType()
{
    throw automation::Error(E_INVALIDARG, L"Class TSysReg", L"Unknown value type.");
}

bool IsKnownValueType(DWORD type)
{
    return type >= REG_SZ && type <= REG_MULTI_SZ && type != REG_LINK;
}

std::vector<BYTE> RegistryBytes(DWORD type, const Value& value)
{
    switch (type)
    {
    case REG_SZ:
    case REG_EXPAND_SZ: return BytesOfText(automation::TextOf(value), true);
    case REG_BINARY: return automation::BytesOf(value);
    case REG_DWORD_LITTLE_ENDIAN: return BytesOfNumber(automation::LongOf(value));
    case REG_DWORD_BIG_ENDIAN: return Reversed(BytesOfNumber(automation::LongOf(value)));
    case REG_MULTI_SZ: return BytesOfText(automation::TextOf(value), false);
    default: RaiseUnknownValueType();
    }
}

Value ValueOfRegistryBytes(DWORD type, std::vector<BYTE> bytes)
{
    switch (type)
    {
    case REG_SZ:
    case REG_EXPAND_SZ: return TextOf(bytes, 2, 1);
    case REG_BINARY: return Value(bytes);
    case REG_DWORD_LITTLE_ENDIAN: return NumberOf(std::move(bytes), false);
    case REG_DWORD_BIG_ENDIAN: return NumberOf(std::move(bytes), true);
    case REG_MULTI_SZ: return TextOf(bytes, 5, 2);
    default: RaiseUnknownValueType();
    }
}

} // namespace config
