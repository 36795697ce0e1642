// The two sides of a collection as plain data behind real automation objects: an Items collection and a
// recordset, with values that may be Null, Empty, or fail when they are read.
#pragma once

#include "automation/Recordset.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace test_support
{

using automation::Value;

// Property or column name to value; a name that is absent fails when it is read.
using Record = std::map<std::wstring, Value>;
using Records = std::vector<Record>;

// Folder.Items over the records. Shares them with the caller, who may change them between calls.
automation::Object MakeItems(std::shared_ptr<const Records> records);

// The EntryID of the item at a position.
std::wstring EntryIdAt(long position);

// A recordset over the records: EOF, BOF, MoveFirst, MoveNext, Move from a position, AbsolutePosition,
// RecordCount, Fields, State, Close.
automation::Recordset MakeRows(std::shared_ptr<const Records> records);

} // namespace test_support
