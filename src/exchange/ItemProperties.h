// The properties of one Outlook item while a record writer reads them: each is asked of Outlook once, however
// many host columns it bears on, and whether or not its identity was confirmed by it. Lives as long as the
// writing of its item, which it refers to.
#pragma once

#include "automation/ItemView.h"

#include <map>
#include <string>

namespace exchange
{

class ItemProperties : public automation::PropertySource
{
  public:
    explicit ItemProperties(const automation::ItemView& item) : mItem(item) {}

    // All of these throw automation::Error when Outlook refuses.
    const automation::Value& ValueOf(const std::wstring& property);
    // Whether the property is Empty, Null or the empty text.
    bool IsEmpty(const std::wstring& property);
    // The date with its time of day; Null for none, and for the two dates that mean "no date".
    automation::Value DateOrNull(const std::wstring& property);

    automation::Value Get(const wchar_t* property) override { return ValueOf(property); }
    const automation::Object& Item() override { return mItem.Item(); }

  private:
    automation::ItemView mItem;
    std::map<std::wstring, automation::Value> mValues;
};

} // namespace exchange
