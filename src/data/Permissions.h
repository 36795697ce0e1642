// Whether the signed-in user holds a right in the host, in the component's own notion of kind, scope and
// operation. Asked by the collection procedures and the record writers before host rows are added or changed.
#pragma once

namespace data
{

// Kinds of host record that a right is asked for.
inline constexpr long kAccountRecord = 1;
inline constexpr long kContactRecord = 2;
inline constexpr long kActivityRecord = 3;
inline constexpr long kAccountCalendarRecord = 4;

// The scope that every caller of the component asks for.
inline constexpr long kUsualScope = 1;

// Operations that a right is asked for.
inline constexpr long kAddOperation = 2;
inline constexpr long kModifyOperation = 5;
inline constexpr long kAlwaysPermitted = 7; // passes without asking the host

// Asks the host, without any message. An error that the host raises means that the right is missing.
bool HasPermission(long kind, long scope, long operation);

// Tells the run's report that a right is missing, in the words of the message.
void TellMissingRight(long kind, long operation) noexcept;

// As HasPermission; where the right is missing, a message box in the interface language says which, and the
// run's report.
bool CheckPermission(long kind, long scope, long operation);

} // namespace data
