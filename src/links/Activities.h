// The host's activities (TBLACTIVITY), which tasks and calendar entries share: the links to a host contact
// and a host account as columns of the row, whose values depend on the user's rights and on the host's
// records, and the statements. Called by the record writers. All throw automation::Error when the host
// refuses; for a failed lookup of a key it is a ui::ShownError, after a message box titled by the routine.
#pragma once

#include "automation/ItemView.h"
#include "data/HostRow.h"
#include "links/Accounts.h"

namespace links
{

// F_CNTCTID by the item's ContactNames: the contact's key, or NULL where there is none, the item was made by
// an Outlook without links, or the user may not modify contacts.
void ChangeNewTaskContact(const automation::ItemView& item, data::InsertRow& task);
void ChangeEditTaskContact(const automation::ItemView& item, data::UpdateRow& task);

// F_ACCID by the item's Companies: the account's key, with the account created where the host has none, for a
// user who may add accounts; NULL for an item without a company, for a user who may modify them. Otherwise
// nothing is added.
void ChangeAddTaskAccount(const automation::ItemView& item, data::InsertRow& task,
                          Rollback rollback = Rollback::ByTransaction);
void ChangeEditTaskAccount(const automation::ItemView& item, data::UpdateRow& task,
                           Rollback rollback = Rollback::ByTransaction);

// Sends a new activity of the current user under a new key. keyColumns: of the actor, the creator and the
// key.
void InsertActivity(const data::Host& host, data::InsertRow& activity, const std::wstring& keyColumns);
// Sends the changes to the recordset's current row.
void UpdateActivity(const data::Host& host, const data::UpdateRow& activity,
                    const automation::Recordset& rows);

} // namespace links
