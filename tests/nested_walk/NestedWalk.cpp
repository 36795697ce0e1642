#include "tests/nested_walk/NestedWalk.h"

#include "data/Host.h"
#include "state/SharedState.h"
#include "tests/nested_walk/Yardstick.h"

#include <exception>

namespace test_support
{

namespace
{

bool Matches(const exchange::Kind& category, const automation::Object& item,
             const automation::Recordset& rows)
{
    const std::wstring kind = category.Name.TransObject;
    return kind == L"Contact" ? IsSameContact(item, rows)
           : kind == L"Task"  ? IsSameTask(item, rows)
                              : IsSameAppointment(item, rows);
}

void MoveToFirst(const automation::Recordset& rows)
{
    if (!rows.HasNoRows())
    {
        rows.MoveFirst();
    }
}

long FindItem(const exchange::Kind& category, exchange::Run& run, long count)
{
    for (long i = 1; i <= count; ++i)
    {
        if (Matches(category, run.Items.GetObject(L"Item", i), run.HostRows))
        {
            return i;
        }
    }
    return 0;
}

long FindRow(const exchange::Kind& category, exchange::Run& run, const automation::Object& item)
{
    for (MoveToFirst(run.HostRows); !run.HostRows.AtEnd(); run.HostRows.MoveNext())
    {
        if (Matches(category, item, run.HostRows))
        {
            return run.HostRows.AbsolutePosition();
        }
    }
    return 0;
}

template<typename Body>
bool Failed(Body&& body)
{
    try
    {
        body();
        return false;
    }
    catch (const std::exception&)
    {
        return true;
    }
}

} // namespace

bool WalkToOutlook(const exchange::Kind& category, exchange::Run& run, long conflictOption)
{
    return Failed([&] {
        const exchange::Filters filters = category.FiltersOf(state::Shared().gSynParameter, data::Host());
        const long count = automation::LongOf(run.Items.Get(L"Count"));
        for (MoveToFirst(run.HostRows); !run.HostRows.AtEnd(); run.HostRows.MoveNext())
        {
            if (filters.KeepsRow && !filters.KeepsRow(run.HostRows))
            {
                continue;
            }
            const long row = run.HostRows.AbsolutePosition();
            const long partner = FindItem(category, run, count);
            if (partner == 0 || conflictOption == 1)
            {
                run.Pending.NewHostRecords.Add(row, 0);
            }
            else if (conflictOption == 3 || conflictOption == 4)
            {
                run.Pending.ChangedHostRecords.Add(row, 1);
                run.Pending.ChangedOutlookItems.Add(std::to_wstring(partner), 1);
            }
        }
    });
}

bool WalkFromOutlook(const exchange::Kind& category, exchange::Run& run, long conflictOption, bool mayAdd,
                     bool mayModify)
{
    return Failed([&] {
        const exchange::Filters filters = category.FiltersOf(state::Shared().gSynParameter, data::Host());
        const long count = automation::LongOf(run.Items.Get(L"Count"));
        for (long i = 1; i <= count; ++i)
        {
            const automation::Object item = run.Items.GetObject(L"Item", i);
            if (filters.KeepsItem && !filters.KeepsItem(item))
            {
                continue;
            }
            const long partner = FindRow(category, run, item);
            if ((partner == 0 || conflictOption == 1) && mayAdd)
            {
                run.Pending.NewOutlookItems.Add(std::to_wstring(i), 0);
            }
            else if (partner != 0 && (conflictOption == 3 || conflictOption == 5) && mayModify)
            {
                run.Pending.ChangedHostRecords.Add(partner, 0);
                run.Pending.ChangedOutlookItems.Add(std::to_wstring(i), 0);
            }
        }
    });
}

} // namespace test_support
