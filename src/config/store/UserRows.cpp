#include "config/store/UserRows.h"

#include "data/Host.h"
#include "state/Failures.h"

namespace config
{

bool IsSet(const automation::Value& flag)
{
    return !automation::IsEmptyOrNull(flag) && automation::TruthOf(flag);
}

bool OpenUserRecordset(automation::Recordset& recordset, const std::wstring& whereOrSql)
{
    return state::Failed([&] {
        const data::Host host;
        const std::wstring ofUser = L"F_UID=" + host.UserIdLiteral();
        const std::wstring sql = whereOrSql.empty() ? ofUser : whereOrSql + L" And " + ofUser;
        data::ThrowUnless(host.OpenRecordsetByString(recordset, sql) >= 0, L"OpenRecordsetByString");
    });
}

bool UpdateUserRows(const std::wstring& setClause, const std::wstring& tableName,
                    const std::wstring& whereClause)
{
    return state::Failed([&] {
        const data::Host host;
        // Without a condition of its own the statement names P_UID, as the host expects.
        const std::wstring where = whereClause.empty() ? L"P_UID=" + host.UserIdLiteral()
                                                       : whereClause + L" And F_UID=" + host.UserIdLiteral();
        data::ThrowUnless(host.Update(tableName, setClause, where) >= 0, L"Update");
    });
}

bool InsertUserRow(const std::wstring& columnList, const std::wstring& valueList,
                   const std::wstring& tableName)
{
    return state::Failed([&] {
        const data::Host host;
        data::ThrowUnless(
            host.Insert(tableName, columnList + L",F_UID", valueList + L"," + host.UserIdLiteral()) >= 0,
            L"Insert");
    });
}

} // namespace config
