#include "tests/support/Interceptor.h"

#include "automation/ComObject.h"
#include "automation/Error.h"

#include <atomic>
#include <utility>
#include <vector>

#include <oleauto.h>

namespace test_support
{

namespace
{

using Microsoft::WRL::ComPtr;
using InterceptorRef = std::shared_ptr<Interceptor>;

std::atomic<long> gAlive{0};

// A wrapper answers it with the object inside, which the fakes must get where they expect one of their own.
constexpr IID kInside = {0x0c0b7a38, 0x93d2, 0x4d5e, {0x9a, 0x51, 0x3e, 0x07, 0x8b, 0x62, 0x11, 0xd4}};

ComPtr<IDispatch> Inside(IDispatch* object)
{
    ComPtr<IDispatch> inside;
    const bool isWrapper =
        object != nullptr &&
        SUCCEEDED(object->QueryInterface(kInside, reinterpret_cast<void**>(inside.GetAddressOf())));
    return isWrapper ? inside : ComPtr<IDispatch>(object);
}

HRESULT Report(const automation::Error& error, EXCEPINFO* exception)
{
    if (exception == nullptr || HRESULT_FACILITY(error.Code()) == FACILITY_RPC)
    {
        return error.Code();
    }
    *exception = EXCEPINFO{};
    exception->scode = error.Code();
    exception->bstrDescription = SysAllocString(error.Description().c_str());
    return DISP_E_EXCEPTION;
}

class Wrapper : public automation::ComObject<IDispatch>
{
  public:
    Wrapper(IDispatch* inside, InterceptorRef interceptor, bool isRoot)
        : mInside(inside), mInterceptor(std::move(interceptor)), mIsRoot(isRoot)
    {
        ++gAlive;
    }

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        return id == kInside ? mInside.CopyTo(reinterpret_cast<IDispatch**>(result))
                             : ComObject::QueryInterface(id, result);
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return mInside->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override
    {
        *info = nullptr;
        const HRESULT answer = mInterceptor->OnLookup(L"(type)");
        return FAILED(answer) ? answer : mInside->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

  protected:
    ~Wrapper() override { --gAlive; }

  private:
    std::wstring NameOf(DISPID id);
    HRESULT Forward(DISPID id, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                    EXCEPINFO* exception, UINT* wrongArgument, bool wraps);

    ComPtr<IDispatch> mInside;
    InterceptorRef mInterceptor;
    bool mIsRoot;
    std::map<DISPID, std::wstring> mNames;
};

// Takes over the reference, and gives one to a wrapper.
IDispatch* Wrapped(IDispatch* object, const InterceptorRef& interceptor)
{
    if (object == nullptr)
    {
        return nullptr;
    }
    ComPtr<IDispatch> wrapper(new Wrapper(object, interceptor, false));
    object->Release();
    return wrapper.Detach();
}

// The arguments of a call as the object inside takes them: without wrappers. Objects that come back by
// reference go to the caller's places.
class InnerArguments
{
  public:
    explicit InnerArguments(const DISPPARAMS& given)
        : mParameters(given), mArguments(given.rgvarg, given.rgvarg + given.cArgs)
    {
        mHeld.reserve(given.cArgs); // the places are pointed to
        for (VARIANT& argument : mArguments)
        {
            if (argument.vt == VT_DISPATCH)
            {
                argument.pdispVal = Hold(argument.pdispVal);
            }
            else if (argument.vt == (VT_DISPATCH | VT_BYREF))
            {
                mReturned.push_back({argument.ppdispVal, mHeld.size()});
                Hold(*argument.ppdispVal);
                argument.ppdispVal = mHeld.back().GetAddressOf();
            }
        }
        mParameters.rgvarg = mArguments.data();
    }

    DISPPARAMS* Get() noexcept { return &mParameters; }

