// Late binding for ClsSynOutlook: the type library does the work, after two adjustments for callers that know
// no types.
#include "entry/ClsSynOutlook.h"

#include "automation/Error.h"
#include "automation/Guard.h"
#include "resources/Strings.h"

#include <cstring>
#include <vector>

namespace entry
{

namespace
{

using Microsoft::WRL::ComPtr;

constexpr DISPID kFontId = 6; // as in the type library

ComPtr<ITypeInfo> LoadDefaultInterface()
{
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(resources::Module(), path, ARRAYSIZE(path));
    ComPtr<ITypeLib> library;
    automation::Check(LoadTypeLibEx(path, REGKIND_NONE, &library), L"LoadTypeLibEx");
    ComPtr<ITypeInfo> info;
    automation::Check(library->GetTypeInfoOfGuid(__uuidof(_ClsSynOutlook), &info), L"GetTypeInfoOfGuid");
    return info;
}

// Script engines pass every plain variable as a reference to a variant, which ITypeInfo::Invoke refuses for
// typed parameters. No member writes to its arguments, so what such a reference holds serves as well.
VARIANTARG WithoutVariantReference(const VARIANTARG& argument)
{
    if (argument.vt != (VT_BYREF | VT_VARIANT))
    {
        return argument;
    }
    VARIANTARG held;
    std::memcpy(&held, argument.pvarVal, sizeof held); // script engines align their variables as they like
    return held;
}

// "obj.Font = font" without "Set" means the same as with it.
WORD WriteByReference(DISPID id, WORD flags)
{
    return id == kFontId && (flags & DISPATCH_PROPERTYPUT) != 0 ? WORD{DISPATCH_PROPERTYPUTREF} : flags;
}

} // namespace

STDMETHODIMP ClsSynOutlook::GetTypeInfoCount(UINT* count)
{
    *count = 1;
    return S_OK;
}

STDMETHODIMP ClsSynOutlook::GetTypeInfo(UINT index, LCID, ITypeInfo** info)
{
    return automation::Guard([&]() -> HRESULT {
        *info = nullptr;
        if (index != 0)
        {
            return DISP_E_BADINDEX;
        }
        if (!mTypeInfo)
        {
            mTypeInfo = LoadDefaultInterface();
        }
        return mTypeInfo.CopyTo(info);
    });
}

STDMETHODIMP ClsSynOutlook::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID locale, DISPID* ids)
{
    ComPtr<ITypeInfo> info;
    const HRESULT result = GetTypeInfo(0, locale, &info);
    return FAILED(result) ? result : info->GetIDsOfNames(names, count, ids);
}

STDMETHODIMP ClsSynOutlook::Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument)
{
    return automation::Guard([&] {
        ComPtr<ITypeInfo> info;
        automation::Check(GetTypeInfo(0, locale, &info), L"GetTypeInfo");
        std::vector<VARIANTARG> arguments;
        for (UINT i = 0; i < parameters->cArgs; ++i)
        {
            arguments.push_back(WithoutVariantReference(parameters->rgvarg[i]));
        }
        DISPPARAMS adjusted = *parameters;
        adjusted.rgvarg = arguments.data();
        return info->Invoke(static_cast<_ClsSynOutlook*>(this), id, WriteByReference(id, flags), &adjusted,
                            result, exception, wrongArgument);
    });
}

} // namespace entry
