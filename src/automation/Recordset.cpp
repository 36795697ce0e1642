#include "automation/Recordset.h"

#include "automation/Error.h"

namespace automation
{

bool Recordset::AtEnd() const
{
    return TruthOf(mObject.Get(L"EOF"));
}

bool Recordset::AtStart() const
{
    return TruthOf(mObject.Get(L"BOF"));
}

bool Recordset::HasNoRows() const
{
    return AtEnd() && AtStart();
}

void Recordset::MoveFirst() const
{
    mObject.Call(L"MoveFirst");
}

void Recordset::MoveNext() const
{
    mObject.Call(L"MoveNext");
}

long Recordset::AbsolutePosition() const
{
    return LongOf(mObject.Get(L"AbsolutePosition"));
}

void Recordset::MoveTo(long position) const
{
    mObject.Call(L"Move", 0L, static_cast<double>(position));
}

void Recordset::GoTo(long position) const
{
    mObject.Put(L"AbsolutePosition", position);
}

long Recordset::RecordCount() const
{
    return LongOf(mObject.Get(L"RecordCount"));
}

Value Recordset::ValueOf(const std::wstring& column) const
{
    auto field = mFields.find(column);
    if (field == mFields.end())
    {
        field = mFields.emplace(column, mObject.GetObject(L"Fields", column)).first;
    }
    return field->second.Get(L"Value");
}

Recordset OpenRecordset(const std::wstring& source, const std::wstring& connection,
                        const OpenOptions& options)
{
    const Object recordset = Object::Create(L"ADODB.Recordset");
    if (options.cursorLocation != 0)
    {
        recordset.Put(L"CursorLocation", options.cursorLocation);
    }
    recordset.Call(L"Open", source, connection, options.cursorType, options.lockType, options.commandType);
    return Recordset(recordset);
}

void CloseRecordset(Recordset& recordset) noexcept
{
    try
    {
        if (recordset && LongOf(recordset.AsObject().Get(L"State")) == kStateOpen)
        {
            recordset.AsObject().Call(L"Close");
        }
    }
    catch (const std::exception&)
    {
        // Forgiving on purpose: whatever state the recordset is in, the variable lets it go.
    }
    recordset = {};
}

} // namespace automation
