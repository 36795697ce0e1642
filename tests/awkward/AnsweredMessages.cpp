#include "tests/awkward/AnsweredMessages.h"

namespace test_support
{

namespace
{

constexpr const wchar_t* kAnswered = L"TelvixAnswered";

AnsweredMessages* gMessages = nullptr; // hooks of a thread have no data of their own

std::wstring TextOfWindow(HWND window)
{
    wchar_t text[256];
    return {text, static_cast<size_t>(GetWindowTextW(window, text, ARRAYSIZE(text)))};
}

bool IsDialog(HWND window)
{
    wchar_t name[32];
    return GetClassNameW(window, name, ARRAYSIZE(name)) != 0 && std::wstring(name) == L"#32770";
}

// A message box has its text in the static control of this number.
std::wstring MessageOf(HWND dialog)
{
    const HWND text = GetDlgItem(dialog, 0xFFFF);
    return TextOfWindow(dialog) + (text != nullptr ? L": " + TextOfWindow(text) : L"");
}

} // namespace

AnsweredMessages::AnsweredMessages()
    : mHook(SetWindowsHookExW(WH_CBT, &AnsweredMessages::OnHook, nullptr, GetCurrentThreadId()))
{
    gMessages = this;
}

AnsweredMessages::~AnsweredMessages()
{
    gMessages = nullptr;
    UnhookWindowsHookEx(mHook);
}

LRESULT CALLBACK AnsweredMessages::OnHook(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && gMessages != nullptr && IsDialog(window))
    {
        gMessages->Answer(window);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A dialog may be activated more than once.
void AnsweredMessages::Answer(HWND dialog)
{
    if (GetPropW(dialog, kAnswered) != nullptr)
    {
        return;
    }
    SetPropW(dialog, kAnswered, dialog);
    mTexts.push_back(MessageOf(dialog));
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

} // namespace test_support
