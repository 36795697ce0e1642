#include "sandbox/host/HostStatements.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "sandbox/host/Rejection.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <set>

namespace sandbox
{

namespace
{

using automation::TextOf;

struct DriverWords
{
    const wchar_t* words;
    Refusal refusal;
};

constexpr DriverWords kDriverWords[] = {
    {L"no such table", Refusal::UnknownTable},    {L"no such column", Refusal::UnknownColumn},
    {L"syntax error", Refusal::BadStatement},     {L"incomplete input", Refusal::BadStatement},
    {L"ambiguous column", Refusal::BadStatement},
};

Refusal RefusalOf(const std::wstring& description)
{
    const auto* found = std::ranges::find_if(kDriverWords, [&](const DriverWords& row) {
        return description.find(row.words) != std::wstring::npos;
    });
    return found != std::end(kDriverWords) ? found->refusal : Refusal::Database;
}

// Runs a database call; its error becomes a Rejection with the driver's words.
template<typename Body>
auto OrRejected(Body&& body)
{
    try
    {
        return body();
    }
    catch (const automation::Error& error)
    {
        throw Rejection(RefusalOf(error.Description()), error.Description());
    }
}

bool IsWordPart(wchar_t c)
{
    return std::iswalnum(c) != 0 || c == L'_';
}

// Whether the text ends in a column's name or a quoted text; trailing blanks do not count.
bool EndsInText(const std::wstring& sql)
{
    const size_t last = sql.find_last_not_of(L' ');
    if (last == std::wstring::npos || sql[last] == L'\'')
    {
        return last != std::wstring::npos;
    }
    size_t first = last + 1;
    while (first > 0 && IsWordPart(sql[first - 1]))
    {
        --first;
    }
    return first <= last && std::iswdigit(sql[first]) == 0;
}

// The same for what stands behind a position.
bool StartsAsText(const std::wstring& sql, size_t from)
{
    const size_t first = sql.find_first_not_of(L' ', from);
    return first != std::wstring::npos &&
           (sql[first] == L'\'' || (IsWordPart(sql[first]) && std::iswdigit(sql[first]) == 0));
}

ColumnType TypeOfDeclaration(const std::wstring& declared)
{
    const std::wstring name = automation::UpperCased(declared);
    const auto startsWith = [&](const wchar_t* word) { return name.starts_with(word); };
    if (startsWith(L"DATE") || startsWith(L"TIME"))
    {
        return ColumnType::Date;
    }
    return startsWith(L"INT")        ? ColumnType::Integer
           : startsWith(L"SMALLINT") ? ColumnType::Integer
           : startsWith(L"DOUBLE")   ? ColumnType::Double
           : startsWith(L"BOOL")     ? ColumnType::Truth
                                     : ColumnType::Text;
}

// The number in "VARCHAR(40)"; 0 where there is none.
size_t SizeOfDeclaration(const std::wstring& declared)
{
    const size_t bracket = declared.find(L'(');
    return bracket == std::wstring::npos ? 0 : std::wcstoul(declared.c_str() + bracket + 1, nullptr, 10);
}

const HostColumn& Find(const std::vector<HostColumn>& columns, const std::wstring& name,
                       const std::wstring& table)
{
    const auto found = std::ranges::find_if(
        columns, [&](const HostColumn& column) { return _wcsicmp(column.name.c_str(), name.c_str()) == 0; });
    if (found == columns.end())
    {
        throw Rejection(Refusal::UnknownColumn, table + L" has no column " + name);
    }
    return *found;
}

// The columns by name, each but once.
std::vector<HostColumn> Chosen(const std::vector<HostColumn>& columns, const std::vector<std::wstring>& names,
                               const std::wstring& table)
{
    std::vector<HostColumn> chosen;
    std::set<std::wstring> seen;
    for (const std::wstring& name : names)
    {
        chosen.push_back(Find(columns, name, table));
        if (!seen.insert(chosen.back().name).second)
        {
            throw Rejection(Refusal::BadStatement, name + L" is written twice");
        }
    }
    return chosen;
}

std::wstring CheckedCondition(const std::wstring& condition)
{
    CheckQuotes(condition);
    if (automation::Trimmed(condition).empty())
    {
        throw Rejection(Refusal::BadStatement, L"No condition says which rows are meant");
    }
    return InDatabaseDialect(condition);
}

} // namespace

std::wstring InDatabaseDialect(const std::wstring& sql)
{
    std::wstring result;
    bool isQuoted = false;
    for (size_t i = 0; i < sql.size(); ++i)
    {
        isQuoted = isQuoted != (sql[i] == L'\'');
        const bool joinsTexts = sql[i] == L'+' && !isQuoted && EndsInText(result) && StartsAsText(sql, i + 1);
        result += joinsTexts ? std::wstring(L"||") : std::wstring(1, sql[i]);
    }
    return result;
}

ResultSet HostStatements::Select(const std::wstring& sql)
{
    CheckQuotes(sql);
    const size_t first = sql.find_first_not_of(L" \t\r\n");
    if (first == std::wstring::npos || _wcsnicmp(sql.c_str() + first, L"select", 6) != 0)
    {
        throw Rejection(Refusal::BadStatement, L"No SELECT statement: " + sql);
    }
    return OrRejected([&] { return mDatabase.Query(InDatabaseDialect(sql)); });
}

std::vector<HostColumn> HostStatements::ColumnsOf(const std::wstring& table)
{
    const ResultSet described = OrRejected([&] {
        return mDatabase.Query(L"SELECT c.name, c.type FROM sqlite_master t, pragma_table_info(t.name) c "
                               L"WHERE t.type='table' AND t.name=? COLLATE NOCASE ORDER BY c.cid",
                               {table});
    });
    if (described.rows.empty())
    {
        throw Rejection(Refusal::UnknownTable, L"There is no table " + table);
    }
    std::vector<HostColumn> columns;
    for (const Row& row : described.rows)
    {
        const std::wstring declared = TextOf(row[1]);
        columns.push_back({TextOf(row[0]), TypeOfDeclaration(declared), SizeOfDeclaration(declared)});
    }
    return columns;
}

long HostStatements::Insert(const std::wstring& table, const std::wstring& fields, const std::wstring& values)
{
    const std::vector<HostColumn> known = ColumnsOf(table);
    const std::vector<HostColumn> columns = Chosen(known, ParseColumns(fields), table);
    const std::vector<Literal> literals = ParseLiterals(values);
    if (columns.size() != literals.size())
    {
        throw Rejection(Refusal::ListsDiffer, std::to_wstring(columns.size()) + L" columns, " +
                                                  std::to_wstring(literals.size()) + L" values");
    }
    std::wstring names;
    std::wstring marks;
    Row parameters;
    for (size_t i = 0; i < columns.size(); ++i)
    {
        names += (i == 0 ? L"" : L",") + columns[i].name;
        marks += i == 0 ? L"?" : L",?";
        parameters.push_back(StoredValue(columns[i], literals[i]));
    }
    const std::wstring sql = L"INSERT INTO " + table + L"(" + names + L") VALUES (" + marks + L")";
    return OrRejected([&] { return mDatabase.Execute(sql, parameters); });
}

long HostStatements::Update(const std::wstring& table, const std::wstring& setList,
                            const std::wstring& condition)
{
    const std::vector<HostColumn> known = ColumnsOf(table);
    const std::vector<Assignment> assignments = ParseAssignments(setList);
    std::vector<std::wstring> names;
    std::ranges::transform(assignments, std::back_inserter(names), &Assignment::column);
    const std::vector<HostColumn> columns = Chosen(known, names, table);
    std::wstring sets;
    Row parameters;
    for (size_t i = 0; i < columns.size(); ++i)
    {
        sets += (i == 0 ? L"" : L",") + columns[i].name + L"=?";
        parameters.push_back(StoredValue(columns[i], assignments[i].literal));
    }
    const std::wstring sql = L"UPDATE " + table + L" SET " + sets + L" WHERE " + CheckedCondition(condition);
    return OrRejected([&] { return mDatabase.Execute(sql, parameters); }) > 0 ? 0 : 1;
}

long HostStatements::Delete(const std::wstring& table, const std::wstring& condition)
{
    ColumnsOf(table);
    const std::wstring sql = L"DELETE FROM " + table + L" WHERE " + CheckedCondition(condition);
    return OrRejected([&] { return mDatabase.Execute(sql); });
}

} // namespace sandbox
