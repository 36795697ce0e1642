// The relation rows of tasks, read alike in both directions.
#pragma once

#include "automation/Recordset.h"

namespace tasks
{

inline constexpr wchar_t kRelationStatement[] =
    L"Select * From SynRelation Where QuenlarTblName='TBLACTIVITY'";
inline constexpr automation::OpenOptions kRelationOptions{
    .cursorType = automation::kCursorKeyset,
    .lockType = automation::kLockReadOnly,
    .commandType = automation::kCommandText,
    .cursorLocation = automation::kCursorClient,
};

// Outlook's OlTaskStatus, as far as used.
inline constexpr long kTaskComplete = 2;
inline constexpr long kTaskDeferred = 4; // the last one

} // namespace tasks
