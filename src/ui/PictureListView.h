// A list view whose rows carry small pictures and, where the template of the dialog does not say otherwise,
// check boxes.
#pragma once

#include "ui/ImageList.h"
#include "ui/ListView.h"

namespace ui
{

class PictureListView : public ListView
{
  public:
    using ListView::ListView;

    // Call once, after Prepare. The list stays the caller's.
    void UsePictures(const ImageList& pictures);
    // Shows check boxes before the rows. The control's style must be LVS_SHAREIMAGELISTS.
    void UseCheckBoxes();
    // The picture of a cell; -1 for none.
    void SetPicture(int row, int column, int picture);
    // Makes the first column as wide as its texts and its header need.
    void FitFirstColumn();

    bool IsChecked(int row) const;
    void Check(int row, bool checked);
    // The row whose check mark this notification says has been set or taken away, if it says so.
    std::optional<int> Toggled(const NMHDR& notification) const;

  private:
    std::optional<ImageList> mCheckMarks;
};

} // namespace ui
