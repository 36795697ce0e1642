#include "tests/endurance/ProcessLanguage.h"

namespace test_support
{

namespace
{

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr LANGID kChinese = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);

void Set(LANGID language)
{
    SetThreadUILanguage(language);
    if (GetThreadUILanguage() != language) // Wine reports success and changes nothing
    {
        using SetDefault = LONG(WINAPI*)(LANGID);
        const auto setDefault = reinterpret_cast<SetDefault>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtSetDefaultUILanguage")));
        setDefault(language); // in Wine of this process only
    }
}

} // namespace

ProcessLanguage::ProcessLanguage(resources::Language language)
    : mBefore(GetThreadUILanguage()), mOfTest(language)
{
    Set(language == resources::Language::Chinese ? kChinese : kEnglish);
}

ProcessLanguage::~ProcessLanguage()
{
    Set(mBefore);
}

} // namespace test_support
