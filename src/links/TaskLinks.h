// The links of a task or calendar entry to a host contact and a host account, as fragments of the lists of an
// insert or of an update: a link's value depends on the user's rights and on the host's records. Called
// by the record writers. Each returns 0, or -1 when the host has failed to look a key up; a message box
// titled by the routine has then shown why. Any other failure throws automation::Error, for the writer to
// report.
#pragma once

#include "automation/Object.h"
#include "data/FieldCatalogue.h"
#include "links/Accounts.h"

#include <string>

namespace links
{

// F_CNTCTID by the item's ContactNames: the contact's key, or NULL where there is none, the item was made by
// an Outlook without links, or the user may not modify contacts.
long ChangeNewTaskContact(const automation::Object& item, std::wstring& fields, std::wstring& values);
long ChangeEditTaskContact(const automation::Object& item, std::wstring& setList);

// F_ACCID by the item's Companies: the account's key, with the account created where the host has none, for a
// user who may add accounts; NULL for an item without a company, for a user who may modify them. Otherwise
// nothing is added.
long ChangeAddTaskAccount(data::FieldCatalogue& catalogue, const automation::Object& item,
                          std::wstring& fields, std::wstring& values,
                          links::UndoneBy undoneBy = links::UndoneBy::Transaction);
long ChangeEditTaskAccount(data::FieldCatalogue& catalogue, const automation::Object& item,
                           std::wstring& setList, links::UndoneBy undoneBy = links::UndoneBy::Transaction);

} // namespace links
