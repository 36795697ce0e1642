#include "contacts/ContactsFromOutlook.h"

#include "contacts/ContactFieldsFromOutlook.h"
#include "data/Host.h"
#include "data/Literals.h"
#include "exchange/ApplyFromOutlook.h"
#include "links/Accounts.h"
#include "state/Failures.h"
#include "ui/ShowMessageBox.h"

namespace contacts
{

using automation::Object;
using data::Host;
using data::QuotedText;
using data::RowColumns;

namespace
{

void Insert(const Host& host, const Object& item, RowColumns& contact)
{
    links::AddAccountLinks(host, item, contact);
    const std::wstring key = QuotedText(host.NewGuid());
    const std::wstring keys = key + L"," + QuotedText(host.UserId()) + L",";
    data::Demand(
        host.Insert(L"TBLCONTACT", L"F_CNTCTID,F_CREATORID," + contact.Fields, keys + contact.Values) >= 0,
        L"Insert");
}

void Update(const Host& host, const automation::Recordset& rows, const Object& item, RowColumns& contact)
{
    const std::wstring id = automation::TextOf(rows.ValueOf(L"F_CNTCTID"));
    links::AddAccountLinks(host, item, contact, {id, automation::TextOrEmpty(rows.ValueOf(L"ACC_SNAME"))});
    if (!contact.SetList.empty())
    {
        data::Demand(host.Update(L"TBLCONTACT", contact.SetList, L"F_CNTCTID=" + QuotedText(id)) == 0,
                     L"Update");
    }
}

void Write(const Host& host, const exchange::Run& run, const Object& item, RowColumns& contact)
{
    switch (contact.Mode())
    {
    case data::kNewRecord: Insert(host, item, contact); break;
    case data::kExistingRecord: Update(host, run.HostRows, item, contact); break;
    default:
        ui::ShowMessageBox(L"Error: Invalid Operation", MB_ICONERROR, L"SynOlContactToSynContact");
        break;
    }
}

} // namespace

const exchange::PassFromOutlook SynContactFromOutlook{
    L"Select * from SynRelation where QuenlarTblName='TBLCONTACT'",
    {automation::kCursorKeyset, automation::kLockReadOnly, automation::kCommandText},
    SynOlContactToSynContact};

long SynOlContactToSynContact(exchange::Run& run, long mode, const Object& item)
{
    return state::Trapped(-1L, [&] {
        RowColumns contact(run.Catalogue, mode);
        if (AddContactColumns(run.Relations, item, contact))
        {
            const Host host;
            data::Transaction transaction(host);
            Write(host, run, item, contact);
            transaction.Commit();
        }
        return 0L;
    });
}

} // namespace contacts
