#include "tests/hostile/HostileItem.h"

#include "sandbox/dispatch/DispatchObject.h"

namespace test_support
{

namespace
{

using automation::Value;
using sandbox::Call;
using sandbox::DispatchObject;
using sandbox::MakeObject;
using sandbox::MemberTable;
using sandbox::Reads;

constexpr const wchar_t* kProperties[] = {
    // contacts
    L"LastName",
    L"FirstName",
    L"Suffix",
    L"Title",
    L"Birthday",
    L"Anniversary",
    L"NickName",
    L"Spouse",
    L"HomeAddressCountry",
    L"HomeAddressState",
    L"HomeAddressCity",
    L"HomeAddressStreet",
    L"HomeAddressPostalCode",
    L"JobTitle",
    L"Department",
    L"AssistantName",
    L"BusinessTelephoneNumber",
    L"BusinessFaxNumber",
    L"MobileTelephoneNumber",
    L"HomeTelephoneNumber",
    L"AssistantTelephoneNumber",
    L"Email1Address",
    L"CompanyName",
    L"BusinessAddressCountry",
    L"BusinessAddressState",
    L"BusinessAddressCity",
    L"BusinessAddressStreet",
    L"BusinessAddressPostalCode",
    // tasks
    L"Subject",
    L"Categories",
    L"StartDate",
    L"DueDate",
    L"DateCompleted",
    L"CreationTime",
    L"PercentComplete",
    L"Importance",
    L"Status",
    L"Complete",
    L"ReminderSet",
    L"TotalWork",
    L"ActualWork",
    L"ContactNames",
    L"Companies",
    L"OutlookVersion",
    // appointments, and their patterns
    L"Start",
    L"End",
    L"AllDayEvent",
    L"IsRecurring",
    L"GetRecurrencePattern",
    L"RecurrenceType",
    L"StartTime",
    L"EndTime",
    L"Duration",
    L"PatternStartDate",
    L"PatternEndDate",
    L"NoEndDate",
};

class HostileItem : public DispatchObject
{
  public:
    explicit HostileItem(ItemValues values) : mValues(std::move(values)) {}

  private:
    static MemberTable MadeMembers()
    {
        MemberTable table;
        for (const wchar_t* name : kProperties)
        {
            const auto read = [name](DispatchObject& self, const Call&) -> Value {
                const ItemValues& values = static_cast<HostileItem&>(self).mValues;
                const auto found = values.find(name);
                return found == values.end() ? Value() : found->second;
            };
            table.push_back({name, read, nullptr});
        }
        return table;
    }

    const wchar_t* ClassName() const override { return L"HostileItem"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table = MadeMembers();
        return table;
    }

    ItemValues mValues;
};

class OneItem : public DispatchObject
{
  public:
    explicit OneItem(automation::Object item) : mItem(std::move(item)) {}

  private:
    Value Count(const Call&) { return 1L; }
    Value Item(const Call&) { return mItem; }

    const wchar_t* ClassName() const override { return L"Items"; }
    const MemberTable& Members() const override
    {
        static const MemberTable table{{L"Count", Reads(&OneItem::Count), nullptr},
                                       {L"Item", Reads(&OneItem::Item), nullptr}};
        return table;
    }

    automation::Object mItem;
};

} // namespace

automation::Object MakeHostileItem(ItemValues values)
{
    return MakeObject<HostileItem>(std::move(values));
}

automation::Object MakeItemsOf(const automation::Object& item)
{
    return MakeObject<OneItem>(item);
}

} // namespace test_support
