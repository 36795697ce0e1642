// The captions of a dialog and its controls as a table.
#pragma once

#include <string>

#include <windows.h>

namespace ui
{

// A text in the interface language.
class Caption
{
  public:
    // A string resource; a text for either language.
    constexpr Caption(UINT resource) noexcept : mResource(resource) {}
    constexpr Caption(const wchar_t* chinese, const wchar_t* english) noexcept
        : mChinese(chinese), mEnglish(english)
    {
    }

    std::wstring Text() const;

  private:
    UINT mResource = 0;
    const wchar_t* mChinese = nullptr;
    const wchar_t* mEnglish = nullptr;
};

// The row of the dialog itself.
inline constexpr int kDialogCaption = 0;

struct CaptionRow
{
    int ControlId;
    Caption Text;
};

} // namespace ui
