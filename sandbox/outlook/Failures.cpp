#include "sandbox/outlook/Failures.h"

namespace sandbox::outlook
{

namespace
{

// MAPI's "not found", which Outlook hands through.
constexpr HRESULT kNotFound = static_cast<HRESULT>(0x8004010F);
// MAPI_E_OBJECT_DELETED.
constexpr HRESULT kDeleted = static_cast<HRESULT>(0x8004010A);
// Visual Basic's error 13, as an object raises it: unlike DISP_E_TYPEMISMATCH it carries a description.
constexpr HRESULT kTypeMismatch = static_cast<HRESULT>(0x800A000D);
// MAPI_E_OFFLINE ("What is MAPI_E_RECONNECTED?").
constexpr HRESULT kOffline = static_cast<HRESULT>(0x80040126);

} // namespace

void FailNotFound(const wchar_t* member)
{
    throw automation::Error(kNotFound, member,
                            L"The attempted operation failed. An object could not be found.");
}

void FailDeleted(const wchar_t* member)
{
    throw automation::Error(kDeleted, member, L"The item has been moved or deleted.");
}

void FailOutOfBounds(const wchar_t* member)
{
    throw automation::Error(E_INVALIDARG, member, L"Array index out of bounds.");
}

void FailTypeMismatch(const wchar_t* member)
{
    throw automation::Error(kTypeMismatch, member, std::wstring(L"Type mismatch: ") + member);
}

void FailInvalid(const wchar_t* member, const std::wstring& description)
{
    throw automation::Error(E_INVALIDARG, member, description);
}

void FailGuarded(const wchar_t* member)
{
    throw automation::Error(E_ABORT, member, L"Operation aborted");
}

void FailOffline(const wchar_t* member)
{
    throw automation::Error(kOffline, member,
                            L"The connection to Microsoft Exchange is unavailable. Outlook must be online or "
                            L"connected to complete this action.");
}

void FailDeprecated(const wchar_t* member)
{
    throw automation::Error(E_NOTIMPL, member, std::wstring(member) + L" is no longer supported.");
}

void FailUnfiltered(std::wstring_view property)
{
    throw automation::Error(E_INVALIDARG, L"filter",
                            L"Condition is not valid: \"" + std::wstring(property) +
                                L"\" cannot be filtered.");
}

void FailColumn(const std::wstring& name)
{
    throw automation::Error(E_INVALIDARG, L"Columns.Add",
                            L"The property \"" + name + L"\" does not support this operation.");
}

void FailCondition(std::wstring_view rest)
{
    throw automation::Error(E_INVALIDARG, L"filter",
                            L"Cannot parse condition. Error at \"" + std::wstring(rest) + L"\".");
}

} // namespace sandbox::outlook
