#include "ui/ImageList.h"

#include <new>

namespace ui
{

namespace
{

constexpr int kGrowth = 8;

} // namespace

int SmallPictureSize()
{
    return GetSystemMetrics(SM_CXSMICON);
}

ImageList::ImageList()
    : mList(ImageList_Create(SmallPictureSize(), SmallPictureSize(), ILC_COLOR32 | ILC_MASK, 0, kGrowth))
{
    if (mList == nullptr)
    {
        throw std::bad_alloc();
    }
}

// Without an icon in between, which Wine now and then fails to make while another thread destroys a window.
int ImageList::Add(const PaintedIcon& picture)
{
    const int index = ImageList_Add(mList.get(), picture.ColorBitmap().get(), picture.MaskBitmap().get());
    if (index < 0)
    {
        throw std::bad_alloc();
    }
    return index;
}

} // namespace ui
