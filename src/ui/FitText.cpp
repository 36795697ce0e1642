#include "ui/FitText.h"

#include "ui/Dialog.h"

#include <algorithm>
#include <vector>

namespace ui
{

namespace
{

constexpr int kFewestLines = 3; // as high as the icon beside them
constexpr int kMostLines = 16;

class FontOfWindow
{
  public:
    explicit FontOfWindow(HWND window)
        : mWindow(window),
          mContext(GetDC(window)),
          mBefore(SelectObject(mContext, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0))))
    {
    }
    FontOfWindow(const FontOfWindow&) = delete;
    FontOfWindow& operator=(const FontOfWindow&) = delete;
    ~FontOfWindow()
    {
        SelectObject(mContext, mBefore);
        ReleaseDC(mWindow, mContext);
    }

    int HeightOf(const std::wstring& text, int width) const
    {
        RECT extent = {0, 0, width, 0};
        DrawTextW(mContext, text.c_str(), -1, &extent,
                  DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
        return static_cast<int>(extent.bottom);
    }

    int HeightOfLine() const
    {
        TEXTMETRICW metrics = {};
        GetTextMetricsW(mContext, &metrics);
        return static_cast<int>(metrics.tmHeight);
    }

  private:
    HWND mWindow;
    HDC mContext;
    HGDIOBJ mBefore;
};

int WidthOf(const RECT& place)
{
    return static_cast<int>(place.right - place.left);
}

int HeightOf(const RECT& place)
{
    return static_cast<int>(place.bottom - place.top);
}

std::vector<HWND> ControlsOf(HWND dialog)
{
    std::vector<HWND> controls;
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT))
    {
        controls.push_back(control);
    }
    return controls;
}

RECT PlaceIn(HWND dialog, HWND control)
{
    RECT place = {};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

// The controls in this place become lower by a number of pixels, higher for a negative one.
void CloseUp(Dialog& dialog, const RECT& around, int pixels)
{
    for (const HWND control : ControlsOf(dialog.Handle()))
    {
        const RECT place = PlaceIn(dialog.Handle(), control);
        if (place.top >= around.bottom)
        {
            SetWindowPos(control, nullptr, place.left, place.top - pixels, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
        else if (place.top <= around.top && place.bottom >= around.bottom)
        {
            SetWindowPos(control, nullptr, 0, 0, WidthOf(place), HeightOf(place) - pixels,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    dialog.GrowBy(-pixels);
}

} // namespace

void FitLabels(Dialog& dialog, std::initializer_list<Label*> labels)
{
    const RECT place = (*labels.begin())->Place();
    int needed = 0;
    for (const Label* label : labels)
    {
        needed = std::max(needed, FontOfWindow(label->Handle()).HeightOf(label->Text(), WidthOf(place)));
    }
    CloseUp(dialog, place, HeightOf(place) - needed);
}

void FitTextBox(Dialog& dialog, TextBox& box)
{
    const HWND window = box.Handle();
    ShowScrollBar(window, SB_VERT, FALSE);
    const auto lines = static_cast<int>(SendMessageW(window, EM_GETLINECOUNT, 0, 0));
    const int shown = std::clamp(lines, kFewestLines, kMostLines);
    const RECT place = box.Place();
    CloseUp(dialog, place, HeightOf(place) - shown * FontOfWindow(window).HeightOfLine());
    ShowScrollBar(window, SB_VERT, lines > kMostLines);
}

} // namespace ui
