#include "automation/LateBound.h"

#include "automation/Error.h"
#include "automation/Object.h"
#include "automation/Text.h"

#include <algorithm>

#include <oleauto.h>

namespace automation
{

namespace
{

// Answered by these objects only.
constexpr GUID kLateBoundId = {0x6c1b7c4e, 0x57a5, 0x4f0b, {0x8a, 0x3f, 0x9d, 0x2e, 0x1b, 0x64, 0x0c, 0x7d}};

constexpr WORD kWrites = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

// The caller of Invoke frees the texts.
HRESULT Described(const Error& error, EXCEPINFO* exception)
{
    if (exception == nullptr)
    {
        return error.Code();
    }
    *exception = {};
    exception->scode = error.Code();
    exception->bstrDescription = SysAllocString(error.Description().c_str());
    return DISP_E_EXCEPTION;
}

} // namespace

bool LateBound::Is(const Object& object) noexcept
{
    Microsoft::WRL::ComPtr<IDispatch> own;
    return object && SUCCEEDED(object.Dispatch()->QueryInterface(kLateBoundId, &own));
}

void* LateBound::Find(REFIID id) noexcept
{
    return id == kLateBoundId ? static_cast<IDispatch*>(this) : ComObject::Find(id);
}

STDMETHODIMP LateBound::GetTypeInfoCount(UINT* count)
{
    if (count == nullptr)
    {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP LateBound::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** result)
{
    if (result != nullptr)
    {
        *result = nullptr;
    }
    return DISP_E_BADINDEX;
}

// Any name may be asked for; whether there is such a member shows when it is read or written.
STDMETHODIMP LateBound::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                      DISPID* ids)
{
    if (names == nullptr || ids == nullptr || count != 1)
    {
        return DISP_E_UNKNOWNNAME;
    }
    const std::wstring wanted = UpperCased(names[0]);
    const auto found =
        std::ranges::find_if(mNames, [&](const std::wstring& name) { return UpperCased(name) == wanted; });
    *ids = static_cast<DISPID>(found - mNames.begin()) + 1;
    if (found == mNames.end())
    {
        mNames.emplace_back(names[0]);
    }
    return S_OK;
}

STDMETHODIMP LateBound::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                               DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                               UINT* /*wrongArgument*/)
{
    if (id < 1 || static_cast<size_t>(id) > mNames.size() || parameters == nullptr)
    {
        return DISP_E_MEMBERNOTFOUND;
    }
    try
    {
        Answer(mNames[static_cast<size_t>(id) - 1], flags, *parameters, result);
        return S_OK;
    }
    catch (const Error& error)
    {
        return Described(error, exception);
    }
    catch (...)
    {
        return E_FAIL;
    }
}

void LateBound::Answer(const std::wstring& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result)
{
    std::vector<Value> arguments;
    for (UINT i = parameters.cArgs; i > 0; --i)
    {
        arguments.emplace_back(parameters.rgvarg[i - 1]);
    }
    if ((flags & kWrites) == 0)
    {
        Value value = Read(member, arguments);
        if (result != nullptr)
        {
            *result = value.Detach();
        }
    }
    else if (!arguments.empty())
    {
        Write(member, arguments.back());
    }
}

} // namespace automation
