#include "preview/ChangeList.h"

#include "automation/Readable.h"
#include "automation/Text.h"
#include "preview/Texts.h"
#include "state/Failures.h"

#include <algorithm>
#include <numeric>

namespace preview
{

using automation::Value;
using exchange::KindPreview;
using exchange::Proposal;

namespace
{

constexpr wchar_t kUnreadable[] = L"?";

size_t IndexOf(Column column)
{
    return static_cast<size_t>(column);
}

// A record without a date comes first.
double NumberOf(const Value& value)
{
    const auto date = automation::OutlookDate(value);
    return date ? date->days : -1e9;
}

} // namespace

ChangeList::ChangeList(const exchange::Kind& kind, exchange::Run& run, long transType)
    : mKind(kind),
      mRun(run),
      mPreview(kind, run),
      mProposals(exchange::ProposalsOf(run.Pending, transType)),
      mShown(mProposals.size()),
      mChecked(mProposals.size(), true),
      mCheckedCount(mProposals.size())
{
    std::iota(mShown.begin(), mShown.end(), size_t{0});
}

const ChangeList::Cell* ChangeList::Find(size_t entry, Column column) const
{
    const std::vector<Cell>& cells = mCells.at(IndexOf(column));
    return entry < cells.size() && cells[entry].IsRead ? &cells[entry] : nullptr;
}

bool ChangeList::IsRead(size_t entry, Column column) const
{
    return column == Column::Change || Find(entry, column) != nullptr;
}

Value ChangeList::ValueOf(size_t entry, Column column)
{
    const Proposal& proposal = mProposals[entry];
    if (column == Column::Name)
    {
        return mPreview.NameOf(proposal);
    }
    return mPreview.Summary(proposal, column == Column::Group ? &KindPreview::Group : &KindPreview::Date);
}

void ChangeList::Read(size_t entry, Column column)
{
    if (IsRead(entry, column))
    {
        return;
    }
    std::vector<Cell>& cells = mCells.at(IndexOf(column));
    cells.resize(mProposals.size());
    cells[entry] = state::Trapped(Cell{kUnreadable, NumberOf({}), true}, [&] {
        const Value value = ValueOf(entry, column);
        return Cell{column == Column::Date ? TextOfDate(value) : OnOneLine(automation::TextOrEmpty(value)),
                    column == Column::Date ? NumberOf(value) : 0, true};
    });
}

std::wstring ChangeList::TextOf(size_t entry, Column column) const
{
    if (column == Column::Change)
    {
        return TextOfChange(mProposals.at(entry));
    }
    const Cell* const cell = Find(entry, column);
    return cell == nullptr ? std::wstring() : cell->Text;
}

bool ChangeList::NeedsReading(size_t entry, const Arrangement& arrangement) const
{
    const auto isMissing = [&](Column column) { return !IsRead(entry, column); };
    if (arrangement.SortedBy && isMissing(*arrangement.SortedBy))
    {
        return true;
    }
    if (arrangement.Search.empty())
    {
        return false;
    }
    return arrangement.SearchIn ? isMissing(*arrangement.SearchIn) : std::ranges::any_of(kColumns, isMissing);
}

void ChangeList::ReadFor(size_t entry, const Arrangement& arrangement)
{
    for (const Column column : kColumns)
    {
        const bool isSearched =
            !arrangement.Search.empty() && (!arrangement.SearchIn || *arrangement.SearchIn == column);
        if (isSearched || arrangement.SortedBy == column)
        {
            Read(entry, column);
        }
    }
}

bool ChangeList::Contains(size_t entry, const Arrangement& arrangement) const
{
    const std::wstring wanted = automation::UpperCased(arrangement.Search);
    return std::ranges::any_of(kColumns, [&](Column column) {
        const bool isSearched = !arrangement.SearchIn || *arrangement.SearchIn == column;
        return isSearched && automation::UpperCased(TextOf(entry, column)).find(wanted) != std::wstring::npos;
    });
}

// As the user's language sorts.
int ChangeList::Compared(size_t one, size_t other, Column column) const
{
    if (column == Column::Change)
    {
        return PlaceOfChange(mProposals[one]) - PlaceOfChange(mProposals[other]);
    }
    const Cell& first = mCells.at(IndexOf(column))[one];
    const Cell& second = mCells.at(IndexOf(column))[other];
    if (column == Column::Date)
    {
        return first.Number < second.Number ? -1 : first.Number > second.Number ? 1 : 0;
    }
    return CompareStringEx(LOCALE_NAME_USER_DEFAULT, LINGUISTIC_IGNORECASE, first.Text.c_str(), -1,
                           second.Text.c_str(), -1, nullptr, nullptr, 0) -
           CSTR_EQUAL;
}

void ChangeList::Arrange(const Arrangement& arrangement)
{
    std::vector<size_t> shown;
    for (size_t entry = 0; entry < mProposals.size(); ++entry)
    {
        if (arrangement.Search.empty() || Contains(entry, arrangement))
        {
            shown.push_back(entry);
        }
    }
    if (arrangement.SortedBy)
    {
        std::ranges::stable_sort(shown, [&](size_t one, size_t other) {
            const int compared = Compared(one, other, *arrangement.SortedBy);
            return arrangement.IsDescending ? compared > 0 : compared < 0;
        });
    }
    mShown = std::move(shown);
    mArrangement = arrangement;
}

void ChangeList::Check(size_t entry, bool checked)
{
    if (mChecked[entry] != checked)
    {
        mChecked[entry] = checked;
        mCheckedCount += checked ? 1 : static_cast<size_t>(-1);
    }
}

data::Changes ChangeList::Kept() const
{
    return exchange::KeptChanges(mRun.Pending, mProposals, mChecked);
}

} // namespace preview
