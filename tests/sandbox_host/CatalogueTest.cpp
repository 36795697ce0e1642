#include "sandbox/host/FieldRows.h"
#include "sandbox/host/HostStatements.h"
#include "sandbox/host/RelationRows.h"
#include "tests/sandbox_host/HostFixture.h"

#include <algorithm>
#include <set>

namespace
{

using namespace test_support;
using sandbox::ColumnType;
using sandbox::Edition;
using sandbox::FieldRow;
using sandbox::FieldRule;

constexpr const wchar_t* kWrittenTables[] = {L"TBLCONTACT", L"TBLACCOUNT", L"TBLACCINFO", L"TBLADDRESS",
                                             L"TBLACTIVITY"};

ColumnType TypeOf(FieldRule rule)
{
    switch (rule)
    {
    case FieldRule::Number: return ColumnType::Integer;
    case FieldRule::Fraction: return ColumnType::Double;
    case FieldRule::Flag: return ColumnType::Truth;
    case FieldRule::Text:
    case FieldRule::LongText: return ColumnType::Text;
    default: return ColumnType::Date;
    }
}

class HostCatalogue : public HostFixture
{
  protected:
    std::set<std::wstring> PropertiesOf(const std::wstring& table)
    {
        std::set<std::wstring> names;
        for (const sandbox::Row& row :
             mHost.Database()
                 .Query(L"SELECT OutlookName FROM SynRelation WHERE QuenlarTblName=?", {table})
                 .rows)
        {
            names.insert(TextOf(row[0]));
        }
        return names;
    }
    std::vector<std::wstring> NameRows()
    {
        std::vector<std::wstring> texts;
        for (const sandbox::Row& row :
             mHost.Database()
                 .Query(L"SELECT EnglishName||' -> '||OutlookName FROM SynRelation WHERE "
                        L"QuenlarTblName='TBLCONTACT' AND OutlookName IN ('FirstName','LastName') "
                        L"ORDER BY RelationID")
                 .rows)
        {
            texts.push_back(TextOf(row[0]));
        }
        return texts;
    }
};

using Texts = std::vector<std::wstring>;
const Texts kEnglishRows{L"F_SURNAME -> FirstName", L"F_GIVENNAME -> LastName"};
const Texts kChineseRows{L"F_SURNAME -> LastName", L"F_GIVENNAME -> FirstName"};

TEST_F(HostCatalogue, EveryColumnThatCanBeWrittenHasARuleThatSuitsItsType)
{
    sandbox::HostStatements statements(mHost.Database());
    for (const wchar_t* table : kWrittenTables)
    {
        for (const sandbox::HostColumn& column : statements.ColumnsOf(table))
        {
            if (column.name.ends_with(L"NO"))
            {
                continue; // the running number, which the database gives
            }
            const auto field = std::ranges::find_if(
                sandbox::FieldRows(), [&](const FieldRow& row) { return row.column == column.name; });
            ASSERT_NE(sandbox::FieldRows().end(), field) << testing::PrintToString(column.name);
            EXPECT_EQ(column.type, TypeOf(field->rule)) << testing::PrintToString(column.name);
            EXPECT_EQ(column.size, static_cast<size_t>(field->size)) << testing::PrintToString(column.name);
        }
    }
}

TEST_F(HostCatalogue, AllEightRulesAreUsedAndNoColumnIsListedTwice)
{
    std::set<FieldRule> rules;
    std::set<std::wstring> columns;
    for (const FieldRow& row : sandbox::FieldRows())
    {
        rules.insert(row.rule);
        EXPECT_TRUE(columns.insert(row.column).second) << testing::PrintToString(row.column);
    }
    EXPECT_EQ(8u, rules.size());
    EXPECT_EQ(static_cast<long>(columns.size()), Count(L"SynFields"));
}

TEST_F(HostCatalogue, EveryRelatedColumnIsOneOfItsRecordSource)
{
    const std::pair<const wchar_t*, const wchar_t*> sources[] = {
        {L"TBLCONTACT", L"VW_CONTACT"}, {L"TBLACTIVITY", L"VW_ACTIVITY"}, {L"VW_CALENDAR", L"VW_CALENDAR"}};
    for (const auto& [table, view] : sources)
    {
        const sandbox::ResultSet columns =
            mHost.Database().Query(std::wstring(L"SELECT * FROM ") + view + L" WHERE 1=0");
        for (const sandbox::RelationRow& row : sandbox::RelationRows())
        {
            EXPECT_TRUE(std::wstring(table) != row.table || columns.IndexOf(row.column) != columns.npos)
                << testing::PrintToString(std::wstring(row.column));
        }
    }
}

TEST_F(HostCatalogue, TheRelationRowsCoverEveryPropertyThatIsExchanged)
{
    EXPECT_EQ((std::set<std::wstring>{L"FirstName",
                                      L"LastName",
                                      L"Suffix",
                                      L"Title",
                                      L"Birthday",
                                      L"Anniversary",
                                      L"CompanyName",
                                      L"NickName",
                                      L"Spouse",
                                      L"HomeTelephoneNumber",
                                      L"MobileTelephoneNumber",
                                      L"HomeAddressCity",
                                      L"HomeAddressCountry",
                                      L"HomeAddressState",
                                      L"HomeAddressStreet",
                                      L"HomeAddressPostalCode",
                                      L"JobTitle",
                                      L"Department",
                                      L"Email1Address",
                                      L"AssistantName",
                                      L"AssistantTelephoneNumber",
                                      L"BusinessTelephoneNumber",
                                      L"BusinessFaxNumber",
                                      L"BusinessAddressCity",
                                      L"BusinessAddressCountry",
                                      L"BusinessAddressPostalCode",
                                      L"BusinessAddressState",
                                      L"BusinessAddressStreet"}),
              PropertiesOf(L"TBLCONTACT"));
    EXPECT_EQ(
        (std::set<std::wstring>{L"Subject", L"StartDate", L"DueDate", L"DateCompleted", L"CreationTime",
                                L"Categories", L"Complete", L"PercentComplete", L"Status", L"Importance",
                                L"ContactNames", L"ReminderSet", L"TotalWork", L"ActualWork", L"Companies"}),
        PropertiesOf(L"TBLACTIVITY"));
    EXPECT_EQ((std::set<std::wstring>{L"Subject", L"Start", L"Categories", L"Recipients", L"ReminderSet",
                                      L"IsRecurring"}),
              PropertiesOf(L"VW_CALENDAR"));
}

TEST_F(HostCatalogue, ATasksStatusPrecedesTheColumnsOfCompletedTasks)
{
    const auto position = [this](const wchar_t* property) {
        return LongOf(mHost.Database().QueryValue(
            L"SELECT RelationID FROM SynRelation WHERE QuenlarTblName='TBLACTIVITY' AND OutlookName=?",
            {property}));
    };
    EXPECT_LT(position(L"PercentComplete"), position(L"Status"));
    EXPECT_LT(position(L"Status"), position(L"DateCompleted"));
    EXPECT_LT(position(L"Status"), position(L"Complete"));
}

TEST_F(HostCatalogue, TheTemplatesOfTheThreeKindsGoBothWaysAndAskAboutPairs)
{
    const sandbox::ResultSet rows = mHost.Database().Query(
        L"SELECT TransObjectID,TransObject,TransObjectPic,TransType,TransTypePic,TransConflictOption,IsTrans,"
        L"TransSource FROM T_POutlookSyncParam WHERE F_UID=0 ORDER BY TransObjectID");
    const std::wstring expected[][3] = {
        {L"10", L"Contact", L"contact"}, {L"20", L"Task", L"task"}, {L"30", L"Calendar", L"calendar"}};
    ASSERT_EQ(std::size(expected), rows.rows.size());
    for (size_t i = 0; i < std::size(expected); ++i)
    {
        for (size_t column = 0; column < 3; ++column)
        {
            EXPECT_EQ(expected[i][column], TextOf(rows.rows[i][column]));
        }
        EXPECT_EQ(3, LongOf(rows.rows[i][3]));
        EXPECT_EQ(L"each", TextOf(rows.rows[i][4]));
        EXPECT_EQ(3, LongOf(rows.rows[i][5]));
        EXPECT_TRUE(automation::TruthOf(rows.rows[i][6]));
        EXPECT_EQ(L"Outlook", TextOf(rows.rows[i][7]));
    }
    EXPECT_EQ(3, Count(L"T_POutlookSyncParam"));
}

TEST_F(HostCatalogue, TheEditionsDifferInTheRowsOfTheNames)
{
    EXPECT_EQ(kEnglishRows, NameRows());
    UseEdition(mHost.Database(), Edition::Chinese);
    EXPECT_EQ(kChineseRows, NameRows());
    UseEdition(mHost.Database(), Edition::Chinese);
    EXPECT_EQ(kChineseRows, NameRows());
    UseEdition(mHost.Database(), Edition::English);
    EXPECT_EQ(kEnglishRows, NameRows());
}

TEST_F(HostCatalogue, AHostOfTheChineseEditionIsMadeWithItsRows)
{
    sandbox::Host chinese(Edition::Chinese);
    EXPECT_EQ(L"LastName", TextOf(chinese.Database().QueryValue(
                               L"SELECT OutlookName FROM SynRelation WHERE EnglishName='F_SURNAME'")));
}

class HandMadeNameRows : public HostCatalogue, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(HandMadeNameRows, AreLeftAloneByAChangeOfEdition)
{
    mHost.Database().Execute(GetParam());
    const Texts before = NameRows();
    UseEdition(mHost.Database(), Edition::Chinese);
    EXPECT_EQ(before, NameRows());
}

INSTANTIATE_TEST_SUITE_P(
    Changes, HandMadeNameRows,
    testing::Values(L"DELETE FROM SynRelation WHERE EnglishName='F_SURNAME'",
                    L"UPDATE SynRelation SET EnglishName='F_NICKNAME' WHERE OutlookName='LastName'",
                    L"UPDATE SynRelation SET OutlookName='NickName' WHERE EnglishName='F_GIVENNAME'",
                    L"INSERT INTO SynRelation(QuenlarTblName,EnglishName,OutlookName) VALUES "
                    L"('TBLCONTACT','F_NICKNAME','FirstName')"));

} // namespace
