// A tree view that is filled as the user opens it: a node that may have children shows that it can be opened,
// and asks for them the first time. Each node carries a number of its dialog's.
#pragma once

#include "ui/Control.h"
#include "ui/ImageList.h"

#include <optional>

#include <windows.h>

#include <commctrl.h>

namespace ui
{

class TreeView : public Control
{
  public:
    using Control::Control;

    // Gives the tree the looks of the system's own trees. Call once, before the nodes are added.
    void Prepare();
    // The list stays the caller's.
    void UsePictures(const ImageList& pictures);
    // Adds a node below a parent (null: at the top), after those that are there; picture -1 for none.
    HTREEITEM Add(HTREEITEM parent, const std::wstring& text, int picture, bool canBeOpened, size_t number);
    // Takes the mark that it can be opened from a node without children.
    void SetWithoutChildren(HTREEITEM node);
    void Open(HTREEITEM node);
    // When the thread is back in its loop of messages.
    void OpenLater(HTREEITEM node);
    void Select(HTREEITEM node);

    std::optional<HTREEITEM> Selected() const;
    size_t NumberOf(HTREEITEM node) const;

    // Whether this notification says that another node is selected.
    bool IsSelectionChange(const NMHDR& notification) const;
    // The node that is about to be opened for the first time, if this notification says so.
    std::optional<HTREEITEM> FirstOpening(const NMHDR& notification) const;
    // Whether this notification is a double click on a node.
    bool IsDoubleClickOnNode(const NMHDR& notification) const;
};

} // namespace ui
