// Work on every entry of the list in small steps, so that the window stays alive and the user can stop it:
// reading the texts that an order or a search needs, or saving the list.
#pragma once

#include "preview/CsvFile.h"

#include <memory>

namespace preview
{

class Work
{
  public:
    virtual ~Work() = default;

    // Works for some hundredths of a second; true when all is done. Throws automation::Error.
    bool Step();
    double Fraction() const noexcept;

  protected:
    explicit Work(size_t count) noexcept : mCount(count) {}

  private:
    virtual void Do(size_t number) = 0;
    virtual void Finish() = 0;

    size_t mCount;
    size_t mNext = 0;
};

// Reads and then arranges.
std::unique_ptr<Work> ArrangingWork(ChangeList& list, const Arrangement& arrangement);
// Saves the entries that are shown, in their order.
std::unique_ptr<Work> SavingWork(ChangeList& list, const std::wstring& path);

} // namespace preview
