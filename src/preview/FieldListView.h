// The lower list of the window of changes: the fields of one entry as they are and as they will be, those
// that change first, with the notes on the record below.
#pragma once

#include "preview/ChangeList.h"
#include "ui/VirtualListView.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace preview
{

class FieldListView : public ui::VirtualListView
{
  public:
    // The list and the box outlive the control.
    FieldListView(const ui::Dialog& dialog, int id, ChangeList& list, ui::TextBox& notes);

    // Adds the columns. Call once.
    void SetUp();
    // The last column takes the width that is left.
    void FillWidth();

    // Reads the fields of an entry from the host and from Outlook and shows them, and the notes on the record
    // in their box; empties both for no entry. An entry that is shown already is not read again. The note on
    // a record that cannot be read says why.
    void ShowFieldsOf(std::optional<size_t> entry);
    // The next call reads in any case.
    void Forget() noexcept { mShown.reset(); }

  private:
    using Fields = std::vector<std::array<std::wstring, 3>>; // field, now, after

    std::wstring ReadFields(size_t entry, Fields& fields);
    static void AddField(Fields& fields, const exchange::Difference& field, bool namesSide);

    ChangeList& mList;
    ui::TextBox& txtNotes;
    std::optional<size_t> mShown; // the entry whose fields are shown
    Fields mFields;
};

} // namespace preview
