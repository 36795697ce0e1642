// The field catalogue SynFields of the host's database: the SQL type and size of every host column that the
// component may write. Read as a table on the host's connection string, on first use in an apply pass; a
// failed read is not kept.
#pragma once

#include "automation/Value.h"

#include <map>
#include <optional>
#include <string>

namespace data
{

// A row as the table holds it. The two are read as numbers where they are used, so that a row that holds
// none fails its own column only.
struct FieldDescription
{
    automation::Value FieldType; // 1 to 8
    automation::Value FieldSize; // of a text, in single-byte characters
};

class FieldCatalogue
{
  public:
    // Forgets what was read, so that the next use reads again.
    void Forget() { mFields.reset(); }

    // The column's description, by exact name (the first row of that name); null where the catalogue has
    // none. Throws automation::Error when the catalogue cannot be read.
    const FieldDescription* Find(const std::wstring& column);

  private:
    using Fields = std::map<std::wstring, FieldDescription>;

    static Fields Read();

    std::optional<Fields> mFields;
};

} // namespace data
