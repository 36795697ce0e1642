#include "ui/Anchors.h"

namespace ui
{

namespace
{

bool Has(Anchor how, Anchor part)
{
    return (static_cast<unsigned>(how) & static_cast<unsigned>(part)) != 0;
}

SIZE ClientOf(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    return {client.right, client.bottom};
}

} // namespace

void Anchors::Attach(HWND dialog, std::span<const AnchoredControl> controls)
{
    mDialog = dialog;
    mClient = ClientOf(dialog);
    RECT window = {};
    GetWindowRect(dialog, &window);
    mWindow = {window.right - window.left, window.bottom - window.top};
    mRows.clear();
    for (const AnchoredControl& control : controls)
    {
        Row row{GetDlgItem(dialog, control.Id), {}, control.How};
        GetWindowRect(row.Control, &row.Place);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&row.Place), 2);
        mRows.push_back(row);
    }
}

void Anchors::Place() const
{
    const SIZE client = ClientOf(mDialog);
    const LONG wider = client.cx - mClient.cx;
    const LONG higher = client.cy - mClient.cy;
    for (const Row& row : mRows)
    {
        RECT place = row.Place;
        OffsetRect(&place, Has(row.How, Anchor::MovesRight) ? wider : 0,
                   Has(row.How, Anchor::MovesDown) ? higher : 0);
        place.right += Has(row.How, Anchor::Widens) ? wider : 0;
        place.bottom += Has(row.How, Anchor::Heightens) ? higher : 0;
        SetWindowPos(row.Control, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (!mRows.empty())
    {
        InvalidateRect(mDialog, nullptr, TRUE);
    }
}

void Anchors::Limit(MINMAXINFO& limits) const
{
    if (!mRows.empty())
    {
        limits.ptMinTrackSize = {mWindow.cx, mWindow.cy};
    }
}

} // namespace ui
