#include "data/Permissions.h"

#include "data/Host.h"
#include "resources/Strings.h"
#include "state/Remarks.h"
#include "ui/ShowMessageBox.h"

#include <algorithm>
#include <iterator>

namespace data
{

namespace
{

constexpr long kAnyScope = -1;

struct ModuleRow
{
    long kind;
    long module;
};

constexpr ModuleRow kModules[] = {
    {kAccountRecord, 1},
    {kContactRecord, 2},
    {kActivityRecord, 4},
    {kAccountCalendarRecord, 6},
};

struct FunctionRow
{
    long kind;
    long scope;
    long function;
};

constexpr FunctionRow kFunctions[] = {
    {kAccountRecord, 0, 2},  {kAccountRecord, 1, 2},
    {kAccountRecord, 2, 3},  {kAccountRecord, 3, 4},
    {kContactRecord, 0, 2},  {kContactRecord, 1, 2},
    {kContactRecord, 2, 3},  {kContactRecord, 3, 4},
    {kActivityRecord, 0, 5}, {kActivityRecord, 1, 5},
    {kActivityRecord, 6, 6}, {kActivityRecord, 2, 7},
    {kActivityRecord, 3, 8}, {kAccountCalendarRecord, kAnyScope, 9},
};

struct RightRow
{
    long operation;
    long right;
};

constexpr RightRow kRights[] = {
    {1, 1}, {kAddOperation, 2}, {3, 2}, {4, 8}, {kModifyOperation, 4},
};

struct RefusalRow
{
    long kind;
    long operation;
    const wchar_t* english; // the wording is part of the host contract
    const wchar_t* chinese;
};

constexpr RefusalRow kRefusals[] = {
    {kContactRecord, kAddOperation, L"You are not permit to add contact record(s)!",
     L"你没有添加联系人的权限!"},
    {kContactRecord, kModifyOperation, L"You are not permit to modify contact record(s)!",
     L"你没有修改联系人的权限!"},
    {kActivityRecord, kAddOperation, L"You are not permit to add activity record(s)!",
     L"你没有添加任务的权限!"},
    {kActivityRecord, kModifyOperation, L"You are not permit to modify activity record(s)!",
     L"你没有修改任务的权限!"},
    {kAccountRecord, kAddOperation, L"You are not permit to add account record(s)!",
     L"你没有添加单位的权限!"},
    {kAccountRecord, kModifyOperation, L"You are not permit to modify account record(s)!",
     L"你没有修改单位的权限!"},
    {kAccountCalendarRecord, kAddOperation, L"You are not permit to add account calendar record(s)!",
     L"你没有添加日历的权限!"},
    {kAccountCalendarRecord, kModifyOperation, L"You are not permit to modify account calendar record(s)!",
     L"你没有修改日历的权限!"},
};

// A field of the first row that fits, 0 where none does: the host is asked all the same.
template<typename Table, typename Fits, typename Row>
long CodeIn(const Table& table, Fits fits, long Row::*code)
{
    const auto row = std::find_if(std::begin(table), std::end(table), fits);
    return row == std::end(table) ? 0 : (*row).*code;
}

long ModuleOf(long kind)
{
    return CodeIn(
        kModules, [=](const ModuleRow& row) { return row.kind == kind; }, &ModuleRow::module);
}

long FunctionOf(long kind, long scope)
{
    const auto fits = [=](const FunctionRow& row) {
        return row.kind == kind && (row.scope == scope || row.scope == kAnyScope);
    };
    return CodeIn(kFunctions, fits, &FunctionRow::function);
}

long RightOf(long operation)
{
    return CodeIn(
        kRights, [=](const RightRow& row) { return row.operation == operation; }, &RightRow::right);
}

const wchar_t* RefusalOf(long kind, long operation)
{
    const auto row = std::find_if(std::begin(kRefusals), std::end(kRefusals), [=](const RefusalRow& one) {
        return one.kind == kind && one.operation == operation;
    });
    return row == std::end(kRefusals) ? L"" : resources::Choose(row->chinese, row->english);
}

} // namespace

bool HasPermission(long kind, long scope, long operation)
{
    if (operation == kAlwaysPermitted)
    {
        return true;
    }
    return state::Trapped(false, [=] {
        const long answer = Host().PermissionOn(ModuleOf(kind), FunctionOf(kind, scope), RightOf(operation));
        return answer == 0 || answer == 3;
    });
}

void TellMissingRight(long kind, long operation) noexcept
{
    state::Trapped(false, [=] {
        state::Tell({.Why = state::Cause::RightMissing, .Words = RefusalOf(kind, operation)});
        return true;
    });
}

bool CheckPermission(long kind, long scope, long operation)
{
    const bool permitted = HasPermission(kind, scope, operation);
    if (!permitted)
    {
        TellMissingRight(kind, operation);
        ui::ShowMessageBox(RefusalOf(kind, operation), MB_ICONEXCLAMATION);
    }
    return permitted;
}

} // namespace data
