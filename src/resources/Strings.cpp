#include "resources/Strings.h"

#include <atomic>
#include <span>

// The linker's name for the start of this module.
extern "C" IMAGE_DOS_HEADER __ImageBase; // NOLINT(bugprone-reserved-identifier): the linker chose it

namespace resources
{

namespace
{

constexpr WORD kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr WORD kChinese = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);
constexpr UINT kStringsPerBlock = 16;
constexpr int kNoOverride = -1;

std::atomic<int> sOverride{kNoOverride};

// The block of sixteen strings that holds this id; empty when the module has none in this language.
std::span<const wchar_t> BlockOf(UINT id, WORD language)
{
    const auto name = MAKEINTRESOURCEW(id / kStringsPerBlock + 1);
    const HRSRC found = FindResourceExW(Module(), RT_STRING, name, language);
    const HGLOBAL loaded = found != nullptr ? LoadResource(Module(), found) : nullptr;
    const void* data = loaded != nullptr ? LockResource(loaded) : nullptr;
    if (data == nullptr)
    {
        return {};
    }
    return {static_cast<const wchar_t*>(data), SizeofResource(Module(), found) / sizeof(wchar_t)};
}

// A block is sixteen texts, each after its length; an absent one has the length 0.
std::wstring TextInBlock(std::span<const wchar_t> block, UINT index)
{
    for (; !block.empty(); --index)
    {
        const size_t length = block.front();
        if (block.size() <= length)
        {
            break;
        }
        if (index == 0)
        {
            return {block.data() + 1, length};
        }
        block = block.subspan(length + 1);
    }
    return {};
}

} // namespace

Language InterfaceLanguage()
{
    const int overriding = sOverride;
    if (overriding != kNoOverride)
    {
        return static_cast<Language>(overriding);
    }
    return PRIMARYLANGID(GetThreadUILanguage()) == LANG_CHINESE ? Language::Chinese : Language::English;
}

bool IsChinese()
{
    return String(IDS_LANGUAGE) == L"Chinese";
}

bool IsEnglish()
{
    return String(IDS_LANGUAGE) == L"English";
}

std::wstring String(UINT id)
{
    // An exact language is asked for, so that the language of the process has no say here.
    const WORD language = InterfaceLanguage() == Language::Chinese ? kChinese : kEnglish;
    return TextInBlock(BlockOf(id, language), id % kStringsPerBlock);
}

const wchar_t* Choose(const wchar_t* chinese, const wchar_t* english)
{
    return IsChinese() ? chinese : english;
}

HINSTANCE Module()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

void OverrideLanguage(std::optional<Language> language)
{
    sOverride = language ? static_cast<int>(*language) : kNoOverride;
}

} // namespace resources
