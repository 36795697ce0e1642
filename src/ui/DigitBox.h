// A text box that takes digits only, up to a largest number. It drops every other character typed, except
// Backspace and the keys of the clipboard. Pasting takes the digits of the text.
#pragma once

#include "ui/Control.h"

namespace ui
{

class DigitBox : public TextBox
{
  public:
    enum class EnterKey
    {
        ActsOnDefaultButton,
        MovesFocusOn,
    };

    using TextBox::TextBox;

    // Starts the filtering; call once the dialog's window exists. largest: the largest number that is taken.
    void Prepare(long largest, EnterKey enter);

  private:
    static LRESULT CALLBACK Filter(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR box);
    bool HandleCharacter(WPARAM character) const;
    bool Takes(const std::wstring& digits) const;
    void Paste() const;

    long mLargest = 0;
    EnterKey mEnter = EnterKey::ActsOnDefaultButton;
};

} // namespace ui
