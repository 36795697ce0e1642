#include "exchange/Report.h"

#include "exchange/Secrets.h"
#include "state/Failures.h"
#include "state/SharedState.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace exchange
{

using state::Cause;
using state::Remark;

void Report::Record(Change change, std::function<std::wstring()> nameOf, const std::function<void()>& write)
{
    mCurrent = change;
    mNameOf = std::move(nameOf);
    mIsLost = false;
    const auto settle = [this] {
        ++(mIsLost ? Of(*mCurrent).NotWritten : Of(*mCurrent).Written);
        mCurrent.reset();
        mNameOf = nullptr;
    };
    try
    {
        write();
    }
    catch (const std::exception& error)
    {
        state::TellFailure(error);
        mIsLost = true;
        settle();
        throw;
    }
    settle();
}

void Report::Take(Remark remark)
{
    remark.Words = WithoutSecrets(std::move(remark.Words), state::Shared().gCnnString);
    if (remark.Why == Cause::RightMissing)
    {
        if (!Counted(remark))
        {
            mRows.push_back({.Of = {}, .Name = {}, .Remark = std::move(remark)});
        }
        return;
    }
    // The first reason is the true one; the others follow from it.
    const bool isLost = mCurrent && CostsRecord(remark.Why);
    if (!isLost || !std::exchange(mIsLost, true))
    {
        mRows.push_back({.Of = mCurrent, .Name = NameOfCurrent(), .Remark = std::move(remark)});
    }
}

// The report has one row for each missing right, with the number of records that need it.
bool Report::Counted(const Remark& missingRight)
{
    const auto known = std::ranges::find_if(mRows, [&](const ReportRow& row) {
        return row.Remark.Why == Cause::RightMissing && row.Remark.Words == missingRight.Words;
    });
    if (known == mRows.end())
    {
        return false;
    }
    ++known->Times;
    return true;
}

// A record that can no longer be read has no name.
std::wstring Report::NameOfCurrent()
{
    return mNameOf ? state::Trapped(std::wstring(), mNameOf) : std::wstring();
}

long Report::Vanished() const
{
    return static_cast<long>(
        std::ranges::count_if(mRows, [](const ReportRow& row) { return row.Remark.Why == Cause::Vanished; }));
}

long Report::NotReached() const
{
    return std::accumulate(mCounts.begin(), mCounts.end(), 0L,
                           [](long sum, const ChangeCount& count) { return sum + count.NotReached(); });
}

bool Report::HasSomethingToTell() const
{
    return !mRows.empty() || mOtherItems > 0 || NotReached() > 0;
}

} // namespace exchange
