// Every property that an item of the mailbox can hold: one table for all kinds of items, so that names are
// resolved to ids once and an item is nothing but a bag of ids with values.
#pragma once

#include "automation/Value.h"

#include <optional>
#include <string_view>
#include <vector>

namespace sandbox::outlook
{

using automation::Value;

// OlItemType, as far as the fake keeps such items.
enum class ItemKind
{
    Mail = 0,
    Appointment = 1,
    Contact = 2,
    Task = 3,
    Note = 5,
    Post = 6,
    DistributionList = 7,
};

inline constexpr size_t kItemKinds = 8; // one more than the highest

enum class PropertyType
{
    Text,
    Number,
    Truth,
    Moment, // a date with its time of day
    Day,    // a date whose time of day is dropped on assignment
};

enum class PropertyId
{
    // of every item
    Subject,
    Body,
    Categories,
    Companies,
    Importance,
    Sensitivity,
    MessageClass,
    OutlookVersion,
    CreationTime,
    LastModificationTime,
    UnRead,
    // contacts
    Title,
    FirstName,
    MiddleName,
    LastName,
    Suffix,
    FullName,
    FileAs,
    NickName,
    Spouse,
    Birthday,
    Anniversary,
    CompanyName,
    JobTitle,
    Department,
    AssistantName,
    AssistantTelephoneNumber,
    Email1Address,
    HomeTelephoneNumber,
    MobileTelephoneNumber,
    BusinessTelephoneNumber,
    BusinessFaxNumber,
    HomeAddressStreet,
    HomeAddressCity,
    HomeAddressState,
    HomeAddressPostalCode,
    HomeAddressCountry,
    BusinessAddressStreet,
    BusinessAddressCity,
    BusinessAddressState,
    BusinessAddressPostalCode,
    BusinessAddressCountry,
    WebPage,
    // tasks
    StartDate,
    DueDate,
    DateCompleted,
    Status,
    Complete,
    PercentComplete,
    ReminderTime,
    TotalWork,
    ActualWork,
    ContactNames,
    // tasks and appointments
    ReminderSet,
    // appointments
    Start,
    End,
    Duration,
    AllDayEvent,
    ReminderMinutesBeforeStart,
    BusyStatus,
    Location,
    IsRecurring,
    // the recurrence pattern of an appointment or a task, kept with the item's own properties
    RecurrenceType,
    RecurrenceInterval,
    RecurrenceDayOfWeekMask,
    RecurrenceDayOfMonth,
    RecurrenceMonthOfYear,
    RecurrenceInstance,
    RecurrenceStartTime,
    RecurrenceEndTime,
    RecurrenceDuration,
    RecurrencePatternStartDate,
    RecurrencePatternEndDate,
    RecurrenceNoEndDate,
    RecurrenceOccurrences,
    RecurrenceRegenerate,
    RecurrenceEndsByDate,
    RecurrenceExceptions, // the days that differ from the series: see Exceptions.h
    // distribution lists
    DLName,
    MemberCount,
    // mails and posts
    ReceivedTime,
    Count, // not a property: how many there are
};

struct Property
{
    PropertyId id;
    const wchar_t* name; // as clients and the mailbox file write it
    PropertyType type;
    unsigned kinds; // a set of MaskOf(ItemKind)
    // What an item without a value of its own has: a number or truth value; texts are empty then, and dates
    // 4501-01-01.
    long byDefault = 0;
    long lowest = LONG_MIN; // the range of a number
    long highest = LONG_MAX;
    bool readOnly = false;
};

constexpr unsigned MaskOf(ItemKind kind)
{
    return 1u << static_cast<unsigned>(kind);
}

const Property& PropertyOf(PropertyId id);
// The property of this name (in any case) that items of a kind have; nothing where there is none.
std::optional<PropertyId> FindProperty(ItemKind kind, std::wstring_view name);
// The properties of a kind, those of its recurrence pattern included.
const std::vector<PropertyId>& PropertiesOf(ItemKind kind);
// True for what belongs to the recurrence pattern, which is no member of the item itself.
bool IsOfPattern(PropertyId id);
// The interface of items of a kind, and the one that has the property: another one for that of a pattern.
const wchar_t* InterfaceOf(ItemKind kind);
const wchar_t* InterfaceOf(ItemKind kind, PropertyId id);
// The property's name on that interface; null for what the mailbox keeps and no client sees.
const wchar_t* MemberNameOf(PropertyId id);
const Value& DefaultOf(PropertyId id);

} // namespace sandbox::outlook
