#include "tests/sandbox_outlook/OutlookFixture.h"

#include "automation/Text.h"
#include "sandbox/outlook/facts/Published.h"

#include <set>
#include <stdexcept>

namespace sandbox
{

using outlook::Published;
using outlook::PublishedInterface;
using outlook::PublishedInterfaces;
using outlook::PublishedMember;

class PublishedModel : public OutlookFixture
{
  protected:
    // One object of every interface that the fake has, by the interface's name.
    std::vector<std::pair<const wchar_t*, automation::Object>> Fakes() const
    {
        const auto session = mOutlook.GetObject(L"Session");
        const auto items = Contacts().GetObject(L"Items");
        const auto task = New(Tasks());
        const auto appointment = New(Calendar());
        task.GetObject(L"Links").Call(L"Add", SavedContact(L"Mary", L"Smith"));
        const auto table = Contacts().GetObject(L"GetTable");
        return {{L"_Application", mOutlook},
                {L"_NameSpace", session},
                {L"_Folders", session.GetObject(L"Folders")},
                {L"MAPIFolder", Contacts()},
                {L"_Items", items},
                {L"_ContactItem", New(Contacts())},
                {L"_TaskItem", task},
                {L"_AppointmentItem", appointment},
                {L"_NoteItem", items.GetObject(L"Add", 5)},
                {L"_PostItem", items.GetObject(L"Add", 6)},
                {L"_DistListItem", items.GetObject(L"Add", 7)},
                {L"_MailItem", items.GetObject(L"Add", 0)},
                {L"Links", task.GetObject(L"Links")},
                {L"Link", task.GetObject(L"Links").GetObject(L"Item", 1)},
                {L"RecurrencePattern", appointment.GetObject(L"GetRecurrencePattern")},
                {L"Exceptions", appointment.GetObject(L"GetRecurrencePattern").GetObject(L"Exceptions")},
                {L"_Table", table},
                {L"_Columns", table.GetObject(L"Columns")},
                {L"_Column", table.GetObject(L"Columns").GetObject(L"Item", 1)},
                {L"_Row", table.GetObject(L"GetNextRow")}};
    }

    // Unknown where the object does not have the member.
    static DISPID IdOf(const automation::Object& object, std::wstring_view member)
    {
        std::wstring name(member);
        LPOLESTR names[] = {name.data()};
        DISPID id = DISPID_UNKNOWN;
        object.Dispatch()->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &id);
        return id;
    }

    static Microsoft::WRL::ComPtr<ITypeInfo> TypeOf(const automation::Object& object)
    {
        Microsoft::WRL::ComPtr<ITypeInfo> type;
        EXPECT_EQ(S_OK, object.Dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, &type));
        return type;
    }

    // The kinds of calls that the type information has for a member.
    static std::multiset<INVOKEKIND> KindsOf(ITypeInfo& type, MEMBERID id)
    {
        std::multiset<INVOKEKIND> kinds;
        FUNCDESC* function = nullptr;
        for (UINT i = 0; SUCCEEDED(type.GetFuncDesc(i, &function)); ++i)
        {
            if (function->memid == id)
            {
                kinds.insert(function->invkind);
            }
            type.ReleaseFuncDesc(function);
        }
        return kinds;
    }
};

TEST_F(PublishedModel, EveryMemberOfAFakeHasThePublishedDispId)
{
    for (const auto& [interfaceName, object] : Fakes())
    {
        long members = 0;
        for (const PublishedMember& member : Published(interfaceName).members)
        {
            const DISPID id = IdOf(object, member.name);
            EXPECT_TRUE(id == DISPID_UNKNOWN || id == member.id)
                << automation::ToUtf8(interfaceName) << "." << automation::ToUtf8(std::wstring(member.name));
            members += id != DISPID_UNKNOWN;
        }
        EXPECT_GT(members, 0) << automation::ToUtf8(interfaceName);
    }
}

TEST_F(PublishedModel, APropertyGivesAValueOfThePublishedType)
{
    for (const auto& [interfaceName, object] : Fakes())
    {
        const PublishedInterface& of = Published(interfaceName);
        for (const PublishedMember& member : of.members)
        {
            const std::wstring name(member.name);
            if (!member.isMethod && member.parameters.empty() && IdOf(object, name) != DISPID_UNKNOWN)
            {
                EXPECT_EQ(TypeOfResult(of, member.type), object.Get(name.c_str()).Type())
                    << automation::ToUtf8(interfaceName) << "." << automation::ToUtf8(name);
            }
        }
    }
}

