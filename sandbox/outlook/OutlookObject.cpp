#include "sandbox/outlook/OutlookObject.h"

#include "sandbox/outlook/Failures.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace sandbox::outlook
{

namespace
{

// What an object of a store that is not connected still tells: Outlook has it without the store.
constexpr std::array<std::wstring_view, 8> kKnownOffline = {
    L"Name", L"Class", L"Application", L"Session", L"Parent", L"EntryID", L"StoreID", L"FolderPath"};

} // namespace

void OutlookObject::BeforeMember(const Member& member, bool isWrite)
{
    const Awkward& awkward = mMailbox->Behaviour();
    if (awkward.guard && !isWrite && IsGuarded(InterfaceName(), member.name))
    {
        FailGuarded(member.name);
    }
    const MailFolder* place = awkward.offlineStore.empty() ? nullptr : Place();
    if (place != nullptr && place->Store().Name() == awkward.offlineStore &&
        std::ranges::find(kKnownOffline, member.name) == kKnownOffline.end())
    {
        FailOffline(member.name);
    }
}

Value WithIndex(const automation::Object& collection, const Call& call)
{
    return call.Count() == 0 ? Value(collection) : collection.Call(L"Item", call.At(0));
}

long PositionOf(const Value& index)
{
    if (automation::IsMissing(index) || automation::IsEmptyOrNull(index) || index.Type() == VT_DISPATCH)
    {
        FailTypeMismatch(L"Item");
    }
    try
    {
        const long position = automation::LongOf(index);
        return position != 0 || index.Type() == VT_BSTR ? position : -1;
    }
    catch (const automation::Error&)
    {
        if (index.Type() == VT_BSTR)
        {
            return 0;
        }
        FailOutOfBounds(L"Item");
    }
}

} // namespace sandbox::outlook
