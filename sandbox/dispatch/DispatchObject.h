// The base of every automation object of the fakes: late binding by a table of members per class, errors
// with descriptions, a count of the objects alive, and a place where a test can watch or fail every call.
#pragma once

#include "automation/Object.h"
#include "automation/Value.h"

#include <atomic>
#include <functional>
#include <string>
#include <vector>

#include <windows.h>

#include <oaidl.h>
#include <wrl/client.h>

namespace sandbox
{

using automation::Value;

// One incoming call: its arguments in the documented order.
class Call
{
  public:
    explicit Call(const DISPPARAMS& parameters, WORD flags) : mParameters(parameters), mFlags(flags) {}

    size_t Count() const noexcept { return mParameters.cArgs; }
    // A copy of an argument, references resolved; Missing for one that was left out.
    Value At(size_t index) const;
    // The argument as it was passed.
    const VARIANT& Raw(size_t index) const;
    // True for "Set x.member = object", false for a plain assignment.
    bool IsPutRef() const noexcept { return (mFlags & DISPATCH_PROPERTYPUTREF) != 0; }
    // The value assigned, for a write: the last argument.
    Value Assigned() const { return At(Count() - 1); }
    // Writes to a by-reference argument, in the type that the caller passed; throws DISP_E_TYPEMISMATCH for
    // one that is not by reference or cannot hold the value.
    void Write(size_t index, const Value& value) const;

  private:
    const DISPPARAMS& mParameters;
    WORD mFlags;
};

class DispatchObject;

struct Member
{
    const wchar_t* name;
    // Reads the property, or calls the method; null for a write-only member.
    std::function<Value(DispatchObject& self, const Call& call)> read;
    // Writes the property; null for a member that cannot be written.
    std::function<void(DispatchObject& self, const Call& call)> write;
    // Unknown: the index in the table plus one.
    DISPID id = DISPID_UNKNOWN;
};

using MemberTable = std::vector<Member>;

// Watches the calls that reach fake objects of this process. OnCall runs before the call and may throw
// automation::Error, which the caller then sees as the member's own failure.
class CallObserver
{
  public:
    virtual ~CallObserver() = default;
    virtual void OnCall(const wchar_t* className, const wchar_t* member) = 0;
    // The same call with its arguments, for observers that want to see them.
    virtual void OnArguments(const wchar_t* /*className*/, const wchar_t* /*member*/, const Call& /*call*/) {}
    // A client asks for the DISPID of a member by its name, or for the object's type information ("(type)"):
    // a round trip of its own, but no call.
    virtual void OnNameLookup(const wchar_t* /*className*/, const wchar_t* /*member*/) {}
};

// Sets the observer of this process (null for none) and returns the one before.
CallObserver* Observe(CallObserver* observer) noexcept;

// Fake objects alive in this process.
long LiveObjects() noexcept;

// Called whenever the last of them has gone, on the thread that released it: a server program ends then. Null
// removes the handler.
void WhenLastObjectGoes(void (*handler)()) noexcept;

class DispatchObject : public IDispatch
{
  public:
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** result) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

  protected:
    DispatchObject() noexcept;
    virtual ~DispatchObject();

    // The name that observers see, for example "ContactItem".
    virtual const wchar_t* ClassName() const = 0;
    // The members; one table per class, shared by its objects. It must not change, nor give DISPIDs to some
    // of its members only.
    virtual const MemberTable& Members() const = 0;
    // The index of the default member (DISPID 0) of a table without DISPIDs, for collections usually "Item";
    // -1 for none.
    virtual int DefaultMember() const { return -1; }
    // Before a member runs; what it throws is the member's failure.
    virtual void BeforeMember(const Member& /*member*/, bool /*isWrite*/) {}
    // The dispinterface that the object's type information describes; nothing for an object without one.
    virtual Microsoft::WRL::ComPtr<ITypeInfo> TypeInformation() const { return nullptr; }

  private:
    const Member* Find(DISPID id) const;
    Value Run(DISPID id, WORD flags, const Call& call);

    std::atomic<ULONG> mReferences{0};
};

// A new fake object as its clients see it.
template<typename T, typename... Arguments>
automation::Object MakeObject(Arguments&&... arguments)
{
    const Microsoft::WRL::ComPtr<IDispatch> created(new T(std::forward<Arguments>(arguments)...));
    return automation::Object(created.Get());
}

// For Member rows: adapts a member function of a concrete class.
template<typename T>
std::function<Value(DispatchObject&, const Call&)> Reads(Value (T::*function)(const Call&))
{
    return [function](DispatchObject& self, const Call& call) {
        return (static_cast<T&>(self).*function)(call);
    };
}

template<typename T>
std::function<void(DispatchObject&, const Call&)> Writes(void (T::*function)(const Call&))
{
    return [function](DispatchObject& self, const Call& call) { (static_cast<T&>(self).*function)(call); };
}

} // namespace sandbox
