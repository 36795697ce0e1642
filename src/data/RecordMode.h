// Whether a record writer makes a new record or overwrites an existing one, in both directions. The numbers
// are those of the host contract.
#pragma once

namespace data
{

enum RecordMode : long
{
    kNewRecord = 1,
    kExistingRecord = 2,
};

} // namespace data
