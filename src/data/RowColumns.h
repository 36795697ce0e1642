// The columns of one host row that a record writer is about to insert or update: it grows the lists of the
// mode that it was made for with the fragment builders, so that the writers need not tell the two apart.
#pragma once

#include "data/FieldCatalogue.h"
#include "data/RecordMode.h"

#include <string>

namespace data
{

class RowColumns
{
  public:
    RowColumns(FieldCatalogue& catalogue, RecordMode mode) : mCatalogue(catalogue), mMode(mode) {}

    // Adds a column by the mode's fragment builder. Throws automation::Error when the value cannot be
    // formatted for its column.
    void Add(const std::wstring& column, const automation::Value& value);

    FieldCatalogue& Catalogue() const noexcept { return mCatalogue; }
    RecordMode Mode() const noexcept { return mMode; }

    // The host column of the relation row being worked on, for messages; stays at the last one.
    std::wstring Column;
    // The lists as the host takes them: the first two of an insert, the third of an update.
    std::wstring Fields;
    std::wstring Values;
    std::wstring SetList;

  private:
    FieldCatalogue& mCatalogue;
    RecordMode mMode;
};

} // namespace data
