#include "sandbox/outlook/Recurrence.h"

#include <algorithm>
#include <vector>

namespace sandbox::outlook
{

namespace
{

using automation::Date;
using automation::Moment;

constexpr int kLastYear = 4500;
constexpr long kLastInstance = 5;

Date FirstOfMonth(long monthsSinceYearZero)
{
    return automation::DateOf(Moment{static_cast<int>(monthsSinceYearZero / 12),
                                     static_cast<int>(monthsSinceYearZero % 12) + 1, 1});
}

// A day of a month, or the month's last day where it is shorter.
Date DayInMonth(long month, long day)
{
    const Date first = FirstOfMonth(month);
    const long length = static_cast<long>(FirstOfMonth(month + 1).days - first.days);
    return {first.days + static_cast<double>(std::min(day, length) - 1)};
}

// The n-th day of the month whose weekday is in the mask.
Date NthInMonth(long month, long mask, long instance)
{
    const Date first = FirstOfMonth(month);
    const Date next = FirstOfMonth(month + 1);
    std::vector<Date> days;
    for (Date day = first; day < next; ++day.days)
    {
        if ((mask & WeekdayBit(day)) != 0)
        {
            days.push_back(day);
        }
    }
    if (days.empty())
    {
        return automation::kOutlookNoDate;
    }
    const bool isLast = instance == kLastInstance || instance > static_cast<long>(days.size());
    return isLast ? days.back() : days[static_cast<size_t>(instance) - 1];
}

// Walks the periods (days, weeks, months or years) of a recurrence.
class Walk
{
  public:
    explicit Walk(const Recurrence& recurrence) : mRecurrence(recurrence)
    {
        const Moment start = automation::MomentOf(recurrence.start);
        mStartMonth = start.year * 12L + start.month - 1;
        mStartYear = start.year;
        mWeek = recurrence.start.days - (automation::WeekdayOf(recurrence.start) - 1);
    }

    // The next day; false where the calendar ends.
    bool Next(Date& day)
    {
        while (mAt == mDays.size())
        {
            mDays.clear();
            mAt = 0;
            if (!FillPeriod(mPeriod++))
            {
                return false;
            }
            std::erase_if(mDays, [&](Date each) { return each < mRecurrence.start; });
        }
        day = mDays[mAt++];
        return true;
    }

  private:
    bool FillPeriod(long period)
    {
        const long step = period * std::max(1L, mRecurrence.interval);
        switch (mRecurrence.kind)
        {
        case kDaily: return FillDay(mRecurrence.start.days + static_cast<double>(step));
        case kWeekly: return FillWeek(mWeek + 7.0 * static_cast<double>(step));
        case kMonthly:
        case kMonthNth: return FillMonth(mStartMonth + step);
        default: return FillMonth((mStartYear + period) * 12 + mRecurrence.monthOfYear - 1);
        }
    }

    bool FillDay(double day)
    {
        mDays.push_back({day});
        return day <= kLastRecurrenceDay.days;
    }

    bool FillWeek(double sunday)
    {
        for (int weekday = 0; weekday < 7; ++weekday)
        {
            if ((mRecurrence.dayOfWeekMask >> weekday & 1) != 0)
            {
                mDays.push_back({sunday + weekday});
            }
        }
        return sunday <= kLastRecurrenceDay.days && !mDays.empty();
    }

    bool FillMonth(long month)
    {
        if (month / 12 >= kLastYear)
        {
            return false;
        }
        const bool isNth = mRecurrence.kind == kMonthNth || mRecurrence.kind == kYearNth;
        mDays.push_back(isNth ? NthInMonth(month, mRecurrence.dayOfWeekMask, mRecurrence.instance)
                              : DayInMonth(month, mRecurrence.dayOfMonth));
        return true;
    }

    const Recurrence& mRecurrence;
    long mStartMonth = 0;
    long mStartYear = 0;
    double mWeek = 0;
    long mPeriod = 0;
    std::vector<Date> mDays;
    size_t mAt = 0;
};

} // namespace

long WeekdayBit(Date day)
{
    return 1L << (automation::WeekdayOf(day) - 1);
}

Date OccurrenceOf(const Recurrence& recurrence, long n)
{
    Walk walk(recurrence);
    Date day = automation::kOutlookNoDate;
    for (long i = 0; i < n; ++i)
    {
        if (!walk.Next(day))
        {
            return automation::kOutlookNoDate;
        }
    }
    return day;
}

long OccurrencesUntil(const Recurrence& recurrence, Date last)
{
    Walk walk(recurrence);
    long count = 0;
    Date day;
    while (walk.Next(day) && day <= last)
    {
        ++count;
    }
    return count;
}

} // namespace sandbox::outlook
