#include "sandbox/host/Catalogue.h"

#include "automation/Text.h"
#include "sandbox/host/FieldRows.h"
#include "sandbox/host/RelationRows.h"

#include <algorithm>

namespace sandbox
{

namespace
{

constexpr const wchar_t* kRelationColumns = L"QuenlarTblName,EnglishName,OutlookName";
constexpr const wchar_t* kAccountInfoType = L"6D1F0A52-7B7E-4C1B-9B0B-0B8F5A3C2E11";

struct Template
{
    long objectId;
    const wchar_t* object;
    const wchar_t* picture;
    const wchar_t* english;
    const wchar_t* chinese;
};

constexpr Template kTemplates[] = {
    {10, L"Contact", L"contact", L"Contact", L"联系人"},
    {20, L"Task", L"task", L"Task", L"任务"},
    {30, L"Calendar", L"calendar", L"Calendar", L"日历"},
};

// A new user's parameters: both directions, and asked about pairs.
constexpr long kBothDirections = 3;
constexpr long kNotify = 3;
constexpr long kWeekBefore = 7;
constexpr long kMonthAfter = 30;

Row TemplateRow(const Template& kind)
{
    return {0L,      kind.objectId, kind.object,  kind.picture, kBothDirections, L"each",
            kNotify, Value::Null(), L"Outlook",   0L,           kWeekBefore,     kMonthAfter,
            0L,      kind.english,  kind.chinese, true};
}

Row ParametersOf(const RelationRow& row)
{
    return {row.table, row.column, row.property};
}

std::vector<Row> RelationTable(Edition edition)
{
    std::vector<Row> rows;
    std::ranges::transform(NameRows(edition), std::back_inserter(rows), ParametersOf);
    std::ranges::transform(RelationRows(), std::back_inserter(rows), ParametersOf);
    return rows;
}

std::vector<Row> FieldTable()
{
    std::vector<Row> rows;
    for (const FieldRow& field : FieldRows())
    {
        rows.push_back({field.column, static_cast<long>(field.rule), field.size});
    }
    return rows;
}

std::vector<Row> RepeatTable()
{
    std::vector<Row> rows;
    for (const wchar_t* name : kRepeatRules)
    {
        rows.push_back({static_cast<long>(rows.size() + 1), name});
    }
    return rows;
}

std::vector<Row> TemplateTable()
{
    std::vector<Row> rows;
    std::ranges::transform(kTemplates, std::back_inserter(rows), TemplateRow);
    return rows;
}

// The relation rows that have to do with names, in the order of the columns.
ResultSet StoredNameRows(Connection& database)
{
    return database.Query(
        L"SELECT RelationID, EnglishName, OutlookName FROM SynRelation "
        L"WHERE QuenlarTblName='TBLCONTACT' AND (EnglishName IN ('F_SURNAME','F_GIVENNAME') "
        L"OR OutlookName IN ('FirstName','LastName')) ORDER BY EnglishName DESC");
}

bool StandAs(const ResultSet& stored, Edition edition)
{
    return std::ranges::equal(stored.rows, NameRows(edition), [](const Row& row, const RelationRow& name) {
        return automation::TextOrEmpty(row[1]) == name.column &&
               automation::TextOrEmpty(row[2]) == name.property;
    });
}

} // namespace

void AddRows(Connection& database, const std::wstring& table, const std::wstring& columns,
             const std::vector<Row>& rows)
{
    std::wstring marks = L"?";
    for (auto comma = std::ranges::count(columns, L','); comma > 0; --comma)
    {
        marks += L",?";
    }
    const std::wstring sql = L"INSERT INTO " + table + L"(" + columns + L") VALUES (" + marks + L")";
    for (const Row& row : rows)
    {
        database.Execute(sql, row);
    }
}

void FillHostCatalogue(Connection& database, Edition edition)
{
    AddRows(database, L"TBLUSER", L"F_UID,F_USERNAME",
            {{kFirstUser, L"Chen Wei 陈伟"}, {kSecondUser, L"Maria Keller"}});
    AddRows(database, L"TBLSYSINFO", L"F_AITID", {{kAccountInfoType}});
    AddRows(database, L"TBLREPEATRULE", L"F_ACTREPTIDX,FR_NAME", RepeatTable());
    AddRows(database, L"SynRelation", kRelationColumns, RelationTable(edition));
    AddRows(database, L"SynFields", L"FieldName,FieldType,FieldSize", FieldTable());
    AddRows(database, L"T_POutlookSyncParam",
            L"F_UID,TransObjectID,TransObject,TransObjectPic,TransType,TransTypePic,TransConflictOption,"
            L"TransSourceConfig,TransSource,CalendarTransItem,CalendarPrior,CalendarAfter,TaskTransItem,"
            L"TransNameEnglish,TransNameChinese,IsTrans",
            TemplateTable());
}

void UseEdition(Connection& database, Edition edition)
{
    const Edition other = edition == Edition::English ? Edition::Chinese : Edition::English;
    const ResultSet stored = StoredNameRows(database);
    if (!StandAs(stored, other))
    {
        return;
    }
    for (size_t i = 0; i < stored.rows.size(); ++i)
    {
        database.Execute(L"UPDATE SynRelation SET OutlookName=? WHERE RelationID=?",
                         {NameRows(edition)[i].property, stored.rows[i][0]});
    }
}

} // namespace sandbox
