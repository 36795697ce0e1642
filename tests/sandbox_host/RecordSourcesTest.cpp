#include "sandbox/host/RecordSources.h"
#include "automation/Dates.h"
#include "tests/sandbox_host/HostFixture.h"

namespace
{

using namespace test_support;
using automation::DateOf;
using automation::Formatted;
using sandbox::Refusal;
using Texts = std::vector<std::wstring>;

class RecordSources : public HostFixture
{
  protected:
    void AddContact(const std::wstring& id, const std::wstring& creator, const std::wstring& names)
    {
        EXPECT_GE(Insert(L"TBLCONTACT", L"F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME,F_ACCID,F_CNTADDRID",
                         L"'" + id + L"','" + creator + L"'," + names + L",'acc','addr'"),
                  0)
            << Reason();
    }
    void AddAccount()
    {
        Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'acc','O''Brien & Söhne GmbH'");
        Insert(L"TBLADDRESS", L"F_ADDRID,F_ACCID,F_ADDRCITY,F_ISPRIMARY", L"'branch','acc','Jena',0");
        Insert(L"TBLADDRESS", L"F_ADDRID,F_ACCID,F_ADDRCITY,F_ISPRIMARY", L"'addr','acc','北京',1");
    }
    // As the component writes one: no column says what it is.
    void AddActivity(const std::wstring& id, const std::wstring& fields, const std::wstring& values)
    {
        EXPECT_GE(Insert(L"TBLACTIVITY", fields + L",F_ACTORID ,F_CREATORID,F_ACTID",
                         values + L",1,1,'" + id + L"'"),
                  0)
            << Reason();
    }
    Value First(const std::wstring& source, const std::wstring& column)
    {
        Recordset rows;
        EXPECT_EQ(0, Open(rows, source)) << Reason();
        return rows.ValueOf(column);
    }
};

TEST_F(RecordSources, ContactsComeWithTheirAccountsNameAndAddress)
{
    AddAccount();
    AddContact(L"c", L"1", L"'Li','Ming'");
    EXPECT_EQ(L"O'Brien & Söhne GmbH", TextOf(First(L"ContactMyContact", L"ACC_SNAME")));
    EXPECT_EQ(L"北京", TextOf(First(L"ContactMyContact", L"ADDR_CITY")));
}

TEST_F(RecordSources, MyContactsAreThoseThatTheSignedInUserCreatedInTheOrderOfCreation)
{
    AddContact(L"z", L"1", L"'Zhao','Yi'");
    AddContact(L"x", L"2", L"'Foreign','Row'");
    AddContact(L"a", L"1", L"'An','Er'");
    EXPECT_EQ((Texts{L"z", L"a"}), ColumnOf(L"ContactMyContact", L"F_CNTCTID"));
    mHost.SignIn(sandbox::kSecondUser);
    EXPECT_EQ((Texts{L"x"}), ColumnOf(L"ContactMyContact", L"F_CNTCTID"));
}

TEST_F(RecordSources, AnAccountTellsItsPrimaryAddress)
{
    AddAccount();
    EXPECT_EQ((Texts{L"addr"}),
              ColumnOf(L"AccountMyAccount", L"M_ADDR_ID", L"F_ACCSNAME='O''Brien & Söhne GmbH'"));
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'new','New'");
    EXPECT_EQ((Texts{L"NULL"}), ColumnOf(L"AccountMyAccount", L"M_ADDR_ID", L"F_ACCSNAME='New'"));
    EXPECT_EQ(Texts{}, ColumnOf(L"AccountMyAccount", L"F_ACCID", L"F_ACCSNAME='Nobody'"));
}

TEST_F(RecordSources, AnAccountOfAnotherUserIsNotMine)
{
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME,F_CREATORID", L"'a','Theirs',2");
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME,F_CREATORID", L"'b','Mine',1");
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'c','Made by the component'");
    EXPECT_EQ((Texts{L"b", L"c"}), ColumnOf(L"AccountMyAccount", L"F_ACCID"));
}

TEST_F(RecordSources, AnActivityWithACalendarDayIsAnEntryOfTheCalendarAndAnyOtherATask)
{
    AddActivity(L"dated task", L"F_ACTNAME,F_ACTPSTIME", L"'Call','05/06/2003 00:00:00'");
    AddActivity(L"undated task", L"F_ACTNAME,F_ACTPSTIME", L"'Call',NULL");
    AddActivity(L"entry", L"F_ACTNAME,F_ACTESDATE,F_ACTESTIME", L"'Fair','05/06/2003','09:30:00'");
    AddActivity(L"entry without a day", L"F_ACTNAME,F_ACTESTIME", L"'Fair','09:30:00'");
    EXPECT_EQ((Texts{L"dated task", L"undated task"}), ColumnOf(L"ActivityMyActivity", L"F_ACTID"));
    EXPECT_EQ((Texts{L"entry", L"entry without a day"}), ColumnOf(L"Calendar", L"F_ACTID", L"F_ACTORID=1"));
    EXPECT_EQ(Texts{}, ColumnOf(L"Calendar", L"F_ACTID", L"F_ACTORID=2"));
}

TEST_F(RecordSources, ATaskIsMineWhenIDoItOrCreatedIt)
{
    Insert(L"TBLACTIVITY", L"F_ACTID,F_ACTORID,F_CREATORID", L"'done by me',1,2");
    Insert(L"TBLACTIVITY", L"F_ACTID,F_ACTORID,F_CREATORID", L"'created by me',2,1");
    Insert(L"TBLACTIVITY", L"F_ACTID,F_ACTORID,F_CREATORID", L"'neither',2,2");
    EXPECT_EQ((Texts{L"done by me", L"created by me"}), ColumnOf(L"ActivityMyActivity", L"F_ACTID"));
}

TEST_F(RecordSources, TheDurationOfAnEntryIsTheTimeBetweenItsStartAndItsEnd)
{
    AddActivity(L"e", L"F_ACTESDATE,F_ACTESTIME,F_ACTEETIME", L"'05/06/2003','09:30:00','11:00:00'");
    const Value duration = First(L"Calendar", L"ACT_DURATION");
    ASSERT_EQ(VT_DATE, duration.Type());
    EXPECT_EQ(L"01:30:00", Formatted(DateOf(duration), L"hh:mm:ss"));
}

TEST_F(RecordSources, AnEntryWithoutAnEndHasNoDuration)
{
    AddActivity(L"e", L"F_ACTESDATE,F_ACTESTIME", L"'05/06/2003','09:30:00'");
    EXPECT_EQ(VT_NULL, First(L"Calendar", L"ACT_DURATION").Type());
    EXPECT_EQ(VT_NULL, First(L"Calendar", L"FR_NAME").Type());
}

TEST_F(RecordSources, EachRepeatIndexHasTheNameOfItsRule)
{
    for (int index = 1; index <= 6; ++index)
    {
        AddActivity(L"e" + std::to_wstring(index), L"F_ACTESDATE,F_ACTREPTIDX",
                    L"'05/06/2003'," + std::to_wstring(index));
    }
    EXPECT_EQ((Texts{L"每天", L"每周", L"每月", L"每季", L"每半年", L"每年"}),
              ColumnOf(L"Calendar", L"FR_NAME"));
    const Value repeats = First(L"Calendar", L"ACT_REPEATS");
    EXPECT_EQ(VT_BOOL, repeats.Type());
    EXPECT_TRUE(automation::TruthOf(repeats));
}

TEST_F(RecordSources, ColumnsCarryTheirDeclaredTypesThroughViews)
{
    AddAccount();
    AddContact(L"c", L"1", L"'Li','Ming'");
    AddActivity(L"t", L"F_ACTPSTIME,F_ACTPERCENT,F_ACTSTATUS,F_ACTCOMPLETED,F_CNTCTID",
                L"'05/06/2003 09:30:45',0.5,2,1,'c'");
    EXPECT_EQ(VT_DATE, First(L"ActivityMyActivity", L"F_ACTPSTIME").Type());
    EXPECT_EQ(VT_R8, First(L"ActivityMyActivity", L"F_ACTPERCENT").Type());
    EXPECT_EQ(VT_I4, First(L"ActivityMyActivity", L"F_ACTSTATUS").Type());
    EXPECT_EQ(VT_BOOL, First(L"ActivityMyActivity", L"F_ACTCOMPLETED").Type());
    EXPECT_EQ(L"Ming", TextOf(First(L"ActivityMyActivity", L"CONTACT_GIVENNAME")));
    EXPECT_EQ(L"Li", TextOf(First(L"ActivityMyActivity", L"CONTACT_SURNAME")));
}

TEST_F(RecordSources, AnUnknownSourceAndABadFilterAreRefusedAndLeaveNoRecordset)
{
    Recordset rows;
    EXPECT_EQ(Refused(Refusal::UnknownSource), Open(rows, L"TBLCONTACT"));
    EXPECT_EQ(Refused(Refusal::UnknownColumn), Open(rows, L"ContactMyContact", L"F_NONE=1"));
    EXPECT_EQ(Refused(Refusal::UnbalancedQuotes), Open(rows, L"AccountMyAccount", L"F_ACCSNAME='O'Brien'"));
    EXPECT_EQ(Refused(Refusal::BadStatement), Open(rows, L"AccountMyAccount", L"F_ACCSNAME="));
    EXPECT_FALSE(rows);
    EXPECT_EQ(4u, mHost.Rejections().size());
}

TEST_F(RecordSources, AnySelectStatementOpensARecordset)
{
    Recordset rows;
    EXPECT_EQ(0, OpenByString(rows, L"SELECT F_AITID FROM TBLSYSINFO"));
    EXPECT_NE(L"", TextOf(rows.ValueOf(L"F_AITID")));
    EXPECT_EQ(0,
              OpenByString(rows, L"Select * From T_POutlookSyncParam Where TransObject='Task' And F_UID=0"));
    EXPECT_EQ(L"each", TextOf(rows.ValueOf(L"TransTypePic")));
    EXPECT_EQ(0,
              OpenByString(rows, L"Select * from T_POutlookSyncFolder Where TransObjectID=10 And F_UID=1"));
    EXPECT_TRUE(rows.HasNoRows());
}

TEST_F(RecordSources, AContactIsFoundByItsJoinedNames)
{
    AddContact(L"c", L"1", L"'张','伟?'");
    Recordset rows;
    EXPECT_EQ(0, OpenByString(rows, L"SELECT F_CNTCTID\r\nFROM TBLCONTACT\r\n"
                                    L"WHERE F_SURNAME+F_GIVENNAME= '张伟?'"))
        << Reason();
    ASSERT_FALSE(rows.AtEnd());
    EXPECT_EQ(L"c", TextOf(rows.ValueOf(L"F_CNTCTID")));
}

TEST_F(RecordSources, AMalformedSelectStatementIsRefused)
{
    Recordset rows;
    EXPECT_EQ(Refused(Refusal::BadStatement), OpenByString(rows, L"F_UID=1"));
    EXPECT_EQ(Refused(Refusal::BadStatement), OpenByString(rows, L"DELETE FROM TBLUSER"));
    EXPECT_EQ(Refused(Refusal::BadStatement), OpenByString(rows, L"SELECT 1; DELETE FROM TBLUSER"));
    EXPECT_EQ(Refused(Refusal::BadStatement), OpenByString(rows, L"SELECT FROM"));
    EXPECT_EQ(Refused(Refusal::UnknownTable), OpenByString(rows, L"SELECT * FROM TBLNONE"));
    EXPECT_EQ(Refused(Refusal::UnknownColumn), OpenByString(rows, L"SELECT F_NONE FROM TBLUSER"));
    EXPECT_EQ(Refused(Refusal::UnbalancedQuotes),
              OpenByString(rows, L"SELECT * FROM TBLACCOUNT WHERE F_ACCSNAME='O'Brien'"));
    EXPECT_EQ(2, Count(L"TBLUSER"));
}

} // namespace
