#include "ui/WindowPlacement.h"

#include "resources/Strings.h"

namespace ui
{

namespace
{

HICON IconOfSize(int width, int height)
{
    return static_cast<HICON>(
        LoadImageW(resources::Module(), MAKEINTRESOURCEW(IDI_TELVIX), IMAGE_ICON, width, height, LR_SHARED));
}

void SetIcon(HWND window, WPARAM which, int width, int height)
{
    SendMessageW(window, WM_SETICON, which, reinterpret_cast<LPARAM>(IconOfSize(width, height)));
}

} // namespace

void CenterOverActiveBefore(HWND window)
{
    const HWND before = GetActiveWindow();
    RECT around;
    RECT place;
    if (before == nullptr || before == window || !IsWindowVisible(before) || IsIconic(before) ||
        !GetWindowRect(before, &around) || !GetWindowRect(window, &place))
    {
        return;
    }
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    SetWindowPos(window, nullptr, (around.left + around.right - width) / 2,
                 (around.top + around.bottom - height) / 2, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    // A dialog that would leave the screen comes back to it.
    SendMessageW(window, DM_REPOSITION, 0, 0);
}

void SetIcons(HWND window)
{
    SetIcon(window, ICON_SMALL, GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON));
    SetIcon(window, ICON_BIG, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON));
}

} // namespace ui
