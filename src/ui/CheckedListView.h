// A list view of any length with check boxes before its rows: it keeps neither texts nor check marks, and
// several rows can be selected. A click on a check box toggles its row, the space bar the selected rows,
// Ctrl+A selects all. Its template has the style LVS_OWNERDATA.
#pragma once

#include "ui/VirtualListView.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace ui
{

class CheckedListView : public VirtualListView
{
  public:
    using VirtualListView::VirtualListView;

    using IsRowChecked = std::function<bool(int row)>;
    using Toggled = std::function<void(int row)>;

    // Call once, after Prepare. toggled: the user has toggled this row, and with it the selected rows if it
    // is one of them.
    void UseCheckBoxes(IsRowChecked isChecked, Toggled toggled);

    // Answers the control's questions for texts and check marks; false for any other notification.
    bool AnswerCell(const NMHDR& notification) const;

    // The first and the last row in sight; the second is below the first in an empty list.
    std::pair<int, int> RowsInSight() const;
    std::optional<int> Focused() const;
    std::vector<int> SelectedRows() const;
    void SelectAll();
    void Redraw(int first, int last);
    // Other rows are shown: the first one is the only one that is selected.
    void SelectFirst();

    // The column whose header this notification says has been clicked.
    std::optional<int> ClickedHeader(const NMHDR& notification) const;
    // The arrow of the sorted column; -1 for none.
    void ShowOrder(int column, bool isDescending);

    std::vector<int> ColumnWidths() const;

  private:
    static LRESULT CALLBACK HandleInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                        DWORD_PTR list);
    bool HandleKey(WPARAM key);
    bool HandleClick(LPARAM place);
    void Toggle(int row);

    IsRowChecked mIsChecked;
    Toggled mToggled;
};

} // namespace ui
