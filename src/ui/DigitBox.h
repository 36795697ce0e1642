// A text box that takes digits only: every other character typed is dropped, Backspace excepted.
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

    // Starts the filtering; call once the dialog's window exists. digits: how many can be typed.
    void Prepare(int digits, EnterKey enter);
};

} // namespace ui
