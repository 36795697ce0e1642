#include "sandbox/dispatch/DispatchObject.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <algorithm>
#include <cwchar>

#include <oleauto.h>

namespace sandbox
{

namespace
{

std::atomic<long> gLiveObjects{0};
std::atomic<CallObserver*> gObserver{nullptr};
std::atomic<void (*)()> gLastObjectHandler{nullptr};

HRESULT Report(const automation::Error& error, EXCEPINFO* exception)
{
    const bool isPlainDispatchError =
        HRESULT_FACILITY(error.Code()) == FACILITY_DISPATCH && error.Code() != DISP_E_EXCEPTION;
    if (isPlainDispatchError || exception == nullptr)
    {
        return error.Code();
    }
    *exception = EXCEPINFO{};
    exception->scode = error.Code();
    exception->bstrSource = SysAllocString(L"Sandbox");
    exception->bstrDescription = SysAllocString(error.Description().c_str());
    return DISP_E_EXCEPTION;
}

} // namespace

CallObserver* Observe(CallObserver* observer) noexcept
{
    return gObserver.exchange(observer);
}

long LiveObjects() noexcept
{
    return gLiveObjects;
}

void WhenLastObjectGoes(void (*handler)()) noexcept
{
    gLastObjectHandler = handler;
}

const VARIANT& Call::Raw(size_t index) const
{
    if (index >= Count())
    {
        throw automation::Error(DISP_E_BADPARAMCOUNT, L"argument");
    }
    return mParameters.rgvarg[Count() - 1 - index];
}

Value Call::At(size_t index) const
{
    return index < Count() ? Value(Raw(index)) : Value::Missing();
}

void Call::Write(size_t index, const Value& value) const
{
    VARIANT target = Raw(index);
    if (target.vt == (VT_BYREF | VT_VARIANT))
    {
        automation::Check(VariantCopy(target.pvarVal, const_cast<VARIANT*>(&value.Raw())),
                          L"by-reference argument");
        return;
    }
    const auto type = static_cast<VARTYPE>(target.vt & ~VT_BYREF);
    if ((target.vt & VT_BYREF) == 0 || (type != VT_BSTR && type != VT_DISPATCH && type != VT_I4))
    {
        throw automation::Error(DISP_E_TYPEMISMATCH, L"by-reference argument");
    }
    Value converted;
    automation::Check(VariantChangeType(converted.Receive(), const_cast<VARIANT*>(&value.Raw()), 0, type),
                      L"by-reference argument");
    VARIANT given = converted.Detach();
    switch (type)
    {
    case VT_BSTR:
        SysFreeString(*target.pbstrVal);
        *target.pbstrVal = given.bstrVal;
        break;
    case VT_DISPATCH:
        if (*target.ppdispVal != nullptr)
        {
            (*target.ppdispVal)->Release();
        }
        *target.ppdispVal = given.pdispVal;
        break;
    default: *target.plVal = given.lVal; break;
    }
}

DispatchObject::DispatchObject() noexcept
{
    ++gLiveObjects;
}

DispatchObject::~DispatchObject()
{
    void (*const handler)() = gLastObjectHandler;
    if (--gLiveObjects == 0 && handler != nullptr)
    {
        handler();
    }
}

STDMETHODIMP DispatchObject::QueryInterface(REFIID id, void** result)
{
    if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch))
    {
        *result = nullptr;
        return E_NOINTERFACE;
    }
    *result = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) DispatchObject::AddRef()
{
    return ++mReferences;
}

STDMETHODIMP_(ULONG) DispatchObject::Release()
{
    const ULONG left = --mReferences;
    if (left == 0)
    {
        delete this;
    }
    return left;
}

STDMETHODIMP DispatchObject::GetTypeInfoCount(UINT* count)
{
    *count = TypeInformation() != nullptr ? 1 : 0;
    return S_OK;
}

STDMETHODIMP DispatchObject::GetTypeInfo(UINT index, LCID, ITypeInfo** info)
{
    if (CallObserver* observer = gObserver)
    {
        observer->OnNameLookup(ClassName(), L"(type)");
    }
    const Microsoft::WRL::ComPtr<ITypeInfo> information = TypeInformation();
    *info = nullptr;
    return index == 0 && information != nullptr ? information.CopyTo(info) : DISP_E_BADINDEX;
}

STDMETHODIMP DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    if (CallObserver* observer = gObserver)
    {
        observer->OnNameLookup(ClassName(), names[0]);
    }
    const MemberTable& members = Members();
    for (size_t i = 0; i < members.size(); ++i)
    {
        if (_wcsicmp(members[i].name, names[0]) == 0)
        {
            ids[0] = members[i].id != DISPID_UNKNOWN ? members[i].id : static_cast<DISPID>(i + 1);
            return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
        }
    }
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP DispatchObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                    VARIANT* result, EXCEPINFO* exception, UINT*)
{
    const Microsoft::WRL::ComPtr<IDispatch> alive(this);
    try
    {
        Value value = Run(id, flags, Call(*parameters, flags));
        if (result != nullptr)
        {
            *result = value.Detach();
        }
        return S_OK;
    }
    catch (const automation::Error& error)
    {
        return Report(error, exception);
    }
    catch (const std::exception& error)
    {
        return Report(automation::Error(E_FAIL, ClassName(), automation::FromUtf8(error.what())), exception);
    }
}

const Member* DispatchObject::Find(DISPID id) const
{
    const MemberTable& members = Members();
    if (!members.empty() && members.front().id != DISPID_UNKNOWN)
    {
        const auto found = std::ranges::find(members, id, &Member::id);
        return found == members.end() ? nullptr : &*found;
    }
    const auto index = static_cast<size_t>(id == DISPID_VALUE ? DefaultMember() : id - 1);
    return index < members.size() ? &members[index] : nullptr;
}

Value DispatchObject::Run(DISPID id, WORD flags, const Call& call)
{
    const Member* found = Find(id);
    if (found == nullptr)
    {
        throw automation::Error(DISP_E_MEMBERNOTFOUND, ClassName());
    }
    const Member& member = *found;
    if (CallObserver* observer = gObserver)
    {
        observer->OnCall(ClassName(), member.name);
        observer->OnArguments(ClassName(), member.name, call);
    }
    const bool isWrite = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (isWrite ? !member.write : !member.read)
    {
        throw automation::Error(DISP_E_MEMBERNOTFOUND, member.name);
    }
    BeforeMember(member, isWrite);
    if (isWrite)
    {
        member.write(*this, call);
        return {};
    }
    return member.read(*this, call);
}

} // namespace sandbox
