// A folder with a table over plain data, and the namespace that opens its items by EntryID. The table is
// honest, as documented: texts are cut, keywords are parted by commas, and a value that an item refuses is an
// error in its cell.
#pragma once

#include "tests/run/Sides.h"

#include <memory>
#include <string>

namespace test_support
{

// Shares the records with the caller, who may change them between calls. messageClass: of every item.
automation::Object MakeFolder(std::shared_ptr<const Records> records, std::wstring messageClass);

// NameSpace with GetItemFromID alone.
automation::Object MakeNamespace(std::shared_ptr<const Records> records);

} // namespace test_support
