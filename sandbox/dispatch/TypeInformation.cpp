#include "sandbox/dispatch/TypeInformation.h"

#include "automation/Error.h"

#include <oleauto.h>

namespace sandbox
{

namespace
{

using Microsoft::WRL::ComPtr;

void AddProperty(ICreateTypeInfo& type, UINT index, const wchar_t* name)
{
    VARDESC property = {};
    property.memid = static_cast<MEMBERID>(index) + 1;
    property.varkind = VAR_DISPATCH;
    property.elemdescVar.tdesc.vt = VT_VARIANT;
    automation::Check(type.AddVarDesc(index, &property), name);
    automation::Check(type.SetVarName(index, const_cast<LPOLESTR>(name)), name);
}

} // namespace

ComPtr<ITypeInfo> MakeTypeInformation(const GUID& interfaceId, const wchar_t* name,
                                      const MemberTable& members)
{
    ComPtr<ICreateTypeLib2> library; // in memory: it is never saved under its name
    automation::Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, name, &library), name);
    ComPtr<ICreateTypeInfo> type;
    automation::Check(library->CreateTypeInfo(const_cast<LPOLESTR>(name), TKIND_DISPATCH, &type), name);
    automation::Check(type->SetGuid(interfaceId), name);
    for (UINT i = 0; i < members.size(); ++i)
    {
        AddProperty(*type.Get(), i, members[i].name);
    }
    ComPtr<ITypeInfo> information;
    automation::Check(type->QueryInterface(__uuidof(ITypeInfo), &information), name);
    return information;
}

} // namespace sandbox
