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

int ImageList::Add(HICON icon)
{
    return ImageList_ReplaceIcon(mList.get(), -1, icon);
}

} // namespace ui
