#include "tests/contacts/ContactsFixture.h"

#include "tests/support/MessageBoxes.h"
#include "tests/support/OpenedRecordsets.h"
#include "tests/support/SentStatements.h"

#include <array>

namespace
{

using test_support::Day;
using test_support::MessagesDuring;
using test_support::ShownMessage;
using test_support::WithLanguage;

using ContactsFromOutlook = test_support::ContactsFixture;

constexpr const wchar_t* kBothNames = L"SELECT F_SURNAME || '/' || F_GIVENNAME FROM TBLCONTACT";

TEST_F(ContactsFromOutlook, ANewContactGetsAKeyItsCreatorAndItsRelatedColumns)
{
    const long item = AddItem({{L"LastName", L"王"},
                               {L"FirstName", L"小明"},
                               {L"NickName", L"Ming"},
                               {L"Email1Address", L"ming@example.com"},
                               {L"BusinessTelephoneNumber", L"+86 10 1234"},
                               {L"HomeAddressCity", L"北京"},
                               {L"Birthday", Day(1980, 2, 29)}});
    EXPECT_FALSE(Import({item}));
    EXPECT_EQ(Found(L"SELECT LENGTH(F_CNTCTID) > 30 FROM TBLCONTACT"), L"1");
    EXPECT_EQ(Found(L"SELECT F_CREATORID FROM TBLCONTACT"), std::to_wstring(TheHost.UserId()));
    EXPECT_EQ(Found(kBothNames), L"王/小明");
    EXPECT_EQ(Found(L"SELECT F_NICKNAME FROM TBLCONTACT"), L"Ming");
    EXPECT_EQ(Found(L"SELECT F_EMAIL FROM TBLCONTACT"), L"ming@example.com");
    EXPECT_EQ(Found(L"SELECT F_BUSINESSPHONE FROM TBLCONTACT"), L"+86 10 1234");
    EXPECT_EQ(Found(L"SELECT F_HOMECITY FROM TBLCONTACT"), L"北京");
    EXPECT_EQ(Found(L"SELECT F_BIRTHDAY FROM TBLCONTACT"), L"1980/02/29 00:00:00");
    EXPECT_EQ(Found(L"SELECT F_SPOUSE FROM TBLCONTACT"), L"NULL");
    EXPECT_TRUE(TheHost.Rejections().empty()) << TheHost.Rejections().size();
}

TEST_F(ContactsFromOutlook, TheKeyAndTheQuotedUserComeBeforeTheRelatedColumns)
{
    Relate({{L"F_SURNAME", L"FirstName"}, {L"F_GIVENNAME", L"LastName"}});
    const test_support::SentStatements sent;
    Import({AddNamedItem({})});
    std::wstring insert = sent.TheOne(L"Insert(TBLCONTACT|");
    const std::wstring key = Found(L"SELECT F_CNTCTID FROM TBLCONTACT");
    insert.replace(insert.find(key), key.size(), L"KEY");
    EXPECT_EQ(insert, L"Insert(TBLCONTACT|F_CNTCTID,F_CREATORID,F_SURNAME,F_GIVENNAME,F_ACCID,F_CNTADDRID|"
                      L"'KEY','" +
                          std::to_wstring(TheHost.UserId()) + L"','Miller','Ann',NULL,NULL)");
}

TEST_F(ContactsFromOutlook, TheRelationRowsAndTheCatalogueAreOpenedAsTheContractHasThem)
{
    const long item = AddNamedItem({});
    exchange::Run run = NewRun();
    run.Pending.NewOutlookItems.Add(std::to_wstring(item), 0);
    const test_support::OpenedRecordsets opened;
    EXPECT_FALSE(contacts::SynContactFromOutlook(run));
    EXPECT_EQ(opened.Texts, (std::vector<std::wstring>{
                                L"Select * from SynRelation where QuenlarTblName='TBLCONTACT' (cursor 1, "
                                L"lock 1, options 1)",
                                L"SynFields (cursor -1, lock 1, options 2)"}));
}

TEST_F(ContactsFromOutlook, EveryPlainPropertyReachesTheColumnThatIsRelatedToIt)
{
    constexpr std::array<const wchar_t*, 16> kPlain = {L"NickName",
                                                       L"Spouse",
                                                       L"HomeAddressCountry",
                                                       L"HomeAddressState",
                                                       L"HomeAddressCity",
                                                       L"HomeAddressStreet",
                                                       L"HomeAddressPostalCode",
                                                       L"JobTitle",
                                                       L"Department",
                                                       L"AssistantName",
                                                       L"BusinessTelephoneNumber",
                                                       L"BusinessFaxNumber",
                                                       L"MobileTelephoneNumber",
                                                       L"HomeTelephoneNumber",
                                                       L"AssistantTelephoneNumber",
                                                       L"Email1Address"};
    Properties properties;
    for (const wchar_t* property : kPlain)
    {
        properties.emplace_back(property, std::wstring(property).substr(0, 16));
    }
    EXPECT_FALSE(Import({AddNamedItem(properties)}));
    for (const wchar_t* property : kPlain)
    {
        const std::wstring column = Found(L"SELECT EnglishName FROM SynRelation WHERE OutlookName='" +
                                          std::wstring(property) + L"' AND QuenlarTblName='TBLCONTACT'");
        EXPECT_EQ(Found(L"SELECT " + column + L" FROM TBLCONTACT"), std::wstring(property).substr(0, 16));
    }
}

TEST_F(ContactsFromOutlook, OutsideTheChineseInterfaceFirstAndLastNameAreExchanged)
{
    Relate({{L"F_SURNAME", L"LastName"}, {L"F_GIVENNAME", L"FirstName"}});
    Import({AddNamedItem({})});
    EXPECT_EQ(Found(kBothNames), L"Ann/Miller");
}

TEST_F(ContactsFromOutlook, InTheChineseInterfaceTheNamesStayWhereTheyAre)
{
    const WithLanguage chinese(resources::Language::Chinese);
    Relate({{L"F_SURNAME", L"LastName"}, {L"F_GIVENNAME", L"FirstName"}});
    Import({AddNamedItem({})});
    EXPECT_EQ(Found(kBothNames), L"Miller/Ann");
}

TEST_F(ContactsFromOutlook, InTheEnglishInterfaceTheTitleIsWrittenAndTheSuffixLeftOut)
{
    Import({AddNamedItem({{L"Title", L"Dr."}, {L"Suffix", L"Jr."}})});
    EXPECT_EQ(Found(L"SELECT F_TITLE FROM TBLCONTACT"), L"Dr.");
    EXPECT_EQ(Found(L"SELECT F_SUFFIX FROM TBLCONTACT"), L"NULL");
}

TEST_F(ContactsFromOutlook, InTheChineseInterfaceTheSuffixIsWrittenAndTheTitleLeftOut)
{
    const WithLanguage chinese(resources::Language::Chinese);
    Import({AddNamedItem({{L"Title", L"Dr."}, {L"Suffix", L"Jr."}})});
    EXPECT_EQ(Found(L"SELECT F_TITLE FROM TBLCONTACT"), L"NULL");
    EXPECT_EQ(Found(L"SELECT F_SUFFIX FROM TBLCONTACT"), L"Jr.");
}

TEST_F(ContactsFromOutlook, AnEmptyTitleContributesNoColumnAndSoLeavesTheHostsOwn)
{
    Import({AddNamedItem({{L"Title", L"Dr."}})});
    EXPECT_FALSE(Overwrite({{AddNamedItem({}), 1}}));
    EXPECT_EQ(Found(L"SELECT F_TITLE FROM TBLCONTACT"), L"Dr.");
}

TEST_F(ContactsFromOutlook, AnItemWithoutALastNameIsSkippedAndCountsAsSuccess)
{
    Relate({{L"F_SURNAME", L"LastName"}});
    const long item = AddItem({{L"FirstName", L"Ann"}, {L"CompanyName", L"Acme"}});
    EXPECT_EQ(Write(1, item), 0);
    EXPECT_TRUE(NothingWritten());
    EXPECT_EQ(TheHost.Failures().CallsOf(L"BeginTrans"), 0);
}

TEST_F(ContactsFromOutlook, WhereTheFirstNamesRowIsMetFirstAnItemWithoutAFirstNameIsSkipped)
{
    Relate({{L"F_GIVENNAME", L"FirstName"}, {L"F_SURNAME", L"LastName"}});
    EXPECT_EQ(Write(1, AddItem({{L"LastName", L"Miller"}})), 0);
    EXPECT_TRUE(NothingWritten());
}

TEST_F(ContactsFromOutlook, ASkippedItemDoesNotKeepTheOthersFromBeingWritten)
{
    const long nameless = AddItem({{L"CompanyName", L"Acme"}});
    EXPECT_FALSE(Import({nameless, AddNamedItem({})}));
    EXPECT_EQ(Count(L"TBLCONTACT"), 1);
}

TEST_F(ContactsFromOutlook, WithoutRowsForTheNamesANamelessItemIsWritten)
{
    Relate({{L"F_NICKNAME", L"NickName"}});
    Import({AddItem({{L"NickName", L"Nobody"}})});
    EXPECT_EQ(Found(L"SELECT F_NICKNAME FROM TBLCONTACT"), L"Nobody");
}

TEST_F(ContactsFromOutlook, ABirthdayThatIsUnsetInOutlookIsNullInTheHost)
{
    Import({AddNamedItem({})});
    Import({AddNamedItem({{L"Birthday", Day(4501, 1, 1)}, {L"Anniversary", automation::Date{0}}})});
    EXPECT_EQ(Count(L"TBLCONTACT"), 2);
    EXPECT_EQ(Found(L"SELECT COUNT(*) FROM TBLCONTACT WHERE F_BIRTHDAY IS NULL AND F_ANNIVERSARY IS NULL"),
              L"2");
}

TEST_F(ContactsFromOutlook, AnUnsetBirthdayClearsTheOneThatTheHostHas)
{
    Import({AddNamedItem({{L"Birthday", Day(1980, 1, 2)}})});
    Overwrite({{AddNamedItem({}), 1}});
    EXPECT_EQ(Found(L"SELECT F_BIRTHDAY FROM TBLCONTACT"), L"NULL");
}

TEST_F(ContactsFromOutlook, DatesBeforeTheHostsRangeAreClamped)
{
    Import({AddNamedItem({{L"Birthday", Day(1700, 1, 1)}, {L"Anniversary", Day(1752, 12, 31, 23, 59)}})});
    EXPECT_EQ(Found(L"SELECT F_BIRTHDAY FROM TBLCONTACT"), L"1753/01/01 00:00:00");
    EXPECT_EQ(Found(L"SELECT F_ANNIVERSARY FROM TBLCONTACT"), L"1753/01/01 00:00:00");
}

TEST_F(ContactsFromOutlook, ATextIsCutToItsColumnAndNeverThroughACharacter)
{
    const std::wstring kDigits(39, L'1');
    Import({AddNamedItem({{L"NickName", kDigits + L"\U0001F600tail"},
                          {L"Spouse", kDigits + L"'tail"},
                          {L"HomeAddressCity", std::wstring(30, L'京')}})});
    EXPECT_EQ(Found(L"SELECT F_NICKNAME FROM TBLCONTACT"), kDigits);
    EXPECT_EQ(Found(L"SELECT F_SPOUSE FROM TBLCONTACT"), kDigits);
    EXPECT_EQ(Found(L"SELECT F_HOMECITY FROM TBLCONTACT"), std::wstring(20, L'京'));
}

TEST_F(ContactsFromOutlook, ApostrophesAndUmlautsArriveIntact)
{
    Import({AddItem({{L"LastName", L"O'Brien"},
                     {L"FirstName", L"D'Arcy \u00dcnal"},
                     {L"NickName", L"'); DROP TABLE TBLCONTACT; --"},
                     {L"CompanyName", L"O'Brien & S\u00f6hne GmbH"}})});
    EXPECT_EQ(Found(kBothNames), L"O'Brien/D'Arcy \u00dcnal");
    EXPECT_EQ(Found(L"SELECT F_NICKNAME FROM TBLCONTACT"), L"'); DROP TABLE TBLCONTACT; --");
    EXPECT_EQ(Found(L"SELECT ACC_SNAME FROM VW_CONTACT"), L"O'Brien & S\u00f6hne GmbH");
}

TEST_F(ContactsFromOutlook, AnEmptyRelationTableStillInsertsKeyCreatorAndLinks)
{
    Relate({});
    EXPECT_FALSE(Import({AddItem({{L"CompanyName", L"Acme"}})}));
    EXPECT_EQ(Found(L"SELECT COUNT(*) FROM TBLCONTACT WHERE F_CREATORID IS NOT NULL AND F_ACCID IS NOT NULL "
                    L"AND F_CNTADDRID IS NOT NULL AND F_SURNAME IS NULL"),
              L"1");
}

TEST_F(ContactsFromOutlook, ARowInAnotherLetterCaseOrWithAnUnknownNameContributesNothing)
{
    Relate({{L"F_SURNAME", L"lastname"},
            {L"F_GIVENNAME", L"Firstname"},
            {L"F_NICKNAME", L"CompanyName"},
            {L"F_SPOUSE", L"BusinessAddressCity"},
            {L"F_NOWHERE", L"Nothing"}});
    EXPECT_FALSE(Import({AddNamedItem({{L"CompanyName", L"Acme"}, {L"BusinessAddressCity", L"Bonn"}})}));
    EXPECT_EQ(Found(L"SELECT COUNT(*) FROM TBLCONTACT WHERE F_SURNAME IS NULL AND F_GIVENNAME IS NULL AND "
                    L"F_NICKNAME IS NULL AND F_SPOUSE IS NULL"),
              L"1");
}

TEST_F(ContactsFromOutlook, RowsOfOtherTablesNeverAffectContacts)
{
    Relate({{L"F_SURNAME", L"FirstName"}});
    Execute(L"INSERT INTO SynRelation (QuenlarTblName, EnglishName, OutlookName) VALUES "
            L"('TBLACTIVITY','F_NICKNAME','NickName'), ('VW_CALENDAR','F_SPOUSE','Spouse')");
    Import({AddNamedItem({{L"NickName", L"x"}, {L"Spouse", L"y"}})});
    EXPECT_EQ(Found(L"SELECT COUNT(*) FROM TBLCONTACT WHERE F_NICKNAME IS NULL AND F_SPOUSE IS NULL"), L"1");
}

TEST_F(ContactsFromOutlook, AChangedContactOverwritesTheRowOfItsPairAndNoOther)
{
    Import({AddNamedItem({{L"JobTitle", L"first"}}), AddNamedItem({{L"JobTitle", L"second"}})});
    EXPECT_FALSE(
        Overwrite({{AddItem({{L"LastName", L"Li"}, {L"FirstName", L"Mei"}, {L"JobTitle", L"new"}}), 2}}));
    EXPECT_EQ(Found(L"SELECT F_JOBTITLE FROM TBLCONTACT WHERE F_CNTCTNO=1"), L"first");
    EXPECT_EQ(Found(L"SELECT F_SURNAME || F_GIVENNAME || F_JOBTITLE FROM TBLCONTACT WHERE F_CNTCTNO=2"),
              L"LiMeinew");
    EXPECT_EQ(Count(L"TBLCONTACT"), 2);
}

TEST_F(ContactsFromOutlook, AnUpdateThatWritesNoColumnAtAllIsNotSent)
{
    Import({AddNamedItem({})});
    Relate({});
    Deny(2);
    MessagesDuring([&] { EXPECT_EQ(Overwrite({{AddNamedItem({{L"CompanyName", L"Acme"}}), 1}}), false); });
    EXPECT_EQ(TheHost.Failures().CallsOf(L"Update"), 0);
    EXPECT_FALSE(TheHost.Database().InTransaction());
}

TEST_F(ContactsFromOutlook, AnotherModeIsReportedAndWritesNothing)
{
    const std::vector<ShownMessage> expected = {
        {L"Error: Invalid Operation", L"SynOlContactToSynContact", IDI_ERROR}};
    const long item = AddNamedItem({});
    EXPECT_EQ(MessagesDuring([&] { EXPECT_EQ(Write(3, item), 0); }), expected);
    EXPECT_TRUE(NothingWritten());
}

TEST_F(ContactsFromOutlook, RelationsAndCatalogueAreReadOncePerPass)
{
    const std::vector<long> items = {AddNamedItem({}), AddNamedItem({}), AddNamedItem({})};
    const test_support::CallWatch calls;
    Import(items);
    EXPECT_EQ(2, calls.Of(L"Recordset.Open"));
}

TEST_F(ContactsFromOutlook, EachPropertyOfAnItemIsReadOnce)
{
    const long item = AddNamedItem({{L"CompanyName", L"Acme"}});
    const test_support::CallWatch calls;
    Import({item});
    for (const wchar_t* property : {L"LastName", L"FirstName", L"CompanyName", L"Title"})
    {
        EXPECT_EQ(1, calls.Of(L"ContactItem." + std::wstring(property)));
    }
}

} // namespace
