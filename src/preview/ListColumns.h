// The widths of a list's columns: as parts of the list's width, the last one as the rest.
#pragma once

#include "ui/ListView.h"

namespace preview
{

// This part of the control's width, in pixels.
int PartOfWidth(const ui::Control& control, int percent);

// Widens the last of so many columns by the width that the others and the scroll bar leave; never narrows it.
void FillLastColumn(ui::ListView& list, int columns);

} // namespace preview
