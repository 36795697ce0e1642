// The properties that a contact composes from its names: the full name, the name to file it under, the
// subject.
#include "sandbox/outlook/ItemDraft.h"

#include "automation/Text.h"

namespace sandbox::outlook
{

namespace
{

using enum PropertyId;

bool IsEastAsian(wchar_t character)
{
    return (character >= 0x2E80 && character <= 0x9FFF) || (character >= 0xAC00 && character <= 0xD7AF) ||
           (character >= 0xF900 && character <= 0xFAFF);
}

bool IsEastAsian(const std::wstring& text)
{
    return std::ranges::any_of(text, [](wchar_t character) { return IsEastAsian(character); });
}

std::wstring JoinedText(std::initializer_list<std::wstring> parts, const wchar_t* separator)
{
    std::wstring joined;
    for (const std::wstring& part : parts)
    {
        if (!part.empty())
        {
            joined += (joined.empty() ? L"" : separator) + part;
        }
    }
    return joined;
}

Value OwnOr(const ItemDraft& item, PropertyId id, const std::wstring& otherwise)
{
    const Value* own = item.Find(id);
    const bool hasOwn = own != nullptr && !automation::TextOf(*own).empty();
    return hasOwn ? *own : Value(otherwise);
}

// East Asian names are written family name first and without a blank, as Outlook composes them there.
Value ReadFullName(const ItemDraft& item)
{
    const std::wstring first = item.Text(FirstName);
    const std::wstring last = item.Text(LastName);
    const std::wstring middle = item.Text(MiddleName);
    if (first.empty() && last.empty() && middle.empty())
    {
        return OwnOr(item, FullName, L"");
    }
    if (IsEastAsian(first + last))
    {
        return last + middle + first;
    }
    return JoinedText({item.Text(Title), first, middle, last, item.Text(Suffix)}, L" ");
}

// A full name is taken apart: the family name is last, in East Asian names it is the first character.
void WriteFullName(ItemDraft& item, const Value& converted)
{
    const std::wstring name = automation::Trimmed(automation::TextOf(converted));
    const size_t firstBlank = name.find(L' ');
    const size_t lastBlank = name.rfind(L' ');
    const bool isEastAsian = IsEastAsian(name) && firstBlank == std::wstring::npos;
    const size_t familyEnd = std::min<size_t>(1, name.size());
    const bool isOneWord = firstBlank == std::wstring::npos;
    item.Put(FullName, name);
    item.Put(LastName, isEastAsian ? name.substr(0, familyEnd)
                       : isOneWord ? L""
                                   : name.substr(lastBlank + 1));
    item.Put(FirstName, isEastAsian ? name.substr(familyEnd) : name.substr(0, firstBlank));
    item.Put(MiddleName, isOneWord || firstBlank == lastBlank
                             ? std::wstring()
                             : automation::Trimmed(name.substr(firstBlank, lastBlank - firstBlank)));
}

Value ReadFileAs(const ItemDraft& item)
{
    const std::wstring first = item.Text(FirstName);
    const std::wstring last = item.Text(LastName);
    const std::wstring name = IsEastAsian(first + last) ? last + first : JoinedText({last, first}, L", ");
    return OwnOr(item, FileAs, name.empty() ? item.Text(CompanyName) : name);
}

Value ReadSubject(const ItemDraft& item)
{
    return OwnOr(item, Subject, item.Text(FullName));
}

constexpr PropertyRule kContactRules[] = {
    {FullName, ReadFullName, WriteFullName},
    {FileAs, ReadFileAs, nullptr},
    {Subject, ReadSubject, nullptr},
};

} // namespace

std::span<const PropertyRule> ContactRules()
{
    return kContactRules;
}

} // namespace sandbox::outlook
