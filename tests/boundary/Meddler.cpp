#include "tests/boundary/Meddler.h"

#include "automation/ComObject.h"
#include "automation/Error.h"
#include "automation/Guard.h"
#include "tests/support/LeakCheck.h"

#include <atomic>

namespace boundary_tests
{

using automation::Object;

namespace
{

std::atomic<long> gAlive{0};

const test_support::LeakCheck kMeddled{"meddled objects", &MeddledObjects};

HRESULT AsException(const automation::Error& error, EXCEPINFO* exception)
{
    if (exception == nullptr)
    {
        return error.Code();
    }
    exception->scode = error.Code();
    exception->bstrDescription = SysAllocString(error.Description().c_str());
    return DISP_E_EXCEPTION;
}

class MeddledObject : public automation::ComObject<IDispatch>
{
  public:
    MeddledObject(const Object& original, std::shared_ptr<Meddling> meddling)
        : mOriginal(original.Dispatch()), mMeddling(std::move(meddling))
    {
        ++gAlive;
    }
    ~MeddledObject() override { --gAlive; }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return mOriginal->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override
    {
        return mOriginal->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override
    {
        const HRESULT result = mOriginal->GetIDsOfNames(reserved, names, count, locale, ids);
        if (SUCCEEDED(result) && count > 0)
        {
            mNames[ids[0]] = names[0];
        }
        return result;
    }

    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override
    {
        VARIANT ignored;
        VariantInit(&ignored);
        const std::wstring member = mNames[id];
        const auto meddling = mMeddling; // the call may be the last that this object sees
        try
        {
            ++meddling->calls[member];
            if (meddling->before)
            {
                meddling->before(member);
            }
            VARIANT& given = result != nullptr ? *result : ignored;
            const HRESULT code =
                mOriginal->Invoke(id, reserved, locale, flags, arguments, &given, exception, wrongArgument);
            if (SUCCEEDED(code))
            {
                Meddle(member, *arguments, given);
            }
            VariantClear(&ignored);
            return code;
        }
        catch (const automation::Error& error)
        {
            return AsException(error, exception);
        }
    }

  private:
    void Meddle(const std::wstring& member, DISPPARAMS& arguments, VARIANT& result) const
    {
        if (member == L"MyInfo" && result.vt == VT_DISPATCH)
        {
            const Object user = MakeMeddled(Object(result.pdispVal), mMeddling);
            VariantClear(&result);
            result.vt = VT_DISPATCH;
            result.pdispVal = user.Dispatch();
            result.pdispVal->AddRef();
        }
        if (mMeddling->after)
        {
            mMeddling->after(member, arguments, result);
        }
    }

    Microsoft::WRL::ComPtr<IDispatch> mOriginal;
    std::shared_ptr<Meddling> mMeddling;
    std::map<DISPID, std::wstring> mNames;
};

} // namespace

long MeddledObjects()
{
    return gAlive;
}

Object MakeMeddled(const Object& original, std::shared_ptr<Meddling> meddling)
{
    const Microsoft::WRL::ComPtr<IDispatch> made(new MeddledObject(original, std::move(meddling)));
    return Object(made.Get());
}

} // namespace boundary_tests
