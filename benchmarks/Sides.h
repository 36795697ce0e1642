// The two sides of a run for measuring: a host and a mailbox with so many records of each kind, half of them
// the same on both. Data files are written once per size; every Sides works on copies of its own, so that
// each pass starts from the same data.
#pragma once

#include "benchmarks/Kinds.h"
#include "exchange/Run.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/host/Host.h"
#include "sandbox/outlook/Mailbox.h"

#include <memory>
#include <string>

namespace benchmarks
{

enum class Place
{
    OutOfProcess, // Outlook is the registered server
    InProcess,    // Outlook is in this process, its mailbox in memory
};

// Shows nothing.
class NoDisplay : public exchange::RunDisplay
{
  public:
    void SetStatus(const std::wstring&) override {}
    void ShowProgress(bool) override {}
    void SetProgress(double) override {}
    std::wstring CategoryText() const override { return {}; }
    void Confirm(const exchange::Kind&, exchange::Run&) override {}
    void TakeReport(exchange::Report&&) override {}
};

// The files of one size, in the folder for temporary files; gone with the object.
class DataFiles
{
  public:
    explicit DataFiles(size_t count);
    DataFiles(const DataFiles&) = delete;
    DataFiles& operator=(const DataFiles&) = delete;
    ~DataFiles();

    size_t Count() const noexcept { return mCount; }
    const std::wstring& Host() const noexcept { return mHost; }
    // Written when it is first asked for.
    const std::wstring& Mailbox() const;

  private:
    size_t mCount;
    std::wstring mHost;
    mutable std::wstring mMailbox;
};

class Sides
{
  public:
    // The thread's shared state then refers to these sides, until they go.
    Sides(const DataFiles& files, const Kind& kind, Place place);
    Sides(const Sides&) = delete;
    Sides& operator=(const Sides&) = delete;
    ~Sides();

    // A run over the rows and items as they are now.
    exchange::Run NewRun();
    // One that shares the rows which the first NewRun fetched.
    exchange::Run AnotherRun();

    size_t Count() const noexcept { return mFiles.Count(); }
    Place Where() const noexcept { return mPlace; }
    // The server's control object, nothing in process.
    const automation::Object& Control() const noexcept { return mControl; }
    sandbox::Host& HostSide() noexcept { return *mHost; }

  private:
    void OpenOutlook();

    const DataFiles& mFiles;
    const Kind& mKind;
    Place mPlace;
    std::wstring mHostCopy;
    std::wstring mMailboxCopy;
    sandbox::AdoInProcess mAdo;
    std::unique_ptr<sandbox::Host> mHost;
    automation::Object mControl;
    automation::Object mRows;
    NoDisplay mDisplay;
};

} // namespace benchmarks
