// The relation rows of tasks, read alike in both directions.
#pragma once

#include "exchange/RelationTable.h"

namespace tasks
{

inline constexpr wchar_t kRelationStatement[] =
    L"Select * From SynRelation Where QuenlarTblName='TBLACTIVITY'";
inline constexpr automation::OpenOptions kRelationOptions = exchange::kOnTheClient;

// Outlook's OlTaskStatus, as far as used.
inline constexpr long kTaskComplete = 2;
inline constexpr long kTaskDeferred = 4; // the last one

} // namespace tasks
