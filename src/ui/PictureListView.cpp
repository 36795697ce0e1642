#include "ui/PictureListView.h"

#include <algorithm>

namespace ui
{

namespace
{

// The two states of a check box in the list's own state images.
constexpr UINT kUnchecked = 1;
constexpr UINT kChecked = 2;

UINT CheckState(UINT state)
{
    return (state & LVIS_STATEIMAGEMASK) >> 12;
}

} // namespace

void PictureListView::UsePictures(const ImageList& pictures)
{
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_SUBITEMIMAGES, LVS_EX_SUBITEMIMAGES);
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(pictures.Handle()));
}

void PictureListView::UseCheckBoxes()
{
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    // A control that shares its image lists destroys none of them, not even this one of its own making.
    mCheckMarks.emplace(reinterpret_cast<HIMAGELIST>(Send(LVM_GETIMAGELIST, LVSIL_STATE)));
}

void PictureListView::SetPicture(int row, int column, int picture)
{
    LVITEMW item = {};
    item.mask = LVIF_IMAGE;
    item.iItem = row;
    item.iSubItem = column;
    item.iImage = picture >= 0 ? picture : I_IMAGENONE;
    SendPointer(LVM_SETITEMW, 0, &item);
}

void PictureListView::FitFirstColumn()
{
    Send(LVM_SETCOLUMNWIDTH, 0, LVSCW_AUTOSIZE);
    const LRESULT texts = Send(LVM_GETCOLUMNWIDTH, 0);
    Send(LVM_SETCOLUMNWIDTH, 0, LVSCW_AUTOSIZE_USEHEADER);
    const LRESULT header = Send(LVM_GETCOLUMNWIDTH, 0);
    Send(LVM_SETCOLUMNWIDTH, 0, std::max(texts, header));
}

bool PictureListView::IsChecked(int row) const
{
    const auto state = Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
    return CheckState(static_cast<UINT>(state)) == kChecked;
}

void PictureListView::Check(int row, bool checked)
{
    LVITEMW item = {};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(checked ? kChecked : kUnchecked);
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(row), &item);
}

std::optional<int> PictureListView::Toggled(const NMHDR& notification) const
{
    if (notification.hwndFrom != Handle() || notification.code != LVN_ITEMCHANGED)
    {
        return std::nullopt;
    }
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
    // A row that is being added goes from no state image to one; that is not the user's doing.
    const bool toggled = (change.uChanged & LVIF_STATE) != 0 && CheckState(change.uOldState) != 0 &&
                         CheckState(change.uNewState) != 0 &&
                         CheckState(change.uOldState) != CheckState(change.uNewState);
    return toggled && change.iItem >= 0 ? std::optional(change.iItem) : std::nullopt;
}

} // namespace ui
