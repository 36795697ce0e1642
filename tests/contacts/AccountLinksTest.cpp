// The account and the address that a contact from Outlook is linked to.
#include "tests/contacts/ContactsFixture.h"

#include "tests/support/MessageBoxes.h"
#include "tests/support/SentStatements.h"

namespace
{

using test_support::MessagesDuring;
using test_support::SentStatements;
using test_support::ShownMessage;
using test_support::WithLanguage;

constexpr long kAddRight = 2;
constexpr long kModifyRight = 4;
constexpr const wchar_t* kAddressOfContact = L"SELECT ADDR_CITY || '/' || ADDR_POSTALCODE FROM VW_CONTACT";

class AccountLinks : public test_support::ContactsFixture
{
  protected:
    // An item with a company in a city.
    long AddEmployee(const std::wstring& company, const std::wstring& city)
    {
        return AddNamedItem({{L"CompanyName", company},
                             {L"BusinessAddressCountry", L"Germany"},
                             {L"BusinessAddressState", L"NRW"},
                             {L"BusinessAddressCity", city},
                             {L"BusinessAddressStreet", L"Hauptstra\u00dfe 1"},
                             {L"BusinessAddressPostalCode", L"53111"}});
    }

    // An account of the host's own, without an address.
    void AddAccount(const std::wstring& key, const std::wstring& name)
    {
        Execute(L"INSERT INTO TBLACCOUNT (F_ACCID, F_CREATORID, F_ACCSNAME) VALUES ('" + key + L"'," +
                std::to_wstring(TheHost.UserId()) + L",'" + name + L"')");
    }

