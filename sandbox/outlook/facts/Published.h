// What Microsoft publishes of Outlook's object model, as far as the fake has it: the interfaces with their
// identifiers, and of every member its DISPID, type, parameters and access. The rows stand in
// outlook-object-model.tsv (source: the reference of the interop assembly, "Microsoft.Office.Interop.Outlook
// Namespace") and are compiled in. The fake takes its DISPIDs from here, and tests hold it and the component
// against it.
#pragma once

#include "sandbox/dispatch/DispatchObject.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox::outlook
{

struct PublishedMember
{
    std::wstring_view name;
    std::wstring_view type; // as the reference writes it: "String", "OlImportance", "Items"
    std::vector<std::wstring_view> parameters; // likewise, without their names
    DISPID id = DISPID_UNKNOWN;
    bool isMethod = false;
    bool isWritable = false;
    bool isHidden = false;
    bool isDeprecated = false;
};

struct PublishedInterface
{
    std::wstring_view name;
    GUID id = {};
    std::vector<PublishedMember> members;

    // Null for a member that the interface does not have; names in any case.
    const PublishedMember* Find(std::wstring_view member) const;
};

std::span<const PublishedInterface> PublishedInterfaces();
// Throws std::out_of_range for an interface that is not among them.
const PublishedInterface& Published(std::wstring_view interfaceName);

// The members of a fake object with the DISPIDs that its interface has. Throws std::logic_error for a member
// that the interface does not have, or that can be written here and not there: a fake is a subset.
MemberTable AsPublished(std::wstring_view interfaceName, MemberTable members);

// The automation type of a published value: VT_I4 for enumerations, VT_DISPATCH for objects. "Object" is
// either an object or a plain value; a table gives and an index takes plain values.
VARTYPE TypeOfResult(const PublishedInterface& of, std::wstring_view type);
VARTYPE TypeOfParameter(std::wstring_view type);

} // namespace sandbox::outlook
