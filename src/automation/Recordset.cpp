#include "automation/Recordset.h"

#include "automation/Error.h"
#include "automation/Text.h"

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
    return FieldOf(column).Get(L"Value");
}

std::wstring Recordset::NameIn(const std::wstring& column) const
{
    constexpr long kChar = 129;  // adChar
    constexpr long kWChar = 130; // adWChar
    std::wstring text = TextOrEmpty(ValueOf(column));
    if (!text.ends_with(L' '))
    {
        return text;
    }
    const long type = LongOf(FieldOf(column).Get(L"Type"));
    return type == kChar || type == kWChar ? Trimmed(text) : text;
}

const Object& Recordset::FieldOf(const std::wstring& column) const
{
    auto field = mFields.find(column);
    if (field == mFields.end())
    {
        field = mFields.emplace(column, mObject.GetObject(L"Fields", column)).first;
    }
    return field->second;
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