    // interceptor: for wrappers around what comes back; null for none.
    void GiveBack(const InterceptorRef& interceptor)
    {
        for (const auto& [place, held] : mReturned)
        {
            if (Inside(*place).Get() == mHeld[held].Get())
            {
                continue;
            }
            if (*place != nullptr)
            {
                (*place)->Release();
            }
            IDispatch* const returned = mHeld[held].Detach();
            *place = interceptor ? Wrapped(returned, interceptor) : returned;
        }
    }

  private:
    struct Returned
    {
        IDispatch** place;
        size_t held;
    };

    IDispatch* Hold(IDispatch* object)
    {
        mHeld.push_back(Inside(object));
        return mHeld.back().Get();
    }

    DISPPARAMS mParameters;
    std::vector<VARIANT> mArguments; // shallow copies
    std::vector<ComPtr<IDispatch>> mHeld;
    std::vector<Returned> mReturned;
};

STDMETHODIMP Wrapper::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID locale, DISPID* ids)
{
    const HRESULT answer = mInterceptor->OnLookup(names[0]);
    if (FAILED(answer))
    {
        return answer;
    }
    const HRESULT result = mInside->GetIDsOfNames(IID_NULL, names, count, locale, ids);
    if (SUCCEEDED(result))
    {
        mNames[ids[0]] = names[0];
    }
    return result;
}

// A client may know an id from another object of the same interface.
std::wstring Wrapper::NameOf(DISPID id)
{
    std::wstring& known = mNames[id];
    ComPtr<ITypeInfo> type;
    BSTR name = nullptr;
    UINT count = 0;
    if (known.empty() && SUCCEEDED(mInside->GetTypeInfo(0, LOCALE_SYSTEM_DEFAULT, &type)) &&
        SUCCEEDED(type->GetNames(id, &name, 1, &count)) && count == 1)
    {
        known = name;
        SysFreeString(name);
    }
    return known;
}

STDMETHODIMP Wrapper::Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters,
                             VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument)
{
    const ComPtr<IDispatch> alive(this); // the call may be the last that this object gets
    const std::wstring member = NameOf(id);
    automation::Value answer;
    VARIANT& given = *answer.Receive();
    try
    {
        const InterceptedCall call{member, *parameters, given, mIsRoot};
        if (mInterceptor->Before(call))
        {
            const HRESULT done = Forward(id, locale, flags, parameters, &given, exception, wrongArgument,
                                         mInterceptor->WrapsResultsOf(member));
            if (FAILED(done))
            {
                return done;
            }
            mInterceptor->After(call);
        }
        if (result != nullptr)
        {
            *result = answer.Detach();
        }
        return S_OK;
    }
    catch (const automation::Error& error)
    {
        return Report(error, exception);
    }
}

HRESULT Wrapper::Forward(DISPID id, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                         EXCEPINFO* exception, UINT* wrongArgument, bool wraps)
{
    InnerArguments arguments(*parameters);
    const HRESULT done =
        mInside->Invoke(id, IID_NULL, locale, flags, arguments.Get(), result, exception, wrongArgument);
    if (SUCCEEDED(done))
    {
        arguments.GiveBack(wraps ? mInterceptor : nullptr);
        if (wraps && result->vt == VT_DISPATCH)
        {
            result->pdispVal = Wrapped(result->pdispVal, mInterceptor);
        }
    }
    return done;
}

} // namespace

bool Hooks::Before(const InterceptedCall& call)
{
    ++calls[call.member];
    if (before)
    {
        before(call.member);
    }
    return true;
}

void Hooks::After(const InterceptedCall& call)
{
    if (after)
    {
        after(call.member, call.arguments, call.result);
    }
}

automation::Object Intercept(const automation::Object& object, std::shared_ptr<Interceptor> interceptor)
{
    if (!object)
    {
        return {};
    }
    const ComPtr<IDispatch> wrapper(new Wrapper(object.Dispatch(), std::move(interceptor), true));
    return automation::Object(wrapper.Get());
}

long InterceptedObjects() noexcept
{
    return gAlive;
}

} // namespace test_support
