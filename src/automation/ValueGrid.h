// A two-dimensional array of values, the form in which one call hands over many records: Outlook's
// Table.GetArray and ADO's Recordset.GetRows. Holds the array; elements are counted from 0, whatever the
// array's own bounds.
#pragma once

#include "automation/Value.h"

namespace automation
{

class ValueGrid
{
  public:
    // Throws Error (DISP_E_TYPEMISMATCH) for anything but an array of values with two dimensions.
    explicit ValueGrid(Value array);

    // The number of values of the index that is written first in (i, j), and of the second one.
    long First() const noexcept { return mFirst; }
    long Second() const noexcept { return mSecond; }

    // The element (first, second), which exists; it lives as long as the grid.
    const VARIANT& At(long first, long second) const;

  private:
    Value mArray;
    long mFirst = 0;
    long mSecond = 0;
};

} // namespace automation
