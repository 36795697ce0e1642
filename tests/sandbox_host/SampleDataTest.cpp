#include "tools/sample_data/SampleData.h"
#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Text.h"
#include "sandbox/database/DatabaseFile.h"
#include "sandbox/host/RecordSources.h"
#include "sandbox/outlook/DatabaseStore.h"
#include "sandbox/outlook/Mailbox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace
{

using automation::LongOf;
using automation::TextOrEmpty;
using sandbox::Connection;
using sandbox::Edition;
using sandbox::ResultSet;
using sandbox::Row;
using Keys = std::multiset<std::wstring>;

// A path for a new file, which goes with the test.
class NewFile
{
  public:
    NewFile() = default;
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() { DeleteFileW(mPath.c_str()); }

    const std::wstring& Path() const noexcept { return mPath; }
    std::wstring ConnectionString() const { return sandbox::ConnectionStringOf(mPath); }

  private:
    std::wstring mPath = sandbox::TemporaryDatabasePath();
};

class SampleDataTest : public testing::Test
{
  protected:
    // Written once for all tests, which only read them.
    static void SetUpTestSuite()
    {
        sFiles = std::make_unique<Files>();
        tools::WriteSampleHost(sFiles->host.Path(), Edition::English);
        tools::WriteSampleMailbox(sFiles->mailbox.Path());
    }
    static void TearDownTestSuite() { sFiles.reset(); }

    Connection mHost{sFiles->host.ConnectionString()};
    Connection mMailbox{sFiles->mailbox.ConnectionString()};

    ResultSet Source(const std::wstring& name, const std::wstring& filter = {})
    {
        return sandbox::OpenSource(mHost, sandbox::kFirstUser, name, filter);
    }
    ResultSet Calendar() { return Source(L"Calendar", L"F_ACTORID=1"); }
    long Count(Connection& database, const std::wstring& from)
    {
        return LongOf(database.QueryValue(L"SELECT count(*) FROM " + from));
    }

    struct Files
    {
        NewFile host;
        NewFile mailbox;
    };
    static inline std::unique_ptr<Files> sFiles;
};

std::wstring TextOfValue(const automation::Value& value)
{
    return value.Type() == VT_DATE ? automation::Formatted(automation::DateOf(value), L"yyyy-mm-dd hh:mm:ss")
                                   : TextOrEmpty(value);
}

// Some columns of each row, in one text each.
Keys KeysOfRows(const ResultSet& rows, std::initializer_list<const wchar_t*> columns)
{
    Keys keys;
    for (const Row& row : rows.rows)
    {
        std::wstring key;
        for (const wchar_t* column : columns)
        {
            key += TextOfValue(row[rows.IndexOf(column)]) + L"|";
        }
        keys.insert(key);
    }
    return keys;
}

// The same of a folder's items; a missing property is empty.
Keys KeysOfItems(Connection& mailbox, const std::wstring& folder,
                 std::initializer_list<const wchar_t*> properties)
{
    std::wstring expression;
    for (const wchar_t* property : properties)
    {
        expression += (expression.empty() ? L"" : L"||'|'||") +
                      (L"ifnull(max(CASE WHEN Name='" + std::wstring(property)) + L"' THEN Value END),'')";
    }
    Keys keys;
    for (const Row& row : mailbox
                              .Query(L"SELECT " + expression +
                                         L"||'|' FROM ItemProperty WHERE FolderPath=? GROUP BY ItemIndex",
                                     {folder})
                              .rows)
    {
        keys.insert(TextOrEmpty(row[0]));
    }
    return keys;
}

size_t CommonTo(const Keys& left, const Keys& right)
{
    Keys both;
    std::ranges::set_intersection(left, right, std::inserter(both, both.end()));
    return both.size();
}

bool AreUnique(const Keys& keys)
{
    return std::ranges::adjacent_find(keys) == keys.end();
}

TEST_F(SampleDataTest, TheHostHasSoManyRecordsAsADemonstrationNeeds)
{
    EXPECT_EQ(220u, Source(L"ContactMyContact").rows.size());
    EXPECT_EQ(60u, Source(L"AccountMyAccount").rows.size());
    EXPECT_EQ(150u, Source(L"ActivityMyActivity").rows.size());
    EXPECT_EQ(120u, Calendar().rows.size());
}

TEST_F(SampleDataTest, EveryRepeatRuleOccurs)
{
    const ResultSet rules = mHost.Query(L"SELECT FR_NAME, count(*) FROM VW_CALENDAR WHERE ACT_REPEATS=1 AND "
                                        L"F_ACTORID=1 GROUP BY F_ACTREPTIDX");
    ASSERT_EQ(6u, rules.rows.size());
    for (size_t i = 0; i < 6; ++i)
    {
        EXPECT_EQ(sandbox::kRepeatRules[i], TextOrEmpty(rules.rows[i][0]));
        EXPECT_EQ(4, LongOf(rules.rows[i][1]));
    }
}

TEST_F(SampleDataTest, AnotherUsersRowsAreInTheTablesButNotInMySources)
{
    EXPECT_EQ(40, Count(mHost, L"TBLCONTACT WHERE F_CREATORID=2"));
    EXPECT_EQ(10, Count(mHost, L"TBLACCOUNT WHERE F_CREATORID=2"));
    EXPECT_EQ(51, Count(mHost, L"TBLACTIVITY WHERE F_ACTORID=2"));
    EXPECT_EQ(0, Count(mHost, L"VW_CONTACT c JOIN TBLACCOUNT a ON a.F_ACCID=c.F_ACCID "
                              L"WHERE a.F_CREATORID<>c.F_CREATORID"));
}

TEST_F(SampleDataTest, BothLanguagesApostrophesAndGapsOccurOften)
{
    const std::wstring mine = L"VW_CONTACT WHERE F_CREATORID=1 AND ";
    EXPECT_GT(Count(mHost, mine + L"ACC_SNAME='O''Brien & Söhne GmbH'"), 0);
    EXPECT_GT(Count(mHost, mine + L"F_SURNAME LIKE '%''%'"), 3);
    EXPECT_GT(Count(mHost, mine + L"F_SURNAME IN ('王','李','张','刘','陈','欧阳')"), 20);
    EXPECT_GT(Count(mHost, mine + L"F_TITLE IS NOT NULL"), 70) << "English contacts have a title";
    for (const wchar_t* column : {L"F_BIRTHDAY", L"F_EMAIL", L"F_ACCID", L"F_HOMECITY", L"F_SPOUSE"})
    {
        EXPECT_GT(Count(mHost, mine + column + L" IS NULL"), 5) << testing::PrintToString(column);
        EXPECT_GT(Count(mHost, mine + column + L" IS NOT NULL"), 20) << testing::PrintToString(column);
    }
    EXPECT_EQ(0, Count(mHost, mine + L"(F_SURNAME IS NULL OR F_GIVENNAME IS NULL)"));
}

TEST_F(SampleDataTest, NoTwoRecordsOfASideHaveTheSameKeys)
{
    EXPECT_TRUE(AreUnique(KeysOfRows(Source(L"ContactMyContact"), {L"F_SURNAME", L"F_GIVENNAME"})));
    EXPECT_TRUE(AreUnique(KeysOfRows(Source(L"ActivityMyActivity"),
                                     {L"F_ACTNAME", L"F_ACTTYPE", L"F_ACTPSTIME", L"ACC_SNAME"})));
    EXPECT_TRUE(
        AreUnique(KeysOfRows(Calendar(), {L"F_ACTNAME", L"F_ACTTYPE", L"F_ACTESDATE", L"F_ACTESTIME"})));
    EXPECT_TRUE(AreUnique(KeysOfItems(mMailbox, tools::kContactsFolder, {L"LastName", L"FirstName"})));
    EXPECT_TRUE(AreUnique(
        KeysOfItems(mMailbox, tools::kTasksFolder, {L"Subject", L"Categories", L"StartDate", L"Companies"})));
    EXPECT_TRUE(
        AreUnique(KeysOfItems(mMailbox, tools::kCalendarFolder, {L"Subject", L"Categories", L"Start"})));
}

TEST_F(SampleDataTest, AThirdOfTheContactsIsInOutlookAsWellWhichHasOthersBesides)
{
    const Keys rows = KeysOfRows(Source(L"ContactMyContact"), {L"F_SURNAME", L"F_GIVENNAME", L"ACC_SNAME"});
    const Keys items =
        KeysOfItems(mMailbox, tools::kContactsFolder, {L"LastName", L"FirstName", L"CompanyName"});
    EXPECT_EQ(74u, CommonTo(rows, items));
    EXPECT_EQ(110u, items.size());
}

TEST_F(SampleDataTest, AThirdOfTheTasksIsInOutlookAsWellWhichHasOthersBesides)
{
    ResultSet rows = mHost.Query(L"SELECT F_ACTNAME, F_ACTTYPE, ifnull(date(F_ACTPSTIME)||' 00:00:00','') AS "
                                 L"StartDay, ACC_SNAME FROM VW_ACTIVITY WHERE F_ACTORID=1");
    const Keys items =
        KeysOfItems(mMailbox, tools::kTasksFolder, {L"Subject", L"Categories", L"StartDate", L"Companies"});
    EXPECT_EQ(50u,
              CommonTo(KeysOfRows(rows, {L"F_ACTNAME", L"F_ACTTYPE", L"StartDay", L"ACC_SNAME"}), items));
    EXPECT_EQ(80u, items.size());
}

TEST_F(SampleDataTest, AThirdOfTheCalendarIsInOutlookAsWellWhichHasOthersBesides)
{
    ResultSet rows = mHost.Query(L"SELECT F_ACTNAME, F_ACTTYPE, date(F_ACTESDATE)||' '||time(F_ACTESTIME) AS "
                                 L"Start FROM VW_CALENDAR WHERE F_ACTORID=1");
    const Keys items = KeysOfItems(mMailbox, tools::kCalendarFolder, {L"Subject", L"Categories", L"Start"});
    EXPECT_EQ(40u, CommonTo(KeysOfRows(rows, {L"F_ACTNAME", L"F_ACTTYPE", L"Start"}), items));
    EXPECT_EQ(65u, items.size());
}

TEST_F(SampleDataTest, TheProgressPropertiesOfATaskAgree)
{
    EXPECT_EQ(0, Count(mHost, L"TBLACTIVITY WHERE F_ACTESDATE IS NULL AND "
                              L"((F_ACTSTATUS=2)<>F_ACTCOMPLETED OR (F_ACTSTATUS=2)<>(F_ACTPERCENT=1) OR "
                              L"(F_ACTSTATUS=2)<>(F_ACTCTIME IS NOT NULL) OR F_ACTPSTIME>F_ACTPETIME)"));
    EXPECT_EQ(0, Count(mHost, L"VW_ACTIVITY WHERE F_ACTCTIME>'2003-05-06' OR F_ACTCREATETIME>'2003-05-06'"));
    for (int status = 0; status <= 4; ++status)
    {
        EXPECT_GT(Count(mHost, L"VW_ACTIVITY WHERE F_ACTSTATUS=" + std::to_wstring(status)), 0) << status;
    }
}

TEST_F(SampleDataTest, TheFirstUsersDefaultFoldersAreFoldersOfTheMailboxOfTheRightType)
{
    const ResultSet folders = mHost.Query(L"SELECT TransObjectID, OutlookFolder FROM T_POutlookSyncFolder "
                                          L"WHERE F_UID=1 AND IsDefault=1 ORDER BY TransObjectID");
    const long itemTypes[] = {2, 3, 1};
    ASSERT_EQ(3u, folders.rows.size());
    for (size_t i = 0; i < 3; ++i)
    {
        EXPECT_EQ(static_cast<long>(10 * (i + 1)), LongOf(folders.rows[i][0]));
        EXPECT_EQ(itemTypes[i], LongOf(mMailbox.QueryValue(L"SELECT DefaultItemType FROM Folder WHERE Path=?",
                                                           {folders.rows[i][1]})));
    }
}

TEST_F(SampleDataTest, EveryItemLiesInAFolderAndEveryLinkLeadsToAContact)
{
    EXPECT_EQ(0, Count(mMailbox, L"ItemProperty WHERE FolderPath NOT IN (SELECT Path FROM Folder)"));
    EXPECT_GT(Count(mMailbox, L"ItemLink"), 20);
    EXPECT_EQ(0, Count(mMailbox, L"ItemLink l WHERE NOT EXISTS (SELECT 1 FROM ItemProperty p WHERE "
                                 L"p.FolderPath||'\\'||p.ItemIndex=l.LinkedTo AND p.Name='LastName')"));
    for (const int type : {0, 1, 2, 3})
    {
        EXPECT_GT(Count(mMailbox,
                        L"Folder WHERE Path LIKE 'Archive%' AND DefaultItemType=" + std::to_wstring(type)),
                  0)
            << type;
    }
}

TEST_F(SampleDataTest, OutlooksStandInReadsTheMailbox)
{
    namespace outlook = sandbox::outlook;
    outlook::Mailbox mailbox(std::make_unique<outlook::DatabaseStore>(sFiles->mailbox.Path()));
    EXPECT_EQ(110, mailbox.ItemCount(tools::kContactsFolder));
    EXPECT_EQ(80, mailbox.ItemCount(tools::kTasksFolder));
    EXPECT_EQ(65, mailbox.ItemCount(tools::kCalendarFolder));
    const automation::Value last = mailbox.ItemProperty(tools::kCalendarFolder, 65, L"Start");
    EXPECT_EQ(VT_DATE, last.Type());
    EXPECT_EQ(tools::kSampleToday.days + 1, automation::DayOf(automation::DateOf(last)).days);
}

TEST_F(SampleDataTest, ItIsTheSameEachTime)
{
    const NewFile again;
    tools::WriteSampleMailbox(again.Path());
    Connection other(again.ConnectionString());
    const wchar_t* all = L"SELECT group_concat(FolderPath||ItemIndex||Name||Value, ';') FROM ItemProperty";
    EXPECT_EQ(TextOrEmpty(mMailbox.QueryValue(all)), TextOrEmpty(other.QueryValue(all)));
}

TEST(SampleHost, FollowsItsEdition)
{
    const NewFile file;
    tools::WriteSampleHost(file.Path(), Edition::Chinese);
    Connection host(file.ConnectionString());
    EXPECT_EQ(L"LastName", TextOrEmpty(host.QueryValue(
                               L"SELECT OutlookName FROM SynRelation WHERE EnglishName='F_SURNAME'")));
}

TEST(SampleHost, ThatCannotBeWrittenIsAnErrorAndLeavesNothing)
{
    const std::wstring path = L"C:\\no such folder\\host.db";
    EXPECT_THROW(tools::WriteSampleHost(path, Edition::English), automation::Error);
    EXPECT_THROW(tools::WriteSampleMailbox(path), automation::Error);
    EXPECT_FALSE(sandbox::FileExists(path));
    EXPECT_FALSE(sandbox::FileExists(L"C:\\no such folder"));
}

TEST(NumberedData, HasSoManyRecordsOnEachSideHalfOfThemTheSame)
{
    const NewFile hostFile;
    const NewFile mailboxFile;
    tools::WriteNumberedHost(hostFile.Path(), Edition::English, 30);
    tools::WriteNumberedMailbox(mailboxFile.Path(), 30);
    Connection host(hostFile.ConnectionString());
    Connection mailbox(mailboxFile.ConnectionString());
    const Keys rows = KeysOfRows(sandbox::OpenSource(host, 1, L"ContactMyContact", {}),
                                 {L"F_SURNAME", L"F_GIVENNAME", L"ACC_SNAME"});
    const Keys items =
        KeysOfItems(mailbox, tools::kContactsFolder, {L"LastName", L"FirstName", L"CompanyName"});
    EXPECT_EQ(30u, rows.size());
    EXPECT_EQ(30u, items.size());
    EXPECT_EQ(15u, CommonTo(rows, items));
    const Keys tasks = KeysOfRows(sandbox::OpenSource(host, 1, L"ActivityMyActivity", {}), {L"F_ACTNAME"});
    EXPECT_EQ(15u, CommonTo(tasks, KeysOfItems(mailbox, tools::kTasksFolder, {L"Subject"})));
    EXPECT_EQ(30u, sandbox::OpenSource(host, 1, L"Calendar", L"F_ACTORID=1").rows.size());
}

} // namespace
