// The link of a contact to its company's account and to that account's business address. Called inside the
// record writer's transaction; throws automation::Error when the host refuses, so that the writer rolls back.
#pragma once

#include "automation/ItemView.h"
#include "data/Host.h"
#include "data/HostRow.h"

#include <optional>
#include <string>
#include <vector>

namespace links
{

// The contact that an item overwrites, as the host has it.
struct PresentContact
{
    std::wstring Key;
    std::wstring Company;
};

// Adds the columns F_ACCID and F_CNTADDRID to a contact's row by the item's company: the account is found or
// created, its address overwritten or created from the item's business address. present: the contact that is
// overwritten, null for a new one. If the user may not make a link, a message says so and the link is NULL in
// a new contact and untouched in an existing one, unless that would leave it with the address of another
// account. A contact keeps its account while the two companies are equal by the rule that matches contacts.
void AddAccountLinks(const data::Host& host, const automation::ItemView& item, data::HostRow& contact,
                     const PresentContact* present = nullptr);

// AddAccountLinks without writing anything: the company and the business address that the contact would have
// afterwards.
struct AccountPreview
{
    struct AddressValue
    {
        const wchar_t* Property; // of the item
        automation::Value Value; // as the host would hold it
    };

    std::optional<std::wstring> Company; // nothing where the contact keeps its account
    bool IsNewCompany = false;
    std::vector<AddressValue> Address; // empty where the contact keeps its address
};
AccountPreview PreviewAccountLinks(const data::Host& host, data::FieldCatalogue& catalogue,
                                   const automation::ItemView& item, const PresentContact* present = nullptr);

} // namespace links
