// How the host refuses: a negative result for its caller, and a readable reason for whoever has to find out
// why. Thrown inside the host only; the data-access object turns it into the result.
#pragma once

#include <stdexcept>
#include <string>

namespace sandbox
{

// The negative results, one per kind of refusal.
enum class Refusal : long
{
    UnknownTable = -1,
    UnknownColumn = -2,
    ListsDiffer = -3, // so many columns, but so many values
    UnbalancedQuotes = -4,
    MalformedLiteral = -5, // neither NULL, a number nor a quoted text
    ValueDoesNotFit = -6,  // a text in a number's column, a text longer than its column, no such date
    UnknownSource = -7,    // no record source of that name
    BadStatement = -8,     // not a SELECT, a bad filter or condition, a statement in a list
    Database = -9,         // the database itself refused: a constraint, a lock
};

class Rejection : public std::exception
{
  public:
    Rejection(Refusal kind, std::wstring reason) : mKind(kind), mReason(std::move(reason)) {}

    Refusal Kind() const noexcept { return mKind; }
    long Result() const noexcept { return static_cast<long>(mKind); }
    const std::wstring& Reason() const noexcept { return mReason; }

  private:
    Refusal mKind;
    std::wstring mReason;
};

} // namespace sandbox
