// Values as SQL literals: the form follows from the column's row in the field catalogue, never from the
// value. Every coercion is OLE Automation's own in a fixed locale, so that no literal depends on regional
// settings.
#pragma once

#include "data/FieldCatalogue.h"

#include <optional>
#include <string>

namespace data
{

// The literal of a value (neither Empty nor Null) for the column; nothing for a column of an unknown type,
// which shows a message box. Throws automation::Error for a column that the catalogue does not have (a
// message box says so), a catalogue that cannot be read and a value that cannot be coerced.
std::optional<automation::Value> Formatted(FieldCatalogue& catalogue, const std::wstring& column,
                                           const automation::Value& value);

// The value, whatever it is, as one literal of a statement; NULL for an absent value. Of a column of an
// unknown type a plain number stays as it is, anything else is quoted. Throws automation::Error that names
// the column.
std::wstring LiteralOf(FieldCatalogue& catalogue, const std::wstring& column, const automation::Value& value);

// The value as the column holds it once LiteralOf's literal has been written there: Null, a number, a text of
// the column's size, a flag or a date. Shows no message. Throws automation::Error where LiteralOf does.
automation::Value HeldValueOf(FieldCatalogue& catalogue, const std::wstring& column,
                              const automation::Value& value);

// The text as the column holds it once it has been written there: cut to the column's size. The whole of it
// for a column that the catalogue does not describe as a text of some size. Throws automation::Error when the
// catalogue cannot be read.
std::wstring TextAsHeld(FieldCatalogue& catalogue, const std::wstring& column, const std::wstring& text);

// The text cut to a size in single-byte characters: a character beyond U+00FF counts two, and none is split
// (a surrogate pair is one character).
std::wstring TruncateToFieldSize(const std::wstring& text, long size);

} // namespace data
