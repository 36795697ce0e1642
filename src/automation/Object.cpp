#include "automation/Object.h"

#include "automation/BusyServer.h"
#include "automation/Error.h"
#include "automation/ProxyHome.h"

#include <array>
#include <cstring>

#include <dispex.h>
#include <objbase.h>
#include <oleauto.h>
#include <wrl/client.h>

namespace automation
{

namespace
{

using Microsoft::WRL::ComPtr;

// The texts of an EXCEPINFO, freed when the call is over.
struct ExceptionInfo : EXCEPINFO
{
    ExceptionInfo() : EXCEPINFO{} {}
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo()
    {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }

    Error AsError(HRESULT result, const wchar_t* member)
    {
        if (result != DISP_E_EXCEPTION)
        {
            return {result, member};
        }
        if (pfnDeferredFillIn != nullptr)
        {
            pfnDeferredFillIn(this);
        }
        // Objects that number their errors themselves give the number alone.
        const HRESULT own = wCode != 0 ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, wCode) : scode;
        const HRESULT code = FAILED(own) ? own : DISP_E_EXCEPTION;
        return {code, member, std::wstring(bstrDescription, SysStringLen(bstrDescription))};
    }
};

// Objects of script classes know their members only through IDispatchEx.
HRESULT IdThroughDispatchEx(IDispatch& dispatch, const wchar_t* member, DISPID& id)
{
    ComPtr<IDispatchEx> extended;
    if (FAILED(dispatch.QueryInterface(__uuidof(IDispatchEx), &extended)))
    {
        return E_NOTIMPL;
    }
    BSTR name = SysAllocString(member);
    const HRESULT result = extended->GetDispID(name, fdexNameCaseInsensitive, &id);
    SysFreeString(name);
    return result;
}

struct TypeAttributes
{
    explicit TypeAttributes(ITypeInfo& of) : type(of)
    {
        RetriedWhileBusy([&] { return type.GetTypeAttr(&attributes); });
    }
    TypeAttributes(const TypeAttributes&) = delete;
    TypeAttributes& operator=(const TypeAttributes&) = delete;
    ~TypeAttributes()
    {
        if (attributes != nullptr)
        {
            type.ReleaseTypeAttr(attributes);
        }
    }

    ITypeInfo& type;
    TYPEATTR* attributes = nullptr;
};

// The identifier of the object's dispinterface; GUID_NULL for an object that has none, or does not tell it.
GUID InterfaceOf(IDispatch& dispatch)
{
    ComPtr<ITypeInfo> type;
    const HRESULT result =
        RetriedWhileBusy([&] { return dispatch.GetTypeInfo(0, LOCALE_SYSTEM_DEFAULT, &type); });
    if (FAILED(result) || type == nullptr)
    {
        return GUID_NULL;
    }
    const TypeAttributes of(*type.Get());
    return of.attributes != nullptr ? of.attributes->guid : GUID_NULL;
}

} // namespace

bool GuidOrder::operator()(const GUID& left, const GUID& right) const noexcept
{
    return std::memcmp(&left, &right, sizeof(GUID)) < 0;
}

struct Object::Target
{
    explicit Target(IDispatch* given) : dispatch(given), home(*given) {}
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    ~Target()
    {
        if (!home.MayRelease())
        {
            dispatch.Detach();
        }
    }

    DISPID IdOf(const wchar_t* member)
    {
        for (const auto& [name, id] : *ids)
        {
            if (name == member)
            {
                return id;
            }
        }
        DISPID id = DISPID_UNKNOWN;
        LPOLESTR name = const_cast<LPOLESTR>(member);
        HRESULT result = RetriedWhileBusy(
            [&] { return dispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_SYSTEM_DEFAULT, &id); });
        if (result == E_NOTIMPL)
        {
            result = IdThroughDispatchEx(*dispatch.Get(), member, id);
        }
        Check(result, member);
        ids->emplace_back(member, id);
        return id;
    }

    ComPtr<IDispatch> dispatch;
    ProxyHome home;
    std::shared_ptr<MemberIds> ids = std::make_shared<MemberIds>();
};

