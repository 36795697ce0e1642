// The bilingual string table (ids 0 to 1095) and the one place where the interface language is chosen.
#pragma once

#include "resources/ids.h"

#include <optional>
#include <string>

#include <windows.h>

namespace resources
{

enum class Language
{
    English,
    Chinese,
};

// The language of the thread's user interface: Chinese for any Chinese language, English otherwise.
Language InterfaceLanguage();

// Whether resource string 0 reads "Chinese" (or "English"), the contract's language tests.
bool IsChinese();
bool IsEnglish();

// The text with this id in the interface language; the empty text for an id that the table does not have.
std::wstring String(UINT id);

// Of the two texts, the one in the interface language.
const wchar_t* Choose(const wchar_t* chinese, const wchar_t* english);

// The module (DLL or program) that these resources are linked into.
HINSTANCE Module();

// Fixes the language of the whole process, or frees it again; for tests and tools that need both languages.
void OverrideLanguage(std::optional<Language> language);

} // namespace resources
