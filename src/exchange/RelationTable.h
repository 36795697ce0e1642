// The field relation table SynRelation of the host's database: which host column feeds which Outlook
// property, per host table. Read with the component's own recordset on the host's connection string, on first
// use in an apply pass; a failed read is not kept, so that it fails again where it is needed again.
#pragma once

#include "automation/Recordset.h"

#include <optional>
#include <string>
#include <vector>

namespace exchange
{

// How tasks and the calendar open their relation rows; contacts do without the client's cursor.
inline constexpr automation::OpenOptions kOnTheClient{
    .cursorType = automation::kCursorKeyset,
    .lockType = automation::kLockReadOnly,
    .commandType = automation::kCommandText,
    .cursorLocation = automation::kCursorClient,
};

struct RelationRow
{
    std::wstring EnglishName; // the host column
    std::wstring OutlookName; // the Outlook property, compared with regard to letter case
};

class RelationTable
{
  public:
    // statement: the SELECT that names the host table; options: how ADO opens it.
    void Use(std::wstring statement, const automation::OpenOptions& options);

    // The rows in the order of the database; a row with an empty or NULL cell relates nothing and is left
    // out. Throws automation::Error when they cannot be read.
    const std::vector<RelationRow>& Rows();

    // The host column of the last row that has been read; the empty text for none.
    std::wstring LastColumn() const;

  private:
    std::wstring mStatement;
    automation::OpenOptions mOptions;
    std::optional<std::vector<RelationRow>> mRows;
};

} // namespace exchange
