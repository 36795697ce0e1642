#include "tests/hostile/FromOutlook.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "sandbox/host/Literals.h"
#include "sandbox/host/Rejection.h"
#include "tests/hostile/Oracle.h"

#include <algorithm>

namespace test_support
{

using automation::TextOrEmpty;
using automation::ToUtf8;
using sandbox::Literal;
using sandbox::Refusal;

namespace
{

// TARGET comes first, so that it is the first row of its record source. The other rows must not change.
constexpr const wchar_t* kRows[] = {
    L"INSERT INTO TBLACCOUNT (F_ACCID,F_CREATORID,F_ACCSNAME) VALUES ('A1',1,'Account one'),('A2',2,'Two')",
    L"INSERT INTO TBLADDRESS (F_ADDRID,F_ACCID,F_ADDRCITY,F_ISPRIMARY) VALUES ('D1','A1','Bonn',1),"
    L"('D2','A2','Paris',1)",
    L"INSERT INTO TBLCONTACT (F_CNTCTID,F_CREATORID,F_ACCID,F_CNTADDRID,F_SURNAME,F_GIVENNAME) VALUES "
    L"('TARGET',1,'A1','D1','Old','Name'),('MINE',1,'A1','D1','Miller','Ann'),('OTHERS',2,'A2','D2','Li','"
    L"Mei')",
    L"INSERT INTO TBLACTIVITY (F_ACTID,F_ACTORID,F_CREATORID,F_ACCID,F_ACTNAME,F_ACTESDATE) VALUES "
    L"('TARGET',1,1,'A1','Task',NULL),('MINE',1,1,'A1','Task',NULL),('OTHERS',2,2,'A2','Task',NULL),"
    L"('ENTRY',1,1,'A1','Entry','2003-05-06 00:00:00'),('THEIRS',2,2,'A2','Entry','2003-05-06 00:00:00')",
};

constexpr const wchar_t* kClearing[] = {
    L"DELETE FROM TBLCONTACT WHERE F_CNTCTID NOT IN ('TARGET','MINE','OTHERS')",
    L"DELETE FROM TBLACCOUNT WHERE F_ACCID NOT IN ('A1','A2')",
    L"DELETE FROM TBLADDRESS WHERE F_ADDRID NOT IN ('D1','D2')",
    L"DELETE FROM TBLACTIVITY WHERE F_ACTID NOT IN ('TARGET','MINE','OTHERS','ENTRY','THEIRS')",
    L"DELETE FROM TBLACCINFO",
    L"UPDATE TBLCONTACT SET F_ACCID='A1', F_CNTADDRID='D1' WHERE F_CNTCTID='TARGET'",
};

constexpr const wchar_t* kTheRest[] = {
    L"SELECT * FROM TBLCONTACT WHERE F_CNTCTID IN ('MINE','OTHERS') ORDER BY 1",
    L"SELECT * FROM TBLACCOUNT WHERE F_ACCID IN ('A1','A2') ORDER BY 1",
    L"SELECT * FROM TBLADDRESS WHERE F_ADDRID IN ('D1','D2') ORDER BY 1",
    L"SELECT * FROM TBLACTIVITY WHERE F_ACTID IN ('MINE','OTHERS','THEIRS') ORDER BY 1",
    L"SELECT * FROM TBLUSER",
    L"SELECT * FROM TBLSYSINFO",
    L"SELECT * FROM TBLREPEATRULE",
    L"SELECT * FROM UserRight",
    L"SELECT * FROM SynRelation",
    L"SELECT * FROM SynFields",
    L"SELECT * FROM T_POutlookSyncParam",
    L"SELECT * FROM T_POutlookSyncFolder",
    L"SELECT type, name, sql FROM sqlite_master ORDER BY name",
};

constexpr const wchar_t* kCounted[] = {L"TBLCONTACT", L"TBLACTIVITY", L"TBLACCOUNT", L"TBLACCINFO",
                                       L"TBLADDRESS"};

bool IsKey(std::wstring_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](wchar_t c) {
        return (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || c == L'-';
    });
}

// The refusals that show a misread statement.
bool IsMisread(long result)
{
    constexpr Refusal kMisread[] = {Refusal::UnknownTable,     Refusal::UnknownColumn,
                                    Refusal::ListsDiffer,      Refusal::UnbalancedQuotes,
                                    Refusal::MalformedLiteral, Refusal::BadStatement};
    return std::ranges::any_of(kMisread,
                               [&](Refusal refusal) { return result == static_cast<long>(refusal); });
}

// A literal, written without the component's help.
std::wstring Doubled(const std::wstring& text)
{
    std::wstring literal = L"'";
    for (const wchar_t c : text)
    {
        literal.append(c == L'\'' ? 2 : 1, c);
    }
    return literal + L"'";
}

// The text that the component reads from a property; empty if the property is no text.
std::wstring TextIfAny(const Value& value)
{
    try
    {
        return TextOrEmpty(value);
    }
    catch (const automation::Error&)
    {
        return {};
    }
}

} // namespace

