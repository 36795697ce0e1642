// The language of the whole process for the length of a scope: of the test's own texts, and of a component in
// a DLL, which asks the system. On Windows the calling thread's language serves; Wine has one per process.
#pragma once

#include "tests/support/WithLanguage.h"

#include <windows.h>

namespace test_support
{

class ProcessLanguage
{
  public:
    explicit ProcessLanguage(resources::Language language);
    ProcessLanguage(const ProcessLanguage&) = delete;
    ProcessLanguage& operator=(const ProcessLanguage&) = delete;
    ~ProcessLanguage();

  private:
    LANGID mBefore;
    WithLanguage mOfTest;
};

} // namespace test_support
