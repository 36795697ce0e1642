#include "sandbox/outlook/facts/Published.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <stdexcept>

#include <objbase.h>

namespace sandbox::outlook
{

namespace
{

// The columns of the file.
struct PublishedRow
{
    std::wstring_view interfaceName;
    std::wstring_view interfaceId;
    std::wstring_view member;
    std::wstring_view kind;
    std::wstring_view dispId;
    std::wstring_view type;
    std::wstring_view parameters;
    std::wstring_view access;
    std::wstring_view flags;
};

constexpr PublishedRow kPublishedRows[] = {
#include "PublishedRows.inc"
};

bool EqualNames(std::wstring_view left, std::wstring_view right)
{
    return left.size() == right.size() && _wcsnicmp(left.data(), right.data(), left.size()) == 0;
}

GUID IdOfText(std::wstring_view text)
{
    GUID id{};
    automation::Check(CLSIDFromString((L"{" + std::wstring(text) + L"}").c_str(), &id), L"interface");
    return id;
}

// "String Name, Object Type" are "String" and "Object".
std::vector<std::wstring_view> TypesIn(std::wstring_view parameters)
{
    std::vector<std::wstring_view> types;
    while (!parameters.empty())
    {
        types.push_back(parameters.substr(0, parameters.find(L' ')));
        const size_t comma = parameters.find(L", ");
        parameters = comma == std::wstring_view::npos ? std::wstring_view() : parameters.substr(comma + 2);
    }
    return types;
}

PublishedMember MemberOfRow(const PublishedRow& row)
{
    const auto isMarked = [&](std::wstring_view word) {
        return row.flags.find(word) != std::wstring_view::npos;
    };
    return {row.member,
            row.type,
            TypesIn(row.parameters),
            static_cast<DISPID>(std::wcstol(std::wstring(row.dispId).c_str(), nullptr, 10)),
            row.kind == L"method",
            row.access == L"rw",
            isMarked(L"hidden"),
            isMarked(L"deprecated")};
}

std::vector<PublishedInterface> ReadInterfaces()
{
    std::vector<PublishedInterface> interfaces;
    for (const PublishedRow& row : kPublishedRows)
    {
        if (interfaces.empty() || interfaces.back().name != row.interfaceName)
        {
            interfaces.push_back({row.interfaceName, IdOfText(row.interfaceId), {}});
        }
        interfaces.back().members.push_back(MemberOfRow(row));
    }
    return interfaces;
}

struct PlainType
{
    std::wstring_view name;
    VARTYPE type;
};

constexpr PlainType kPlainTypes[] = {
    {L"String", VT_BSTR},   {L"Boolean", VT_BOOL}, {L"Int32", VT_I4},  {L"Int16", VT_I2},
    {L"DateTime", VT_DATE}, {L"Void", VT_VOID},    {L"Double", VT_R8},
};

} // namespace

const PublishedMember* PublishedInterface::Find(std::wstring_view member) const
{
    const auto found =
        std::ranges::find_if(members, [&](const auto& one) { return EqualNames(one.name, member); });
    return found == members.end() ? nullptr : &*found;
}

std::span<const PublishedInterface> PublishedInterfaces()
{
    static const std::vector<PublishedInterface> interfaces = ReadInterfaces();
    return interfaces;
}

const PublishedInterface& Published(std::wstring_view interfaceName)
{
    const auto interfaces = PublishedInterfaces();
    const auto found = std::ranges::find(interfaces, interfaceName, &PublishedInterface::name);
    if (found == interfaces.end())
    {
        throw std::out_of_range("unpublished interface " + automation::ToUtf8(std::wstring(interfaceName)));
    }
    return *found;
}

MemberTable AsPublished(std::wstring_view interfaceName, MemberTable members)
{
    const PublishedInterface& of = Published(interfaceName);
    for (Member& member : members)
    {
        const PublishedMember* published = of.Find(member.name);
        if (published == nullptr || (member.write && !published->isWritable))
        {
            throw std::logic_error("not published like that: " +
                                   automation::ToUtf8(std::wstring(interfaceName) + L"." + member.name));
        }
        member.id = published->id;
    }
    return members;
}

VARTYPE TypeOfResult(const PublishedInterface& of, std::wstring_view type)
{
    const bool givesValues = of.name == L"_Table" || of.name == L"_Row";
    if (type == L"Object")
    {
        return givesValues ? VT_VARIANT : VT_DISPATCH;
    }
    return TypeOfParameter(type);
}

VARTYPE TypeOfParameter(std::wstring_view type)
{
    const auto plain = std::ranges::find(kPlainTypes, type, &PlainType::name);
    if (plain != std::end(kPlainTypes))
    {
        return plain->type;
    }
    const bool isEnumeration = type.starts_with(L"Ol");
    return type.starts_with(L"Object") ? VT_VARIANT : isEnumeration ? VT_I4 : VT_DISPATCH;
}

} // namespace sandbox::outlook