Object::Object(IDispatch* dispatch)
    : mTarget(dispatch != nullptr ? std::make_shared<Target>(dispatch) : nullptr)
{
}

Object Object::Create(const wchar_t* progId)
{
    CLSID classId;
    Check(CLSIDFromProgID(progId, &classId), progId);
    ComPtr<IDispatch> dispatch;
    Check(RetriedWhileBusy([&] {
              return CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                      __uuidof(IDispatch), &dispatch);
          }),
          progId);
    return Object(dispatch.Get());
}

IDispatch* Object::Dispatch() const noexcept
{
    return mTarget ? mTarget->dispatch.Get() : nullptr;
}

void Object::ShareMembers(InterfaceIds& interfaces) const
{
    const GUID interfaceId = mTarget ? InterfaceOf(*mTarget->dispatch.Get()) : GUID_NULL;
    if (interfaceId != GUID_NULL)
    {
        mTarget->ids = interfaces.try_emplace(interfaceId, mTarget->ids).first->second;
    }
}

Value Object::Property(const wchar_t* member) const
{
    return Invoke(member, DISPATCH_PROPERTYGET, nullptr, 0);
}

void Object::Put(const wchar_t* member, const Value& value) const
{
    Argument argument(value);
    Invoke(member, DISPATCH_PROPERTYPUT, &argument, 1);
}

void Object::PutRef(const wchar_t* member, const Object& object) const
{
    Argument argument{Value(object)};
    Invoke(member, DISPATCH_PROPERTYPUTREF, &argument, 1);
}

namespace
{

// The arguments as a call takes them: in reverse order, and for an assignment with the name that it demands.
class PassedArguments
{
  public:
    PassedArguments(Argument* arguments, size_t count, bool isWrite)
    {
        for (size_t i = 0; i < count; ++i)
        {
            mReversed[count - 1 - i] = arguments[i].Passed();
        }
        mParameters.cArgs = static_cast<UINT>(count);
        mParameters.rgvarg = mReversed.data();
        mParameters.cNamedArgs = isWrite ? 1 : 0;
        mParameters.rgdispidNamedArgs = isWrite ? &mPutId : nullptr;
    }
    PassedArguments(const PassedArguments&) = delete;
    PassedArguments& operator=(const PassedArguments&) = delete;

    static constexpr size_t kMost = 16;

    DISPPARAMS* Get() noexcept { return &mParameters; }

  private:
    std::array<VARIANT, kMost> mReversed;
    DISPID mPutId = DISPID_PROPERTYPUT;
    DISPPARAMS mParameters{};
};

} // namespace

Value Object::Invoke(const wchar_t* member, WORD flags, Argument* arguments, size_t count) const
{
    if (mTarget == nullptr)
    {
        throw Error(E_POINTER, member, L"Object variable not set");
    }
    if (count > PassedArguments::kMost)
    {
        throw Error(DISP_E_BADPARAMCOUNT, member);
    }
    const std::shared_ptr<Target> target =
        mTarget; // the call may replace the variable that holds this object
    const bool isWrite = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    PassedArguments passed(arguments, count, isWrite);
    const DISPID id = target->IdOf(member);
    Value result;
    ExceptionInfo exception;
    UINT wrongArgument = 0;
    const HRESULT code = RetriedWhileBusy([&] {
        return target->dispatch->Invoke(id, IID_NULL, LOCALE_SYSTEM_DEFAULT, flags, passed.Get(),
                                        isWrite ? nullptr : result.Receive(), &exception, &wrongArgument);
    });
    if (FAILED(code))
    {
        throw exception.AsError(code, member);
    }
    for (size_t i = 0; i < count; ++i)
    {
        arguments[i].WriteBack();
    }
    return result;
}

} // namespace automation
