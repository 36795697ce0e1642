// How each relation row of contacts reaches an Outlook item: the whole table, in both interface languages.
#include "tests/contacts/ContactsFixture.h"
#include "tests/support/CallWatch.h"

#include <algorithm>
#include <span>

namespace
{

using automation::Date;
using resources::Language;
using test_support::Day;
using test_support::WithLanguage;

using Names = std::vector<std::wstring>;

// Every text property that a relation row may write, and the ones where a stray value would be noticed.
const Names kTexts = {L"FirstName",
                      L"LastName",
                      L"MiddleName",
                      L"Suffix",
                      L"Title",
                      L"CompanyName",
                      L"Companies",
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
                      L"BusinessAddressStreet",
                      L"WebPage",
                      L"Body",
                      L"Categories"};

// The properties that one relation row writes, as far as they are not just the one of its own name.
struct SpecialRow
{
    const wchar_t* outlookName;
    Names inEnglish;
    Names inChinese;
};

const SpecialRow kSpecialRows[] = {
    {L"FirstName", {L"LastName"}, {L"FirstName"}},
    {L"LastName", {L"FirstName"}, {L"LastName"}},
    {L"Suffix", {}, {L"Suffix"}},
    {L"Title", {L"Title"}, {}},
    {L"CompanyName", {L"CompanyName", L"Companies"}, {L"CompanyName", L"Companies"}},
    // Names that no row of the mapping has.
    {L"MiddleName", {}, {}},
    {L"Companies", {}, {}},
    {L"WebPage", {}, {}},
    {L"Body", {}, {}},
    {L"Categories", {}, {}},
};

Names WrittenBy(const std::wstring& outlookName, Language language)
{
    for (const SpecialRow& special : kSpecialRows)
    {
        if (outlookName == special.outlookName)
        {
            return language == Language::Chinese ? special.inChinese : special.inEnglish;
        }
    }
    return {outlookName};
}

bool Contains(const Names& names, const std::wstring& name)
{
    return std::ranges::find(names, name) != names.end();
}

class ContactMappingToOutlook : public test_support::ContactsFixture
{
  protected:
    // An item whose every text property reads "old".
    long AddFilledItem()
    {
        Properties properties;
        for (const std::wstring& name : kTexts)
        {
            properties.emplace_back(name, L"old");
        }
        return AddItem(properties);
    }

    // Relates a column to one property, writes a host value over a filled item, and expects the value in
    // the properties that the relation is to write, and nowhere else.
    void ExpectWritten(const std::wstring& outlookName, Language language, const std::wstring& literal,
                       const std::wstring& arriving)
    {
        SCOPED_TRACE(automation::ToUtf8(outlookName + L" = " + literal));
        const WithLanguage withLanguage(language);
        Relate({{L"F_NICKNAME", outlookName}});
        const long item = AddFilledItem();
        EXPECT_FALSE(OverwriteItems({{AddRow({{L"F_NICKNAME", literal}}), item}}));
        const Names written = WrittenBy(outlookName, language);
        for (const std::wstring& name : kTexts)
        {
            EXPECT_EQ(TextIn(item, name), Contains(written, name) ? arriving : L"old")
                << automation::ToUtf8(name);
        }
    }

    void ExpectWholeMapping(Language language, const std::wstring& literal, const std::wstring& arriving)
    {
        for (const std::wstring& name : kTexts)
        {
            ExpectWritten(name, language, literal, arriving);
        }
    }

