// How the controls of a resizable dialog follow its edges. The size that the dialog opens with is its least.
#pragma once

#include <span>
#include <vector>

#include <windows.h>

namespace ui
{

enum class Anchor : unsigned
{
    TopLeft = 0,
    MovesRight = 1,
    MovesDown = 2,
    Widens = 4,
    Heightens = 8,
    Follows = MovesRight | MovesDown,
    Fills = Widens | Heightens,
    WidensBelow = Widens | MovesDown,
};

struct AnchoredControl
{
    int Id;
    Anchor How;
};

class Anchors
{
  public:
    // The dialog's controls are in their first places.
    void Attach(HWND dialog, std::span<const AnchoredControl> controls);

    // The dialog has another size.
    void Place() const;
    void Limit(MINMAXINFO& limits) const;

  private:
    struct Row
    {
        HWND Control;
        RECT Place;
        Anchor How;
    };

    HWND mDialog = nullptr;
    SIZE mClient{};
    SIZE mWindow{};
    std::vector<Row> mRows;
};

} // namespace ui
