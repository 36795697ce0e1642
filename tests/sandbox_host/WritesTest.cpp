#include "automation/Error.h"
#include "sandbox/host/HostStatements.h"
#include "tests/sandbox_host/HostFixture.h"

namespace
{

using namespace test_support;
using sandbox::Refusal;

class HostWrites : public HostFixture
{
};

class RefusedInsert : public HostFixture,
                      public testing::WithParamInterface<std::tuple<const wchar_t*, const wchar_t*, Refusal>>
{
};

TEST_F(HostWrites, ARowIsInsertedFromAColumnListAndALiteralList)
{
    EXPECT_GE(Insert(L"TBLCONTACT", L"F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME,F_NICKNAME",
                     L"'id-1','1','O''Brien','张, 伟',NULL"),
              0)
        << Reason();
    EXPECT_EQ(L"O'Brien", Stored(L"TBLCONTACT", L"F_SURNAME"));
    EXPECT_EQ(L"张, 伟", Stored(L"TBLCONTACT", L"F_GIVENNAME"));
    EXPECT_EQ(L"", Stored(L"TBLCONTACT", L"F_NICKNAME"));
    EXPECT_EQ(L"1", Stored(L"TBLCONTACT", L"F_CREATORID"));
    EXPECT_EQ(L"", mHost.LastRejection());
}

TEST_F(HostWrites, BlanksBetweenTheEntriesOfAListAreKeptApartFromThem)
{
    EXPECT_GE(Insert(L"TBLACTIVITY", L"F_ACTORID ,F_CREATORID,F_ACTID", L"1,1,'task-1'"), 0) << Reason();
    EXPECT_GE(Insert(L"TBLACCINFO", L"F_AIID, F_AITID, F_ACCID", L"'info-1', 'type', 'account'"), 0)
        << Reason();
    EXPECT_EQ(L"type", Stored(L"TBLACCINFO", L"F_AITID"));
}

TEST_F(HostWrites, ColumnNamesHoldInAnyLetterCase)
{
    EXPECT_GE(Insert(L"tblContact", L"f_cntctid,f_surname", L"'id-1','Li'"), 0) << Reason();
    EXPECT_EQ(L"Li", Stored(L"TBLCONTACT", L"F_SURNAME"));
}

TEST_F(HostWrites, DatesOfTheHostsFormAreStoredAsProperDates)
{
    EXPECT_GE(Insert(L"TBLACTIVITY", L"F_ACTID,F_ACTESDATE,F_ACTPSTIME,F_ACTESTIME",
                     L"'a','05/06/2003','12/30/9999 23:59:00','09:30:00'"),
              0)
        << Reason();
    EXPECT_EQ(L"2003-05-06 00:00:00", Stored(L"TBLACTIVITY", L"F_ACTESDATE"));
    EXPECT_EQ(L"9999-12-30 23:59:00", Stored(L"TBLACTIVITY", L"F_ACTPSTIME"));
    EXPECT_EQ(L"1899-12-30 09:30:00", Stored(L"TBLACTIVITY", L"F_ACTESTIME"));
    EXPECT_EQ(0, Update(L"TBLACTIVITY", L"F_ACTESDATE='01/01/1753',F_ACTPSTIME='2003-05-06 07:08:09'",
                        L"F_ACTID='a'"))
        << Reason();
    EXPECT_EQ(L"1753-01-01 00:00:00", Stored(L"TBLACTIVITY", L"F_ACTESDATE"));
    EXPECT_EQ(L"2003-05-06 07:08:09", Stored(L"TBLACTIVITY", L"F_ACTPSTIME"));
}

TEST_F(HostWrites, NumbersAreNumbersInTheDatabase)
{
    EXPECT_GE(Insert(L"TBLACTIVITY", L"F_ACTID,F_ACTPERCENT,F_ACTSTATUS,F_ACTCOMPLETED", L"'a',.25,-2,1"), 0)
        << Reason();
    EXPECT_EQ(L"real integer integer",
              TextOf(mHost.Database().QueryValue(L"SELECT typeof(F_ACTPERCENT)||' '||typeof(F_ACTSTATUS)||' '"
                                                 L"||typeof(F_ACTCOMPLETED) FROM TBLACTIVITY")));
}

TEST_P(RefusedInsert, GivesItsOwnNegativeResultAReasonAndNoRow)
{
    const auto [fields, values, refusal] = GetParam();
    EXPECT_EQ(Refused(refusal), Insert(L"TBLACTIVITY", fields, values));
    EXPECT_NE(L"", mHost.LastRejection());
    EXPECT_EQ(0, Count(L"TBLACTIVITY"));
}

INSTANTIATE_TEST_SUITE_P(
    Malformed, RefusedInsert,
    testing::Values(
        std::tuple(L"F_ACTID,F_NOSUCH", L"'a',1", Refusal::UnknownColumn),
        std::tuple(L"F_ACTID,", L"'a',1", Refusal::UnknownColumn),
        std::tuple(L"F_ACTID,ACT_DURATION", L"'a',1", Refusal::UnknownColumn),
        std::tuple(L"F_ACTID)--", L"'a'", Refusal::UnknownColumn),
        std::tuple(L"F_ACTID,F_ACTNAME", L"'a'", Refusal::ListsDiffer),
        std::tuple(L"F_ACTID", L"'a','b'", Refusal::ListsDiffer),
        std::tuple(L"F_ACTID,F_ACTNAME", L"'a','O'Brien'", Refusal::UnbalancedQuotes),
        std::tuple(L"F_ACTID,F_ACTNAME", L"'a','x' 'y'", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTNAME", L"'a',text", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTNAME", L"'a',", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTNAME", L"'a',\"text\"", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTSTATUS", L"'a',1+1", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTSTATUS", L"'a',1e", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTSTATUS", L"'a',True", Refusal::MalformedLiteral),
        std::tuple(L"F_ACTID,F_ACTSTATUS", L"'a','two'", Refusal::ValueDoesNotFit),
        std::tuple(L"F_ACTID,F_ACTPSTIME", L"'a','02/30/2003'", Refusal::ValueDoesNotFit),
        std::tuple(L"F_ACTID,F_ACTPSTIME", L"'a','05/06/2003 25:00:00'", Refusal::ValueDoesNotFit),
        std::tuple(L"F_ACTID,F_ACTPSTIME", L"'a','6.5.2003'", Refusal::ValueDoesNotFit),
        std::tuple(L"F_ACTID,F_ACTPSTIME", L"'a',37000", Refusal::ValueDoesNotFit),
        std::tuple(L"F_ACTID", L"'0123456789012345678901234567890123456'", Refusal::ValueDoesNotFit),
        std::tuple(L"F_ACTNAME,F_ACTID,F_ACTNAME", L"'a','b','c'", Refusal::BadStatement),
        std::tuple(L"F_ACTID", L"'a'); DELETE FROM TBLUSER", Refusal::BadStatement),
        std::tuple(L"F_ACTNAME", L"'without a key'", Refusal::Database)));

TEST_F(HostWrites, ATableThatDoesNotExistIsRefusedForEveryKindOfWrite)
{
    EXPECT_EQ(Refused(Refusal::UnknownTable), Insert(L"TBLNONE", L"F_A", L"1"));
    EXPECT_EQ(Refused(Refusal::UnknownTable), Update(L"TBLNONE", L"F_A=1", L"F_A=2"));
    EXPECT_EQ(Refused(Refusal::UnknownTable), Delete(L"TBLNONE", L"F_A=2"));
    EXPECT_EQ(Refused(Refusal::UnknownTable), Insert(L"VW_CALENDAR", L"F_ACTID", L"'a'"));
    EXPECT_NE(std::wstring::npos, mHost.LastRejection().find(L"VW_CALENDAR"));
}

TEST_F(HostWrites, AnUpdateChangesTheRowsOfItsConditionOnly)
{
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'a','Alpha'");
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'b','Beta'");
    EXPECT_EQ(0,
              Update(L"TBLACCOUNT", L"F_ACCSNAME='O''Brien & Söhne, GmbH', F_ACCCURRIDX=2", L"F_ACCID='b'"))
        << Reason();
    EXPECT_EQ((std::vector<std::wstring>{L"Alpha", L"O'Brien & Söhne, GmbH"}),
              ColumnOf(L"AccountMyAccount", L"F_ACCSNAME"));
}

TEST_F(HostWrites, AnUpdateOfARowThatIsGoneIsNoSuccessAndNoNegativeResult)
{
    EXPECT_GT(Update(L"TBLACCOUNT", L"F_ACCSNAME='x'", L"F_ACCID='gone'"), 0);
}

TEST_F(HostWrites, AnUpdateIsCheckedAsStrictlyAsAnInsert)
{
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'a','Alpha'");
    EXPECT_EQ(Refused(Refusal::UnknownColumn), Update(L"TBLACCOUNT", L"F_NONE=1", L"F_ACCID='a'"));
    EXPECT_EQ(Refused(Refusal::UnknownColumn), Update(L"TBLACCOUNT", L"F_ACCSNAME='x'", L"P_UID=1"));
    EXPECT_EQ(Refused(Refusal::MalformedLiteral), Update(L"TBLACCOUNT", L"F_ACCSNAME=x", L"F_ACCID='a'"));
    EXPECT_EQ(Refused(Refusal::UnbalancedQuotes), Update(L"TBLACCOUNT", L"F_ACCSNAME='x", L"F_ACCID='a'"));
    EXPECT_EQ(Refused(Refusal::UnbalancedQuotes), Update(L"TBLACCOUNT", L"F_ACCSNAME='x'", L"F_ACCID='a"));
    EXPECT_EQ(Refused(Refusal::BadStatement), Update(L"TBLACCOUNT", L"", L"F_ACCID='a'"));
    EXPECT_EQ(Refused(Refusal::BadStatement), Update(L"TBLACCOUNT", L"F_ACCSNAME='x'", L""));
    EXPECT_EQ(Refused(Refusal::BadStatement), Update(L"TBLACCOUNT", L"F_ACCSNAME='x'", L"F_ACCID=="));
    EXPECT_EQ(L"Alpha", Stored(L"TBLACCOUNT", L"F_ACCSNAME"));
}

TEST_F(HostWrites, DeleteSaysHowManyRowsAreGone)
{
    Insert(L"T_POutlookSyncFolder", L"F_UID,TransObjectID,OutlookFolder,IsDefault", L"1,10,'A\\B',1");
    Insert(L"T_POutlookSyncFolder", L"F_UID,TransObjectID,OutlookFolder,IsDefault", L"1,10,'Who''s?',0");
    EXPECT_EQ(1, Delete(L"T_POutlookSyncFolder", L"F_UID=1 And TransObjectID=10 And OutlookFolder='Who''s?'"))
        << Reason();
    EXPECT_EQ(0, Delete(L"T_POutlookSyncFolder", L"F_UID=2"));
    EXPECT_EQ(1, Count(L"T_POutlookSyncFolder"));
}

TEST_F(HostWrites, ARollbackUndoesTheRowsOfItsTransaction)
{
    mHost.Dtc().Call(L"BeginTrans");
    EXPECT_TRUE(automation::TruthOf(mHost.Dtc().Get(L"InTransaction")));
    EXPECT_GE(Insert(L"TBLACCOUNT", L"F_ACCID", L"'a'"), 0);
    EXPECT_LT(Insert(L"TBLACCOUNT", L"F_ACCID", L"'a'"), 0) << "the key is taken";
    EXPECT_EQ(1, Count(L"TBLACCOUNT"));
    mHost.Dtc().Call(L"RollbackTrans");
    EXPECT_FALSE(automation::TruthOf(mHost.Dtc().Get(L"InTransaction")));
    EXPECT_EQ(0, Count(L"TBLACCOUNT"));
}

TEST_F(HostWrites, ACommittedTransactionIsSeenThroughTheConnectionString)
{
    sandbox::Connection other(mHost.ConnectionString());
    mHost.Dtc().Call(L"BeginTrans");
    Insert(L"TBLACCOUNT", L"F_ACCID", L"'a'");
    EXPECT_EQ(0, LongOf(other.QueryValue(L"SELECT count(*) FROM TBLACCOUNT")));
    mHost.Dtc().Call(L"CommitTrans");
    EXPECT_EQ(1, LongOf(other.QueryValue(L"SELECT count(*) FROM TBLACCOUNT")));
}

TEST_F(HostWrites, TransactionsAreNeitherNestedNorEndedTwice)
{
    EXPECT_THROW(mHost.Dtc().Call(L"CommitTrans"), automation::Error);
    EXPECT_THROW(mHost.Dtc().Call(L"RollbackTrans"), automation::Error);
    mHost.Dtc().Call(L"BeginTrans");
    EXPECT_THROW(mHost.Dtc().Call(L"BeginTrans"), automation::Error);
    mHost.Dtc().Call(L"RollbackTrans");
}

TEST(HostDialect, APlusBetweenTextsJoinsThemAndOneBetweenNumbersAdds)
{
    using sandbox::InDatabaseDialect;
    EXPECT_EQ(L"F_SURNAME||F_GIVENNAME= 'a+b'", InDatabaseDialect(L"F_SURNAME+F_GIVENNAME= 'a+b'"));
    EXPECT_EQ(L"A || ' ' || B", InDatabaseDialect(L"A + ' ' + B"));
    EXPECT_EQ(L"F_NO+1", InDatabaseDialect(L"F_NO+1"));
    EXPECT_EQ(L"1+F_NO", InDatabaseDialect(L"1+F_NO"));
    EXPECT_EQ(L"x=+1", InDatabaseDialect(L"x=+1"));
}

TEST_F(HostWrites, AHostOfIdentifiersAndFixedWidthsTakesBracesAndBlanksInItsStatements)
{
    mHost.Recordsets().guids = true;
    mHost.Recordsets().charWidth = 20;
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'{0f8fad5b}','Contoso  '");
    EXPECT_EQ(L"0f8fad5b", Stored(L"TBLACCOUNT", L"F_ACCID"));
    EXPECT_EQ(0, Update(L"TBLACCOUNT", L"F_ACCSNAME='It ''s '", L"F_ACCSNAME='Contoso '"));
    EXPECT_EQ(L"It 's", Stored(L"TBLACCOUNT", L"F_ACCSNAME"));
    EXPECT_EQ(1, Delete(L"TBLACCOUNT", L"F_ACCID='{0f8fad5b}'"));
}

TEST_F(HostWrites, ItsOwnerSortsAndFiltersTheSourcesThatHaveTheColumn)
{
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'a','Acme'");
    Insert(L"TBLACCOUNT", L"F_ACCID,F_ACCSNAME", L"'b','Contoso'");
    mHost.Recordsets().filter = L"F_ACCID <> 'a'";
    Recordset rows;
    EXPECT_EQ(0, Open(rows, L"AccountMyAccount"));
    EXPECT_EQ(1, rows.RecordCount());
    EXPECT_EQ(0, OpenByString(rows, L"SELECT F_ACCSNAME FROM TBLACCOUNT"));
    EXPECT_EQ(2, rows.RecordCount());
}

} // namespace
