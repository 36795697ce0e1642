#include "exchange/RecordedItem.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Readable.h"
#include "automation/Text.h"

#include <algorithm>
#include <array>

namespace exchange
{

using automation::Object;
using automation::Value;

namespace
{

// The dates that Outlook keeps without a time of day.
constexpr std::array<std::wstring_view, 7> kDays{L"Birthday",      L"Anniversary",   L"StartDate",
                                                 L"DueDate",       L"DateCompleted", L"PatternStartDate",
                                                 L"PatternEndDate"};

// The value as a property of this type takes it. Empty stands for the type's own empty value.
Value Converted(const Value& value, VARTYPE type)
{
    switch (type)
    {
    case VT_BSTR: return automation::TextOf(value);
    case VT_BOOL: return automation::TruthOf(value);
    case VT_I2:
    case VT_I4: return automation::LongOf(value);
    case VT_R8: return automation::DoubleOf(value);
    case VT_DATE: return automation::DateOf(value);
    default: return value;
    }
}

Value WithoutTime(const std::wstring& property, const Value& value)
{
    const bool isDay = value.Type() == VT_DATE && std::ranges::find(kDays, property) != kDays.end();
    return isDay ? Value(automation::DayOf(automation::DateOf(value))) : value;
}

// What a linked contact is added as: an item, or a name.
std::wstring NameOf(const Value& contact)
{
    return contact.Type() == VT_DISPATCH
               ? automation::TextOrEmpty(automation::ObjectOf(contact).Property(L"FullName"))
               : automation::TextOrEmpty(contact);
}

// The links of a recorded item, which it outlives.
class RecordedLinks : public automation::LateBound
{
  public:
    explicit RecordedLinks(RecordedItem& item) : mItem(item.AsObject()), mRecorded(item) {}

  private:
    Value Read(const std::wstring& member, std::span<const Value> arguments) override
    {
        if (member != L"Add" || arguments.empty())
        {
            throw automation::Error(DISP_E_MEMBERNOTFOUND, member);
        }
        mRecorded.AddLink(NameOf(arguments.front()));
        return {};
    }
    void Write(const std::wstring& member, const Value& /*value*/) override
    {
        throw automation::Error(DISP_E_MEMBERNOTFOUND, member);
    }

    Object mItem;
    RecordedItem& mRecorded;
};

} // namespace

RecordedItem::RecordedItem(Object item, const ItemBehaviour& behaviour)
    : mItem(std::move(item)), mBehaviour(behaviour)
{
}

Value RecordedItem::Real(const std::wstring& property)
{
    const auto known = mBefore.find(property);
    if (known != mBefore.end())
    {
        return known->second;
    }
    return mBefore.emplace(property, mItem ? mItem.Property(property.c_str()) : Value()).first->second;
}

Value RecordedItem::Before(const std::wstring& property)
{
    try
    {
        return Real(property);
    }
    catch (const automation::Error& error)
    {
        if (!automation::IsRefusal(error))
        {
            throw;
        }
        return {};
    }
}

Value RecordedItem::Get(const std::wstring& property)
{
    const auto put = mAfter.find(property);
    return put != mAfter.end() ? put->second : Real(property);
}

void RecordedItem::Put(const std::wstring& property, const Value& value)
{
    const Value converted = WithoutTime(property, Converted(value, Before(property).Type()));
    const auto reaction = std::ranges::find_if(
        mBehaviour.Reactions, [&](const Reaction& candidate) { return property == candidate.Property; });
    if (reaction != mBehaviour.Reactions.end())
    {
        reaction->Put(*this, converted);
    }
    else
    {
        Keep(property, converted);
    }
}

void RecordedItem::Keep(const std::wstring& property, const Value& value)
{
    if (mAfter.insert_or_assign(property, value).second)
    {
        mOrder.push_back(property);
    }
}

void RecordedItem::Assume(const std::wstring& property, const Value& value)
{
    mBefore.insert_or_assign(property, value);
}

void RecordedItem::Settle()
{
    if (mPattern != nullptr && mBehaviour.Settle != nullptr)
    {
        mBehaviour.Settle(*this, *mPattern);
    }
}

void RecordedItem::AddLink(const std::wstring& contact)
{
    mLinks.push_back(contact);
}

Value RecordedItem::Read(const std::wstring& member, std::span<const Value> /*arguments*/)
{
    if (member == L"Save")
    {
        return {};
    }
    if (member == L"Links")
    {
        return Object(new RecordedLinks(*this));
    }
    if (member == L"GetRecurrencePattern")
    {
        return PatternOf();
    }
    return Get(member);
}

// A single item is made a recurring one by being asked for its pattern, so it is not asked.
Object RecordedItem::PatternOf()
{
    if (mPattern == nullptr)
    {
        const bool repeats = automation::IsTrue(Before(L"IsRecurring"));
        mPattern =
            new RecordedItem(repeats ? mItem.GetObject(L"GetRecurrencePattern") : Object(), mBehaviour);
        mPatternObject = mPattern->AsObject();
        if (!repeats)
        {
            StartPattern();
        }
    }
    return mPatternObject;
}

void RecordedItem::StartPattern()
{
    Keep(L"IsRecurring", true);
    if (mBehaviour.StartPattern != nullptr)
    {
        mBehaviour.StartPattern(*this, *mPattern);
    }
}

} // namespace exchange
