#include "state/Failures.h"

#include "resources/Strings.h"

namespace state
{

void WriteLog(std::wstring_view /*text*/) noexcept {}

void LogError() noexcept
{
    try
    {
        WriteLog(resources::String(IDS_ERROR));
    }
    catch (const std::exception&)
    {
        WriteLog(L"Error"); // not even the resources could be read
    }
}

} // namespace state
