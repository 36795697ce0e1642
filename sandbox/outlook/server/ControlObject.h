// The object through which programs of the sandbox watch and disturb the server. Outlook has no such thing;
// the component never sees it.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

namespace sandbox::outlook
{

class Server;

class ControlObject : public DispatchObject
{
  public:
    explicit ControlObject(Server& server) : mServer(server) {}

  protected:
    const wchar_t* ClassName() const override { return L"OutlookControl"; }
    const MemberTable& Members() const override;

  private:
    Value CallCount(const Call&);
    Value CallTable(const Call&);
    Value LookupTable(const Call&);
    Value ObjectCount(const Call&);
    Value ProcessId(const Call&);
    Value Reset(const Call&);
    Value Terminate(const Call&);
    Value TerminateAfter(const Call& call);
    Value FailCall(const Call& call);
    Value RejectCallsFor(const Call& call);
    Value Switch(const Call& call);
    Value Vanish(const Call& call);

    Server& mServer;
};

} // namespace sandbox::outlook
