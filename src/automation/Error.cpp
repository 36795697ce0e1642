#include "automation/Error.h"

#include "automation/Text.h"

#include <cstdio>
#include <utility>

namespace automation
{

std::wstring SystemText(HRESULT code)
{
    wchar_t buffer[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                  static_cast<DWORD>(code), 0, buffer, ARRAYSIZE(buffer), nullptr);
    while (length > 0 && (buffer[length - 1] == L'\n' || buffer[length - 1] == L'\r'))
    {
        --length;
    }
    if (length > 0)
    {
        return {buffer, length};
    }
    std::swprintf(buffer, ARRAYSIZE(buffer), L"0x%08lX", static_cast<unsigned long>(code));
    return buffer;
}

Error::Error(HRESULT code, std::wstring member, std::wstring description)
    : mCode(code),
      mMember(std::move(member)),
      mDescription(description.empty() ? SystemText(code) : std::move(description))
{
    char number[16];
    std::snprintf(number, sizeof number, "0x%08lX", static_cast<unsigned long>(code));
    mWhat = ToUtf8(mMember) + ": " + number + ": " + ToUtf8(mDescription);
}

void Check(HRESULT code, const wchar_t* member)
{
    if (FAILED(code))
    {
        throw Error(code, member);
    }
}

} // namespace automation
