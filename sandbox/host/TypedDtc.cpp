#include "sandbox/host/TypedDtc.h"

#include "automation/ComObject.h"
#include "sandbox/host/TypedInterface.h"

#include <utility>

namespace sandbox
{

namespace
{

using Microsoft::WRL::ComPtr;

VARIANT ByRefText(BSTR* text)
{
    VARIANT argument{};
    argument.vt = VT_BYREF | VT_BSTR;
    argument.pbstrVal = text;
    return argument;
}

VARIANT ByRefObject(IDispatch** object)
{
    VARIANT argument{};
    argument.vt = VT_BYREF | VT_DISPATCH;
    argument.ppdispVal = object;
    return argument;
}

VARIANT ByRefNumber(LONG* number)
{
    VARIANT argument{};
    argument.vt = VT_BYREF | VT_I4;
    argument.plVal = number;
    return argument;
}

template<typename T>
HRESULT Given(HRESULT code, Value& value, T VARIANT::*member, T* result)
{
    if (SUCCEEDED(code))
    {
        VARIANT given = value.Detach();
        *result = given.*member;
    }
    return code;
}

// The class of the host's users, "MyInfo".
struct UserMethods
{
    virtual HRESULT STDMETHODCALLTYPE Uid(BSTR* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE PermissionOn(LONG* module, LONG* function, LONG* right,
                                                   LONG* result) = 0;
};

const TypedMethod kUserMethods[] = {
    {L"UID", {}, VT_BSTR, true},
    {L"PermissionOn", {VT_I4, VT_I4, VT_I4}, VT_I4},
};

struct DtcMethods
{
    virtual HRESULT STDMETHODCALLTYPE OpenRecordset(IDispatch** rows, BSTR* source, VARIANT* options,
                                                    VARIANT* filter, LONG* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE OpenRecordsetByString(IDispatch** rows, BSTR* sql, LONG* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE Insert(BSTR* table, BSTR* fields, BSTR* values, BSTR* text,
                                             LONG* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE Update(BSTR* table, BSTR* setList, BSTR* text, BSTR* condition,
                                             LONG* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE Delete(BSTR* table, BSTR* condition, LONG* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE NewGuid(BSTR* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE MyInfo(IDispatch** result) = 0;
    virtual HRESULT STDMETHODCALLTYPE SysDateTime(DATE* result) = 0;
    virtual HRESULT STDMETHODCALLTYPE BeginTrans() = 0;
    virtual HRESULT STDMETHODCALLTYPE CommitTrans() = 0;
    virtual HRESULT STDMETHODCALLTYPE RollbackTrans() = 0;
    virtual HRESULT STDMETHODCALLTYPE InTransaction(VARIANT_BOOL* result) = 0;
};

const TypedMethod kDtcMethods[] = {
    {L"OpenRecordset", {VT_DISPATCH, VT_BSTR, VT_VARIANT, VT_VARIANT}, VT_I4, false, 2},
    {L"OpenRecordsetByString", {VT_DISPATCH, VT_BSTR}, VT_I4},
    {L"Insert", {VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR}, VT_I4},
    {L"Update", {VT_BSTR, VT_BSTR, VT_BSTR, VT_BSTR}, VT_I4},
    {L"Delete", {VT_BSTR, VT_BSTR}, VT_I4},
    {L"NewGuid", {}, VT_BSTR},
    {L"MyInfo", {}, VT_DISPATCH, true},
    {L"SysDateTime", {}, VT_DATE, true},
    {L"BeginTrans", {}},
    {L"CommitTrans", {}},
    {L"RollbackTrans", {}},
    {L"InTransaction", {}, VT_BOOL, true},
};

// The dispatch half of such a class; Methods is the other one.
template<typename Methods>
class TypedObject : public automation::ComObject<IDispatch>, public Methods
{
  public:
    TypedObject(const automation::Object& plain, ComPtr<ITypeInfo> type)
        : mPlain(plain), mType(std::move(type))
    {
    }

    STDMETHODIMP QueryInterface(REFIID id, void** result) override
    {
        const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(IDispatch);
        *result = isKnown ? static_cast<IDispatch*>(this) : nullptr;
        return isKnown ? this->AddRef(), S_OK : E_NOINTERFACE;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        *count = 1;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override
    {
        *info = nullptr;
        return index == 0 ? mType.CopyTo(info) : DISP_E_BADINDEX;
    }

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override
    {
        return mType->GetIDsOfNames(names, count, ids);
    }

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* wrongArgument) override
    {
        return InvokeMethod(*mType.Get(), static_cast<Methods*>(this), id, flags, parameters, result,
                            exception, wrongArgument);
    }

  protected:
    HRESULT Call(const wchar_t* member, std::vector<VARIANT> arguments, Value& result)
    {
        return Forward(mPlain, member, std::move(arguments), result);
    }

    HRESULT Number(const wchar_t* member, std::vector<VARIANT> arguments, LONG* result)
    {
        Value value;
        return Given(Call(member, std::move(arguments), value), value, &VARIANT::lVal, result);
    }

  private:
    automation::Object mPlain;
    ComPtr<ITypeInfo> mType;
};

class TypedUser : public TypedObject<UserMethods>
{
  public:
    explicit TypedUser(const automation::Object& plain)
        : TypedObject(plain, DescribeMethods(L"MyInfo", kUserMethods))
    {
    }

    HRESULT STDMETHODCALLTYPE Uid(BSTR* result) override
    {
        Value value;
        return Given(Call(L"UID", {}, value), value, &VARIANT::bstrVal, result);
    }

    HRESULT STDMETHODCALLTYPE PermissionOn(LONG* module, LONG* function, LONG* right, LONG* result) override
    {
        return Number(L"PermissionOn", {ByRefNumber(module), ByRefNumber(function), ByRefNumber(right)},
                      result);
    }
};

class TypedDtc : public TypedObject<DtcMethods>
{
  public:
    explicit TypedDtc(const automation::Object& plain)
        : TypedObject(plain, DescribeMethods(L"DTC", kDtcMethods))
    {
    }

    HRESULT STDMETHODCALLTYPE OpenRecordset(IDispatch** rows, BSTR* source, VARIANT* options, VARIANT* filter,
                                            LONG* result) override
    {
        return Number(L"OpenRecordset", {ByRefObject(rows), ByRefText(source), *options, *filter}, result);
    }

    HRESULT STDMETHODCALLTYPE OpenRecordsetByString(IDispatch** rows, BSTR* sql, LONG* result) override
    {
        return Number(L"OpenRecordsetByString", {ByRefObject(rows), ByRefText(sql)}, result);
    }

    HRESULT STDMETHODCALLTYPE Insert(BSTR* table, BSTR* fields, BSTR* values, BSTR* text,
                                     LONG* result) override
    {
        return Number(L"Insert", {ByRefText(table), ByRefText(fields), ByRefText(values), ByRefText(text)},
                      result);
    }

    HRESULT STDMETHODCALLTYPE Update(BSTR* table, BSTR* setList, BSTR* text, BSTR* condition,
                                     LONG* result) override
    {
        return Number(L"Update",
                      {ByRefText(table), ByRefText(setList), ByRefText(text), ByRefText(condition)}, result);
    }

    HRESULT STDMETHODCALLTYPE Delete(BSTR* table, BSTR* condition, LONG* result) override
    {
        return Number(L"Delete", {ByRefText(table), ByRefText(condition)}, result);
    }

    HRESULT STDMETHODCALLTYPE NewGuid(BSTR* result) override
    {
        Value value;
        return Given(Call(L"NewGuid", {}, value), value, &VARIANT::bstrVal, result);
    }

    HRESULT STDMETHODCALLTYPE MyInfo(IDispatch** result) override
    {
        Value value;
        const HRESULT code = Call(L"MyInfo", {}, value);
        if (SUCCEEDED(code))
        {
            ComPtr<IDispatch>(new TypedUser(automation::ObjectOf(value))).CopyTo(result);
        }
        return code;
    }

    HRESULT STDMETHODCALLTYPE SysDateTime(DATE* result) override
    {
        Value value;
        return Given(Call(L"SysDateTime", {}, value), value, &VARIANT::date, result);
    }

    HRESULT STDMETHODCALLTYPE BeginTrans() override { return Plain(L"BeginTrans"); }
    HRESULT STDMETHODCALLTYPE CommitTrans() override { return Plain(L"CommitTrans"); }
    HRESULT STDMETHODCALLTYPE RollbackTrans() override { return Plain(L"RollbackTrans"); }

    HRESULT STDMETHODCALLTYPE InTransaction(VARIANT_BOOL* result) override
    {
        Value value;
        return Given(Call(L"InTransaction", {}, value), value, &VARIANT::boolVal, result);
    }

  private:
    HRESULT Plain(const wchar_t* member)
    {
        Value nothing;
        return Call(member, {}, nothing);
    }
};

} // namespace

automation::Object MakeTypedDtc(const automation::Object& dtc)
{
    return automation::Object(ComPtr<IDispatch>(new TypedDtc(dtc)).Get());
}

} // namespace sandbox
