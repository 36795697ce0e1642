// The table of a folder: the values of some columns for every item, hundreds of rows by one call. Its columns
// are chosen by name, those of built-in properties and a few by their namespace.
#pragma once

#include "sandbox/outlook/OutlookObject.h"
#include "sandbox/outlook/TableColumn.h"

namespace sandbox::outlook
{

// What the table, its columns and its rows share.
struct TableState
{
    MailFolder& folder;
    std::vector<StoredItemRef> items; // as the table gives them, in its own order
    std::vector<TableColumn> columns;
    size_t next = 0; // the row behind the current one

    // A table is dynamic: rows whose items are gone are gone.
    bool AtEnd();
    long RowCount() const;
};

class TableObject : public OutlookObject
{
  public:
    TableObject(MailboxRef mailbox, MailFolder& folder, std::vector<StoredItemRef> items);

  protected:
    const wchar_t* ClassName() const override { return L"Table"; }
    const wchar_t* InterfaceName() const override { return L"_Table"; }
    const MailFolder* Place() const override { return &mState->folder; }
    const MemberTable& Members() const override;

  private:
    Value Columns(const Call& call);
    Value EndOfTable(const Call&);
    Value GetRowCount(const Call&);
    Value GetNextRow(const Call&);
    Value GetArray(const Call& call);
    Value MoveToStart(const Call&);
    std::vector<Value> NextRow();

    std::shared_ptr<TableState> mState;
};

class ColumnsObject : public OutlookObject
{
  public:
    ColumnsObject(MailboxRef mailbox, std::shared_ptr<TableState> state);

  protected:
    const wchar_t* ClassName() const override { return L"Columns"; }
    const wchar_t* InterfaceName() const override { return L"_Columns"; }
    const MailFolder* Place() const override { return &mState->folder; }
    const MemberTable& Members() const override;

  private:
    size_t IndexOf(const Value& index) const;
    Value Item(const Call& call);
    Value Count(const Call&);
    Value Add(const Call& call);
    Value Remove(const Call& call);
    Value RemoveAll(const Call&);

    std::shared_ptr<TableState> mState;
};

class RowObject : public OutlookObject
{
  public:
    RowObject(MailboxRef mailbox, std::shared_ptr<TableState> state, std::vector<Value> values);

  protected:
    const wchar_t* ClassName() const override { return L"Row"; }
    const wchar_t* InterfaceName() const override { return L"_Row"; }
    const MemberTable& Members() const override;

  private:
    Value Item(const Call& call);
    Value GetValues(const Call&);

    std::shared_ptr<TableState> mState;
    std::vector<Value> mValues;
};

// The table of a folder. The filter may be Missing or blank for all items.
automation::Object TableOf(const MailboxRef& mailbox, MailFolder& folder, const Value& filter,
                           const Value& contents);

} // namespace sandbox::outlook
