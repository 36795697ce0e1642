#include "ui/DigitBox.h"

#include "automation/Text.h"

#include <algorithm>
#include <iterator>

#include <commctrl.h>

namespace ui
{

namespace
{

constexpr UINT_PTR kDigitBoxSubclass = 1;
constexpr WPARAM kBackspace = 8;
constexpr WPARAM kEnter = 13;

// The characters that Ctrl with A, C, V, X and Z gives: they write nothing by themselves.
constexpr WPARAM kEditingKeys[] = {1, 3, 22, 24, 26};

bool IsDigit(WPARAM character)
{
    return character >= L'0' && character <= L'9';
}

bool IsEditingKey(WPARAM character)
{
    return character == kBackspace ||
           std::find(std::begin(kEditingKeys), std::end(kEditingKeys), character) != std::end(kEditingKeys);
}

bool IsEnterKey(LPARAM message)
{
    const auto* key = reinterpret_cast<const MSG*>(message);
    return key != nullptr && (key->message == WM_KEYDOWN || key->message == WM_CHAR) && key->wParam == kEnter;
}

std::wstring ClipboardText(HWND window)
{
    std::wstring text;
    if (OpenClipboard(window))
    {
        const HANDLE data = GetClipboardData(CF_UNICODETEXT);
        if (const auto* characters =
                static_cast<const wchar_t*>(data != nullptr ? GlobalLock(data) : nullptr))
        {
            text = characters;
            GlobalUnlock(data);
        }
        CloseClipboard();
    }
    return text;
}

} // namespace

LRESULT CALLBACK DigitBox::Filter(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                  DWORD_PTR box)
{
    const auto& self = *reinterpret_cast<const DigitBox*>(box);
    switch (message)
    {
    case WM_GETDLGCODE:
        if (self.mEnter == EnterKey::MovesFocusOn && IsEnterKey(lParam))
        {
            return DLGC_WANTMESSAGE; // or the dialog would press its default button
        }
        break;
    case WM_CHAR:
        if (self.HandleCharacter(wParam))
        {
            return 0;
        }
        break;
    case WM_PASTE: self.Paste(); return 0;
    case WM_NCDESTROY: RemoveWindowSubclass(window, Filter, kDigitBoxSubclass); break;
    default: break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

// True for a character that the text box is not to see.
bool DigitBox::HandleCharacter(WPARAM character) const
{
    if (mEnter == EnterKey::MovesFocusOn && character == kEnter)
    {
        PostMessageW(GetParent(Handle()), WM_NEXTDLGCTL, 0, FALSE);
    }
    return IsDigit(character) ? !Takes({static_cast<wchar_t>(character)}) : !IsEditingKey(character);
}

// Whether these digits may replace the selected ones.
bool DigitBox::Takes(const std::wstring& digits) const
{
    DWORD begin = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    const std::wstring text = Text().replace(begin, end - begin, digits);
    return text.size() <= std::to_wstring(mLargest).size() &&
           automation::LeadingNumber(text) <= static_cast<double>(mLargest);
}

void DigitBox::Paste() const
{
    std::wstring digits;
    for (const wchar_t character : ClipboardText(Handle()))
    {
        if (IsDigit(character) && Takes(digits + character))
        {
            digits += character;
        }
    }
    if (!digits.empty())
    {
        SendPointer(EM_REPLACESEL, TRUE, digits.c_str());
    }
}

void DigitBox::Prepare(long largest, EnterKey enter)
{
    mLargest = largest;
    mEnter = enter;
    SetWindowSubclass(Handle(), Filter, kDigitBoxSubclass, reinterpret_cast<DWORD_PTR>(this));
}

} // namespace ui
