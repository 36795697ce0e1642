#include "data/FieldCatalogue.h"

#include "automation/Recordset.h"
#include "state/SharedState.h"

namespace data
{

namespace
{

constexpr automation::OpenOptions kAsTable{automation::kCursorUnspecified, automation::kLockReadOnly,
                                           automation::kCommandTable};

} // namespace

const FieldDescription* FieldCatalogue::Find(const std::wstring& column)
{
    if (!mFields)
    {
        mFields = Read();
    }
    const auto field = mFields->find(column);
    return field == mFields->end() ? nullptr : &field->second;
}

FieldCatalogue::Fields FieldCatalogue::Read()
{
    automation::Recordset rows =
        automation::OpenRecordset(L"SynFields", state::Shared().gCnnString, kAsTable);
    const automation::RecordsetCloser closer(rows);
    Fields fields;
    for (; !rows.AtEnd(); rows.MoveNext())
    {
        fields.emplace(rows.NameIn(L"FieldName"),
                       FieldDescription{rows.ValueOf(L"FieldType"), rows.ValueOf(L"FieldSize")});
    }
    return fields;
}

} // namespace data
