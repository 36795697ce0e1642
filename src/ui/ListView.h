// A list view in report style. Each row may carry a key, by which the program knows it whatever it reads.
#pragma once

#include "ui/Control.h"

#include <optional>
#include <vector>

namespace ui
{

class ListView : public Control
{
  public:
    using Control::Control;
    using Control::SetText; // not visible: screen readers read it as the list's name

    // Selects whole rows, and has the looks of the system's own lists. Call once, before the rows are added.
    void Prepare();
    // Adds a column of a width in pixels; FillWidth gives the last one the remaining width.
    void AddColumn(const std::wstring& header, int width = 0);
    void FillWidth();
    int ColumnWidth(int column) const;
    void SetColumnWidth(int column, int pixels);

    // Adds a row at the end; its index, from 0.
    int Add(const std::wstring& text, const std::wstring& key = {});
    // Takes all rows away; the columns stay.
    void Clear();
    void SetText(int row, int column, const std::wstring& text);
    int Count() const;
    std::wstring TextOf(int row, int column = 0) const;
    const std::wstring& KeyOf(int row) const;

    std::optional<int> Selected() const;
    void Select(int row);

    // Whether this notification says that a row has been selected or is selected no longer.
    bool IsSelectionChange(const NMHDR& notification) const;
    // The row that this notification says the user has chosen, by mouse or keyboard, if it says so.
    std::optional<int> NewlySelected(const NMHDR& notification) const;

  private:
    std::vector<std::wstring> mKeys; // row by row
    int mColumns = 0;
};

} // namespace ui
