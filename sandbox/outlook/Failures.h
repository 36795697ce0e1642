// The failures that the fake Outlook reports: codes and descriptions as a client of Outlook meets them.
#pragma once

#include "automation/Error.h"

#include <string>

namespace sandbox::outlook
{

// An item, folder or link that is not there.
[[noreturn]] void FailNotFound(const wchar_t* member);
// An index outside a collection.
[[noreturn]] void FailDeleted(const wchar_t* member);
[[noreturn]] void FailOutOfBounds(const wchar_t* member);
// A value of a type that the member does not take.
[[noreturn]] void FailTypeMismatch(const wchar_t* member);
// A value of the right type that the member does not take, or a call that does not fit the object's state.
[[noreturn]] void FailInvalid(const wchar_t* member, const std::wstring& description);
// A member that the object model guard protects, if the user does not allow it at the prompt.
[[noreturn]] void FailGuarded(const wchar_t* member);
// A store that is not connected.
[[noreturn]] void FailOffline(const wchar_t* member);
// A member that this version has no longer.
[[noreturn]] void FailDeprecated(const wchar_t* member);
// A condition on a property that filters do not take.
[[noreturn]] void FailUnfiltered(std::wstring_view property);
// A column that a table does not take.
[[noreturn]] void FailColumn(const std::wstring& name);
// A filter that cannot be read from here on.
[[noreturn]] void FailCondition(std::wstring_view rest);

} // namespace sandbox::outlook
