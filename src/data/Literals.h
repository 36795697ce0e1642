// Values as literals of SQL text. QuotedText is the only function of the component that puts a value
// between quotes; every value of a statement goes through it or through NumberOrQuotedText, so that no value
// can change what the statement says. Used by the record writers, the lookups and the parameter store.
#pragma once

#include <string>
#include <string_view>

namespace data
{

// The text as an SQL literal, whatever it holds: apostrophes doubled, in quotes.
std::wstring QuotedText(std::wstring_view text);

// For values that the host expects without quotes (ids and codes): a plain number as it is, any other text
// quoted.
std::wstring NumberOrQuotedText(std::wstring_view text);

// [+-] digits [. digits] [E [+-] digits], with a digit before or behind the point.
bool IsPlainNumber(std::wstring_view text);

// Whether the text can only be the name of a column: letters and digits of any script, and "_".
bool IsColumnName(std::wstring_view text);

} // namespace data
