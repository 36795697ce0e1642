// The boundary between exceptions and COM: no C++ exception leaves an interface method or an export.
#pragma once

#include <string>

#include <windows.h>

namespace automation
{

// The HRESULT of the exception being handled, with its text left as the thread's error info. Call it from a
// catch block only.
HRESULT ResultOfCurrentException() noexcept;

// Runs a body that returns an HRESULT; an exception becomes its HRESULT.
template<typename Body>
HRESULT Guard(Body&& body) noexcept
{
    try
    {
        return body();
    }
    catch (...)
    {
        return ResultOfCurrentException();
    }
}

} // namespace automation
