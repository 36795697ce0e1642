#include "preview/Work.h"

namespace preview
{

namespace
{

constexpr ULONGLONG kStep = 30; // milliseconds

class Arranging : public Work
{
  public:
    Arranging(ChangeList& list, const Arrangement& arrangement)
        : Work(list.Count()), mList(list), mArrangement(arrangement)
    {
    }

  private:
    void Do(size_t number) override { mList.ReadFor(number, mArrangement); }
    void Finish() override { mList.Arrange(mArrangement); }

    ChangeList& mList;
    Arrangement mArrangement;
};

class Saving : public Work
{
  public:
    Saving(ChangeList& list, const std::wstring& path)
        : Work(list.Shown().size()), mList(list), mEntries(list.Shown()), mFile(path)
    {
    }

  private:
    void Do(size_t number) override { mFile.Add(mList, mEntries.at(number)); }
    void Finish() override { mFile.Finish(); }

    ChangeList& mList;
    std::vector<size_t> mEntries;
    CsvFile mFile;
};

} // namespace

bool Work::Step()
{
    const ULONGLONG end = GetTickCount64() + kStep;
    while (mNext < mCount && GetTickCount64() < end)
    {
        Do(mNext++);
    }
    if (mNext < mCount)
    {
        return false;
    }
    Finish();
    return true;
}

double Work::Fraction() const noexcept
{
    return mCount == 0 ? 1 : static_cast<double>(mNext) / static_cast<double>(mCount);
}

std::unique_ptr<Work> ArrangingWork(ChangeList& list, const Arrangement& arrangement)
{
    return std::make_unique<Arranging>(list, arrangement);
}

std::unique_ptr<Work> SavingWork(ChangeList& list, const std::wstring& path)
{
    return std::make_unique<Saving>(list, path);
}

} // namespace preview
