#include "tests/ui_config/Ground.h"

#include "config/store/ParameterStore.h"

#include <gtest/gtest.h>

namespace ui_config_tests
{

namespace
{

constexpr const wchar_t* kKnownRows[] = {
    L"INSERT INTO T_POutlookSyncParam VALUES (1, 10, 'Contact', 'contact', 3, 'each', 2, '', 'Outlook', 0, "
    L"0, "
    L"0, 0, 'Contact', '联系人', 1)",
    L"INSERT INTO T_POutlookSyncParam VALUES (1, 20, 'Task', 'task', 1, 'left', 3, '', 'Outlook', 0, 0, 0, "
    L"1, "
    L"'Task', '任务', 0)",
    L"INSERT INTO T_POutlookSyncParam VALUES (1, 30, 'Calendar', 'calendar', 2, 'right', 4, '', 'Null', 2, "
    L"7, "
    L"3, 0, 'Calendar', '日历', 0)",
};

} // namespace

Ground::Ground(Language language, double scale) : mInterface(language, scale)
{
    for (const wchar_t* row : kKnownRows)
    {
        Execute(row);
    }
    mProfileKey.AddProfile(L"Outlook");
    mProfileKey.AddProfile(L"Second");
    mProfileKey.SetDefault(L"Outlook");
}

void Ground::SetRow(const std::wstring& kind, const std::wstring& setClause)
{
    Execute(L"UPDATE T_POutlookSyncParam SET " + setClause + L" WHERE F_UID=1 AND TransObject='" + kind +
            L"'");
}

std::wstring Ground::Row(const std::wstring& sql)
{
    std::wstring text;
    const auto result = TheHost.Database().Query(sql);
    for (const automation::Value& value : result.rows.at(0))
    {
        text += (text.empty() ? L"" : L"|") + automation::TextOrEmpty(value);
    }
    return text;
}

std::wstring Ground::Translation(const std::wstring& kind)
{
    return Row(L"SELECT IsTrans+0, TransSource, TransType, TransTypePic FROM T_POutlookSyncParam WHERE "
               L"F_UID=1 AND TransObject='" +
               kind + L"'");
}

std::wstring Ground::Options(const std::wstring& kind)
{
    return Row(L"SELECT TransConflictOption, CalendarTransItem, CalendarPrior, CalendarAfter, TaskTransItem "
               L"FROM T_POutlookSyncParam WHERE F_UID=1 AND TransObject='" +
               kind + L"'");
}

void Ground::AddFolderRow(long kind, const std::wstring& path, bool isDefault)
{
    Execute(L"INSERT INTO T_POutlookSyncFolder VALUES (1, ?, ?, ?)", {kind, path, isDefault ? 1 : 0});
}

Texts Ground::Folders(long kind)
{
    Texts folders;
    const auto result = TheHost.Database().Query(
        L"SELECT OutlookFolder, IsDefault+0 FROM T_POutlookSyncFolder WHERE F_UID=1 AND TransObjectID=" +
        std::to_wstring(kind) + L" ORDER BY rowid");
    for (const auto& row : result.rows)
    {
        folders.push_back(automation::TextOf(row[0]) + L"|" + automation::TextOf(row[1]));
    }
    return folders;
}

void Ground::UseKind(const std::wstring& kind)
{
    config::SetSynParamenter(Record(), kind);
}

void Ground::RefuseNextLoad()
{
    TheHost.Failures().Order(L"OpenRecordsetByString", 1, {.result = -1});
}

void ReadThatNothingIsLoaded(Robot& robot)
{
    const ShownDialog message = robot.WaitForDialog(resources::String(IDS_ERROR));
    EXPECT_EQ(resources::String(IDS_NOT_LOADED), message.Text(IDC_SHOWINFOR_DESCRIPTION));
    message.Click(IDOK);
    robot.WaitUntilClosed(message);
}

} // namespace ui_config_tests
