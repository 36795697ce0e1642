// The fake for ADO's Recordset with a client-side cursor: its rows are fetched whole when it is opened,
// then walked; the switches (AwkwardAdo.h) make it one of the other documented kinds. Members and errors are
// those that ADO publishes, as far as the component and its host use them.
#pragma once

#include "sandbox/ado/Cursor.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <memory>

namespace sandbox
{

// ADO's ErrorValueEnum as HRESULTs, as far as used.
inline constexpr HRESULT kNoCurrentRecord = static_cast<HRESULT>(0x800A0BCD); // 3021
inline constexpr HRESULT kNotCapable = static_cast<HRESULT>(0x800A0CB3);      // 3251
inline constexpr HRESULT kItemNotFound = static_cast<HRESULT>(0x800A0CC1);    // 3265
inline constexpr HRESULT kObjectClosed = static_cast<HRESULT>(0x800A0E78);    // 3704
inline constexpr HRESULT kObjectOpen = static_cast<HRESULT>(0x800A0E79);      // 3705
inline constexpr HRESULT kNoConnection = static_cast<HRESULT>(0x800A0E7D);    // 3709
inline constexpr HRESULT kInvalidArgument = static_cast<HRESULT>(0x800A0BB9); // 3001
inline constexpr HRESULT kRowDeleted = static_cast<HRESULT>(0x80040E23);      // DB_E_DELETEDROW

// Recordsets of this process that have been opened and not closed; one that is released without having been
// closed stays among them.
long OpenRecordsets() noexcept;

// A closed recordset, as CreateObject("ADODB.Recordset") gives it.
automation::Object MakeRecordset(AwkwardAdo awkward = RecordsetsOfProcess());

// A recordset that is open over rows fetched already, on the first of them: a client's static cursor.
// A keyset fetches its rows again by the function.
automation::Object MakeRecordset(ResultSet rows, AwkwardAdo awkward = {}, Requery requery = nullptr);

} // namespace sandbox