HostileFromOutlook::HostileFromOutlook()
{
    for (const wchar_t* sql : kRows)
    {
        Execute(sql);
    }
    state::Shared().gDTC = RecordStatements(TheHost.Dtc(), mStatements);
    mRest = TheRest();
}

std::wstring HostileFromOutlook::Dump(const std::wstring& query)
{
    std::wstring text;
    for (const sandbox::Row& row : TheHost.Database().Query(query).rows)
    {
        for (const Value& value : row)
        {
            text += (automation::IsEmptyOrNull(value) ? L"NULL" : TextOrEmpty(value)) + L"|";
        }
        text += L"\n";
    }
    return text;
}

std::wstring HostileFromOutlook::TheRest()
{
    std::wstring text;
    for (const wchar_t* query : kTheRest)
    {
        text += Dump(query) + L"--\n";
    }
    return text;
}

HostileFromOutlook::RowCounts HostileFromOutlook::CountRows()
{
    std::wstring sql;
    for (const wchar_t* table : kCounted)
    {
        sql += (sql.empty() ? L"SELECT (SELECT COUNT(*) FROM " : L",(SELECT COUNT(*) FROM ") +
               std::wstring(table) + L")";
    }
    const sandbox::ResultSet result = TheHost.Database().Query(sql);
    RowCounts counts;
    for (size_t i = 0; i < std::size(kCounted); ++i)
    {
        counts[kCounted[i]] = automation::LongOf(result.rows.at(0).at(i));
    }
    return counts;
}

void HostileFromOutlook::Import(const TestedKind& kind, const automation::Object& item, bool isNew)
{
    exchange::Run run{.Display = Display, .HostRows = OpenRows(kind.tested)};
    run.Items = MakeItemsOf(item);
    if (isNew)
    {
        run.Pending.NewOutlookItems.Add(L"1", 0);
    }
    else
    {
        run.Pending.ChangedOutlookItems.Add(L"1", 0);
        run.Pending.ChangedHostRecords.Add(1, 0);
    }
    mBefore = CountRows();
    mStatements.clear();
    EXPECT_FALSE(kind.tested.FromOutlook(run)); // no record ends the pass
}

void HostileFromOutlook::ExpectOneRecordAtMost(const RecordKind& kind, bool isNew)
{
    const std::wstring table = kind.table;
    for (const Statement& statement : mStatements)
    {
        CheckStatement(statement, table);
    }
    mStatementCount += static_cast<long>(mStatements.size());
    RowCounts added = CountRows();
    for (auto& [name, count] : added)
    {
        count -= mBefore[name];
    }
    const bool isWritten = !ColumnsWritten(mStatements, table).empty();
    mWritten += isWritten ? 1 : 0;
    EXPECT_EQ(isNew && isWritten ? 1 : 0, added[table]);
    EXPECT_EQ(0, added[table == L"TBLCONTACT" ? L"TBLACTIVITY" : L"TBLCONTACT"]);
    const long mostOfOthers = isWritten || !kind.hasTransaction ? 1 : 0;
    EXPECT_LE(added[L"TBLACCOUNT"], mostOfOthers);
    EXPECT_EQ(added[L"TBLACCOUNT"], added[L"TBLACCINFO"]);
    EXPECT_LE(added[L"TBLADDRESS"], table == L"TBLCONTACT" ? mostOfOthers : 0);
    EXPECT_FALSE(TheHost.Database().InTransaction());
}

