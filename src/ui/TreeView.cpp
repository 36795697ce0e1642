#include "ui/TreeView.h"

namespace ui
{

void TreeView::Prepare()
{
    UseExplorerTheme();
}

void TreeView::UsePictures(const ImageList& pictures)
{
    Send(TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures.Handle()));
}

HTREEITEM TreeView::Add(HTREEITEM parent, const std::wstring& text, int picture, bool canBeOpened,
                        size_t number)
{
    std::wstring copy = text;
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = parent != nullptr ? parent : TVI_ROOT;
    insertion.hInsertAfter = TVI_LAST;
    insertion.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
    insertion.item.pszText = copy.data();
    insertion.item.iImage = picture >= 0 ? picture : I_IMAGENONE;
    insertion.item.iSelectedImage = insertion.item.iImage;
    insertion.item.cChildren = canBeOpened ? 1 : 0;
    insertion.item.lParam = static_cast<LPARAM>(number);
    return reinterpret_cast<HTREEITEM>(SendPointer(TVM_INSERTITEMW, 0, &insertion));
}

void TreeView::SetWithoutChildren(HTREEITEM node)
{
    TVITEMW item = {};
    item.mask = TVIF_CHILDREN;
    item.hItem = node;
    SendPointer(TVM_SETITEMW, 0, &item);
}

void TreeView::Open(HTREEITEM node)
{
    SendPointer(TVM_EXPAND, TVE_EXPAND, node);
}

void TreeView::OpenLater(HTREEITEM node)
{
    PostMessageW(Handle(), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
}

void TreeView::Select(HTREEITEM node)
{
    SendPointer(TVM_SELECTITEM, TVGN_CARET, node);
}

std::optional<HTREEITEM> TreeView::Selected() const
{
    const auto node = reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET));
    return node != nullptr ? std::optional(node) : std::nullopt;
}

size_t TreeView::NumberOf(HTREEITEM node) const
{
    TVITEMW item = {};
    item.mask = TVIF_PARAM;
    item.hItem = node;
    SendPointer(TVM_GETITEMW, 0, &item);
    return static_cast<size_t>(item.lParam);
}

bool TreeView::IsSelectionChange(const NMHDR& notification) const
{
    return notification.hwndFrom == Handle() && notification.code == static_cast<UINT>(TVN_SELCHANGEDW);
}

std::optional<HTREEITEM> TreeView::FirstOpening(const NMHDR& notification) const
{
    if (notification.hwndFrom != Handle() || notification.code != TVN_ITEMEXPANDINGW)
    {
        return std::nullopt;
    }
    const auto& opening = reinterpret_cast<const NMTREEVIEWW&>(notification);
    const HTREEITEM node = opening.itemNew.hItem;
    const bool filled = SendPointer(TVM_GETNEXTITEM, TVGN_CHILD, node) != 0;
    return opening.action == TVE_EXPAND && !filled ? std::optional(node) : std::nullopt;
}

bool TreeView::IsDoubleClickOnNode(const NMHDR& notification) const
{
    if (notification.hwndFrom != Handle() || notification.code != static_cast<UINT>(NM_DBLCLK))
    {
        return false;
    }
    const DWORD at = GetMessagePos();
    TVHITTESTINFO hit = {};
    hit.pt = {static_cast<short>(LOWORD(at)), static_cast<short>(HIWORD(at))};
    ScreenToClient(Handle(), &hit.pt);
    return SendPointer(TVM_HITTEST, 0, &hit) != 0 && (hit.flags & TVHT_ONITEM) != 0;
}

} // namespace ui
