#include "tests/sandbox_outlook/OutlookFixture.h"

namespace sandbox
{

TEST(OutlookInProcess, CreatingOutlookGivesTheStandInAsLongAsItIsServed)
{
    const auto mailbox = MakeMailbox();
    {
        const OutlookInProcess served(mailbox);
        const auto outlook = automation::Object::Create(L"Outlook.Application");
        EXPECT_EQ(L"Outlook", Text(outlook, L"Name"));
        const auto contact = outlook.GetObject(L"CreateItem", 2);
        contact.Put(L"LastName", L"Smith");
        contact.Call(L"Save");
        const auto other = automation::Object::Create(L"Outlook.Application");
        EXPECT_NE(outlook.Dispatch(), other.Dispatch());
    }
    EXPECT_EQ(1, mailbox->ItemCount(kContacts));
}

} // namespace sandbox
