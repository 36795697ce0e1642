#include "tests/config/ConfigFixture.h"

#include "sandbox/host/Schema.h"

namespace config_tests
{

namespace
{

constexpr const wchar_t* kTemplates[] = {
    L"INSERT INTO T_POutlookSyncParam VALUES (0, 10, 'Contact', 'contact', 3, 'each', 2, NULL, 'Outlook', "
    L"NULL, NULL, NULL, NULL, 'Contact', '联系人', 1)",
    L"INSERT INTO T_POutlookSyncParam VALUES (0, 20, 'Task', 'task', 1, 'left', 3, NULL, 'Outlook', 0, 0, 0, "
    L"1, 'Task', '任务', 1)",
    L"INSERT INTO T_POutlookSyncParam VALUES (0, 30, 'Calendar', 'calendar', 2, 'right', 4, 'config', "
    L"'Null', 2, 7, 3, 0, 'Calendar', '日历', 0)",
};

} // namespace

ConfigFixture::ConfigFixture()
{
    sandbox::CreateHostSchema(mConnection);
    for (const wchar_t* statement : kTemplates)
    {
        Execute(statement);
    }
    mHost->Database = &mConnection;
    mHost->Unlogged = {L"MyInfo", L"UID"};
}

ConfigFixture::~ConfigFixture()
{
    state::Shared() = {};
}

std::vector<std::wstring> ConfigFixture::Rows(const std::wstring& sql)
{
    std::vector<std::wstring> texts;
    for (const sandbox::Row& row : mConnection.Query(sql).rows)
    {
        std::wstring text;
        for (const automation::Value& value : row)
        {
            text += (text.empty() ? L"" : L"|") +
                    (automation::IsEmptyOrNull(value) ? std::wstring(L"NULL") : automation::TextOf(value));
        }
        texts.push_back(text);
    }
    return texts;
}

std::wstring ConfigFixture::StoredTranslation(const std::wstring& kind)
{
    const auto rows = Rows(L"SELECT IsTrans+0, TransSource, TransType, TransTypePic FROM T_POutlookSyncParam "
                           L"WHERE F_UID=7 AND TransObject='" +
                           kind + L"'");
    return rows.size() == 1 ? rows[0] : std::to_wstring(rows.size()) + L" rows";
}

void ConfigFixture::GiveUserRows()
{
    Execute(L"CREATE TEMP TABLE Copies AS SELECT * FROM T_POutlookSyncParam WHERE F_UID=0");
    Execute(L"UPDATE Copies SET F_UID=7");
    Execute(L"INSERT INTO T_POutlookSyncParam SELECT * FROM Copies");
    Execute(L"DROP TABLE Copies");
}

void ConfigFixture::GiveFolder(long kind, const std::wstring& path, bool isDefault)
{
    mConnection.Execute(L"INSERT INTO T_POutlookSyncFolder VALUES (7, ?, ?, ?)",
                        {kind, path, isDefault ? 1 : 0});
}

std::vector<std::wstring> ConfigFixture::Folders()
{
    return Rows(L"SELECT TransObjectID, OutlookFolder, IsDefault+0 FROM T_POutlookSyncFolder WHERE F_UID=7 "
                L"ORDER BY rowid");
}

void ConfigFixture::RefuseEvery(const std::wstring& member, long status)
{
    mHost->Refuse = [=](const std::wstring& called) { return called == member ? status : 0; };
}

} // namespace config_tests
