#include "tests/sandbox_outlook/OutlookFixture.h"

#include "tests/support/Fakes.h"

namespace sandbox
{

using ContactItem = OutlookFixture;

TEST_F(ContactItem, ATextIsKeptAsAssignedAndEmptyClearsIt)
{
    const auto contact = New(Contacts());
    contact.Put(L"CompanyName", L"O'Neil \"&\" 公司");
    EXPECT_EQ(L"O'Neil \"&\" 公司", Text(contact, L"CompanyName"));
    contact.Put(L"CompanyName", {});
    EXPECT_EQ(L"", Text(contact, L"CompanyName"));
}

TEST_F(ContactItem, AnUnsetDateIsTheFirstOfJanuary4501)
{
    const auto contact = New(Contacts());
    EXPECT_EQ(L"4501-01-01 00:00", At(contact.Get(L"Birthday")));
    EXPECT_EQ(VT_DATE, contact.Get(L"Anniversary").Type());
}

TEST_F(ContactItem, ADateIsTakenFromTextAsAutomationReadsIt)
{
    const auto contact = New(Contacts());
    contact.Put(L"Birthday", L"1975-03-04");
    EXPECT_EQ(L"1975-03-04 00:00", At(contact.Get(L"Birthday")));
}

TEST_F(ContactItem, ATextThatIsNoDateIsRefusedWithADescription)
{
    const auto contact = New(Contacts());
    EXPECT_EQ(L"Type mismatch: Birthday", FailureOf([&] { contact.Put(L"Birthday", L"abc"); }));
    EXPECT_EQ(L"4501-01-01 00:00", At(contact.Get(L"Birthday")));
}

TEST_F(ContactItem, NullIsRefusedByEveryType)
{
    const auto contact = New(Contacts());
    EXPECT_EQ(L"Type mismatch: FirstName",
              FailureOf([&] { contact.Put(L"FirstName", automation::Value::Null()); }));
    EXPECT_EQ(L"Type mismatch: Importance",
              FailureOf([&] { contact.Put(L"Importance", automation::Value::Null()); }));
}

TEST_F(ContactItem, ADateThatOutlookCannotHoldIsRefused)
{
    const auto contact = New(Contacts());
    EXPECT_EQ(L"The date of Birthday is out of range.",
              FailureOf([&] { contact.Put(L"Birthday", Day(1600, 12, 31)); }));
    EXPECT_EQ(L"The date of Birthday is out of range.",
              FailureOf([&] { contact.Put(L"Birthday", Day(4501, 1, 2)); }));
    contact.Put(L"Birthday", Day(4501, 1, 1));
    contact.Put(L"Birthday", Day(1601, 1, 1));
    EXPECT_EQ(L"1601-01-01 00:00", At(contact.Get(L"Birthday")));
}

TEST_F(ContactItem, TheFullNameIsComposedOfTheNames)
{
    const auto contact = New(Contacts());
    contact.Put(L"FirstName", L"Mary");
    contact.Put(L"LastName", L"Smith");
    EXPECT_EQ(L"Mary Smith", Text(contact, L"FullName"));
    EXPECT_EQ(L"Smith, Mary", Text(contact, L"FileAs"));
    EXPECT_EQ(L"Mary Smith", Text(contact, L"Subject"));
}

TEST_F(ContactItem, AChineseFullNameBeginsWithTheFamilyNameAndHasNoBlank)
{
    const auto contact = New(Contacts());
    contact.Put(L"FirstName", L"小明");
    contact.Put(L"LastName", L"王");
    EXPECT_EQ(L"王小明", Text(contact, L"FullName"));
}

TEST_F(ContactItem, AFullNameIsTakenApart)
{
    const auto contact = New(Contacts());
    contact.Put(L"FullName", L"Mary Ann Smith");
    EXPECT_EQ(L"Mary", Text(contact, L"FirstName"));
    EXPECT_EQ(L"Ann", Text(contact, L"MiddleName"));
    EXPECT_EQ(L"Smith", Text(contact, L"LastName"));
    contact.Put(L"FullName", L"王小明");
    EXPECT_EQ(L"王", Text(contact, L"LastName"));
    EXPECT_EQ(L"小明", Text(contact, L"FirstName"));
}

TEST_F(ContactItem, ItsMessageClassClassAndVersionAreThoseOfAContact)
{
    const auto contact = New(Contacts());
    EXPECT_EQ(L"IPM.Contact", Text(contact, L"MessageClass"));
    EXPECT_EQ(40, Number(contact, L"Class"));
    EXPECT_EQ(L"16.0", Text(contact, L"OutlookVersion"));
    EXPECT_THROW(contact.Put(L"OutlookVersion", L"8.5"), automation::Error); // it is read-only
}

TEST_F(ContactItem, AnUnknownMemberIsAnError)
{
    const auto contact = New(Contacts());
    EXPECT_THROW(contact.Get(L"StartDate"), automation::Error);
    EXPECT_THROW(contact.Put(L"Nonsense", 1), automation::Error);
}

TEST_F(ContactItem, CompaniesAndCompanyNameAreTwoProperties)
{
    const auto contact = New(Contacts());
    contact.Put(L"CompanyName", L"A");
    EXPECT_EQ(L"", Text(contact, L"Companies"));
}

} // namespace sandbox
