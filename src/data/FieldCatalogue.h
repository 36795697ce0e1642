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

struct FieldDescription
{
    long FieldType = 0; // 1 to 8
    long FieldSize = 0; // for texts, in single-byte characters
};

class FieldCatalogue
{
  public:
    // Forgets what was read, so that the next use reads again.
    void Forget() { mFields.reset(); }

    // The column's description, by exact name; null where the catalogue has none. Throws automation::Error
    // when the catalogue cannot be read.
    const FieldDescription* Find(const std::wstring& column);

  private:
    void Read();

    std::optional<std::map<std::wstring, FieldDescription>> mFields;
};

} // namespace data
