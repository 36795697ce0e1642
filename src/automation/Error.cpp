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

bool IsMissingMember(const Error& error) noexcept
{
    return error.Code() == DISP_E_UNKNOWNNAME || error.Code() == DISP_E_MEMBERNOTFOUND;
}

bool IsRefusal(const Error& error) noexcept
{
    return error.Code() == E_ABORT || error.Code() == E_ACCESSDENIED || error.Code() == E_NOTIMPL ||
           IsMissingMember(error);
}

bool IsUnreachable(const Error& error) noexcept
{
    constexpr HRESULT kNetworkError = static_cast<HRESULT>(0x80040115); // MAPI_E_NETWORK_ERROR
    constexpr HRESULT kOffline = static_cast<HRESULT>(0x80040126);      // MAPI_E_OFFLINE
    return error.Code() == kNetworkError || error.Code() == kOffline;
}

bool IsGone(const Error& error) noexcept
{
    constexpr HRESULT kInvalidEntryId = static_cast<HRESULT>(0x80040107); // MAPI_E_INVALID_ENTRYID
    constexpr HRESULT kObjectDeleted = static_cast<HRESULT>(0x8004010A);  // MAPI_E_OBJECT_DELETED
    return error.Code() == kItemNotFound || error.Code() == kInvalidEntryId ||
           error.Code() == kObjectDeleted || error.Code() == kRowDeleted;
}

void Check(HRESULT code, const wchar_t* member)
{
    if (FAILED(code))
    {
        throw Error(code, member);
    }
}

} // namespace automation
