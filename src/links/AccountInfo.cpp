#include "links/AccountInfo.h"

#include "data/Host.h"
#include "data/Literals.h"
#include "state/Failures.h"

namespace links
{

long AddAccountInfo(const std::wstring& accountKey)
{
    return state::Failed([&] { InsertAccountInfo(data::Host(), accountKey); }) ? -1 : 0;
}

void InsertAccountInfo(const data::Host& host, const std::wstring& accountKey,
                       const std::function<void()>& undo)
{
    automation::Recordset system;
    const automation::RecordsetCloser closer(system);
    data::ThrowUnless(host.OpenRecordsetByString(system, L"SELECT F_AITID FROM TBLSYSINFO") >= 0,
                      L"OpenRecordsetByString");
    const std::wstring type = automation::TextOf(system.ValueOf(L"F_AITID"));
    const std::wstring values = data::QuotedText(host.NewGuid()) + L", " + data::QuotedText(type) + L", " +
                                data::QuotedText(accountKey);
    data::InsertOrUndo(
        [&] {
            data::ThrowUnless(host.Insert(L"TBLACCINFO", L"F_AIID, F_AITID, F_ACCID", values) >= 0,
                              L"Insert");
        },
        undo);
}

} // namespace links
