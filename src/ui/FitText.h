// Gives a control the height that its text needs: controls below it move, controls around it and the dialog
// itself become lower or higher by the difference. Call once the texts are written.
#pragma once

#include "ui/Control.h"

#include <initializer_list>

namespace ui
{

class Dialog;

// Labels in the same place, of which one is visible at a time, share the height that the longest text needs.
void FitLabels(Dialog& dialog, std::initializer_list<Label*> labels);

// A text box of several lines; beyond a sensible number of lines it scrolls.
void FitTextBox(Dialog& dialog, TextBox& box);

} // namespace ui
