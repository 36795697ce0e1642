// The interface language for the length of a scope. Scopes may be nested.
#pragma once

#include "resources/Strings.h"

#include <optional>
#include <utility>

namespace test_support
{

class WithLanguage
{
  public:
    explicit WithLanguage(resources::Language language) : mPrevious(std::exchange(gOverride, language))
    {
        resources::OverrideLanguage(gOverride);
    }
    WithLanguage(const WithLanguage&) = delete;
    WithLanguage& operator=(const WithLanguage&) = delete;
    ~WithLanguage()
    {
        gOverride = mPrevious;
        resources::OverrideLanguage(gOverride);
    }

  private:
    using Override = std::optional<resources::Language>;

    static inline Override gOverride; // empty: the system's language
    Override mPrevious;
};

} // namespace test_support
