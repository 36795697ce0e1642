// Between the types: what a client assigns to a property, what the property holds, and how the mailbox file
// writes it.
#pragma once

#include "sandbox/outlook/PropertyTable.h"

#include <optional>
#include <string>

namespace sandbox::outlook
{

// The value in the property's type, by OLE Automation's coercions. Throws an Error with a description for a
// value that does not fit: Null, a wrong type, a number outside the property's range, a date that Outlook
// cannot hold.
Value Converted(const Property& property, const Value& given);

// The text in the mailbox file: dates as "yyyy-mm-dd hh:mm:ss", truth values as 1 and 0.
std::wstring FileText(const Value& value);
// The value that a text of the mailbox file stands for; nothing where the text is none of the type.
std::optional<Value> ValueOfFileText(PropertyType type, const std::wstring& text);

} // namespace sandbox::outlook
