// Contacts: host contacts and Outlook contacts.
#pragma once

#include "exchange/Kind.h"

namespace contacts
{

// Matched by F_SURNAME and F_GIVENNAME against LastName and FirstName, joined without a separator; then by
// ACC_SNAME against CompanyName.
extern const exchange::Kind kContacts;

} // namespace contacts
