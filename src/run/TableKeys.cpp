#include "run/TableKeys.h"

#include "automation/Error.h"
#include "exchange/Identity.h"
#include "exchange/ItemProperties.h"
#include "run/FolderTable.h"

#include <algorithm>
#include <cwchar>
#include <random>
#include <set>

namespace run
{

namespace
{

using automation::Object;
using automation::Value;

constexpr const wchar_t* kEntryId = L"EntryID";
constexpr const wchar_t* kMessageClass = L"MessageClass";
// They are the first columns.
constexpr size_t kEntryIdColumn = 0;
constexpr size_t kMessageClassColumn = 1;
constexpr const wchar_t* kKeywords = L"Categories";

// A table cuts texts at 255 bytes, as its documentation has it, or characters, as it has it too. A shorter
// text is whole even if each of its characters takes three bytes, as in UTF-8.
constexpr size_t kLongestWhole = 84;

// Rows that are compared with their items: so many at the start, and so many others.
constexpr long kFirstRows = 2;
constexpr size_t kSampleSize = 2;

[[noreturn]] void Distrust()
{
    throw automation::Error(E_UNEXPECTED, L"GetTable");
}

// Whether the message class is this one or derived from it.
bool IsOfClass(std::wstring_view messageClass, std::wstring_view base)
{
    return messageClass.size() >= base.size() &&
           _wcsnicmp(messageClass.data(), base.data(), base.size()) == 0 &&
           (messageClass.size() == base.size() || messageClass[base.size()] == L'.');
}

// Empty for anything but a text.
std::wstring_view TextIn(const VARIANT& value)
{
    return value.vt == VT_BSTR ? std::wstring_view(value.bstrVal, SysStringLen(value.bstrVal))
                               : std::wstring_view();
}

std::vector<std::wstring> ColumnsFor(const exchange::MatchRule& rule, const exchange::Filters& filters)
{
    std::vector<std::wstring> columns{kEntryId, kMessageClass};
    const auto add = [&](const wchar_t* column) {
        if (std::ranges::find(columns, column) == columns.end())
        {
            columns.emplace_back(column);
        }
    };
    std::ranges::for_each(rule.InTable.Columns, add);
    std::ranges::for_each(filters.ItemColumns, add);
    return columns;
}

// One row as the key readers see it. It is read in place, since there is one for every item of the folder.
class RowOfTable : public automation::PropertySource
{
  public:
    RowOfTable(const FolderTable& table, const FolderTable::Row& row, exchange::Run& run)
        : mRun(run), mColumns(table.Columns()), mRow(row)
    {
    }

    Value Get(const wchar_t* property) override
    {
        const auto column = std::ranges::find(mColumns, property);
        return column == mColumns.end() ? Item().Get(property)
                                        : Value(mRow.At(static_cast<size_t>(column - mColumns.begin())));
    }

    const Object& Item() override
    {
        if (!mItem)
        {
            mItem = exchange::OpenItem(mRun, std::wstring(EntryId()));
        }
        return mItem;
    }

    std::wstring_view EntryId() const { return TextIn(mRow.At(kEntryIdColumn)); }

    // Whether the row shows an item of the class, and nothing that the item might show otherwise.
    bool IsPlain(std::wstring_view messageClass) const
    {
        for (size_t column = kMessageClassColumn; column < mColumns.size(); ++column)
        {
            if (!IsPlain(mColumns[column], mRow.At(column)))
            {
                return false;
            }
        }
        return IsOfClass(TextIn(mRow.At(kMessageClassColumn)), messageClass);
    }

  private:
    static bool IsPlain(std::wstring_view column, const VARIANT& value)
    {
        if (value.vt != VT_BSTR)
        {
            return value.vt != VT_ERROR && (value.vt & (VT_ARRAY | VT_BYREF)) == 0;
        }
        const std::wstring_view text = TextIn(value);
        // A table parts keywords by commas, an item by the separator of the user's locale.
        return text.size() <= kLongestWhole &&
               (column != kKeywords || text.find_first_of(L",;") == std::wstring_view::npos);
    }

