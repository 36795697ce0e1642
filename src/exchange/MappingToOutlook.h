// The walk over the relation rows towards Outlook, once for all kinds of data: each row's host value goes to
// the Outlook property that the row names, in the way that the kind's mapping table says. Called by the
// writers of one item; with an ItemWriter of its own, a preview walks the same tables and writes nothing.
#pragma once

#include "exchange/Run.h"

#include <optional>
#include <span>

namespace exchange
{

// The data for one property; valid for the call only.
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
    // Converts the host's value and writes it.
    void (*Write)(const TargetProperty& property);
};

// Conversions that several kinds share.
void PutAsIs(const TargetProperty& property);
// A date; Outlook's date for "none" where the host has no date that Outlook can hold.
void PutDate(const TargetProperty& property);
// A truth value, and a number from 0 to highest; Empty, which Outlook takes for False and 0, where the host
// has no value. A value that is none of these leaves the property as it is in Outlook, with a remark.
void PutTruth(const TargetProperty& property);
void PutNumber(const TargetProperty& property, long highest);
// The same for a number that has been worked out from the host's value.
void PutNumber(const TargetProperty& property, const std::optional<double>& number, long highest);

// Converts the relation row's column of the host row and writes it, by the mapping; a row that names no
// property of the mapping writes nothing. Throws automation::Error when the column cannot be read, or Outlook
// refuses the value.
void WriteRelatedProperty(const RelationRow& relation, std::span<const PropertyToOutlook> mapping,
                          const automation::Recordset& hostRows, const automation::Object& item);

enum class Saves
{
    OnceAtTheEnd,
    AfterEachRowToo,
};

// Writes the run's current host row into the item and saves it. Throws
// automation::Error as WriteRelatedProperty, and when the relation rows cannot be read.
void WriteRelatedProperties(Run& run, std::span<const PropertyToOutlook> mapping,
                            const automation::Object& item, Saves saves);

} // namespace exchange