TEST_F(PublishedModel, AFakeCannotHaveAMemberThatIsNotPublishedNorWriteOneThatIsReadOnly)
{
    const auto read = [](DispatchObject&, const Call&) { return Value(); };
    const auto write = [](DispatchObject&, const Call&) {};
    EXPECT_THROW(outlook::AsPublished(L"_NoteItem", {{L"Importance", read, nullptr}}), std::logic_error);
    EXPECT_THROW(outlook::AsPublished(L"_NoteItem", {{L"Subject", read, write}}), std::logic_error);
    EXPECT_EQ(63392, outlook::AsPublished(L"_NoteItem", {{L"Subject", read, nullptr}}).front().id);
    EXPECT_THROW(Published(L"_JournalItem"), std::out_of_range);
}

TEST_F(PublishedModel, SharedMembersHaveOneDispIdInAllClassesAndTheDefaultMemberHasNumberZero)
{
    EXPECT_EQ(55, IdOf(New(Contacts()), L"Subject"));
    EXPECT_EQ(55, IdOf(New(Tasks()), L"subject"));
    EXPECT_EQ(55, IdOf(New(Calendar()), L"Subject"));
    EXPECT_EQ(0, IdOf(Contacts().GetObject(L"Items"), L"Item"));
    EXPECT_EQ(80, IdOf(Contacts().GetObject(L"Items"), L"Count"));
}

TEST_F(PublishedModel, EveryObjectTellsItsPublishedInterface)
{
    for (const auto& [interfaceName, object] : Fakes())
    {
        const auto type = TypeOf(object);
        TYPEATTR* attributes = nullptr;
        ASSERT_EQ(S_OK, type->GetTypeAttr(&attributes));
        EXPECT_TRUE(attributes->guid == Published(interfaceName).id) << automation::ToUtf8(interfaceName);
        EXPECT_EQ(TKIND_DISPATCH, attributes->typekind);
        type->ReleaseTypeAttr(attributes);
    }
}

TEST_F(PublishedModel, TypeInformationHasGetAndPutFunctionsAsPublished)
{
    using Kinds = std::multiset<INVOKEKIND>;
    const auto contact = TypeOf(New(Contacts()));
    EXPECT_EQ((Kinds{INVOKE_PROPERTYGET, INVOKE_PROPERTYPUT}), KindsOf(*contact.Get(), 55));
    EXPECT_EQ(Kinds{INVOKE_PROPERTYGET}, KindsOf(*contact.Get(), 61470)); // EntryID
    EXPECT_EQ(Kinds{INVOKE_FUNC}, KindsOf(*contact.Get(), 61512));        // Save
    const auto note = TypeOf(Contacts().GetObject(L"Items").GetObject(L"Add", 5));
    EXPECT_EQ(Kinds{INVOKE_PROPERTYGET}, KindsOf(*note.Get(), 63392));
    std::wstring name = L"FirstName";
    LPOLESTR names[] = {name.data()};
    MEMBERID id = MEMBERID_NIL;
    ASSERT_EQ(S_OK, contact->GetIDsOfNames(names, 1, &id));
    EXPECT_EQ(IdOf(New(Contacts()), L"FirstName"), id);
}

TEST_F(PublishedModel, ANoteHasFewMembersAndItsSubjectIsTheFirstLineOfItsText)
{
    const auto note = Contacts().GetObject(L"Items").GetObject(L"Add", 5);
    for (const wchar_t* member : {L"Importance", L"Companies", L"Sensitivity", L"UnRead", L"OutlookVersion"})
    {
        EXPECT_EQ(DISPID_UNKNOWN, IdOf(note, member)) << automation::ToUtf8(member);
    }
    note.Put(L"Body", L"Milk\r\nand bread");
    EXPECT_EQ(L"Milk", Text(note, L"Subject"));
    EXPECT_THROW(note.Put(L"Subject", L"Bread"), automation::Error);
}

TEST_F(PublishedModel, AnItemOfAnUnknownClassIsNoneOfItsFoldersKind)
{
    mMailbox->AddItem(kContacts, {{L"MessageClass", L"IPM.Acme"}, {L"Subject", L"What is this?"}});
    mMailbox->AddItem(kContacts, {{L"MessageClass", L"IPM.Contact.Acme"}, {L"LastName", L"Smith"}});
    const auto items = Contacts().GetObject(L"Items");
    EXPECT_EQ(DISPID_UNKNOWN, IdOf(items.GetObject(L"Item", 1), L"LastName"));
    EXPECT_EQ(L"What is this?", Text(items.GetObject(L"Item", 1), L"Subject"));
    EXPECT_EQ(L"Smith", Text(items.GetObject(L"Item", 2), L"LastName"));
    EXPECT_EQ(L"IPM.Contact.Acme", Text(items.GetObject(L"Item", 2), L"MessageClass"));
}

} // namespace sandbox
