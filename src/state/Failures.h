// "Procedures trap their own errors": the one way in which a routine of the component turns an exception into
// its failure value, and the diagnostic sink that records it. Inside, everything throws.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace state
{

// The diagnostic sink. It discards its text in every build; it exists so that a developer can break here.
void WriteLog(std::wstring_view text) noexcept;

// Passes "Error" in the interface language to WriteLog.
void LogError() noexcept;

// Runs the body and returns its result; on any exception calls WriteLog and returns failure.
template<typename Result, typename Body>
Result Trapped(Result failure, Body&& body)
{
    try
    {
        return body();
    }
    catch (const std::exception&)
    {
        LogError();
        return failure;
    }
}

// The same for a body without a result: whether it has thrown.
template<typename Body>
bool Failed(Body&& body)
{
    return Trapped(true, [&] {
        body();
        return false;
    });
}

// The same where a failure makes no difference to the caller.
template<typename Body>
void Trapped(Body&& body)
{
    static_cast<void>(Failed(body));
}

} // namespace state
