#include "run/TableKeys.h"

#include "automation/Error.h"
#include "exchange/Identity.h"
#include "exchange/ItemProperties.h"
#include "run/FolderTable.h"

#include <algorithm>
#include <cwchar>
#include <functional>
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
bool IsOfClass(const std::wstring& messageClass, const std::wstring& base)
{
    return _wcsnicmp(messageClass.c_str(), base.c_str(), base.size()) == 0 &&
           (messageClass.size() == base.size() || messageClass[base.size()] == L'.');
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

// One row as the key readers see it.
class RowOfTable : public automation::PropertySource
{
  public:
    RowOfTable(const FolderTable& table, exchange::Run& run)
        : mRun(run), mColumns(table.Columns()), mValues(mColumns.size())
    {
    }

    void Take(const FolderTable::Row& row)
    {
        for (size_t column = 0; column < mValues.size(); ++column)
        {
            mValues[column] = row.At(column);
        }
        mItem = {};
    }

    Value Get(const wchar_t* property) override
    {
        const auto column = std::ranges::find(mColumns, property);
        return column == mColumns.end() ? Item().Get(property)
                                        : mValues[static_cast<size_t>(column - mColumns.begin())];
    }

    const Object& Item() override
    {
        if (!mItem)
        {
            mItem = exchange::OpenItem(mRun, EntryId());
        }
        return mItem;
    }

    std::wstring EntryId() { return TextIn(kEntryId); }

    // Whether the row shows an item of the class, and nothing that the item might show otherwise.
    bool IsPlain(const std::wstring& messageClass)
    {
        for (size_t column = 0; column < mValues.size(); ++column)
        {
            if (!IsPlain(mColumns[column], mValues[column]))
            {
                return false;
            }
        }
        return IsOfClass(TextIn(kMessageClass), messageClass);
    }

  private:
    std::wstring TextIn(const wchar_t* column)
    {
        const Value value = Get(column);
        return value.Type() == VT_BSTR ? automation::TextOf(value) : std::wstring();
    }

    static bool IsPlain(const std::wstring& column, const Value& value)
    {
        if (value.Type() != VT_BSTR)
        {
            return value.Type() != VT_ERROR && (value.Type() & (VT_ARRAY | VT_BYREF)) == 0;
        }
        const std::wstring text = automation::TextOf(value);
        // A table parts keywords by commas, an item by the separator of the user's locale.
        return column == kEntryId ||
               (text.size() <= kLongestWhole &&
                (column != kKeywords || text.find_first_of(L",;") == std::wstring::npos));
    }

    exchange::Run& mRun;
    const std::vector<std::wstring>& mColumns;
    std::vector<Value> mValues;
    Object mItem;
};

std::wstring Compact(std::wstring key)
{
    key.shrink_to_fit(); // it stays for the run
    return key;
}

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
        RowOfTable row(table, mRun);
        table.Visit(count, [&](const FolderTable::Row& values) {
            row.Take(values);
            Add(row);
        });
        if (!mKeys.Ids.AreUnique())
        {
            Distrust();
        }
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
        mKeys.Ids.Add(row.EntryId());
        auto& first = mKeys.First.emplace_back();
        if (isPlain)
        {
            first = Compact(mRule.FirstKeyOfItem(row));
        }
        if (mRule.InTable.HasSecondKey)
        {
            auto& second = mKeys.Second.emplace_back();
            if (isPlain)
            {
                second = Compact(mRule.SecondKeyOfItem(row));
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
        const auto agrees = [](const auto& told, auto&& read) { return !told || *told == read(); };
        const bool isSame =
            item && exchange::EntryIdOf(item) == mKeys.Ids.At(position) &&
            agrees(mKeys.First[index], [&] { return mRule.FirstKeyOfItem(properties); }) &&
            (mKeys.Second.empty() ||
             agrees(mKeys.Second[index], [&] { return mRule.SecondKeyOfItem(properties); })) &&
            (mKeys.Kept.empty() || agrees(mKeys.Kept[index], [&] { return mFilters.KeepsItem(properties); }));
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

void EntryIds::Add(std::wstring_view entryId)
{
    const auto isPlain = [](wchar_t letter) { return letter > L' ' && letter < 0x7F; };
    if (entryId.empty() || !std::ranges::all_of(entryId, isPlain))
    {
        Distrust();
    }
    mDigits.append(entryId.begin(), entryId.end());
    mEnds.push_back(static_cast<std::uint32_t>(mDigits.size()));
}

std::string_view EntryIds::Digits(size_t index) const
{
    const size_t start = index == 0 ? 0 : mEnds[index - 1];
    return std::string_view(mDigits).substr(start, mEnds[index] - start);
}

std::wstring EntryIds::At(long position) const
{
    const std::string_view digits = Digits(static_cast<size_t>(position) - 1);
    return {digits.begin(), digits.end()};
}

// Two that happen to have the same hash count as equal: that costs time, and no more.
bool EntryIds::AreUnique() const
{
    std::vector<size_t> hashes;
    hashes.reserve(mEnds.size());
    for (size_t index = 0; index < mEnds.size(); ++index)
    {
        hashes.push_back(std::hash<std::string_view>()(Digits(index)));
    }
    std::ranges::sort(hashes);
    return std::ranges::adjacent_find(hashes) == hashes.end();
}

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
