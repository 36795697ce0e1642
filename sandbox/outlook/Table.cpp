#include "sandbox/outlook/Table.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/Filter.h"

#include <algorithm>
#include <cwchar>

namespace sandbox::outlook
{

namespace
{

constexpr long kUserItems = 0; // OlTableContents

// The lies that a mailbox is switched to: about the order of the rows, and which there are.
std::vector<StoredItemRef> AsTold(std::vector<StoredItemRef> items, const Awkward& awkward)
{
    const auto has = [&](long row) { return row > 0 && row <= static_cast<long>(items.size()); };
    if (awkward.tableReversed)
    {
        std::ranges::reverse(items);
    }
    if (has(awkward.tableDuplicateRow))
    {
        const auto row = items.begin() + (awkward.tableDuplicateRow - 1);
        items.insert(row, StoredItemRef(*row));
    }
    if (has(awkward.tableMissingRow))
    {
        items.erase(items.begin() + (awkward.tableMissingRow - 1));
    }
    return items;
}

} // namespace

bool TableState::AtEnd()
{
    while (next < items.size() && items[next]->folder == nullptr)
    {
        ++next;
    }
    return next >= items.size();
}

long TableState::RowCount() const
{
    return static_cast<long>(
        std::ranges::count_if(items, [](const StoredItemRef& item) { return item->folder != nullptr; }));
}

automation::Object TableOf(const MailboxRef& mailbox, MailFolder& folder, const Value& filter,
                           const Value& contents)
{
    const bool isOfUser = automation::IsMissing(contents) || automation::LongOf(contents) == kUserItems;
    const std::wstring text = automation::IsMissing(filter) ? L"" : automation::TextOf(filter);
    const ConditionRef condition = text.empty() ? nullptr : ParsedFilter(text);
    std::vector<StoredItemRef> items;
    for (const StoredItemRef& item : isOfUser ? mailbox->Seen(folder) : std::vector<StoredItemRef>())
    {
        const StoredItemRef told = mailbox->AsInTable(item);
        if (condition == nullptr || condition->Holds(ItemDraft(*mailbox, told)))
        {
            items.push_back(told);
        }
    }
    return MakeObject<TableObject>(mailbox, folder, AsTold(std::move(items), mailbox->Behaviour()));
}

TableObject::TableObject(MailboxRef mailbox, MailFolder& folder, std::vector<StoredItemRef> items)
    : OutlookObject(std::move(mailbox)),
      mState(
          std::make_shared<TableState>(TableState{folder, std::move(items), DefaultColumns(folder.Type())}))
{
}

const MemberTable& TableObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"_Table", {
                                   {L"Columns", Reads(&TableObject::Columns), nullptr},
                                   {L"EndOfTable", Reads(&TableObject::EndOfTable), nullptr},
                                   {L"GetRowCount", Reads(&TableObject::GetRowCount), nullptr},
                                   {L"GetNextRow", Reads(&TableObject::GetNextRow), nullptr},
                                   {L"GetArray", Reads(&TableObject::GetArray), nullptr},
                                   {L"MoveToStart", Reads(&TableObject::MoveToStart), nullptr},
                               });
    return members;
}

Value TableObject::Columns(const Call& call)
{
    return WithIndex(MakeObject<ColumnsObject>(Box(), mState), call);
}

Value TableObject::EndOfTable(const Call&)
{
    return mState->AtEnd();
}

Value TableObject::GetRowCount(const Call&)
{
    return mState->RowCount();
}

std::vector<Value> TableObject::NextRow()
{
    const StoredItemRef item = mState->items[mState->next++];
    if (static_cast<long>(mState->next) == Box()->Behaviour().tableFailsAtRow)
    {
        throw automation::Error(E_FAIL, L"Table", L"The operation failed.");
    }
    std::vector<Value> values;
    for (const TableColumn& column : mState->columns)
    {
        values.push_back(ValueInColumn(column, *Box(), item));
    }
    return values;
}

// "Nothing" behind the last row.
Value TableObject::GetNextRow(const Call&)
{
    return mState->AtEnd() ? automation::Object() : MakeObject<RowObject>(Box(), mState, NextRow());
}

// "GetArray(n) operates as if Table.GetNextRow is called n times"; less than n where the rows end, and none
// behind the last row (Table.GetArray method).
Value TableObject::GetArray(const Call& call)
{
    const long most = automation::LongOf(call.At(0));
    if (most < 1)
    {
        FailInvalid(L"GetArray", L"The number of rows is not valid.");
    }
    std::vector<std::vector<Value>> rows;
    while (static_cast<long>(rows.size()) < most && !mState->AtEnd())
    {
        rows.push_back(NextRow());
    }
    return ArrayOf(rows, mState->columns.size(), Box()->Behaviour().tableArrayByRow);
}

