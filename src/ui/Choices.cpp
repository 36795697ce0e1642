#include "ui/Choices.h"

#include "ui/Dialog.h"

namespace ui
{

void ListBox::Add(const std::wstring& text)
{
    SendPointer(LB_ADDSTRING, 0, text.c_str());
}

std::optional<int> ListBox::Selected() const
{
    const LRESULT row = Send(LB_GETCURSEL);
    return row != LB_ERR ? std::optional(static_cast<int>(row)) : std::nullopt;
}

void ListBox::Select(int row)
{
    Send(LB_SETCURSEL, static_cast<WPARAM>(row));
}

void ComboBox::Add(const std::wstring& text)
{
    SendPointer(CB_ADDSTRING, 0, text.c_str());
}

std::optional<int> ComboBox::Selected() const
{
    const auto row = static_cast<int>(Send(CB_GETCURSEL));
    return row >= 0 ? std::optional(row) : std::nullopt;
}

void ComboBox::Select(int row)
{
    Send(CB_SETCURSEL, static_cast<WPARAM>(row));
}

void OptionGroup::SetText(long index, const std::wstring& text)
{
    SetDlgItemTextW(mDialog.Handle(), mFirstId + static_cast<int>(index - mFirstIndex), text.c_str());
}

void OptionGroup::Select(long index)
{
    for (int i = 0; i < mCount; ++i)
    {
        CheckDlgButton(mDialog.Handle(), mFirstId + i,
                       index == mFirstIndex + i ? BST_CHECKED : BST_UNCHECKED);
    }
    // An option button that is not set is left out by the Tab key; without a set one all of them would be.
    const HWND reached = GetDlgItem(mDialog.Handle(), IdToFocus());
    SetWindowLongPtrW(reached, GWL_STYLE, GetWindowLongPtrW(reached, GWL_STYLE) | WS_TABSTOP);
}

std::optional<long> OptionGroup::Clicked(int id, int notification) const
{
    const bool ours = notification == BN_CLICKED && id >= mFirstId && id < mFirstId + mCount;
    // An option button says that it has been clicked when it gets the focus, too.
    return ours && IsDlgButtonChecked(mDialog.Handle(), id) == BST_CHECKED
               ? std::optional(mFirstIndex + (id - mFirstId))
               : std::nullopt;
}

int OptionGroup::IdToFocus() const
{
    for (int id = mFirstId; id < mFirstId + mCount; ++id)
    {
        if (IsDlgButtonChecked(mDialog.Handle(), id) == BST_CHECKED)
        {
            return id;
        }
    }
    return mFirstId;
}

} // namespace ui
