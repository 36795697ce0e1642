#include "sandbox/outlook/OutlookObject.h"

#include "sandbox/outlook/Failures.h"

namespace sandbox::outlook
{

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
