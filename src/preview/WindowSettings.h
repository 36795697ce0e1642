// How the user has left the list of changes: its size, the widths of its columns and its order. Kept per user
// in the registry, below the component's own key. What cannot be read or written is as if it had never been
// set.
#pragma once

#include "preview/ChangeList.h"

#include <optional>
#include <vector>

#include <windows.h>

namespace preview
{

struct WindowSettings
{
    std::optional<SIZE> Size{}; // of the window, in pixels at a resolution
    std::vector<int> Widths{};  // of the columns, likewise
    int Dpi = 96;
    std::optional<Column> SortedBy{};
    bool IsDescending = false;

    // The same for a screen of another resolution.
    WindowSettings At(int dpi) const;
};

WindowSettings LoadWindowSettings();
void StoreWindowSettings(const WindowSettings& settings);

// The resolution of the screen, in dots per inch.
int ScreenDpi();

} // namespace preview
