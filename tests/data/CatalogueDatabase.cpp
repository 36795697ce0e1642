#include "tests/data/CatalogueDatabase.h"

#include "state/SharedState.h"

namespace test_support
{

CatalogueDatabase::CatalogueDatabase()
{
    state::Shared().gCnnString = mFile.ConnectionString();
    Execute(L"CREATE TABLE SynFields (FieldName VARCHAR(50), FieldType INTEGER, FieldSize INTEGER)");
    AddField(L"F_NUMBER", L"1", L"4");
    AddField(L"F_NAME", L"2", L"10");
    AddField(L"F_FLAG", L"3", L"1");
    AddField(L"F_DATE", L"4", L"8");
    AddField(L"F_TIME", L"5", L"8");
    AddField(L"F_MOMENT", L"6", L"8");
    AddField(L"F_AMOUNT", L"7", L"8");
    AddField(L"F_NOTES", L"8", L"200");
}

CatalogueDatabase::~CatalogueDatabase()
{
    state::Shared().gCnnString.clear();
}

void CatalogueDatabase::AddField(const std::wstring& name, const std::wstring& type, const std::wstring& size)
{
    Execute(L"INSERT INTO SynFields VALUES ('" + name + L"', " + type + L", " + size + L")");
}

void CatalogueDatabase::Execute(const std::wstring& sql)
{
    sandbox::Connection(state::Shared().gCnnString).Execute(sql);
}

} // namespace test_support
