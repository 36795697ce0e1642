// Controls that offer a choice: a list box, a combo box that takes other texts as well, and an array of
// option buttons of which one is set.
#pragma once

#include "ui/Control.h"

#include <optional>

namespace ui
{

class ListBox : public Control
{
  public:
    using Control::Control;

    void Add(const std::wstring& text);
    std::optional<int> Selected() const; // from 0
    void Select(int row);
};

class ComboBox : public Control
{
  public:
    using Control::Control;

    void Add(const std::wstring& text);
    // For one that takes its own texts only.
    std::optional<int> Selected() const; // from 0
    void Select(int row);
};

// Buttons with consecutive numbers in the dialog and consecutive indexes in the program, which need not start
// at the same number.
class OptionGroup
{
  public:
    OptionGroup(const Dialog& dialog, int firstId, int count, long firstIndex) noexcept
        : mDialog(dialog), mFirstId(firstId), mCount(count), mFirstIndex(firstIndex)
    {
    }

    void SetText(long index, const std::wstring& text);
    // Sets the button with this index; an index that no button has clears all of them. Either way the Tab key
    // reaches the group.
    void Select(long index);
    // The index of the button that this command says has been clicked.
    std::optional<long> Clicked(int id, int notification) const;

  private:
    // The number of the button in the dialog that the Tab key reaches: the set one, or the first one.
    int IdToFocus() const;

    const Dialog& mDialog;
    int mFirstId;
    int mCount;
    long mFirstIndex;
};

} // namespace ui
