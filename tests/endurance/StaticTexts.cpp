#include "tests/endurance/StaticTexts.h"

#include "ui/VisualStyles.h"

#include <array>
#include <numeric>

namespace test_support
{

namespace
{

constexpr long kTries = 20;

StaticTexts::ByType gShown = {};

LRESULT CALLBACK Count(int code, WPARAM window, LPARAM parameter)
{
    if (code == HCBT_CREATEWND)
    {
        std::array<wchar_t, 16> name = {};
        GetClassNameW(reinterpret_cast<HWND>(window), name.data(), static_cast<int>(name.size()));
        if (lstrcmpiW(name.data(), L"Static") == 0)
        {
            const auto& creation = *reinterpret_cast<const CBT_CREATEWNDW*>(parameter);
            ++gShown[static_cast<size_t>(creation.lpcs->style) & SS_TYPEMASK];
        }
    }
    return CallNextHookEx(nullptr, code, window, parameter);
}

void ShowOne(DWORD type)
{
    const HWND text =
        CreateWindowW(L"STATIC", L"", WS_POPUP | type, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(text, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    DestroyWindow(text);
}

long KeptForOne(DWORD type)
{
    ShowOne(type); // what the first one makes the system load does not count
    const long before = BytesInHeaps();
    for (long i = 0; i < kTries; ++i)
    {
        ShowOne(type);
    }
    return (BytesInHeaps() - before) / kTries;
}

} // namespace

StaticTexts::StaticTexts()
{
    const ui::VisualStyles styles;
    DWORD type = 0;
    for (long& kept : mKeptForOne)
    {
        kept = KeptForOne(type++);
    }
    gShown = {};
    mHook = SetWindowsHookExW(WH_CBT, Count, nullptr, GetCurrentThreadId());
}

StaticTexts::~StaticTexts()
{
    UnhookWindowsHookEx(mHook);
}

Footprint StaticTexts::Without(Footprint footprint) const
{
    footprint.heapBytes -= std::inner_product(gShown.begin(), gShown.end(), mKeptForOne.begin(), 0L);
    return footprint;
}

} // namespace test_support
