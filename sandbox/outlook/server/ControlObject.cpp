#include "sandbox/outlook/server/ControlObject.h"

#include "automation/Error.h"
#include "sandbox/outlook/server/Server.h"

namespace sandbox::outlook
{

const MemberTable& ControlObject::Members() const
{
    static const MemberTable members = {
        {L"CallCount", Reads(&ControlObject::CallCount), nullptr},
        {L"CallTable", Reads(&ControlObject::CallTable), nullptr},
        {L"LookupTable", Reads(&ControlObject::LookupTable), nullptr},
        {L"ObjectCount", Reads(&ControlObject::ObjectCount), nullptr},
        {L"ProcessId", Reads(&ControlObject::ProcessId), nullptr},
        {L"Reset", Reads(&ControlObject::Reset), nullptr},
        {L"Terminate", Reads(&ControlObject::Terminate), nullptr},
        {L"TerminateAfter", Reads(&ControlObject::TerminateAfter), nullptr},
        {L"FailCall", Reads(&ControlObject::FailCall), nullptr},
        {L"RejectCallsFor", Reads(&ControlObject::RejectCallsFor), nullptr},
        {L"Switch", Reads(&ControlObject::Switch), nullptr},
        {L"Vanish", Reads(&ControlObject::Vanish), nullptr},
    };
    return members;
}

Value ControlObject::CallCount(const Call&)
{
    return mServer.Calls().Total();
}

Value ControlObject::CallTable(const Call&)
{
    return mServer.Calls().Table();
}

Value ControlObject::LookupTable(const Call&)
{
    return mServer.Calls().LookupTable();
}

// The objects that clients hold, without this one.
Value ControlObject::ObjectCount(const Call&)
{
    return LiveObjects() - 1;
}

Value ControlObject::ProcessId(const Call&)
{
    return static_cast<long>(GetCurrentProcessId());
}

Value ControlObject::Reset(const Call&)
{
    mServer.Calls().Reset();
    return {};
}

Value ControlObject::Terminate(const Call&)
{
    mServer.Terminate();
}

Value ControlObject::TerminateAfter(const Call& call)
{
    mServer.Calls().BeforeCall(automation::LongOf(call.At(0)) + 1,
                               [&server = mServer] { server.Terminate(); });
    return {};
}

Value ControlObject::FailCall(const Call& call)
{
    mServer.Calls().BeforeCall(automation::LongOf(call.At(0)), [] {
        throw automation::Error(E_FAIL, L"call", L"The call was made to fail.");
    });
    return {};
}

Value ControlObject::RejectCallsFor(const Call& call)
{
    mServer.RejectCallsFor(automation::LongOf(call.At(0)));
    return {};
}

// A switch of the mailbox that is served (see Awkward.h), and its value.
Value ControlObject::Switch(const Call& call)
{
    mServer.CurrentMailbox()->Switch(automation::TextOf(call.At(0)), call.At(1));
    return {};
}

// The path of a folder and the position of the item that another program removes from it.
Value ControlObject::Vanish(const Call& call)
{
    mServer.CurrentMailbox()->RemoveItem(automation::TextOf(call.At(0)), automation::LongOf(call.At(1)));
    return {};
}

} // namespace sandbox::outlook
