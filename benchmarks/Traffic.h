// What a piece of work costs in automation: calls and lookups of members by name, by target and member, to
// fakes of this process and, through its control object, to the Outlook server.
#pragma once

#include "automation/Object.h"
#include "sandbox/dispatch/DispatchObject.h"

#include <map>
#include <string>

namespace benchmarks
{

using Counts = std::map<std::wstring, long>; // by "Class.Member"

struct Traffic
{
    Counts Calls;
    Counts Lookups;

    long AllCalls() const;
    long OutlookCalls() const;
    long OutlookLookups() const;
    // Calls and lookups that go to Outlook: each crosses to another process.
    long RoundTrips() const { return OutlookCalls() + OutlookLookups(); }
    long HostCalls() const { return AllCalls() - OutlookCalls(); }
};

// Whether the class of a "Class.Member" is one of Outlook's, not of the host or of ADO.
bool IsOfOutlook(const std::wstring& member);

// Counts from its making until Stop.
class TrafficMeter : private sandbox::CallObserver
{
  public:
    // control: the server's control object; nothing where Outlook is in this process.
    explicit TrafficMeter(automation::Object control);
    TrafficMeter(const TrafficMeter&) = delete;
    TrafficMeter& operator=(const TrafficMeter&) = delete;
    ~TrafficMeter() override;

    Traffic Stop();

  private:
    void OnCall(const wchar_t* className, const wchar_t* member) override;
    void OnNameLookup(const wchar_t* className, const wchar_t* member) override;

    automation::Object mControl;
    Traffic mTraffic;
    sandbox::CallObserver* mPrevious;
};

} // namespace benchmarks