    Date DateIn(long position, const wchar_t* property)
    {
        return automation::DateOf(PropertyOf(position, property));
    }
};

TEST_F(ContactMappingToOutlook, EachRelationWritesItsPropertiesAndNoOthersInTheEnglishInterface)
{
    ExpectWholeMapping(Language::English, L"'new'", L"new");
}

TEST_F(ContactMappingToOutlook, EachRelationWritesItsPropertiesAndNoOthersInTheChineseInterface)
{
    ExpectWholeMapping(Language::Chinese, L"'新'", L"新");
}

TEST_F(ContactMappingToOutlook, NullClearsEachPropertyThatItsRelationWrites)
{
    ExpectWholeMapping(Language::English, L"NULL", L"");
    ExpectWholeMapping(Language::Chinese, L"NULL", L"");
}

TEST_F(ContactMappingToOutlook, InTheEnglishInterfaceASurnameRelatedToLastNameLandsInFirstNameAndTheReverse)
{
    Relate({{L"F_SURNAME", L"LastName"}, {L"F_GIVENNAME", L"FirstName"}});
    EXPECT_FALSE(Export({AddRow({{L"F_SURNAME", L"'Miller'"}, {L"F_GIVENNAME", L"'Ann'"}})}));
    EXPECT_EQ(TextIn(1, L"FirstName"), L"Miller");
    EXPECT_EQ(TextIn(1, L"LastName"), L"Ann");
}

TEST_F(ContactMappingToOutlook, InTheChineseInterfaceTheNamesStayWhereTheyAre)
{
    const WithLanguage chinese(Language::Chinese);
    Relate({{L"F_SURNAME", L"LastName"}, {L"F_GIVENNAME", L"FirstName"}});
    EXPECT_FALSE(Export({AddRow({{L"F_SURNAME", L"'王'"}, {L"F_GIVENNAME", L"'小明'"}})}));
    EXPECT_EQ(TextIn(1, L"LastName"), L"王");
    EXPECT_EQ(TextIn(1, L"FirstName"), L"小明");
}

TEST_F(ContactMappingToOutlook, ANameInAnotherLetterCaseOrUnknownIsIgnoredAndTheItemIsStillSaved)
{
    Relate({{L"F_SURNAME", L"lastname"},
            {L"F_GIVENNAME", L"firstname"},
            {L"F_NICKNAME", L"NICKNAME"},
            {L"F_TITLE", L"Title "},
            {L"F_SPOUSE", L"FullName"},
            {L"F_SUFFIX", L""},
            {L"F_JOBTITLE", L"NoSuchProperty"}});
    EXPECT_FALSE(Export({AddRow({{L"F_SURNAME", L"'a'"},
                                 {L"F_GIVENNAME", L"'b'"},
                                 {L"F_NICKNAME", L"'c'"},
                                 {L"F_TITLE", L"'d'"},
                                 {L"F_SPOUSE", L"'e'"},
                                 {L"F_SUFFIX", L"'f'"},
                                 {L"F_JOBTITLE", L"'g'"}})}));
    ASSERT_EQ(CountItems(), 1);
    for (const std::wstring& name : kTexts)
    {
        EXPECT_EQ(TextIn(1, name), L"") << automation::ToUtf8(name);
    }
    EXPECT_EQ(TextIn(1, L"FullName"), L"");
}

TEST_F(ContactMappingToOutlook, ABirthdayAndAnAnniversaryArriveAsTheirDays)
{
    EXPECT_FALSE(Export(
        {AddRow({{L"F_BIRTHDAY", L"'1980-02-29 00:00:00'"}, {L"F_ANNIVERSARY", L"'1899-12-29 00:00:00'"}})}));
    EXPECT_EQ(DateIn(1, L"Birthday"), Day(1980, 2, 29));
    EXPECT_EQ(DateIn(1, L"Anniversary"), Day(1899, 12, 29));
}

TEST_F(ContactMappingToOutlook, ABirthdayAndAnAnniversaryAreWrittenOnlyWhenTheyDiffer)
{
    const long item = AddItem({{L"Birthday", Day(1980, 1, 2)}, {L"Anniversary", Day(2003, 5, 6)}});
    const long row =
        AddRow({{L"F_BIRTHDAY", L"'1980-01-02 00:00:00'"}, {L"F_ANNIVERSARY", L"'2003-05-07 00:00:00'"}});
    const test_support::CallWatch calls;
    EXPECT_FALSE(OverwriteItems({{row, item}}));
    EXPECT_EQ(1, calls.Of(L"ContactItem.Birthday")) << "read, not written";
    EXPECT_EQ(2, calls.Of(L"ContactItem.Anniversary"));
    EXPECT_EQ(DateIn(item, L"Anniversary"), Day(2003, 5, 7));
}

TEST_F(ContactMappingToOutlook, ANullBirthdayIsWrittenAsOutlooksNoDateAndNeverLeftUnchanged)
{
    const long item = AddItem({{L"Birthday", Day(1980, 1, 2)}, {L"Anniversary", Day(2003, 5, 6)}});
    EXPECT_FALSE(OverwriteItems({{AddRow({}), item}}));
    EXPECT_EQ(DateIn(item, L"Birthday"), Day(4501, 1, 1));
    EXPECT_EQ(DateIn(item, L"Anniversary"), Day(4501, 1, 1));
}

TEST_F(ContactMappingToOutlook, TheLaterOfTwoRelationsToAPropertyWins)
{
    Relate({{L"F_SURNAME", L"NickName"}, {L"F_NICKNAME", L"NickName"}});
    EXPECT_FALSE(Export({AddRow({{L"F_SURNAME", L"'first'"}, {L"F_NICKNAME", L"'later'"}})}));
    EXPECT_EQ(TextIn(1, L"NickName"), L"later");
    Relate({{L"F_NICKNAME", L"NickName"}, {L"F_SPOUSE", L"NickName"}});
    EXPECT_FALSE(OverwriteItems({{1, 1}}));
    EXPECT_EQ(TextIn(1, L"NickName"), L"");
}

TEST_F(ContactMappingToOutlook, WithoutAnyRelationAnItemIsStillSaved)
{
    Relate({});
    EXPECT_FALSE(Export({AddRow({{L"F_SURNAME", L"'Miller'"}})}));
    ASSERT_EQ(CountItems(), 1);
    EXPECT_EQ(TextIn(1, L"FullName"), L"");
}

TEST_F(ContactMappingToOutlook, RelationsOfOtherTablesNeverAffectContacts)
{
    Relate({{L"F_SURNAME", L"FirstName"}});
    Execute(L"INSERT INTO SynRelation (QuenlarTblName, EnglishName, OutlookName) VALUES "
            L"('TBLACTIVITY','F_NICKNAME','NickName'), ('VW_CALENDAR','F_SPOUSE','Spouse'), "
            L"('TBLACTIVITY','F_NOWHERE','JobTitle')");
    EXPECT_FALSE(Export({AddRow({{L"F_NICKNAME", L"'x'"}, {L"F_SPOUSE", L"'y'"}})}));
    EXPECT_EQ(TextIn(1, L"NickName") + TextIn(1, L"Spouse"), L"");
}

TEST_F(ContactMappingToOutlook, AWholeContactOfTheHostArrivesByTheRelationsItShipsWith)
{
    Execute(L"INSERT INTO TBLACCOUNT (F_ACCID, F_ACCSNAME) VALUES ('A1','O''Brien & S\u00f6hne')");
    Execute(L"INSERT INTO TBLADDRESS VALUES ('D1','A1','Germany','NRW','K\u00f6ln','Domplatz 1','50667',1)");
    EXPECT_FALSE(Export({AddRow({{L"F_SURNAME", L"'D''Arcy'"},
                                 {L"F_GIVENNAME", L"'Ann'"},
                                 {L"F_EMAIL", L"'ann@example.com'"},
                                 {L"F_ACCID", L"'A1'"},
                                 {L"F_CNTADDRID", L"'D1'"}})}));
    EXPECT_EQ(TextIn(1, L"FullName"), L"Ann D'Arcy");
    EXPECT_EQ(TextIn(1, L"Email1Address"), L"ann@example.com");
    EXPECT_EQ(TextIn(1, L"CompanyName"), L"O'Brien & S\u00f6hne");
    EXPECT_EQ(TextIn(1, L"Companies"), L"O'Brien & S\u00f6hne");
    EXPECT_EQ(TextIn(1, L"BusinessAddressCountry") + TextIn(1, L"BusinessAddressState"), L"GermanyNRW");
    EXPECT_EQ(TextIn(1, L"BusinessAddressCity"), L"K\u00f6ln");
    EXPECT_EQ(TextIn(1, L"BusinessAddressStreet") + TextIn(1, L"BusinessAddressPostalCode"),
              L"Domplatz 150667");
}

} // namespace
