#include "preview/RunningWork.h"

#include "automation/Error.h"
#include "resources/Strings.h"
#include "ui/Dialog.h"
#include "ui/ShowMessageBox.h"

#include <utility>

namespace preview
{

using resources::Choose;

RunningWork::RunningWork(const ui::Dialog& dialog, EnableChoices enableChoices)
    : mDialog(dialog),
      mEnableChoices(std::move(enableChoices)),
      prgbarReading(dialog, IDC_CHANGES_PROGRESS),
      cmdStop(dialog, IDC_CHANGES_STOP)
{
}

void RunningWork::SetUp()
{
    cmdStop.SetText(Choose(L"停止(&T)", L"S&top"));
}

void RunningWork::Start(std::unique_ptr<Work> work)
{
    mWork = std::move(work);
    mFocusBefore = GetFocus();
    prgbarReading.Show(true);
    prgbarReading.SetFraction(0);
    cmdStop.Show(true);
    cmdStop.Focus();
    mEnableChoices(false);
}

bool RunningWork::DoStep()
{
    const bool isDone = mIsStopped || StepOrTell();
    prgbarReading.SetFraction(mWork->Fraction());
    if (!isDone && !mIsStopped)
    {
        return false;
    }
    End();
    return true;
}

bool RunningWork::StepOrTell()
{
    try
    {
        return mWork->Step();
    }
    catch (const automation::Error& error)
    {
        ShowError(error);
        return true;
    }
}

// What has been read stays read.
void RunningWork::End()
{
    mWork.reset();
    mIsStopped = false;
    mEnableChoices(true);
    prgbarReading.Show(false);
    if (mFocusBefore != nullptr && IsWindowEnabled(mFocusBefore))
    {
        SendMessageW(mDialog.Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(mFocusBefore), TRUE);
    }
    cmdStop.Show(false);
}

void RunningWork::MoveDown(int pixels)
{
    prgbarReading.MoveBy(0, pixels);
    cmdStop.MoveBy(0, pixels);
}

void RunningWork::ShowError(const automation::Error& error)
{
    ui::ShowMessageBox(Choose(L"无法写入文件：", L"The file could not be written: ") + error.Description(),
                       MB_ICONERROR);
}

} // namespace preview
