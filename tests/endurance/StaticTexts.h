// Wine's static controls (of the common controls that a manifest selects) keep a few bytes each for ever
// once they have been given a font. A test that compares heaps to the byte counts the static controls that
// its thread has shown, and takes off what the system keeps for them; on Windows that is nothing.
#pragma once

#include "tests/endurance/Footprint.h"

#include <array>

#include <windows.h>

namespace test_support
{

// Counts the static controls made on the calling thread, for the length of a scope; one at a time.
class StaticTexts
{
  public:
    StaticTexts();
    StaticTexts(const StaticTexts&) = delete;
    StaticTexts& operator=(const StaticTexts&) = delete;
    ~StaticTexts();

    // The footprint less what the system has kept for all of them so far.
    Footprint Without(Footprint footprint) const;

    // By type of static control: text, frame, icon, ...
    using ByType = std::array<long, SS_TYPEMASK + 1>;

  private:
    ByType mKeptForOne;
    HHOOK mHook;
};

} // namespace test_support
