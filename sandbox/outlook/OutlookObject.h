// The base of the objects that clients of the fake hold: each belongs to a mailbox and keeps it alive,
// and every call holds the mailbox's lock. Its members are those of a published interface, or some of them.
#pragma once

#include "sandbox/outlook/Mailbox.h"
#include "sandbox/outlook/facts/TypeInformation.h"

namespace sandbox::outlook
{

class OutlookObject : public DispatchObject
{
  public:
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override
    {
        const MailboxRef mailbox = mMailbox; // the call may release this object
        const std::lock_guard hold(mailbox->Lock());
        return DispatchObject::Invoke(id, reserved, locale, flags, parameters, result, exception,
                                      wrongArgument);
    }

  protected:
    // The interface as it is published, for example "_Items".
    virtual const wchar_t* InterfaceName() const = 0;
    Microsoft::WRL::ComPtr<ITypeInfo> TypeInformation() const override
    {
        return TypeInformationOf(InterfaceName());
    }

    // The folder in whose store the object is; null for one that is in none.
    virtual const MailFolder* Place() const { return nullptr; }
    void BeforeMember(const Member& member, bool isWrite) override;

    explicit OutlookObject(MailboxRef mailbox) : mMailbox(std::move(mailbox)) {}

    const MailboxRef& Box() const noexcept { return mMailbox; }

  private:
    MailboxRef mMailbox;
};

// A member that always has the same value: "Class", "Name".
inline Member Constant(const wchar_t* name, const Value& value)
{
    return {name, [value](DispatchObject&, const Call&) { return value; }, nullptr};
}

// A method that a client may call and that has nothing to do here: "Display", "Logon".
inline Member Ignored(const wchar_t* name)
{
    return Constant(name, Value());
}

// A collection as a member returns it, or one object of it where the client passed an index along:
// "Folders(1)", which late-bound clients send as one call.
Value WithIndex(const automation::Object& collection, const Call& call);

// The position, from 1, that an index stands for; 0 for a text that is no number (a name). Throws
// automation::Error for what can be neither.
long PositionOf(const Value& index);

} // namespace sandbox::outlook
