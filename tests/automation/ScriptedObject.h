// An automation object whose every call a test answers, written against the raw interface: it shares no code
// with the layer under test. It lives on the stack of its test and must be released by everybody at its end.
#pragma once

#include "automation/Error.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include <dispex.h>
#include <oaidl.h>

namespace test_support
{

// One call as it arrives.
struct ArrivedCall
{
    DISPID id;
    WORD flags;
    DISPPARAMS& parameters; // as passed: the last argument first
    VARIANT* result;        // null where the caller wants none
    EXCEPINFO* exception;

    // An argument in the documented order.
    VARIANT& At(UINT index) const { return parameters.rgvarg[parameters.cArgs - 1 - index]; }
};

class ScriptedObject : public IDispatchEx
{
  public:
    ScriptedObject() = default;
    // One with type information, which tells this dispinterface.
    explicit ScriptedObject(const GUID& interfaceId) : HasType(true), mInterfaceId(interfaceId) {}
    ScriptedObject(const ScriptedObject&) = delete;
    ScriptedObject& operator=(const ScriptedObject&) = delete;
    ~ScriptedObject() { EXPECT_EQ(0, mReferences) << "somebody still holds the object"; }

    // The only member that the object has, in any letter case, and its number.
    std::wstring Member = L"Member";
    DISPID Id = 42;
    bool HasType = false;
    HRESULT TypeAnswer = S_OK;
    // Answers each call; by default it succeeds.
    std::function<HRESULT(const ArrivedCall& call)> OnCall = [](const ArrivedCall&) { return S_OK; };
    // An object of a script class knows its members through IDispatchEx only.
    bool IsOfScriptClass = false;
    // It looks like a proxy of an object of another apartment.
    bool IsProxy = false;
    // How often the member's number was asked for, by either interface.
    long NamesAsked = 0;
    DWORD FlagsOfName = 0;

    long References() const noexcept { return mReferences; }
    // A reference that is rightly not given back.
    void Forget() noexcept { --mReferences; }

    STDMETHODIMP QueryInterface(REFIID id, void** result) override;
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(++mReferences); }
    STDMETHODIMP_(ULONG) Release() override { return static_cast<ULONG>(--mReferences); }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

    STDMETHODIMP GetDispID(BSTR name, DWORD flags, DISPID* id) override;
    STDMETHODIMP InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, IServiceProvider*) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
    STDMETHODIMP GetMemberProperties(DISPID, DWORD, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }

  private:
    HRESULT Find(const wchar_t* name, DISPID* id);

    long mReferences = 0;
    GUID mInterfaceId = GUID_NULL;
};

// The code of the automation::Error that the body throws; S_OK when it throws none.
HRESULT CodeOf(const std::function<void()>& body);

} // namespace test_support
