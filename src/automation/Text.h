// Small text services that the standard library lacks: UTF-8, trimming and the upper-case comparison of the
// automation languages, and the leading number of a text.
#pragma once

#include <string>
#include <string_view>

namespace automation
{

// UTF-16 to UTF-8 and back; characters that cannot be converted become the replacement character.
std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view text);

// Without the blanks (U+0020) at both ends, as Trim of the automation languages.
std::wstring Trimmed(std::wstring_view text);

// In upper case by the invariant locale, so that two machines compare alike.
std::wstring UpperCased(std::wstring text);

// A number in decimal digits. std::to_wstring goes through printf, at many times the cost: for what a run
// does per record.
std::wstring DecimalText(long long number);

// The leading decimal number of a text (blanks before it ignored), 0 where there is none: "12 days" is 12.
double LeadingNumber(const std::wstring& text);

// Every occurrence of one text replaced by another.
std::wstring Replaced(std::wstring text, std::wstring_view what, std::wstring_view by);

} // namespace automation
