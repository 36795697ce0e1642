#include "preview/ListColumns.h"

#include <algorithm>

namespace preview
{

int PartOfWidth(const ui::Control& control, int percent)
{
    const RECT place = control.Place();
    return (place.right - place.left) * percent / 100;
}

void FillLastColumn(ui::ListView& list, int columns)
{
    const RECT place = list.Place();
    int rest = place.right - place.left - GetSystemMetrics(SM_CXVSCROLL) - 2 * GetSystemMetrics(SM_CXEDGE);
    for (int column = 0; column < columns - 1; ++column)
    {
        rest -= list.ColumnWidth(column);
    }
    list.SetColumnWidth(columns - 1, std::max(rest, list.ColumnWidth(columns - 1)));
}

} // namespace preview
