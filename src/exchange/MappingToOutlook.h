// The walk over the relation rows towards Outlook, once for all kinds of data: each row's host value goes to
// the Outlook property that the row names, in the way that the category's mapping table says. Called by the
// writers of one item.
#pragma once

#include "exchange/Run.h"

#include <optional>
#include <span>

namespace exchange
{

// What the handling of one property works with; valid for the call only.
struct TargetProperty
{
    const automation::Recordset& HostRows; // on the row being written
    const automation::Object& Item;
    const wchar_t* Name;
    const automation::Value& HostValue; // Empty where the host has Null

    void Put(const automation::Value& value) const { Item.Put(Name, value); }
};

struct PropertyToOutlook
{
    const wchar_t* OutlookName; // compared with regard to letter case
    void (*Write)(const TargetProperty& property);
};

// Handlings that several categories share.
void PutAsIs(const TargetProperty& property);
// A date; Outlook's date for "none" where the host has no date that Outlook can hold.
void PutDate(const TargetProperty& property);
// A truth value, and a number from 0 to highest; Empty, which Outlook takes for False and 0, where the host
// has no value. A value that is none of these leaves the property as it is in Outlook, with a remark.
void PutTruth(const TargetProperty& property);
void PutNumber(const TargetProperty& property, long highest);
// The same for a number that has been worked out from the host's value.
void PutNumber(const TargetProperty& property, const std::optional<double>& number, long highest);

enum class Saves
{
    OnceAtTheEnd,
    AfterEachRowToo,
};

// Writes the host row on which the run's recordset stands into the item and saves it. Relation rows that name
// no property of the mapping write nothing. Throws automation::Error when a row or a column cannot be read,
// or Outlook refuses a value.
void WriteRelatedProperties(Run& run, std::span<const PropertyToOutlook> mapping,
                            const automation::Object& item, Saves saves);

} // namespace exchange
