// The interface language for the length of a scope.
#pragma once

#include "resources/Strings.h"

namespace test_support
{

class WithLanguage
{
  public:
    explicit WithLanguage(resources::Language language) { resources::OverrideLanguage(language); }
    WithLanguage(const WithLanguage&) = delete;
    WithLanguage& operator=(const WithLanguage&) = delete;
    ~WithLanguage() { resources::OverrideLanguage(std::nullopt); }
};

} // namespace test_support
