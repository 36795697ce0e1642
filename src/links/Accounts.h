// The host accounts that contacts, tasks and calendar entries are linked to: new ones with their information
// row. Called inside the record writer's transaction; throws automation::Error when the host refuses, so that
// the writer rolls back.
#pragma once

#include "data/FieldCatalogue.h"
#include "data/Host.h"

#include <string>

namespace links
{

// How a new account is rolled back when its information row cannot be written.
enum class Rollback
{
    ByTransaction, // the record writer's
    ByDeletion,    // appointments have no transaction: later runs would find and reuse a half-created account
};

// Adds an account of this name, which is not empty, with its information row; returns its key. The caller has
// made sure that the user may add accounts.
std::wstring CreateAccount(const data::Host& host, data::FieldCatalogue& catalogue,
                           const std::wstring& companyName, Rollback rollback);

} // namespace links
