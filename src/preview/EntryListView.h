// The upper list of the window of changes: a row for each entry that the search has left, with the check mark
// that keeps the entry in the run, and the line below it that counts them.
#pragma once

#include "preview/ChangeList.h"
#include "ui/CheckedListView.h"

#include <functional>
#include <optional>
#include <vector>

namespace preview
{

class EntryListView : public ui::CheckedListView
{
  public:
    // The list and the label for the counts outlive the control. onUnread: a row without its texts has been
    // painted; an answer to the control must not call Outlook, so call ReadRowsInSight later.
    EntryListView(const ui::Dialog& dialog, int id, ChangeList& list, ui::Label& count,
                  std::function<void()> onUnread);

    // Adds the columns. Call once. widths: of the columns, in pixels; unless there is one for each column,
    // the columns get their default widths.
    void SetUp(const std::vector<int>& widths);
    // The last column takes the width that is left.
    void FillWidth();

    // Shows the entries as they are arranged now and selects the first one.
    void ShowEntries();
    // Shows the arrow of the sorted column.
    void ShowSortedBy(const Arrangement& arrangement);
    // Reads the texts of the rows in sight from the host and from Outlook, and paints them.
    void ReadRowsInSight();
    // Checks, or unchecks, all entries that are shown.
    void CheckShown(bool checked);

    // The entry that has the focus, a position in the list of changes.
    std::optional<size_t> FocusedEntry() const;

  private:
    size_t EntryAt(int row) const;
    std::wstring TextAt(int row, Column column) const;
    void Toggle(int row);
    void ShowChecks();
    void ShowCount();

    ChangeList& mList;
    ui::Label& lblCount;
    std::function<void()> mOnUnread;
};

} // namespace preview
