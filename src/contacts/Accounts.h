// The host accounts that contacts, tasks and calendar entries are linked to: new ones with their information
// row, and the link of a contact to its company's account and to that account's business address. Called
// inside the record writer's transaction; everything here throws automation::Error when the host refuses, so
// that the writer rolls back.
#pragma once

#include "automation/Object.h"
#include "data/Host.h"
#include "data/RowColumns.h"

#include <string>

namespace contacts
{

// Adds an account of this name with its information row; returns its key. The caller has made sure that the
// user may add accounts.
std::wstring CreateAccount(const data::Host& host, data::FieldCatalogue& catalogue,
                           const std::wstring& companyName);

// Adds the columns F_ACCID and F_CNTADDRID to a contact's row by the item's company: the account is found or
// created, its address overwritten or created from the item's business address. What the user has no right
// for is left out with a message: the link is NULL in a new contact, and untouched in one that is updated,
// unless that would leave it with the address of another account. contactKey: of the contact to update.
void AddAccountLinks(const data::Host& host, const automation::Object& item, data::RowColumns& contact,
                     const std::wstring& contactKey = {});

} // namespace contacts