void HostileFromOutlook::ExpectTheRestUntouched()
{
    EXPECT_EQ(ToUtf8(mRest), ToUtf8(TheRest()));
}

void HostileFromOutlook::Clear()
{
    for (const wchar_t* sql : kClearing)
    {
        Execute(sql);
    }
}

void HostileFromOutlook::CheckStatement(const Statement& statement, const std::wstring& table)
{
    const std::wstring& first = statement.arguments[0];
    if (statement.member == L"Insert" || statement.member == L"Update")
    {
        const bool isExpected =
            first == table || first == L"TBLADDRESS" ||
            (statement.member == L"Insert" && (first == L"TBLACCOUNT" || first == L"TBLACCINFO"));
        EXPECT_TRUE(isExpected) << ToUtf8(first);
        EXPECT_FALSE(IsMisread(statement.result)) << ToUtf8(TheHost.LastRejection());
        CheckLists(statement);
    }
    else if (statement.member == L"OpenRecordset")
    {
        CheckFilter(first, statement.arguments[1]);
    }
    else
    {
        EXPECT_EQ(L"OpenRecordsetByString", statement.member);
        CheckLookup(first);
    }
}

void HostileFromOutlook::CheckLists(const Statement& statement)
{
    try
    {
        if (statement.member == L"Insert")
        {
            EXPECT_EQ(sandbox::ParseColumns(statement.arguments[1]).size(),
                      sandbox::ParseLiterals(statement.arguments[2]).size());
        }
        else
        {
            EXPECT_FALSE(sandbox::ParseAssignments(statement.arguments[1]).empty());
            CheckCondition(statement.arguments[2], statement.arguments[0]);
        }
    }
    catch (const sandbox::Rejection& rejection)
    {
        ADD_FAILURE() << ToUtf8(rejection.Reason());
    }
}

// The one row that is meant: by a key that the host has made.
void HostileFromOutlook::CheckCondition(const std::wstring& condition, const std::wstring& table)
{
    const std::wstring column = table == L"TBLADDRESS"   ? L"F_ADDRID='"
                                : table == L"TBLCONTACT" ? L"F_CNTCTID='"
                                                         : L"F_ACTID='";
    ASSERT_TRUE(condition.starts_with(column) && condition.ends_with(L"'")) << ToUtf8(condition);
    const std::wstring key = condition.substr(column.size(), condition.size() - column.size() - 1);
    EXPECT_TRUE(IsKey(key)) << ToUtf8(condition);
    EXPECT_TRUE(table == L"TBLADDRESS" || key == L"TARGET" || key == L"ENTRY") << ToUtf8(condition);
}

// The lookups are these, each key one literal.
void HostileFromOutlook::CheckLookup(const std::wstring& sql)
{
    const std::wstring company = automation::Trimmed(TextIfAny(mItem[L"Companies"]));
    const std::set<std::wstring> expected{
        L"SELECT F_AITID FROM TBLSYSINFO", L"SELECT F_ACCID\r\nFROM TBLCONTACT\r\nWHERE F_CNTCTID= 'TARGET'",
        L"SELECT F_CNTCTID\r\nFROM TBLCONTACT\r\nWHERE F_SURNAME+F_GIVENNAME= " +
            Doubled(TextIfAny(mItem[L"ContactNames"])),
        L"SELECT F_ACCID\r\nFROM TBLACCOUNT\r\nWHERE F_ACCSNAME= " + Doubled(KeptText(company, 80))};
    EXPECT_TRUE(expected.contains(sql)) << ToUtf8(sql);
}

void HostileFromOutlook::CheckFilter(const std::wstring& source, const std::wstring& filter)
{
    const std::wstring column = L"F_ACCSNAME=";
    EXPECT_EQ(L"AccountMyAccount", source);
    ASSERT_TRUE(filter.starts_with(column)) << ToUtf8(filter);
    try
    {
        const Literal literal = sandbox::ParseLiteral(filter.substr(column.size()));
        EXPECT_EQ(Literal::Kind::Text, literal.kind);
        EXPECT_EQ(KeptText(automation::Trimmed(TextIfAny(mItem[L"CompanyName"])), 80), literal.text);
    }
    catch (const sandbox::Rejection& rejection)
    {
        ADD_FAILURE() << ToUtf8(rejection.Reason());
    }
}

} // namespace test_support
