// An Outlook item whose properties may hold anything at all, of any automation type; what real items never
// hold included. With the collection that it is alone in.
#pragma once

#include "automation/Object.h"

#include <map>
#include <string>

namespace test_support
{

using ItemValues = std::map<std::wstring, automation::Value>;

// Has every property that the component reads from items of any kind; those that are not given are Empty.
automation::Object MakeHostileItem(ItemValues values);

// Folder.Items with this one item.
automation::Object MakeItemsOf(const automation::Object& item);

} // namespace test_support
