#include "automation/ValueGrid.h"

#include "automation/Error.h"

#include <utility>

#include <oleauto.h>

namespace automation
{

ValueGrid::ValueGrid(Value array) : mArray(std::move(array))
{
    const bool isArray = mArray.Type() == (VT_ARRAY | VT_VARIANT) && mArray.Raw().parray != nullptr;
    if (!isArray || SafeArrayGetDim(mArray.Raw().parray) != 2)
    {
        throw Error(DISP_E_TYPEMISMATCH, L"conversion to a table of values");
    }
    // A SAFEARRAY describes its dimensions from the last to the first.
    mFirst = static_cast<long>(mArray.Raw().parray->rgsabound[1].cElements);
    mSecond = static_cast<long>(mArray.Raw().parray->rgsabound[0].cElements);
}

const VARIANT& ValueGrid::At(long first, long second) const
{
    // The first index moves fastest through the memory.
    const VARIANT* const elements = static_cast<const VARIANT*>(mArray.Raw().parray->pvData);
    return elements[static_cast<size_t>(second) * static_cast<size_t>(mFirst) + static_cast<size_t>(first)];
}

} // namespace automation
