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

// Throws an Error when code is a failure.
void Check(HRESULT code, const wchar_t* member);

// The system's text of a code, without line break; "0x........" where the system has none.
std::wstring SystemText(HRESULT code);

} // namespace automation
