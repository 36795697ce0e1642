// Remarks: what a run does not write although the user has accepted it, and why. Every layer tells its
// remarks here; the run that collects them makes its report of them. Without a run they are dropped.
#pragma once

#include "state/Failures.h"

#include <exception>
#include <string>

#include <windows.h>

namespace state
{

enum class Cause
{
    // The record has not been written.
    Failed,       // an error of the host or of Outlook
    Vanished,     // it is gone, or no longer the record that was proposed
    EmptyField,   // a field without which the other side takes no record
    NoDate,       // an entry of the calendar without a date
    EndsTooEarly, // a repeating entry that ends before it begins
    // The record has been written without something.
    LinkRefused,  // Outlook refuses the link to a contact
    ReadRefused,  // Outlook refuses to tell a property
    UnknownValue, // Outlook has no such value: the property keeps its own
    TextCut,      // a text was longer than its column
    RightMissing, // a right in the host; Words are the message about it
    // The run as a whole.
    NoHostRows, // the host does not open its rows
    NoFolder,   // no folder is chosen, or Outlook does not have it
};

// Whether a record with this remark has not been written.
constexpr bool CostsRecord(Cause cause) noexcept
{
    return cause <= Cause::EndsTooEarly;
}

// A remark holds no value of a field.
struct Remark
{
    static constexpr long kNoLength = -1;

    Cause Why;
    std::wstring Field{};    // host column, Outlook property, or the member that failed; may be empty
    std::wstring Words{};    // of the host or of Outlook, in their language; may be empty
    HRESULT Code = S_OK;     // of an error
    long Length = kNoLength; // of the value, in characters
    long Kept = kNoLength;   // of a text that was cut: the characters that are left
};

class RemarkSink
{
  public:
    virtual void Take(Remark remark) = 0;

  protected:
    ~RemarkSink() = default;
};

// The calling thread's remarks go to a sink for the length of a scope; scopes nest.
class CollectsRemarks
{
  public:
    explicit CollectsRemarks(RemarkSink& sink);
    CollectsRemarks(const CollectsRemarks&) = delete;
    CollectsRemarks& operator=(const CollectsRemarks&) = delete;
    ~CollectsRemarks();

  private:
    RemarkSink* mBefore;
};

// Never throw: a remark that cannot be kept is dropped.
void Tell(Remark remark) noexcept;
// The record is not written because of this error. field: where the error does not name it; length: of the
// value that was being written.
void TellFailure(const std::exception& error, const std::wstring& field = {},
                 long length = Remark::kNoLength) noexcept;

// As Failed; also reports the error as a remark.
template<typename Body>
bool FailedAndTold(Body&& body)
{
    return Failed([&] {
        try
        {
            body();
        }
        catch (const std::exception& error)
        {
            TellFailure(error);
            throw;
        }
    });
}

} // namespace state
