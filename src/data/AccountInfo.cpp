#include "data/AccountInfo.h"

#include "data/Host.h"
#include "data/Literals.h"
#include "state/Failures.h"

namespace data
{

long AddAccountInfo(const std::wstring& accountKey)
{
    return state::Trapped(-1L, [&] {
        InsertAccountInfo(Host(), accountKey);
        return 0L;
    });
}

void InsertAccountInfo(const Host& host, const std::wstring& accountKey)
{
    automation::Recordset system;
    const automation::ClosesRecordset closes(system);
    Demand(host.OpenRecordsetByString(system, L"SELECT F_AITID FROM TBLSYSINFO") >= 0,
           L"OpenRecordsetByString");
    const std::wstring type = automation::TextOf(system.ValueOf(L"F_AITID"));
    const std::wstring values =
        QuotedText(host.NewGuid()) + L", " + QuotedText(type) + L", " + QuotedText(accountKey);
    Demand(host.Insert(L"TBLACCINFO", L"F_AIID, F_AITID, F_ACCID", values) >= 0, L"Insert");
}

} // namespace data
