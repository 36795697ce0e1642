#include "tests/automation/ScriptedObject.h"

#include "automation/Error.h"

#include <oleauto.h>

namespace test_support
{

namespace
{

// A dispatch interface without members, in a type library in memory.
Microsoft::WRL::ComPtr<ITypeInfo> MakeTypeInformation(const GUID& interfaceId)
{
    wchar_t name[] = L"Scripted";
    Microsoft::WRL::ComPtr<ICreateTypeLib2> library;
    automation::Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, name, &library), name);
    Microsoft::WRL::ComPtr<ICreateTypeInfo> type;
    automation::Check(library->CreateTypeInfo(name, TKIND_DISPATCH, &type), name);
    automation::Check(type->SetGuid(interfaceId), name);
    Microsoft::WRL::ComPtr<ITypeInfo> information;
    automation::Check(type->QueryInterface(__uuidof(ITypeInfo), &information), name);
    return information;
}

} // namespace

HRESULT ScriptedObject::QueryInterface(REFIID id, void** result)
{
    const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(IDispatch) ||
                         (IsOfScriptClass && id == __uuidof(IDispatchEx)) ||
                         (IsProxy && id == __uuidof(IClientSecurity));
    *result = isKnown ? static_cast<IDispatchEx*>(this) : nullptr;
    if (!isKnown)
    {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT ScriptedObject::GetTypeInfoCount(UINT* count)
{
    *count = HasType ? 1 : 0;
    return S_OK;
}

HRESULT ScriptedObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info)
{
    EXPECT_EQ(0u, index);
    *info = nullptr;
    if (!HasType || FAILED(TypeAnswer))
    {
        return HasType ? TypeAnswer : E_NOTIMPL;
    }
    return MakeTypeInformation(mInterfaceId).CopyTo(info);
}

HRESULT ScriptedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    EXPECT_EQ(1u, count);
    return IsOfScriptClass ? E_NOTIMPL : Find(names[0], ids);
}

HRESULT ScriptedObject::GetDispID(BSTR name, DWORD flags, DISPID* id)
{
    FlagsOfName = flags;
    return Find(name, id);
}

HRESULT ScriptedObject::Find(const wchar_t* name, DISPID* id)
{
    ++NamesAsked;
    const bool isMember = lstrcmpiW(name, Member.c_str()) == 0;
    *id = isMember ? Id : DISPID_UNKNOWN;
    return isMember ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT ScriptedObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                               EXCEPINFO* exception, UINT*)
{
    EXPECT_EQ(Id, id);
    return OnCall({id, flags, *parameters, result, exception});
}

HRESULT CodeOf(const std::function<void()>& body)
{
    try
    {
        body();
        return S_OK;
    }
    catch (const automation::Error& error)
    {
        return error.Code();
    }
}

} // namespace test_support
