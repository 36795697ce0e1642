// Whether the component takes an item and a row for the same record, by a category's rule alone.
#pragma once

#include "exchange/MatchRule.h"
#include "tests/run/Sides.h"

#include <memory>

namespace test_support
{

inline bool Match(const exchange::MatchRule& rule, const Record& itemRecord, const Record& rowRecord)
{
    const auto items = std::make_shared<Records>(Records{itemRecord});
    const auto rows = std::make_shared<Records>(Records{rowRecord});
    const automation::Object item = MakeItems(items).GetObject(L"Item", 1L);
    const automation::Recordset row = MakeRows(rows);
    return rule.FirstKeyOfItem(item) == rule.FirstKeyOfRow(row) &&
           (rule.SecondKeyOfItem == nullptr || rule.SecondKeyOfItem(item) == rule.SecondKeyOfRow(row));
}

} // namespace test_support
