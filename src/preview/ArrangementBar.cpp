#include "preview/ArrangementBar.h"

#include "automation/Text.h"
#include "preview/Texts.h"
#include "resources/Strings.h"

namespace preview
{

namespace
{

using resources::Choose;

// The rows of the orders: none, then each column ascending and descending.
int RowOfOrder(Column column, bool isDescending)
{
    return static_cast<int>(column) * 2 + (isDescending ? 2 : 1);
}

} // namespace

ArrangementBar::ArrangementBar(const ui::Dialog& dialog, const exchange::Kind& kind) noexcept
    : mKind(kind),
      lblSearch(dialog, IDC_CHANGES_SEARCH_LABEL),
      txtSearch(dialog, IDC_CHANGES_SEARCH),
      lblColumn(dialog, IDC_CHANGES_COLUMN_LABEL),
      cmbColumn(dialog, IDC_CHANGES_COLUMN),
      lblOrder(dialog, IDC_CHANGES_ORDER_LABEL),
      cmbOrder(dialog, IDC_CHANGES_ORDER)
{
}

void ArrangementBar::SetUp()
{
    lblSearch.SetText(Choose(L"查找(&F)：", L"&Find:"));
    lblColumn.SetText(Choose(L"于(&I)：", L"&in:"));
    lblOrder.SetText(Choose(L"排序(&O)：", L"S&ort:"));
    cmbColumn.Add(Choose(L"所有列", L"any column"));
    cmbOrder.Add(Choose(L"原来的顺序", L"As proposed"));
    for (const Column column : kColumns)
    {
        const std::wstring header = HeaderOf(column, mKind);
        cmbColumn.Add(header);
        cmbOrder.Add(header + Choose(L"（升序）", L", ascending"));
        cmbOrder.Add(header + Choose(L"（降序）", L", descending"));
    }
}

Arrangement ArrangementBar::Chosen() const
{
    Arrangement chosen;
    chosen.Search = automation::Trimmed(txtSearch.Text());
    const int column = cmbColumn.Selected().value_or(0);
    chosen.SearchIn =
        column == 0 ? std::nullopt : std::optional(kColumns.at(static_cast<size_t>(column) - 1));
    const int order = cmbOrder.Selected().value_or(0);
    chosen.SortedBy =
        order == 0 ? std::nullopt : std::optional(kColumns.at(static_cast<size_t>(order - 1) / 2));
    chosen.IsDescending = order != 0 && order % 2 == 0;
    return chosen;
}

void ArrangementBar::Show(const Arrangement& arrangement)
{
    cmbOrder.Select(arrangement.SortedBy ? RowOfOrder(*arrangement.SortedBy, arrangement.IsDescending) : 0);
    cmbColumn.Select(arrangement.SearchIn ? static_cast<int>(*arrangement.SearchIn) + 1 : 0);
    if (automation::Trimmed(txtSearch.Text()) != arrangement.Search)
    {
        txtSearch.SetText(arrangement.Search);
    }
}

void ArrangementBar::ChooseOrder(Column column, bool isDescending)
{
    cmbOrder.Select(RowOfOrder(column, isDescending));
}

void ArrangementBar::Enable(bool enabled)
{
    txtSearch.Enable(enabled);
    cmbColumn.Enable(enabled);
    cmbOrder.Enable(enabled);
}

} // namespace preview
