// Small pictures for list and tree views, in the size that the system uses for small icons at its resolution.
// Lives as long as the dialog whose controls show it.
#pragma once

#include "ui/PaintedIcon.h"

#include <memory>
#include <type_traits>

#include <windows.h>

#include <commctrl.h>

namespace ui
{

// The width and height of a small icon, in pixels.
int SmallPictureSize();

class ImageList
{
  public:
    // Throws std::bad_alloc when the system has no more.
    ImageList();
    // Takes over a list that a control has made for itself and leaves to its owner.
    explicit ImageList(HIMAGELIST made) noexcept : mList(made) {}

    // Adds a copy of a picture of the list's size; its index, from 0. Throws std::bad_alloc as above.
    int Add(const PaintedIcon& picture);
    HIMAGELIST Handle() const noexcept { return mList.get(); }

  private:
    struct Destroyer
    {
        void operator()(HIMAGELIST list) const noexcept { ImageList_Destroy(list); }
    };
    std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, Destroyer> mList;
};

} // namespace ui
