#include "automation/Readable.h"

#include "automation/Dates.h"
#include "automation/Error.h"

#include <cmath>

namespace automation
{

namespace
{

// 1601-01-02. Outlook keeps dates as file times, which begin on the day before, in universal time.
constexpr double kFirstDayOfOutlook = -109204;

template<typename Result, typename Read>
std::optional<Result> IfReadable(const Value& value, Read&& read)
{
    if (IsEmptyOrNull(value))
    {
        return std::nullopt;
    }
    try
    {
        return read();
    }
    catch (const Error&)
    {
        return std::nullopt;
    }
}

} // namespace

std::optional<Date> ReadableDate(const Value& value)
{
    return IfReadable<Date>(value, [&] {
        const Date date = DateOf(value);
        MomentOf(date); // throws for a date that is none
        return date;
    });
}

std::optional<Date> OutlookDate(const Value& value)
{
    const std::optional<Date> date = ReadableDate(value);
    const double day = date ? DayOf(*date).days : kOutlookNoDate.days;
    return day >= kFirstDayOfOutlook && day < kOutlookNoDate.days ? date : std::nullopt;
}

std::optional<double> ReadableNumber(const Value& value)
{
    const std::optional<double> number = IfReadable<double>(value, [&] { return DoubleOf(value); });
    const bool isNumber = number && std::isfinite(*number) && value.Type() != VT_DATE;
    return isNumber ? number : std::nullopt;
}

std::optional<bool> ReadableTruth(const Value& value)
{
    const std::optional<bool> truth = IfReadable<bool>(value, [&] { return TruthOf(value); });
    return value.Type() == VT_DATE ? std::nullopt : truth;
}

bool IsTrue(const Value& value)
{
    return ReadableTruth(value).value_or(false);
}

} // namespace automation
