// The small pictures of the configuration dialogs by their keys: the kinds of data "contact", "task" and
// "calendar", the directions "left", "right" and "each", folders "outlook", and the mark of the default
// folder "default". Painted when a dialog opens, at the size of the moment; lives as long as the dialog.
#pragma once

#include "ui/ImageList.h"
#include "ui/PaintedIcon.h"

#include <string_view>

namespace config
{

inline constexpr std::wstring_view kOutlookPicture = L"outlook";
inline constexpr std::wstring_view kDefaultPicture = L"default";
// Nothing is painted: beside rows with a picture, the texts of those without one begin in the same place.
inline constexpr std::wstring_view kEmptyPicture = L"empty";

class Pictures
{
  public:
    Pictures();

    const ui::ImageList& List() const noexcept { return mList; }
    // The index in the list of the picture with this key; -1 for a key that has none.
    static int IndexOf(std::wstring_view key);

  private:
    ui::ImageList mList;
};

// One picture in a size in pixels; without anything on it for a key that has none.
ui::PaintedIcon PaintPicture(std::wstring_view key, int size);

} // namespace config
