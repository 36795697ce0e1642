// The columns of one host row that a writer is about to send to the host, collected one at a time. Only
// columns whose names begin with "F_" are ever added; an absent value is written as NULL.
#pragma once

#include "data/FieldCatalogue.h"

#include <string>

namespace data
{

class Host;

// Whether a column of this name may be written. A name that holds anything but letters, digits and "_" would
// change the statement: it is no column.
bool IsWritableColumn(const std::wstring& column);

class HostRow
{
  public:
    virtual ~HostRow() = default;

    // Adds a column with its value; skips one that may not be written. Throws automation::Error, with the row
    // as it was, when the value cannot be formatted for its column.
    virtual void Add(const std::wstring& column, const automation::Value& value);
    // Adds a column with a literal of the statement, as it is.
    virtual void AddLiteral(const std::wstring& column, const std::wstring& literal) = 0;

    FieldCatalogue& Catalogue() const noexcept { return mCatalogue; }

  protected:
    explicit HostRow(FieldCatalogue& catalogue) : mCatalogue(catalogue) {}

  private:
    FieldCatalogue& mCatalogue;
};

// A new row: the field list and the value list, in step.
class InsertRow : public HostRow
{
  public:
    // The lists that the row begins with.
    explicit InsertRow(FieldCatalogue& catalogue, std::wstring fields = {}, std::wstring values = {});

    // Also several columns at once, both lists joined with ",".
    void AddLiteral(const std::wstring& column, const std::wstring& literal) override;
    // The same before all other columns: the contract's place for keys.
    void PutFirst(const std::wstring& columns, const std::wstring& literals);

    const std::wstring& Fields() const noexcept { return mFields; }
    const std::wstring& Values() const noexcept { return mValues; }

    // Sends the row. text: the last argument of the host's Insert. Throws automation::Error when the host
    // refuses.
    void Insert(const Host& host, const std::wstring& table, const std::wstring& text = {}) const;

  private:
    std::wstring mFields;
    std::wstring mValues;
};

// Changes to an existing row: the set list.
class UpdateRow : public HostRow
{
  public:
    explicit UpdateRow(FieldCatalogue& catalogue, std::wstring setList = {});

    void AddLiteral(const std::wstring& column, const std::wstring& literal) override;

    const std::wstring& SetList() const noexcept { return mSetList; }

    // Sends the changes to the row with this key. Throws automation::Error when the host refuses.
    void Update(const Host& host, const std::wstring& table, const std::wstring& keyColumn,
                const std::wstring& key) const;

  private:
    std::wstring mSetList;
};

} // namespace data
