// The properties of one Outlook item while a record writer reads them: each is asked of Outlook once, however
// many host columns it bears on. Lives as long as the writing of its item, which it refers to.
#pragma once

#include "exchange/ItemView.h"

#include <map>
#include <string>

namespace exchange
{

class ItemProperties : public PropertySource
{
  public:
    explicit ItemProperties(const automation::Object& item) : mItem(item) {}

    // All of these throw automation::Error when Outlook refuses.
    const automation::Value& ValueOf(const std::wstring& property);
    // Whether the property is Empty, Null or the empty text.
    bool IsEmpty(const std::wstring& property);
    // The date with its time of day; Null for none, and for the two dates that mean "no date".
    automation::Value DateOrNull(const std::wstring& property);

    automation::Value Get(const wchar_t* property) override { return ValueOf(property); }
    const automation::Object& Item() override { return mItem; }

  private:
    const automation::Object& mItem;
    std::map<std::wstring, automation::Value> mValues;
};

} // namespace exchange
