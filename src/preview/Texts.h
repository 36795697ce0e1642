// The words of the list of changes, in the interface language: changes, fields, values.
#pragma once

#include "preview/ChangeList.h"

#include <string>

namespace preview
{

std::wstring TextOfChange(const exchange::Proposal& proposal);
// The place of a change among the changes, for the order.
int PlaceOfChange(const exchange::Proposal& proposal);

// The header of a column of the list of changes, in the words of the kind.
std::wstring HeaderOf(Column column, const exchange::Kind& kind);

// By the user's regional settings; the empty text for no date.
std::wstring TextOfDate(const automation::Value& value);
// Line breaks and tabs become blanks.
std::wstring OnOneLine(std::wstring text);

// The name of a field as Outlook's forms have it; the technical name of a field that they do not have.
std::wstring CaptionOf(const exchange::Difference& field);

// The value of a field for a reader.
enum class Dates
{
    OfUser, // by the regional settings
    Iso,    // "2003-05-06 09:30", for files
};
std::wstring TextOfValue(const exchange::Difference& field, const automation::Value& value,
                         Dates dates = Dates::OfUser);

// The value after the run, with a remark about a record that is added for it.
std::wstring TextAfter(const exchange::Difference& field, Dates dates = Dates::OfUser);

// Why the record is not written, or not whole, line by line; the empty text for no reason.
std::wstring NotesOf(const exchange::RecordPreview& preview);

} // namespace preview
