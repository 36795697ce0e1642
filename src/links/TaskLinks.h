// The links of a task or calendar entry to a host contact and a host account, as columns of its row: a link's
// value depends on the user's rights and on the host's records. Called by the record writers. All throw
// automation::Error when the host refuses; for a failed lookup of a key it is a ui::ShownError, after a
// message box titled by the routine.
#pragma once

#include "automation/Object.h"
#include "data/HostRow.h"
#include "links/Accounts.h"

#include <optional>
#include <string>

namespace links
{

// F_CNTCTID by the item's ContactNames: the contact's key, or NULL where there is none, the item was made by
// an Outlook without links, or the user may not modify contacts.
void ChangeNewTaskContact(const automation::Object& item, data::InsertRow& task);
void ChangeEditTaskContact(const automation::Object& item, data::UpdateRow& task);

// F_ACCID by the item's Companies: the account's key, with the account created where the host has none, for a
// user who may add accounts; NULL for an item without a company, for a user who may modify them. Otherwise
// nothing is added.
void ChangeAddTaskAccount(const automation::Object& item, data::InsertRow& task,
                          UndoneBy undoneBy = UndoneBy::Transaction);
void ChangeEditTaskAccount(const automation::Object& item, data::UpdateRow& task,
                           UndoneBy undoneBy = UndoneBy::Transaction);

// The same without writing anything and without a message: the contact's or the company's name that the link
// would lead to, the empty text for no link; nothing where the link stays as it is. Throw automation::Error
// when the host refuses a lookup.
struct LinkPreview
{
    std::wstring Name{};
    bool IsNew = false; // the account would be added
};
std::optional<LinkPreview> PreviewTaskContact(const automation::Object& item);
std::optional<LinkPreview> PreviewTaskAccount(data::FieldCatalogue& catalogue,
                                              const automation::Object& item);

} // namespace links
