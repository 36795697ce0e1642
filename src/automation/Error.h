// The one exception type that automation raises: a failed call on an object outside the component, with
// the member that was called and the object's description of the error.
#pragma once

#include <exception>
#include <string>

#include <windows.h>

namespace automation
{

class Error : public std::exception
{
  public:
    // member: the name of the member called, or of the operation; description: the object's own words, or
    // empty for the system's text of the code.
    Error(HRESULT code, std::wstring member, std::wstring description = {});

    HRESULT Code() const noexcept { return mCode; }
    const std::wstring& Member() const noexcept { return mMember; }
    const std::wstring& Description() const noexcept { return mDescription; }

    // Member, code and description in UTF-8.
    const char* what() const noexcept override { return mWhat.c_str(); }

  private:
    HRESULT mCode;
    std::wstring mMember;
    std::wstring mDescription;
    std::string mWhat;
};

// Whether the object has no member of this name: it is of another kind than its caller took it for.
bool IsMissingMember(const Error& error) noexcept;

// Whether the call has been denied, by the object model guard or since the member is no longer supported.
bool IsRefusal(const Error& error) noexcept;

// Whether a store cannot be reached: it is offline, or its server is.
bool IsUnreachable(const Error& error) noexcept;

// The codes of Outlook and ADO for an item or a row that has been deleted meanwhile.
inline constexpr HRESULT kItemNotFound = static_cast<HRESULT>(0x8004010F); // MAPI_E_NOT_FOUND
inline constexpr HRESULT kRowDeleted = static_cast<HRESULT>(0x80040E23);   // DB_E_DELETEDROW
bool IsGone(const Error& error) noexcept;

// Throws an Error when code is a failure.
void Check(HRESULT code, const wchar_t* member);

// The system's text of a code, without line break; "0x........" where the system has none.
std::wstring SystemText(HRESULT code);

} // namespace automation
