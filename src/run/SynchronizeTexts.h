// The texts of the main dialog that are not in the string table, in the interface language. The misspellings
// are those of the host contract.
#pragma once

#include <string>

namespace run
{

// The dialog's caption once a category is chosen; it is followed by the category's text without a blank.
std::wstring CategoryCaption(const std::wstring& categoryText);

// The message for a kind that takes no part in synchronization.
std::wstring NotEnabledText();

// The status line after a run.
std::wstring OutcomeText(bool failed);

// Message boxes, in Chinese in both languages.
inline constexpr wchar_t kNoCategoryChosen[] = L"没有选择同步的选项！";
inline constexpr wchar_t kNothingToSynchronize[] = L"没有可同步的选项。";

} // namespace run
