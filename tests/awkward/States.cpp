#include "tests/awkward/States.h"

#include "automation/Text.h"
#include "sandbox/outlook/ItemDraft.h"

namespace test_support
{

namespace
{

using automation::TextOrEmpty;
using automation::Value;
using sandbox::outlook::FindProperty;
using sandbox::outlook::ItemDraft;
using sandbox::outlook::StoredItemRef;

// Puts the values of one record together.
class Reading
{
  public:
    Reading(States& states, std::string where) : mStates(states), mWhere(std::move(where)) {}

    void Add(const NumberedField& field, const Value& value, bool isIgnored)
    {
        mRecord.values += TextOrEmpty(value) + L" | ";
        const Mark mark = MarkOf(field.bears, value, mRecord.number);
        mRecord.number = mIsFirst ? mark.number : mRecord.number;
        mIsFirst = false;
        mIsOfAnother = mIsOfAnother || (mark.number != 0 && mark.number != mRecord.number);
        if (isIgnored || field.bears == Bears::Names)
        {
            return;
        }
        const bool isOfTwo = mark.side != 0 && mRecord.side != 0 && mark.side != mRecord.side;
        const bool isMissing = mark.number == 0;
        mRecord.side = isOfTwo || isMissing ? kMixed : mark.side != 0 ? mark.side : mRecord.side;
    }

    void AddName(const Value& name) { Add({L"", L"", Bears::Names}, name, false); }

    NumberedRecord Whole()
    {
        if (mRecord.number <= 0 || mIsOfAnother)
        {
            mStates.complaints.push_back(mWhere +
                                         " has another one's data: " + automation::ToUtf8(mRecord.values));
        }
        return mRecord;
    }

  private:
    States& mStates;
    std::string mWhere;
    NumberedRecord mRecord;
    bool mIsFirst = true;
    bool mIsOfAnother = false;
};

// All that the row has but for its company's address, which contacts of one company share.
std::wstring Described(const sandbox::ResultSet& rows, const sandbox::Row& row)
{
    std::wstring text;
    for (size_t column = 0; column < row.size(); ++column)
    {
        if (!rows.columns[column].name.starts_with(L"ADDR_"))
        {
            text += TextOrEmpty(row[column]) + L"; ";
        }
    }
    return text;
}

void LookAtRows(sandbox::Connection& database, const Place& place, States& states)
{
    const NumberedKind& kind = *place.kind;
    const sandbox::ResultSet rows = database.Query(std::wstring(L"SELECT * FROM ") + kind.view);
    for (const sandbox::Row& row : rows.rows)
    {
        const std::wstring key = TextOrEmpty(row[rows.IndexOf(kind.keyColumn)]);
        Reading reading(states, "row " + automation::ToUtf8(key));
        for (const NumberedField& field : kind.fields)
        {
            reading.Add(field, row[rows.IndexOf(field.column)], field.isGuarded && place.isGuarded);
        }
        states.rows[key] = reading.Whole();
        states.rows[key].whole = Described(rows, row);
    }
}

void LookAtOtherRows(sandbox::Connection& database, const Place& place, States& states)
{
    for (const NumberedKind* kind : kNumberedKinds)
    {
        if (kind == place.kind)
        {
            continue;
        }
        const sandbox::ResultSet rows = database.Query(std::wstring(L"SELECT * FROM ") + kind->view);
        for (const sandbox::Row& row : rows.rows)
        {
            states.others[TextOrEmpty(row[rows.IndexOf(kind->keyColumn)])] = Described(rows, row);
        }
    }
}

std::wstring Described(const StoredItemRef& item)
{
    std::wstring text;
    for (const auto& [id, value] : item->properties)
    {
        text += std::to_wstring(static_cast<int>(id)) + L"=" + TextOrEmpty(value) + L"; ";
    }
    return text;
}

class Observer
{
  public:
    Observer(sandbox::Mailbox& mailbox, const Place& place, States& states)
        : mMailbox(mailbox), mPlace(place), mStates(states)
    {
    }

    void LookInto(sandbox::outlook::MailFolder& folder)
    {
        mMailbox.Seen(folder); // items that a switch adds are there from now on
        for (const StoredItemRef& item : mMailbox.Items(folder))
        {
            LookAt(item, folder.Path() == mPlace.folderPath);
        }
        for (auto* child : folder.Children())
        {
            LookInto(*child);
        }
    }

  private:
    void LookAt(const StoredItemRef& item, bool isInFolderOfRun)
    {
        const std::wstring id = sandbox::Mailbox::EntryIdOf(*item);
        if (isInFolderOfRun && item->kind == mPlace.kind->itemKind)
        {
            mStates.items[id] = RecordOf(item);
        }
        else if (IsLinkedContact(item))
        {
            CheckLinkedContact(item);
        }
        else
        {
            mStates.others[id] = Described(item);
        }
    }

    NumberedRecord RecordOf(const StoredItemRef& item)
    {
        Reading reading(mStates, "item " + automation::ToUtf8(sandbox::Mailbox::EntryIdOf(*item)));
        for (const NumberedField& field : mPlace.kind->fields)
        {
            reading.Add(field, ValueOf(item, field.property), field.isGuarded && mPlace.isGuarded);
        }
        for (const std::wstring& link : item->links)
        {
            const StoredItemRef contact = mMailbox.Follow(link);
            reading.AddName(contact ? ValueOf(contact, L"LastName") : Value());
        }
        NumberedRecord record = reading.Whole();
        record.whole = Described(item);
        record.exceptions = TextOrEmpty(ValueOf(item, L"Recurrence.Exceptions"));
        return record;
    }

    // Contacts that a task or an entry is linked to are created where they are missing.
    bool IsLinkedContact(const StoredItemRef& item)
    {
        return mPlace.kind->itemKind != sandbox::ItemKind::Contact &&
               item->kind == sandbox::ItemKind::Contact &&
               TextOrEmpty(ValueOf(item, L"LastName")).starts_with(L"S0");
    }

    void CheckLinkedContact(const StoredItemRef& item)
    {
        const auto numberOf = [&](const wchar_t* name) {
            return MarkOf(Bears::Names, ValueOf(item, name), 0).number;
        };
        if (numberOf(L"LastName") != numberOf(L"FirstName"))
        {
            mStates.complaints.emplace_back("a linked contact has another one's data");
        }
    }

    Value ValueOf(const StoredItemRef& item, const wchar_t* name)
    {
        const auto id = FindProperty(item->kind, name);
        return id ? ItemDraft(mMailbox, item).Read(*id) : Value();
    }

    sandbox::Mailbox& mMailbox;
    const Place& mPlace;
    States& mStates;
};

} // namespace

States Look(sandbox::Connection& database, sandbox::Mailbox& mailbox, const Place& place)
{
    States states;
    LookAtRows(database, place, states);
    LookAtOtherRows(database, place, states);
    for (auto* store : mailbox.Stores())
    {
        Observer(mailbox, place, states).LookInto(*store);
    }
    return states;
}

} // namespace test_support
