// The interface that a user of one language has: the string table and the font that go with it.
#pragma once

#include "state/SharedState.h"
#include "tests/support/WithLanguage.h"

#include <cmath>
#include <string>

namespace ui_tests
{

using resources::Language;

inline constexpr Language kLanguages[] = {Language::English, Language::Chinese};

class Interface
{
  public:
    // scale: the font in parts of its usual size; 2 is what a screen of 192 DPI shows of it.
    explicit Interface(Language language, double scale = 1) : mLanguage(language)
    {
        const bool chinese = language == Language::Chinese;
        state::Shared().gFontName = chinese ? L"宋体" : L"Arial";
        state::Shared().gFontSize = std::lround((chinese ? 9 : 8) * scale);
    }
    Interface(const Interface&) = delete;
    Interface& operator=(const Interface&) = delete;
    ~Interface() { state::Shared() = {}; }

  private:
    test_support::WithLanguage mLanguage;
};

// Of the two texts, the one in this language.
inline std::wstring In(Language language, const wchar_t* english, const wchar_t* chinese)
{
    return language == Language::Chinese ? chinese : english;
}

// For the names of pictures.
inline std::string Suffix(Language language)
{
    return language == Language::Chinese ? "-zh" : "-en";
}

} // namespace ui_tests
