#include "exchange/Difference.h"

#include "automation/Dates.h"
#include "automation/Readable.h"
#include "exchange/RecordedItem.h"
#include "state/Failures.h"

namespace exchange
{

using automation::Object;
using automation::Value;

namespace
{

bool IsNone(const Value& value)
{
    return automation::IsAbsent(value) ||
           (value.Type() == VT_DATE && automation::DateOf(value) == automation::kOutlookNoDate);
}

std::wstring Joined(std::wstring list, const std::wstring& name)
{
    list += list.empty() || name.empty() ? L"" : L"; ";
    return list + name;
}

// An Outlook that refuses links has none.
std::wstring LinksOf(const Object& item)
{
    return state::Trapped(std::wstring(), [&] {
        const Object links = automation::ObjectOf(item.Property(L"Links"));
        std::wstring names;
        const long count = automation::LongOf(links.Get(L"Count"));
        for (long place = 1; place <= count; ++place)
        {
            names = Joined(names, automation::TextOrEmpty(links.GetObject(L"Item", place).Get(L"Name")));
        }
        return names;
    });
}

constexpr wchar_t kLinkProperty[] = L"Links";
constexpr wchar_t kPatternPrefix[] = L"Recurrence.";

// The properties of one item.
struct ItemFields
{
    bool IsNew;
    std::vector<Difference>& Fields;

    void Add(RecordedItem& item, const std::wstring& prefix)
    {
        for (const std::wstring& property : item.Changed())
        {
            const std::wstring name = prefix + property;
            Fields.push_back(
                {Side::Outlook, name, name, IsNew ? Value() : item.Before(property), item.Get(property)});
        }
    }

    void AddLinks(const RecordedItem& item, const Object& real)
    {
        if (item.NewLinks().empty())
        {
            return;
        }
        const std::wstring now = IsNew ? std::wstring() : LinksOf(real);
        std::wstring after = now;
        for (const std::wstring& contact : item.NewLinks())
        {
            after = Joined(after, contact);
        }
        Fields.push_back({Side::Outlook, kLinkProperty, kLinkProperty, now, after});
    }
};

} // namespace

bool AreSame(const Value& one, const Value& other)
{
    if (IsNone(one) || IsNone(other))
    {
        return IsNone(one) == IsNone(other);
    }
    if (one.Type() == VT_BOOL || other.Type() == VT_BOOL)
    {
        return automation::ReadableTruth(one) == automation::ReadableTruth(other);
    }
    if (one.Type() == VT_DATE || other.Type() == VT_DATE)
    {
        const auto first = automation::ReadableDate(one);
        const auto second = automation::ReadableDate(other);
        return first && second && automation::MomentOf(*first) == automation::MomentOf(*second);
    }
    if (one.Type() == VT_BSTR || other.Type() == VT_BSTR)
    {
        return automation::TextOrEmpty(one) == automation::TextOrEmpty(other);
    }
    return automation::ReadableNumber(one) == automation::ReadableNumber(other);
}

bool Difference::IsChanged() const
{
    return !AreSame(Now, After);
}

void AddItemDifferences(RecordedItem& recorded, const Object& real, std::vector<Difference>& fields)
{
    ItemFields all{!real, fields};
    all.Add(recorded, L"");
    all.AddLinks(recorded, real);
    if (recorded.Pattern() != nullptr)
    {
        all.Add(*recorded.Pattern(), kPatternPrefix);
    }
}

} // namespace exchange
