// A tabbed frame that shows the controls of the chosen tab. The controls are drawn on the frame's own ground,
// which differs from the dialog's where visual styles are on.
#pragma once

#include "ui/TabFrame.h"

#include <initializer_list>
#include <vector>

namespace ui
{

class TabPages : public TabFrame
{
  public:
    using TabFrame::TabFrame;

    // The controls of the page from the first to the last number, both included.
    struct Range
    {
        int FirstId;
        int LastId;
    };

    // Adds a tab whose page holds these controls; only the first tab's are visible at first.
    void AddPage(const std::wstring& caption, std::initializer_list<Range> controls);
    // Shows another tab's page.
    void ShowPage(int page);
    // Follows this notification when the user has chosen another tab.
    void Follow(const NMHDR& notification);

  private:
    void PaintInto(HWND target, HDC context);
    static LRESULT CALLBACK GiveGround(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR pages);

    bool mPainting = false;
    std::vector<std::vector<Range>> mPages;
};

} // namespace ui
