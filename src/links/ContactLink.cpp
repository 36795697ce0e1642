#include "links/ContactLink.h"

#include "automation/Error.h"
#include "automation/LateBound.h"
#include "automation/OutlookConstants.h"
#include "resources/Strings.h"
#include "state/Remarks.h"
#include "state/SharedState.h"

namespace links
{

using automation::Object;
using automation::Value;

namespace
{

// The names go in as they are: Outlook itself refuses one that breaks the search text.
Object FindContact(const Object& items, const std::wstring& surname, const std::wstring& givenName)
{
    const Object contacts = items.GetObject(L"Restrict", L"[MessageClass] = 'IPM.Contact'");
    return contacts.GetObject(L"Find",
                              L"[FirstName] = \"" + givenName + L"\" And [LastName] = \"" + surname + L"\"");
}

Object CreateContact(const Object& items, const std::wstring& surname, const std::wstring& givenName)
{
    Object contact = items.GetObject(L"Add", automation::kContactItem);
    contact.Put(L"FirstName", givenName);
    contact.Put(L"LastName", surname);
    contact.Call(L"Save");
    return contact;
}

void TellRefusal(const automation::Error& error)
{
    state::Tell({.Why = state::Cause::LinkRefused,
                 .Field = error.Member(),
                 .Words = error.Description(),
                 .Code = error.Code()});
}

// The items of the default contacts folder; nothing when its store cannot be reached. The record's own folder
// may be in another one.
Object ContactItems()
{
    try
    {
        return state::Shared()
            .gOlNamespace.GetObject(L"GetDefaultFolder", automation::kContactsFolder)
            .GetObject(L"Items");
    }
    catch (const automation::Error& error)
    {
        if (!automation::IsUnreachable(error))
        {
            throw;
        }
        TellRefusal(error);
        return {};
    }
}

// Links are deprecated: an Outlook that refuses them costs the link, not the record.
void AddLink(const Object& item, const Value& contact)
{
    try
    {
        item.GetObject(L"Links").Call(L"Add", contact);
    }
    catch (const automation::Error& error)
    {
        if (!automation::IsRefusal(error))
        {
            throw;
        }
        TellRefusal(error);
    }
}

} // namespace

bool IsOfOutlook8(const Object& item)
{
    return automation::TextOrEmpty(item.Get(L"OutlookVersion")).starts_with(L'8');
}

void LinkContact(const Object& item, const Value& surname, const Value& givenName, AcceptsContact accepts)
{
    if (automation::IsAbsent(surname) || automation::IsAbsent(givenName))
    {
        return;
    }
    const std::wstring last = automation::TextOf(surname);
    const std::wstring first = automation::TextOf(givenName);
    const Object items = ContactItems();
    if (!items)
    {
        return;
    }
    const Object contact = FindContact(items, last, first);
    if (contact && accepts != nullptr && !accepts(contact))
    {
        return;
    }
    if (!contact && automation::LateBound::Is(item))
    {
        AddLink(item, resources::IsChinese() ? last + first : first + L" " + last); // of a preview
        return;
    }
    AddLink(item, contact ? contact : CreateContact(items, last, first));
}

} // namespace links
