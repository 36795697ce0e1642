#include "sandbox/outlook/PropertyTable.h"

#include "automation/Dates.h"
#include "automation/Text.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace sandbox::outlook
{

namespace
{

constexpr unsigned kMail = MaskOf(ItemKind::Mail);
constexpr unsigned kAppointment = MaskOf(ItemKind::Appointment);
constexpr unsigned kContact = MaskOf(ItemKind::Contact);
constexpr unsigned kTask = MaskOf(ItemKind::Task);
constexpr unsigned kPost = MaskOf(ItemKind::Post);
constexpr unsigned kList = MaskOf(ItemKind::DistributionList);
constexpr unsigned kAllButNotes = kMail | kAppointment | kContact | kTask | kPost | kList;
constexpr unsigned kAll = kAllButNotes | MaskOf(ItemKind::Note);
constexpr unsigned kRecurring = kAppointment | kTask;

constexpr Property kProperties[] = {
    // id, name, type, kinds, default, lowest, highest, read-only
    // clang-format off
    {PropertyId::Subject, L"Subject", PropertyType::Text, kAll},
    {PropertyId::Body, L"Body", PropertyType::Text, kAll},
    {PropertyId::Categories, L"Categories", PropertyType::Text, kAll},
    {PropertyId::Companies, L"Companies", PropertyType::Text, kAllButNotes},
    {PropertyId::Importance, L"Importance", PropertyType::Number, kAllButNotes, 1, 0, 2},
    {PropertyId::Sensitivity, L"Sensitivity", PropertyType::Number, kAllButNotes, 0, 0, 3},
    {PropertyId::MessageClass, L"MessageClass", PropertyType::Text, kAll},
    {PropertyId::OutlookVersion, L"OutlookVersion", PropertyType::Text, kAllButNotes, 0, LONG_MIN, LONG_MAX, true},
    {PropertyId::CreationTime, L"CreationTime", PropertyType::Moment, kAll, 0, LONG_MIN, LONG_MAX, true},
    {PropertyId::LastModificationTime, L"LastModificationTime", PropertyType::Moment, kAll, 0, LONG_MIN, LONG_MAX, true},
    {PropertyId::UnRead, L"UnRead", PropertyType::Truth, kAllButNotes},
    {PropertyId::Title, L"Title", PropertyType::Text, kContact},
    {PropertyId::FirstName, L"FirstName", PropertyType::Text, kContact},
    {PropertyId::MiddleName, L"MiddleName", PropertyType::Text, kContact},
    {PropertyId::LastName, L"LastName", PropertyType::Text, kContact},
    {PropertyId::Suffix, L"Suffix", PropertyType::Text, kContact},
    {PropertyId::FullName, L"FullName", PropertyType::Text, kContact},
    {PropertyId::FileAs, L"FileAs", PropertyType::Text, kContact},
    {PropertyId::NickName, L"NickName", PropertyType::Text, kContact},
    {PropertyId::Spouse, L"Spouse", PropertyType::Text, kContact},
    {PropertyId::Birthday, L"Birthday", PropertyType::Day, kContact},
    {PropertyId::Anniversary, L"Anniversary", PropertyType::Day, kContact},
    {PropertyId::CompanyName, L"CompanyName", PropertyType::Text, kContact},
    {PropertyId::JobTitle, L"JobTitle", PropertyType::Text, kContact},
    {PropertyId::Department, L"Department", PropertyType::Text, kContact},
    {PropertyId::AssistantName, L"AssistantName", PropertyType::Text, kContact},
    {PropertyId::AssistantTelephoneNumber, L"AssistantTelephoneNumber", PropertyType::Text, kContact},
    {PropertyId::Email1Address, L"Email1Address", PropertyType::Text, kContact},
    {PropertyId::HomeTelephoneNumber, L"HomeTelephoneNumber", PropertyType::Text, kContact},
    {PropertyId::MobileTelephoneNumber, L"MobileTelephoneNumber", PropertyType::Text, kContact},
    {PropertyId::BusinessTelephoneNumber, L"BusinessTelephoneNumber", PropertyType::Text, kContact},
    {PropertyId::BusinessFaxNumber, L"BusinessFaxNumber", PropertyType::Text, kContact},
    {PropertyId::HomeAddressStreet, L"HomeAddressStreet", PropertyType::Text, kContact},
    {PropertyId::HomeAddressCity, L"HomeAddressCity", PropertyType::Text, kContact},
    {PropertyId::HomeAddressState, L"HomeAddressState", PropertyType::Text, kContact},
    {PropertyId::HomeAddressPostalCode, L"HomeAddressPostalCode", PropertyType::Text, kContact},
    {PropertyId::HomeAddressCountry, L"HomeAddressCountry", PropertyType::Text, kContact},
    {PropertyId::BusinessAddressStreet, L"BusinessAddressStreet", PropertyType::Text, kContact},
    {PropertyId::BusinessAddressCity, L"BusinessAddressCity", PropertyType::Text, kContact},
    {PropertyId::BusinessAddressState, L"BusinessAddressState", PropertyType::Text, kContact},
    {PropertyId::BusinessAddressPostalCode, L"BusinessAddressPostalCode", PropertyType::Text, kContact},
    {PropertyId::BusinessAddressCountry, L"BusinessAddressCountry", PropertyType::Text, kContact},
    {PropertyId::WebPage, L"WebPage", PropertyType::Text, kContact},
    {PropertyId::StartDate, L"StartDate", PropertyType::Day, kTask},
    {PropertyId::DueDate, L"DueDate", PropertyType::Day, kTask},
    {PropertyId::DateCompleted, L"DateCompleted", PropertyType::Day, kTask},
    {PropertyId::Status, L"Status", PropertyType::Number, kTask, 0, 0, 4},
    {PropertyId::Complete, L"Complete", PropertyType::Truth, kTask},
    {PropertyId::PercentComplete, L"PercentComplete", PropertyType::Number, kTask, 0, 0, 100},
    {PropertyId::ReminderTime, L"ReminderTime", PropertyType::Moment, kTask},
    {PropertyId::TotalWork, L"TotalWork", PropertyType::Number, kTask, 0, 0},
    {PropertyId::ActualWork, L"ActualWork", PropertyType::Number, kTask, 0, 0},
    {PropertyId::ContactNames, L"ContactNames", PropertyType::Text, kTask},
    {PropertyId::ReminderSet, L"ReminderSet", PropertyType::Truth, kTask | kAppointment},
    {PropertyId::Start, L"Start", PropertyType::Moment, kAppointment},
    {PropertyId::End, L"End", PropertyType::Moment, kAppointment},
    {PropertyId::Duration, L"Duration", PropertyType::Number, kAppointment, 30, 0},
    {PropertyId::AllDayEvent, L"AllDayEvent", PropertyType::Truth, kAppointment},
    {PropertyId::ReminderMinutesBeforeStart, L"ReminderMinutesBeforeStart", PropertyType::Number, kAppointment, 15, 0},
    {PropertyId::BusyStatus, L"BusyStatus", PropertyType::Number, kAppointment, 2, 0, 4},
    {PropertyId::Location, L"Location", PropertyType::Text, kAppointment},
    {PropertyId::IsRecurring, L"IsRecurring", PropertyType::Truth, kRecurring, 0, LONG_MIN, LONG_MAX, true},
    {PropertyId::RecurrenceType, L"Recurrence.RecurrenceType", PropertyType::Number, kRecurring, 1},
    {PropertyId::RecurrenceInterval, L"Recurrence.Interval", PropertyType::Number, kRecurring, 1, 1, 999},
    {PropertyId::RecurrenceDayOfWeekMask, L"Recurrence.DayOfWeekMask", PropertyType::Number, kRecurring, 0, 1, 127},
    {PropertyId::RecurrenceDayOfMonth, L"Recurrence.DayOfMonth", PropertyType::Number, kRecurring, 0, 1, 31},
    {PropertyId::RecurrenceMonthOfYear, L"Recurrence.MonthOfYear", PropertyType::Number, kRecurring, 0, 1, 12},
    {PropertyId::RecurrenceInstance, L"Recurrence.Instance", PropertyType::Number, kRecurring, 0, 1, 5},
    {PropertyId::RecurrenceStartTime, L"Recurrence.StartTime", PropertyType::Moment, kRecurring},
    {PropertyId::RecurrenceEndTime, L"Recurrence.EndTime", PropertyType::Moment, kRecurring},
    {PropertyId::RecurrenceDuration, L"Recurrence.Duration", PropertyType::Number, kRecurring, 0, 0},
    {PropertyId::RecurrencePatternStartDate, L"Recurrence.PatternStartDate", PropertyType::Day, kRecurring},
    {PropertyId::RecurrencePatternEndDate, L"Recurrence.PatternEndDate", PropertyType::Day, kRecurring},
    {PropertyId::RecurrenceNoEndDate, L"Recurrence.NoEndDate", PropertyType::Truth, kRecurring, 1},
    {PropertyId::RecurrenceOccurrences, L"Recurrence.Occurrences", PropertyType::Number, kRecurring, 10, 1, 999},
    {PropertyId::RecurrenceRegenerate, L"Recurrence.Regenerate", PropertyType::Truth, kRecurring},
    {PropertyId::RecurrenceEndsByDate, L"Recurrence.EndsByDate", PropertyType::Truth, kRecurring},
    {PropertyId::RecurrenceExceptions, L"Recurrence.Exceptions", PropertyType::Text, kAppointment},
    {PropertyId::DLName, L"DLName", PropertyType::Text, kList},
    {PropertyId::MemberCount, L"MemberCount", PropertyType::Number, kList, 0, 0, LONG_MAX, true},
    {PropertyId::ReceivedTime, L"ReceivedTime", PropertyType::Moment, kMail | kPost, 0, LONG_MIN, LONG_MAX, true},
    // clang-format on
};

constexpr bool RowsStandWhereTheirIdsSay()
{
    for (size_t i = 0; i < std::size(kProperties); ++i)
    {
        if (static_cast<size_t>(kProperties[i].id) != i)
        {
            return false;
        }
    }
    return std::size(kProperties) == static_cast<size_t>(PropertyId::Count);
}

static_assert(RowsStandWhereTheirIdsSay());

Value MadeDefault(const Property& property)
{
    switch (property.type)
    {
    case PropertyType::Text: return L"";
    case PropertyType::Number: return property.byDefault;
    case PropertyType::Truth: return property.byDefault != 0;
    default: return automation::kOutlookNoDate;
    }
}

std::array<Value, std::size(kProperties)> MadeDefaults()
{
    std::array<Value, std::size(kProperties)> defaults;
    std::ranges::transform(kProperties, defaults.begin(), MadeDefault);
    return defaults;
}

struct KindTable
{
    explicit KindTable(ItemKind kind)
    {
        for (const Property& property : kProperties)
        {
            if ((property.kinds & MaskOf(kind)) != 0)
            {
                ids.push_back(property.id);
                byName.emplace(automation::UpperCased(property.name), property.id);
            }
        }
    }

    std::vector<PropertyId> ids;
    std::unordered_map<std::wstring, PropertyId> byName;
};

struct KindInterface
{
    ItemKind kind;
    const wchar_t* name;
};

constexpr KindInterface kInterfaces[] = {
    {ItemKind::Mail, L"_MailItem"},
    {ItemKind::Appointment, L"_AppointmentItem"},
    {ItemKind::Contact, L"_ContactItem"},
    {ItemKind::Task, L"_TaskItem"},
    {ItemKind::Note, L"_NoteItem"},
    {ItemKind::Post, L"_PostItem"},
    {ItemKind::DistributionList, L"_DistListItem"},
};

std::vector<KindTable> MadeTables()
{
    std::vector<KindTable> tables;
    for (size_t kind = 0; kind < kItemKinds; ++kind)
    {
        tables.emplace_back(static_cast<ItemKind>(kind));
    }
    return tables;
}

const KindTable& TableOf(ItemKind kind)
{
    static const std::vector<KindTable> tables = MadeTables();
    return tables[static_cast<size_t>(kind)];
}

constexpr std::wstring_view kOfPattern = L"Recurrence.";

} // namespace

const Property& PropertyOf(PropertyId id)
{
    return kProperties[static_cast<size_t>(id)];
}

std::optional<PropertyId> FindProperty(ItemKind kind, std::wstring_view name)
{
    const auto& byName = TableOf(kind).byName;
    const auto found = byName.find(automation::UpperCased(std::wstring(name)));
    return found == byName.end() ? std::nullopt : std::optional(found->second);
}

const std::vector<PropertyId>& PropertiesOf(ItemKind kind)
{
    return TableOf(kind).ids;
}

bool IsOfPattern(PropertyId id)
{
    return id >= PropertyId::RecurrenceType && id <= PropertyId::RecurrenceExceptions;
}

const wchar_t* InterfaceOf(ItemKind kind)
{
    return std::ranges::find(kInterfaces, kind, &KindInterface::kind)->name;
}

const wchar_t* InterfaceOf(ItemKind kind, PropertyId id)
{
    return IsOfPattern(id) ? L"RecurrencePattern" : InterfaceOf(kind);
}

const wchar_t* MemberNameOf(PropertyId id)
{
    if (id == PropertyId::RecurrenceEndsByDate || id == PropertyId::RecurrenceExceptions)
    {
        return nullptr;
    }
    return PropertyOf(id).name + (IsOfPattern(id) ? kOfPattern.size() : 0);
}

const Value& DefaultOf(PropertyId id)
{
    static const auto defaults = MadeDefaults();
    return defaults[static_cast<size_t>(id)];
}

} // namespace sandbox::outlook
