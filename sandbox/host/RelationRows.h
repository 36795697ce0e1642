// The rows of the relation table: which host column goes with which property of Outlook's items.
#pragma once

#include "sandbox/host/Catalogue.h"

#include <span>

namespace sandbox
{

struct RelationRow
{
    const wchar_t* table;
    const wchar_t* column;
    const wchar_t* property;
};

// All rows but those of the names, in the order in which the host ships them.
std::span<const RelationRow> RelationRows();
// The two rows of the names as an edition ships them.
std::span<const RelationRow> NameRows(Edition edition);

} // namespace sandbox
