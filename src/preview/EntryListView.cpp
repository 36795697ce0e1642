#include "preview/EntryListView.h"

#include "automation/Text.h"
#include "preview/ListColumns.h"
#include "preview/Texts.h"
#include "resources/Strings.h"

#include <algorithm>
#include <utility>

namespace preview
{

namespace
{

using resources::Choose;

// By kColumns, of the list's width in percent; the last column takes the rest.
constexpr int kEntryWidths[] = {27, 32, 24, 0};
static_assert(std::size(kEntryWidths) == kColumns.size());

std::wstring Filled(std::wstring text, std::initializer_list<size_t> numbers)
{
    size_t place = 0;
    for (const size_t number : numbers)
    {
        text = automation::Replaced(std::move(text), L"{" + std::to_wstring(place++) + L"}",
                                    std::to_wstring(number));
    }
    return text;
}

} // namespace

EntryListView::EntryListView(const ui::Dialog& dialog, int id, ChangeList& list, ui::Label& count,
                             std::function<void()> onUnread)
    : CheckedListView(dialog, id), mList(list), lblCount(count), mOnUnread(std::move(onUnread))
{
}

void EntryListView::SetUp(const std::vector<int>& widths)
{
    Prepare();
    SetText(Choose(L"更改", L"Changes")); // for screen readers: the list's name
    UseCheckBoxes([this](int row) { return mList.IsChecked(EntryAt(row)); },
                  [this](int row) { Toggle(row); });
    const bool areKnown = widths.size() == kColumns.size();
    for (size_t i = 0; i < kColumns.size(); ++i)
    {
        AddColumn(HeaderOf(kColumns.at(i), mList.Kind()),
                  areKnown ? widths[i] : PartOfWidth(*this, kEntryWidths[i]));
    }
    FillWidth();
}

void EntryListView::FillWidth()
{
    FillLastColumn(*this, static_cast<int>(kColumns.size()));
}

void EntryListView::ShowEntries()
{
    Show(static_cast<int>(mList.Shown().size()),
         [this](int row, int column) { return TextAt(row, kColumns.at(static_cast<size_t>(column))); });
    SelectFirst();
    ShowCount();
}

std::wstring EntryListView::TextAt(int row, Column column) const
{
    if (!mList.IsRead(EntryAt(row), column))
    {
        mOnUnread();
    }
    return mList.TextOf(EntryAt(row), column);
}

void EntryListView::ShowSortedBy(const Arrangement& arrangement)
{
    ShowOrder(arrangement.SortedBy ? static_cast<int>(*arrangement.SortedBy) : -1, arrangement.IsDescending);
}

void EntryListView::ReadRowsInSight()
{
    const auto [first, last] = RowsInSight();
    bool hasRead = false;
    for (int row = first; row <= last; ++row)
    {
        for (const Column column : kColumns)
        {
            hasRead = hasRead || !mList.IsRead(EntryAt(row), column);
            mList.Read(EntryAt(row), column);
        }
    }
    if (hasRead)
    {
        Redraw(first, last);
    }
}

void EntryListView::CheckShown(bool checked)
{
    for (const size_t entry : mList.Shown())
    {
        mList.Check(entry, checked);
    }
    ShowChecks();
}

std::optional<size_t> EntryListView::FocusedEntry() const
{
    const auto row = Focused();
    return row ? std::optional(EntryAt(*row)) : std::nullopt;
}

size_t EntryListView::EntryAt(int row) const
{
    const auto place = static_cast<size_t>(row);
    return place < mList.Shown().size() ? mList.Shown()[place] : 0;
}

// A row of the selection takes the others along.
void EntryListView::Toggle(int row)
{
    const bool checked = !mList.IsChecked(EntryAt(row));
    std::vector<int> rows = SelectedRows();
    if (std::ranges::find(rows, row) == rows.end())
    {
        rows = {row};
    }
    for (const int each : rows)
    {
        mList.Check(EntryAt(each), checked);
    }
    ShowChecks();
}

void EntryListView::ShowChecks()
{
    const auto [first, last] = RowsInSight();
    Redraw(first, last);
    ShowCount();
}

void EntryListView::ShowCount()
{
    lblCount.SetText(Filled(
        Choose(L"显示 {0} 条，共 {1} 条；将写入 {2} 条。", L"{0} of {1} changes shown, {2} will be written."),
        {mList.Shown().size(), mList.Count(), mList.CheckedCount()}));
}

} // namespace preview
