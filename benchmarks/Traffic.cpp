#include "benchmarks/Traffic.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string_view>

namespace benchmarks
{

namespace
{

constexpr std::wstring_view kOthers[] = {L"DTC.", L"MyInfo.", L"Recordset.", L"Fields.", L"Field."};

long SumOf(const Counts& counts, bool (*isCounted)(const std::wstring& member))
{
    long sum = 0;
    for (const auto& [member, count] : counts)
    {
        sum += isCounted(member) ? count : 0;
    }
    return sum;
}

// Lines of the control object's tables: the member, a tab, the number.
void AddTable(Counts& counts, const std::wstring& table)
{
    std::wistringstream lines(table);
    std::wstring member;
    long count = 0;
    while (std::getline(lines, member, L'\t') && lines >> count)
    {
        counts[member] += count;
        lines.ignore(); // the end of the line
    }
}

} // namespace

bool IsOfOutlook(const std::wstring& member)
{
    return std::none_of(std::begin(kOthers), std::end(kOthers),
                        [&](std::wstring_view other) { return member.starts_with(other); });
}

long Traffic::AllCalls() const
{
    return SumOf(Calls, [](const std::wstring&) { return true; });
}

long Traffic::OutlookCalls() const
{
    return SumOf(Calls, IsOfOutlook);
}

long Traffic::OutlookLookups() const
{
    return SumOf(Lookups, IsOfOutlook);
}

TrafficMeter::TrafficMeter(automation::Object control) : mControl(std::move(control)), mPrevious(nullptr)
{
    if (mControl)
    {
        mControl.Call(L"Reset");
    }
    mPrevious = sandbox::Observe(this);
}

TrafficMeter::~TrafficMeter()
{
    sandbox::Observe(mPrevious);
}

Traffic TrafficMeter::Stop()
{
    sandbox::Observe(mPrevious);
    Traffic traffic = std::move(mTraffic);
    if (mControl)
    {
        AddTable(traffic.Calls, automation::TextOf(mControl.Get(L"CallTable")));
        AddTable(traffic.Lookups, automation::TextOf(mControl.Get(L"LookupTable")));
    }
    return traffic;
}

void TrafficMeter::OnCall(const wchar_t* className, const wchar_t* member)
{
    ++mTraffic.Calls[std::wstring(className) + L"." + member];
}

void TrafficMeter::OnNameLookup(const wchar_t* className, const wchar_t* member)
{
    ++mTraffic.Lookups[std::wstring(className) + L"." + member];
}

} // namespace benchmarks
