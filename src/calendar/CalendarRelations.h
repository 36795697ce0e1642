// The relation rows of calendar entries, read alike in both directions.
#pragma once

#include "exchange/RelationTable.h"

namespace calendar
{

inline constexpr wchar_t kRelationStatement[] =
    L"Select * From SynRelation Where QuenlarTblName='VW_CALENDAR'";
inline constexpr automation::OpenOptions kRelationOptions = exchange::kOnTheClient;

} // namespace calendar