Value TableObject::MoveToStart(const Call&)
{
    mState->next = 0;
    return {};
}

ColumnsObject::ColumnsObject(MailboxRef mailbox, std::shared_ptr<TableState> state)
    : OutlookObject(std::move(mailbox)), mState(std::move(state))
{
}

const MemberTable& ColumnsObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"_Columns", {
                                     {L"Item", Reads(&ColumnsObject::Item), nullptr},
                                     {L"Count", Reads(&ColumnsObject::Count), nullptr},
                                     {L"Add", Reads(&ColumnsObject::Add), nullptr},
                                     {L"Remove", Reads(&ColumnsObject::Remove), nullptr},
                                     {L"RemoveAll", Reads(&ColumnsObject::RemoveAll), nullptr},
                                 });
    return members;
}

namespace
{

class ColumnObject : public OutlookObject
{
  public:
    ColumnObject(MailboxRef mailbox, std::wstring name)
        : OutlookObject(std::move(mailbox)), mName(std::move(name))
    {
    }

  protected:
    const wchar_t* ClassName() const override { return L"Column"; }
    const wchar_t* InterfaceName() const override { return L"_Column"; }
    const MemberTable& Members() const override
    {
        static const MemberTable members =
            AsPublished(L"_Column", {{L"Name", Reads(&ColumnObject::Name), nullptr}});
        return members;
    }

  private:
    Value Name(const Call&) { return mName; }

    std::wstring mName;
};

// The index of a column by its name or its number from 1.
size_t ColumnIndex(const TableState& state, const Value& index, const wchar_t* member)
{
    const std::wstring name = automation::TextOf(index);
    const auto named = std::ranges::find_if(state.columns, [&](const TableColumn& column) {
        return _wcsicmp(column.name.c_str(), name.c_str()) == 0;
    });
    if (named != state.columns.end())
    {
        return static_cast<size_t>(named - state.columns.begin());
    }
    const long position = PositionOf(index);
    if (position < 1 || position > static_cast<long>(state.columns.size()))
    {
        FailOutOfBounds(member);
    }
    return static_cast<size_t>(position) - 1;
}

} // namespace

size_t ColumnsObject::IndexOf(const Value& index) const
{
    return ColumnIndex(*mState, index, L"Columns.Item");
}

Value ColumnsObject::Item(const Call& call)
{
    return MakeObject<ColumnObject>(Box(), mState->columns[IndexOf(call.At(0))].name);
}

Value ColumnsObject::Count(const Call&)
{
    return static_cast<long>(mState->columns.size());
}

// "adds the specified Column to the end of the Columns collection [...] and resets the Table by moving the
// current row to just before the first row"; an error changes nothing (Columns.Add method).
Value ColumnsObject::Add(const Call& call)
{
    mState->columns.push_back(ColumnOfName(automation::TextOf(call.At(0)), Box()->Behaviour()));
    mState->next = 0;
    return MakeObject<ColumnObject>(Box(), mState->columns.back().name);
}

Value ColumnsObject::Remove(const Call& call)
{
    mState->columns.erase(mState->columns.begin() + static_cast<std::ptrdiff_t>(IndexOf(call.At(0))));
    mState->next = 0;
    return {};
}

Value ColumnsObject::RemoveAll(const Call&)
{
    mState->columns.clear();
    mState->next = 0;
    return {};
}

RowObject::RowObject(MailboxRef mailbox, std::shared_ptr<TableState> state, std::vector<Value> values)
    : OutlookObject(std::move(mailbox)), mState(std::move(state)), mValues(std::move(values))
{
}

const MemberTable& RowObject::Members() const
{
    static const MemberTable members =
        AsPublished(L"_Row", {
                                 {L"Item", Reads(&RowObject::Item), nullptr},
                                 {L"GetValues", Reads(&RowObject::GetValues), nullptr},
                             });
    return members;
}

Value RowObject::Item(const Call& call)
{
    const size_t index = ColumnIndex(*mState, call.At(0), L"Row.Item");
    return index < mValues.size() ? mValues[index] : Value();
}

Value RowObject::GetValues(const Call&)
{
    return ArrayOf(mValues);
}

} // namespace sandbox::outlook
