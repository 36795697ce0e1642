// Contacts: rows of the host's TBLCONTACT and Outlook contacts. Which column belongs to which property comes
// from the field relation table; how each property is converted is fixed here.
#pragma once

#include "exchange/Kind.h"

namespace contacts
{

// Matched by F_SURNAME and F_GIVENNAME against LastName and FirstName, joined without a separator; then by
// ACC_SNAME against CompanyName.
extern const exchange::Kind kContacts;

// The two passes of a run: true when an error ended the pass. Towards the host, a contact that cannot be
// written is rolled back and the pass continues.
extern const exchange::PassToOutlook SynContactToOutlook;
extern const exchange::PassFromOutlook SynContactFromOutlook;

// Writes the run's current host contact into the item and saves it; the mode makes no
// difference. Throws automation::Error when Outlook refuses a value or the relation rows cannot be read.
void SynSynContactToOlContact(exchange::Run& run, data::RecordMode mode, const automation::Object& item);

// Writes one contact item, with its account and address, in one host transaction: a new row, or over the row
// on which the run's recordset stands. Returns 0 when the contact is written, or skipped because it lacks a
// name; -1 when nothing of it was written. Another mode shows a message and writes nothing.
long SynOlContactToSynContact(exchange::Run& run, data::RecordMode mode, const automation::ItemView& item);

} // namespace contacts
