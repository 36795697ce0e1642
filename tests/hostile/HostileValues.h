// Values that no user types and that a program meets all the same: texts made of quotes, fragments of SQL
// and of Outlook's filters, control characters, lone surrogates and emoji, long ones, some that end just
// where a column ends; dates at and beyond both ends; numbers that are none; values of every automation type.
// The same seed gives the same values on every machine.
#pragma once

#include "automation/Value.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace test_support
{

using automation::Value;

class HostileValues
{
  public:
    // The seed of the test's name, or of TELVIX_SEED where that is set; reported as a figure together with
    // what has been generated when the object goes.
    explicit HostileValues(std::string name);
    HostileValues(const HostileValues&) = delete;
    HostileValues& operator=(const HostileValues&) = delete;
    ~HostileValues();

    // Any value; of texts, many end about where a column of this size does.
    Value Any(size_t size = 40);
    std::wstring Text(size_t size = 40);
    // A text as a database file can hold it: without the character 0 and lone surrogates.
    std::wstring StorableText(size_t size);
    Value Date();
    Value Number();

    // From 0 to n - 1.
    size_t Below(size_t n) { return static_cast<size_t>(mEngine() % n); }
    bool OneIn(size_t n) { return Below(n) == 0; }

    uint32_t Seed() const noexcept { return mSeed; }
    long Count() const noexcept { return mCount; }
    // Something else that was counted, for the figure: "1200 statements".
    void Report(const std::string& what) { mReport += ", " + what; }

  private:
    std::wstring Piece();
    std::wstring Pieces();
    std::wstring AboutAsLongAs(size_t size);

    std::string mName;
    uint32_t mSeed;
    std::mt19937 mEngine;
    long mCount = 0;
    std::string mReport;
};

} // namespace test_support
