#include "ui/Control.h"

#include "ui/Dialog.h"

#include <uxtheme.h>

namespace ui
{

HWND Control::Handle() const
{
    return mDialog.Handle() != nullptr ? GetDlgItem(mDialog.Handle(), mId) : nullptr;
}

LRESULT Control::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageW(Handle(), message, wParam, lParam);
}

std::wstring Control::Text() const
{
    const HWND window = Handle();
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void Control::SetText(const std::wstring& text)
{
    SetWindowTextW(Handle(), text.c_str());
}

bool Control::IsEnabled() const
{
    return IsWindowEnabled(Handle()) != FALSE;
}

void Control::Enable(bool enabled)
{
    EnableWindow(Handle(), enabled ? TRUE : FALSE);
}

void Control::Show(bool visible)
{
    ShowWindow(Handle(), visible ? SW_SHOW : SW_HIDE);
}

// By the dialog's own message, which also gives the right button the border of a default button.
void Control::Focus()
{
    SendMessageW(mDialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Handle()), TRUE);
}

void Control::Repaint()
{
    UpdateWindow(Handle());
}

RECT Control::Place() const
{
    RECT place = {};
    GetWindowRect(Handle(), &place);
    MapWindowPoints(nullptr, mDialog.Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void Control::MoveTo(const RECT& place)
{
    SetWindowPos(Handle(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Control::MoveBy(int right, int down)
{
    RECT place = Place();
    OffsetRect(&place, right, down);
    MoveTo(place);
}

void Control::UseExplorerTheme()
{
    SetWindowTheme(Handle(), L"Explorer", nullptr);
}

void Button::Enable(bool enabled, Control& next)
{
    if (!enabled && GetFocus() == Handle())
    {
        next.Focus();
    }
    Control::Enable(enabled);
}

void TextBox::Append(const std::wstring& text)
{
    const auto end = static_cast<WPARAM>(GetWindowTextLengthW(Handle()));
    Send(EM_SETSEL, end, static_cast<LPARAM>(end));
    SendPointer(EM_REPLACESEL, FALSE, text.c_str());
    Send(EM_SCROLLCARET);
}

void IconBox::ShowSystemIcon(const wchar_t* systemIcon)
{
    Send(STM_SETICON, reinterpret_cast<WPARAM>(LoadIconW(nullptr, systemIcon)));
}

} // namespace ui
