// A host row that a preview collects: its columns as the host would hold them. Nothing is written and no
// literal is made.
#pragma once

#include "data/HostRow.h"

#include <vector>

namespace data
{

struct HeldColumn
{
    std::wstring Column;
    automation::Value Value; // as the host would hold it
};

class KeptRow : public HostRow
{
  public:
    explicit KeptRow(FieldCatalogue& catalogue) : HostRow(catalogue) {}

    void Add(const std::wstring& column, const automation::Value& value) override;
    // Literals are keys and names that no reader of a preview knows: they are dropped.
    void AddLiteral(const std::wstring& /*column*/, const std::wstring& /*literal*/) override {}

    const std::vector<HeldColumn>& Columns() const noexcept { return mColumns; }

  private:
    std::vector<HeldColumn> mColumns;
};

} // namespace data
