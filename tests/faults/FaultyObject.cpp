#include "tests/faults/FaultyObject.h"

#include "automation/Error.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <vector>

#include <oleauto.h>
#include <wrl/client.h>

namespace test_support
{

namespace
{

using Microsoft::WRL::ComPtr;

std::atomic<long> gLiveWrappers{0};

// By it a wrapper gives the object inside, which the fakes must get where they expect one of their own.
constexpr IID kInside = {0x0c0b7a38, 0x93d2, 0x4d5e, {0x9a, 0x51, 0x3e, 0x07, 0x8b, 0x62, 0x11, 0xd4}};

// Members of the host whose result is a status.
constexpr std::array<const wchar_t*, 5> kStatusMembers = {L"OpenRecordset", L"OpenRecordsetByString",
                                                          L"Insert", L"Update", L"Delete"};

constexpr long kRefusal = -77;

ComPtr<IDispatch> Inside(IDispatch* object)
{
    ComPtr<IDispatch> inside;
    const bool isWrapper =
        object != nullptr &&
        SUCCEEDED(object->QueryInterface(kInside, reinterpret_cast<void**>(inside.GetAddressOf())));
    return isWrapper ? inside : ComPtr<IDispatch>(object);
}

// Counts a call that the kind of fault can strike; whether this is the one.
bool Strikes(Faults& faults, const std::wstring& member)
{
    if (++faults.Calls != faults.At)
    {
        return false;
    }
    faults.StruckMember = member;
    return true;
}

class FaultyObject : public IDispatch
{
  public:
    FaultyObject(IDispatch* inside, FaultsRef faults, bool isHost)
        : mInside(inside), mFaults(std::move(faults)), mIsHost(isHost)
    {
        ++gLiveWrappers;
    }
    FaultyObject(const FaultyObject&) = delete;
    FaultyObject& operator=(const FaultyObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        if (id == kInside)
        {
            return mInside.CopyTo(reinterpret_cast<IDispatch**>(result));
        }
        const bool isMine = id == __uuidof(IUnknown) || id == __uuidof(IDispatch);
        *result = isMine ? static_cast<IDispatch*>(this) : nullptr;
        if (isMine)
        {
            AddRef();
        }
        return isMine ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --mReferences;
        if (left == 0)
        {
            delete this;
        }
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return mInside->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override
    {
        *info = nullptr;
        const bool strikes = mFaults->Kind != Fault::Refuses && Strikes(*mFaults, L"(type)");
        return strikes ? RPC_E_DISCONNECTED : mInside->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

  private:
    virtual ~FaultyObject() { --gLiveWrappers; }

    const std::wstring& NameOf(DISPID id);
    bool IsStatus(const std::wstring& member) const
    {
        return mIsHost && std::ranges::find(kStatusMembers, member) != kStatusMembers.end();
    }
    HRESULT Forward(DISPID id, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                    EXCEPINFO* exception, UINT* wrongArgument);

    std::atomic<ULONG> mReferences{0};
    ComPtr<IDispatch> mInside;
    FaultsRef mFaults;
    bool mIsHost;
    std::map<DISPID, std::wstring> mNames;
};

// Takes over the reference, and gives one to a wrapper.
IDispatch* Wrapped(IDispatch* object, const FaultsRef& faults)
{
    if (object == nullptr)
    {
        return nullptr;
    }
    ComPtr<IDispatch> wrapper(new FaultyObject(object, faults, false));
    object->Release();
    return wrapper.Detach();
}

// The arguments of a call as the object inside takes them: wrappers taken off, and put on again around what
// comes back by reference.
class InnerArguments
{
  public:
    InnerArguments(const DISPPARAMS& given, FaultsRef faults)
        : mFaults(std::move(faults)), mParameters(given), mArguments(given.rgvarg, given.rgvarg + given.cArgs)
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

    void GiveBack()
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
            *place = Wrapped(mHeld[held].Detach(), mFaults);
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

    FaultsRef mFaults;
    DISPPARAMS mParameters;
    std::vector<VARIANT> mArguments; // shallow copies
    std::vector<ComPtr<IDispatch>> mHeld;
    std::vector<Returned> mReturned;
};

// An error of the object's own, or of the way to it.
HRESULT Injected(long number, EXCEPINFO* exception)
{
    if (number % 2 == 0 || exception == nullptr)
    {
        return RPC_E_DISCONNECTED;
    }
    *exception = EXCEPINFO{};
    exception->scode = E_FAIL;
    exception->bstrSource = SysAllocString(L"Faults");
    exception->bstrDescription = SysAllocString(L"Injected");
    return DISP_E_EXCEPTION;
}

STDMETHODIMP FaultyObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID locale, DISPID* ids)
{
    if (mFaults->Kind == Fault::Raises && Strikes(*mFaults, names[0]))
    {
        return RPC_E_DISCONNECTED;
    }
    const HRESULT result = mInside->GetIDsOfNames(IID_NULL, names, count, locale, ids);
    if (SUCCEEDED(result))
    {
        mNames[ids[0]] = names[0];
    }
    return result;
}

// An id that this object was not asked for is known from another one of its interface.
const std::wstring& FaultyObject::NameOf(DISPID id)
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

STDMETHODIMP FaultyObject::Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters,
                                  VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument)
{
    const ComPtr<IDispatch> alive(this);
    const std::wstring& member = NameOf(id);
    const bool canStrike = mFaults->Kind != Fault::Refuses || IsStatus(member);
    const bool strikes = canStrike && Strikes(*mFaults, member);
    if (strikes && mFaults->Kind == Fault::Refuses)
    {
        result->vt = VT_I4;
        result->lVal = kRefusal;
        return S_OK;
    }
    if (strikes && mFaults->Kind == Fault::Raises)
    {
        return Injected(mFaults->At, exception);
    }
    const HRESULT done = Forward(id, locale, flags, parameters, result, exception, wrongArgument);
    if (strikes && SUCCEEDED(done))
    {
        if (result != nullptr)
        {
            VariantClear(result);
        }
        return Injected(mFaults->At, exception);
    }
    return done;
}

HRESULT FaultyObject::Forward(DISPID id, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                              EXCEPINFO* exception, UINT* wrongArgument)
{
    InnerArguments arguments(*parameters, mFaults);
    const HRESULT done =
        mInside->Invoke(id, IID_NULL, locale, flags, arguments.Get(), result, exception, wrongArgument);
    if (SUCCEEDED(done))
    {
        arguments.GiveBack();
        if (result != nullptr && result->vt == VT_DISPATCH)
        {
            result->pdispVal = Wrapped(result->pdispVal, mFaults);
        }
    }
    return done;
}

} // namespace

automation::Object WithFaults(const automation::Object& object, const FaultsRef& faults, bool isHost)
{
    if (!object)
    {
        return {};
    }
    const ComPtr<IDispatch> wrapper(new FaultyObject(object.Dispatch(), faults, isHost));
    return automation::Object(wrapper.Get());
}

void CountCreation(Faults& faults)
{
    if (faults.Kind == Fault::Raises && Strikes(faults, L"CreateInstance"))
    {
        throw automation::Error(E_OUTOFMEMORY, L"CreateInstance");
    }
}

long LiveWrappers() noexcept
{
    return gLiveWrappers;
}

} // namespace test_support
