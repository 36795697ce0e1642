// Which value of an Outlook contact goes into a host column, by the Outlook property that the relation table
// names for the column. Used by the writer of contacts from Outlook only.
#pragma once

#include "automation/Object.h"

#include <map>
#include <optional>
#include <string>

namespace contacts
{

// One item's properties, each read from Outlook once.
class ContactItem
{
  public:
    explicit ContactItem(const automation::Object& item) : mItem(item) {}

    const automation::Value& ValueOf(const std::wstring& property);
    bool IsEmpty(const std::wstring& property);

  private:
    const automation::Object& mItem;
    std::map<std::wstring, automation::Value> mValues;
};

// The value that stands for "this row contributes no column".
inline constexpr wchar_t kNoColumn[] = L"Don't Addtion Field";

bool IsNoColumn(const automation::Value& value);

// The value for the column that is related to this property; nothing when the item lacks the name that the
// property asks for, and so is not to be written at all. Throws automation::Error when Outlook refuses.
std::optional<automation::Value> HostValueOf(ContactItem& item, const std::wstring& outlookName);

} // namespace contacts