    exchange::Run& mRun;
    const std::vector<std::wstring>& mColumns;
    const FolderTable::Row& mRow;
    Object mItem;
};

class Reader
{
  public:
    Reader(const exchange::MatchRule& rule, const exchange::Filters& filters, exchange::Run& run)
        : mRule(rule), mFilters(filters), mRun(run)
    {
    }

    TableKeys Read(long count)
    {
        const FolderTable table(mRun.Folder, ColumnsFor(mRule, mFilters));
        if (table.RowCount() != count)
        {
            Distrust();
        }
        table.Visit(count, [&](const FolderTable::Row& values) {
            RowOfTable row(table, values, mRun);
            Add(row);
        });
        for (const long position : Sample(count))
        {
            Compare(position);
        }
        return std::move(mKeys);
    }

  private:
    void Add(RowOfTable& row)
    {
        const bool isPlain = row.IsPlain(mRule.InTable.MessageClass);
        auto& first = mKeys.First.emplace_back();
        const std::wstring_view entryId = row.EntryId();
        if (entryId.empty() ||
            !mKeys.Ids.Add(static_cast<long>(mKeys.First.size()), mRun.Texts.Keep(entryId)))
        {
            Distrust();
        }
        if (isPlain)
        {
            first = mRun.Texts.Keep(mRule.FirstKeyOfItem(row));
        }
        if (mRule.InTable.HasSecondKey)
        {
            auto& second = mKeys.Second.emplace_back();
            if (isPlain)
            {
                second = mRun.Texts.Keep(mRule.SecondKeyOfItem(row));
            }
        }
        if (mFilters.KeepsItem)
        {
            mKeys.Kept.push_back(isPlain ? std::optional(mFilters.KeepsItem(row)) : std::nullopt);
        }
    }

    static std::set<long> Sample(long count)
    {
        std::set<long> positions;
        for (long position = 1; position <= std::min(count, kFirstRows); ++position)
        {
            positions.insert(position);
        }
        std::minstd_rand random{std::random_device{}()};
        const auto most = std::min(static_cast<size_t>(count), positions.size() + kSampleSize);
        while (positions.size() < most)
        {
            positions.insert(std::uniform_int_distribution<long>(1, count)(random));
        }
        return positions;
    }

    // Throws where the item at the position is another one than in the row, or has other keys.
    void Compare(long position)
    {
        const Object item = exchange::ItemAt(mRun.Items, position);
        exchange::ItemProperties properties(item);
        const auto index = static_cast<size_t>(position) - 1;
        const auto agrees = [&](data::StoredText told, const auto& read) {
            return told.IsNone() || told.Text() == read(properties);
        };
        const bool isSame = item && exchange::EntryIdOf(item) == mKeys.Ids.At(position).Text() &&
                            agrees(mKeys.First[index], mRule.FirstKeyOfItem) &&
                            (mKeys.Second.empty() || agrees(mKeys.Second[index], mRule.SecondKeyOfItem)) &&
                            (mKeys.Kept.empty() || !mKeys.Kept[index] ||
                             *mKeys.Kept[index] == mFilters.KeepsItem(properties));
        if (!isSame)
        {
            Distrust();
        }
    }

    const exchange::MatchRule& mRule;
    const exchange::Filters& mFilters;
    exchange::Run& mRun;
    TableKeys mKeys;
};

} // namespace

std::optional<TableKeys> ReadTable(const exchange::MatchRule& rule, const exchange::Filters& filters,
                                   exchange::Run& run, long count)
{
    if (rule.InTable.MessageClass == nullptr || !run.Folder || count == 0)
    {
        return std::nullopt;
    }
    try
    {
        return Reader(rule, filters, run).Read(count);
    }
    catch (const automation::Error&)
    {
        return std::nullopt; // no failure: the items can be read
    }
}

} // namespace run
