#include "ui/DigitBox.h"

#include <commctrl.h>

namespace ui
{

namespace
{

constexpr UINT_PTR kDigitBoxSubclass = 1;
constexpr WPARAM kBackspace = 8;
constexpr WPARAM kEnter = 13;

bool IsDropped(WPARAM character)
{
    return character != kBackspace && (character < L'0' || character > L'9');
}

bool IsEnterKey(LPARAM message)
{
    const auto* key = reinterpret_cast<const MSG*>(message);
    return key != nullptr && (key->message == WM_KEYDOWN || key->message == WM_CHAR) && key->wParam == kEnter;
}

LRESULT CALLBACK Filter(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                        DWORD_PTR movesOn)
{
    switch (message)
    {
    case WM_GETDLGCODE:
        if (movesOn != 0 && IsEnterKey(lParam))
        {
            return DLGC_WANTMESSAGE; // or the dialog would press its default button
        }
        break;
    case WM_CHAR:
        if (movesOn != 0 && wParam == kEnter)
        {
            PostMessageW(GetParent(window), WM_NEXTDLGCTL, 0, FALSE);
        }
        if (IsDropped(wParam))
        {
            return 0;
        }
        break;
    case WM_PASTE: return 0; // it could bring anything
    case WM_NCDESTROY: RemoveWindowSubclass(window, Filter, kDigitBoxSubclass); break;
    default: break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

void DigitBox::Prepare(int digits, EnterKey enter)
{
    Send(EM_SETLIMITTEXT, static_cast<WPARAM>(digits));
    SetWindowSubclass(Handle(), Filter, kDigitBoxSubclass, enter == EnterKey::MovesFocusOn ? 1 : 0);
}

} // namespace ui
