// Other regional settings for the calling thread, for the length of a scope.
#pragma once

#include <windows.h>

namespace test_support
{

inline constexpr LCID kGerman = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
inline constexpr LCID kTurkish = MAKELCID(MAKELANGID(LANG_TURKISH, SUBLANG_DEFAULT), SORT_DEFAULT);

class WithThreadLocale
{
  public:
    explicit WithThreadLocale(LCID locale) : mBefore(GetThreadLocale()) { SetThreadLocale(locale); }
    WithThreadLocale(const WithThreadLocale&) = delete;
    WithThreadLocale& operator=(const WithThreadLocale&) = delete;
    ~WithThreadLocale() { SetThreadLocale(mBefore); }

  private:
    LCID mBefore;
};

} // namespace test_support