    std::wstring Links()
    {
        return Found(L"SELECT COALESCE(F_ACCID,'none') || '/' || COALESCE(F_CNTADDRID,'none') FROM "
                     L"TBLCONTACT ORDER BY F_CNTCTNO DESC LIMIT 1");
    }
};

TEST_F(AccountLinks, WithoutACompanyBothLinksAreNull)
{
    Import({AddNamedItem({{L"BusinessAddressCity", L"Bonn"}})});
    EXPECT_EQ(Links(), L"none/none");
    EXPECT_EQ(Count(L"TBLACCOUNT") + Count(L"TBLADDRESS"), 0);
}

TEST_F(AccountLinks, ANewCompanyBecomesAnAccountWithItsInformationRowAndPrimaryAddress)
{
    EXPECT_FALSE(Import({AddEmployee(L"Acme", L"Bonn")}));
    EXPECT_EQ(Found(L"SELECT F_ACCSNAME FROM TBLACCOUNT"), L"Acme");
    EXPECT_EQ(
        Found(L"SELECT COUNT(*) FROM TBLACCINFO i JOIN TBLACCOUNT a ON a.F_ACCID=i.F_ACCID, TBLSYSINFO s "
              L"WHERE i.F_AITID=s.F_AITID"),
        L"1");
    EXPECT_EQ(Found(L"SELECT F_ADDRCOUNTRY || F_ADDRPROVINCE || F_ADDRCITY || F_ADDRDETAIL || F_POSTALCODE "
                    L"FROM TBLADDRESS d JOIN TBLACCOUNT a ON a.F_ACCID=d.F_ACCID WHERE F_ISPRIMARY=1"),
              L"GermanyNRWBonnHauptstra\u00dfe 153111");
    EXPECT_EQ(Found(L"SELECT ACC_SNAME FROM VW_CONTACT"), L"Acme");
    EXPECT_EQ(Found(kAddressOfContact), L"Bonn/53111");
}

TEST_F(AccountLinks, AKeyThatADriverPutsIntoBracesIsWrittenWhole)
{
    const std::wstring key = L"6D1F0A52-7B7E-4C1B-9B0B-0B8F5A3C2E11";
    AddAccount(key, L"Acme");
    TheHost.Recordsets().guids = true;
    EXPECT_FALSE(Import({AddEmployee(L"Acme", L"Bonn")}));
    EXPECT_EQ(Found(L"SELECT F_ACCID FROM TBLCONTACT"), key);
}

TEST_F(AccountLinks, TheCurrencyOfANewAccountFollowsTheInterfaceLanguage)
{
    Import({AddEmployee(L"English", L"Bonn")});
    const WithLanguage chinese(resources::Language::Chinese);
    Import({AddEmployee(L"Chinese", L"Bonn")});
    EXPECT_EQ(Found(L"SELECT F_ACCCURRIDX FROM TBLACCOUNT WHERE F_ACCSNAME='English'"), L"2");
    EXPECT_EQ(Found(L"SELECT F_ACCCURRIDX FROM TBLACCOUNT WHERE F_ACCSNAME='Chinese'"), L"1");
}

TEST_F(AccountLinks, TwoContactsOfOneNewCompanyShareItsAccountAndItsAddress)
{
    EXPECT_FALSE(Import({AddEmployee(L"O'Brien & S\u00f6hne GmbH", L"Bonn"),
                         AddEmployee(L"O'Brien & S\u00f6hne GmbH", L"K\u00f6ln")}));
    EXPECT_EQ(Count(L"TBLCONTACT"), 2);
    EXPECT_EQ(Count(L"TBLACCOUNT"), 1);
    EXPECT_EQ(Count(L"TBLACCINFO"), 1);
    EXPECT_EQ(Count(L"TBLADDRESS"), 1);
    EXPECT_EQ(Found(L"SELECT COUNT(DISTINCT F_ACCID || F_CNTADDRID) FROM TBLCONTACT"), L"1");
    EXPECT_EQ(Found(L"SELECT F_ADDRCITY FROM TBLADDRESS"), L"K\u00f6ln");
}

TEST_F(AccountLinks, ACompanyNameLongerThanItsColumnIsFoundAgainAsItWasCut)
{
    const std::wstring kLong = std::wstring(79, L'x') + L"'s and brothers";
    Import({AddEmployee(kLong, L"Bonn")});
    Import({AddEmployee(kLong, L"Bonn")});
    EXPECT_EQ(Count(L"TBLACCOUNT"), 1);
    EXPECT_EQ(Found(L"SELECT F_ACCSNAME FROM TBLACCOUNT"), std::wstring(79, L'x'));
}

TEST_F(AccountLinks, ACompanyIsFoundForAnySizeInTheCatalogue)
{
    const std::wstring kCompany = L"O'Brien, Lee & 1=1";
    AddAccount(L"A1", L"O''Brien, Lee & 1=1");
    AddAccount(L"A2", L"Other");
    for (const wchar_t* change :
         {L"UPDATE SynFields SET FieldType=9", L"UPDATE SynFields SET FieldType=1",
          L"UPDATE SynFields SET FieldType=NULL", L"UPDATE SynFields SET FieldType=2, FieldSize=NULL",
          L"DELETE FROM SynFields"})
    {
        Execute(std::wstring(change) + L" WHERE FieldName='F_ACCSNAME'");
        EXPECT_TRUE(MessagesDuring([&] { Import({AddEmployee(kCompany, L"Bonn")}); }).empty());
        EXPECT_EQ(Found(L"SELECT F_ACCID FROM TBLCONTACT ORDER BY F_CNTCTNO DESC LIMIT 1"), L"A1");
    }
    EXPECT_EQ(Count(L"TBLCONTACT"), 5);
    EXPECT_EQ(Count(L"TBLACCOUNT"), 2);
    EXPECT_TRUE(TheHost.Rejections().empty());
}

TEST_F(AccountLinks, AFoundAccountWithoutAnAddressGetsOne)
{
    AddAccount(L"A1", L"Acme");
    Import({AddEmployee(L"Acme", L"Bonn")});
    EXPECT_EQ(Found(L"SELECT F_ACCID FROM TBLCONTACT"), L"A1");
    EXPECT_EQ(Found(L"SELECT F_ACCID FROM TBLADDRESS WHERE F_ISPRIMARY=1"), L"A1");
    EXPECT_EQ(Found(kAddressOfContact), L"Bonn/53111");
    EXPECT_EQ(Count(L"TBLACCOUNT"), 1);
}

TEST_F(AccountLinks, TheAddressOfAFoundAccountIsOverwrittenEmptyPartsIncluded)
{
    AddAccount(L"A1", L"Acme");
    Execute(L"INSERT INTO TBLADDRESS VALUES ('D1','A1','France','Ile','Paris','Rue 1','75001',1), "
            L"('D2','A1','Spain',NULL,'Madrid',NULL,NULL,0)");
    Import({AddNamedItem({{L"CompanyName", L"Acme"}, {L"BusinessAddressCity", L"Bonn"}})});
    EXPECT_EQ(Links(), L"A1/D1");
    EXPECT_EQ(Found(L"SELECT F_ADDRCITY FROM TBLADDRESS WHERE F_ADDRID='D1' AND F_ADDRCOUNTRY IS NULL"),
              L"Bonn");
    EXPECT_EQ(Found(L"SELECT F_ADDRCITY FROM TBLADDRESS WHERE F_ADDRID='D2'"), L"Madrid");
}

TEST_F(AccountLinks, AChangedContactIsLinkedInTheSameWay)
{
    Import({AddNamedItem({})});
    EXPECT_FALSE(Overwrite({{AddEmployee(L"Acme", L"Bonn"), 1}}));
    EXPECT_EQ(Found(L"SELECT ACC_SNAME FROM VW_CONTACT"), L"Acme");
    EXPECT_EQ(Found(kAddressOfContact), L"Bonn/53111");
    EXPECT_FALSE(Overwrite({{AddNamedItem({}), 1}}));
    EXPECT_EQ(Links(), L"none/none");
}

TEST_F(AccountLinks, ARefusedAccountIsReportedAndTheContactIsWrittenWithoutLinks)
{
    Deny(kAddRight);
    const std::vector<ShownMessage> expected = {
        {L"You are not permit to add account record(s)!", L"Telvix", IDI_EXCLAMATION}};
    EXPECT_EQ(MessagesDuring([&] { EXPECT_FALSE(Import({AddEmployee(L"Acme", L"Bonn")})); }), expected);
    EXPECT_EQ(Links(), L"none/none");
    EXPECT_EQ(Count(L"TBLACCOUNT") + Count(L"TBLACCINFO") + Count(L"TBLADDRESS"), 0);
}

TEST_F(AccountLinks, ARefusedNewAddressLeavesTheAccountLinked)
{
    AddAccount(L"A1", L"Acme");
    Deny(kAddRight);
    EXPECT_EQ(MessagesDuring([&] { Import({AddEmployee(L"Acme", L"Bonn")}); }).size(), 1u);
    EXPECT_EQ(Links(), L"A1/none");
    EXPECT_EQ(Count(L"TBLADDRESS"), 0);
}

TEST_F(AccountLinks, ARefusedOverwritingLeavesTheAddressAndLinksTheAccountOnly)
{
    AddAccount(L"A1", L"Acme");
    Execute(L"INSERT INTO TBLADDRESS VALUES ('D1','A1','France',NULL,'Paris',NULL,NULL,1)");
    Deny(kModifyRight);
    const std::vector<ShownMessage> expected = {
        {L"You are not permit to modify account record(s)!", L"Telvix", IDI_EXCLAMATION}};
    EXPECT_EQ(MessagesDuring([&] { Import({AddEmployee(L"Acme", L"Bonn")}); }), expected);
    EXPECT_EQ(Links(), L"A1/none");
    EXPECT_EQ(Found(L"SELECT F_ADDRCITY FROM TBLADDRESS"), L"Paris");
}

TEST_F(AccountLinks, ARefusalDoesNotCostAChangedContactTheLinksThatItHas)
{
    Import({AddEmployee(L"Acme", L"Bonn")});
    const std::wstring before = Links();
    Deny(kModifyRight);
    MessagesDuring([&] { EXPECT_FALSE(Overwrite({{AddEmployee(L"Acme", L"Paris"), 1}})); });
    EXPECT_EQ(Links(), before);
    Deny(kAddRight);
    MessagesDuring([&] { EXPECT_FALSE(Overwrite({{AddEmployee(L"Elsewhere", L"Paris"), 1}})); });
    EXPECT_EQ(Links(), before);
}

TEST_F(AccountLinks, AChangedContactKeepsItsAccountWhileTheCompaniesDifferByLetterCaseAndOuterBlanksOnly)
{
    Import({AddEmployee(L"Acme", L"Bonn")});
    const std::wstring before = Links();
    EXPECT_FALSE(Overwrite({{AddEmployee(L" ACME ", L"Paris"), 1}}));
    EXPECT_EQ(Links(), before);
    EXPECT_EQ(Count(L"TBLACCOUNT"), 1);
    EXPECT_EQ(Found(kAddressOfContact), L"Paris/53111");
}

TEST_F(AccountLinks, AChangedContactKeepsItsOwnAccountOfSeveralWithTheSameName)
{
    AddAccount(L"A1", L"Acme");
    AddAccount(L"A2", L"Acme");
    AddRow({{L"F_SURNAME", L"'Miller'"}, {L"F_GIVENNAME", L"'Ann'"}, {L"F_ACCID", L"'A2'"}});
    EXPECT_FALSE(Overwrite({{AddEmployee(L"acme", L"Paris"), 1}}));
    EXPECT_EQ(Found(L"SELECT F_ACCID FROM TBLCONTACT"), L"A2");
    EXPECT_EQ(Found(L"SELECT F_ACCID FROM TBLADDRESS"), L"A2");
}

TEST_F(AccountLinks, AChangedContactStaysWithAnAccountThatTheUserDoesNotSee)
{
    Execute(L"INSERT INTO TBLACCOUNT (F_ACCID, F_CREATORID, F_ACCSNAME) VALUES ('A1',99,'Acme')");
    AddRow({{L"F_SURNAME", L"'Miller'"}, {L"F_GIVENNAME", L"'Ann'"}, {L"F_ACCID", L"'A1'"}});
    EXPECT_FALSE(Overwrite({{AddEmployee(L"Acme", L"Paris"), 1}}));
    EXPECT_EQ(Links(), L"A1/none");
    EXPECT_EQ(Count(L"TBLACCOUNT"), 1);
}

TEST_F(AccountLinks, BlanksAtTheEndsOfACompanyMakeNoSecondAccount)
{
    EXPECT_FALSE(Import({AddEmployee(L"Acme", L"Bonn"), AddEmployee(L"  Acme ", L"Bonn")}));
    EXPECT_EQ(Count(L"TBLACCOUNT"), 1);
    EXPECT_EQ(Found(L"SELECT COUNT(DISTINCT F_ACCID) FROM TBLCONTACT"), L"1");
}

TEST_F(AccountLinks, ACompanyOfBlanksIsNone)
{
    Import({AddEmployee(L"   ", L"Bonn")});
    EXPECT_EQ(Links(), L"none/none");
    EXPECT_EQ(Count(L"TBLACCOUNT"), 0);
}

TEST_F(AccountLinks, IfThePresentAccountIsUnknownTheContactIsWrittenWithoutTheColumn)
{
    Import({AddEmployee(L"Acme", L"Bonn")});
    const std::wstring before = Links();
    AddAccount(L"A1", L"Other");
    Deny(kAddRight);
    TheHost.Failures().Order(L"OpenRecordsetByString", 1, {std::nullopt});
    const long other = AddNamedItem({{L"CompanyName", L"Other"}, {L"NickName", L"first"}});
    MessagesDuring([&] { EXPECT_FALSE(Overwrite({{other, 1}})); });
    EXPECT_EQ(Found(L"SELECT F_NICKNAME FROM TBLCONTACT"), L"first");
    EXPECT_EQ(Links(), L"A1" + before.substr(before.find(L'/')));

    TheHost.Failures().Order(L"OpenRecordsetByString", 1, {-1});
    const long same = AddNamedItem({{L"CompanyName", L"OTHER"}, {L"NickName", L"second"}});
    MessagesDuring([&] { EXPECT_FALSE(Overwrite({{same, 1}})); });
    EXPECT_EQ(Found(L"SELECT F_NICKNAME FROM TBLCONTACT"), L"second");
    EXPECT_EQ(Links(), L"A1" + before.substr(before.find(L'/')));
}

TEST_F(AccountLinks, AnAddressThatIsOverwrittenIsMarkedAsPrimary)
{
    AddAccount(L"A1", L"Acme");
    Execute(L"INSERT INTO TBLADDRESS VALUES ('D1','A1','France',NULL,'Paris',NULL,NULL,1)");
    const SentStatements sent;
    Import({AddEmployee(L"Acme", L"Bonn")});
    EXPECT_EQ(sent.TheOne(L"Update(TBLADDRESS|"),
              L"Update(TBLADDRESS|F_ADDRCOUNTRY='Germany',F_ADDRPROVINCE='NRW',F_ADDRCITY='Bonn',"
              L"F_ADDRDETAIL='Hauptstra\u00dfe 1',F_POSTALCODE='53111',F_ISPRIMARY=1|F_ADDRID='D1')");
}

TEST_F(AccountLinks, AChangedContactNeverKeepsTheAddressOfAnAccountThatItHasLeft)
{
    Import({AddEmployee(L"Acme", L"Bonn")});
    AddAccount(L"A1", L"With address");
    AddAccount(L"A2", L"Without address");
    Execute(L"INSERT INTO TBLADDRESS VALUES ('D1','A1','France',NULL,'Paris',NULL,NULL,1)");
    Deny(kAddRight);
    Deny(kModifyRight);
    MessagesDuring([&] { EXPECT_FALSE(Overwrite({{AddEmployee(L"With address", L"Rome"), 1}})); });
    EXPECT_EQ(Links(), L"A1/none");
    EXPECT_EQ(Found(L"SELECT F_ADDRCITY FROM TBLADDRESS WHERE F_ADDRID='D1'"), L"Paris");
    Execute(L"UPDATE TBLCONTACT SET F_CNTADDRID='D1'");
    MessagesDuring([&] { EXPECT_FALSE(Overwrite({{AddEmployee(L"Without address", L"Rome"), 1}})); });
    EXPECT_EQ(Links(), L"A2/none");
}

} // namespace
