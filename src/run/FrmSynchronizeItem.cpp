#include "run/FrmSynchronizeItem.h"

#include "exchange/KindName.h"
#include "exchange/Run.h"
#include "report/FrmReport.h"
#include "report/RunLog.h"
#include "resources/Strings.h"
#include "run/FrmMessage.h"
#include "run/SynchronizeTexts.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/Busy.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/ListView.h"
#include "ui/ProgressBar.h"
#include "ui/ShowMessage.h"
#include "ui/ShowMessageBox.h"
#include "ui/TabFrame.h"

#include <optional>

namespace run
{

namespace
{

constexpr int kListMargin = 4;   // dialog units between the tabbed frame and the list
constexpr int kReportMargin = 6; // pixels between the status line and the button beside it

struct CategoryRow
{
    const exchange::KindName& kind;
    std::function<bool(exchange::RunDisplay&)> SynchronizeServices::*run;
};

// In the order of the list, which is also the order in which a chosen text is compared.
constexpr CategoryRow kCategories[] = {
    {exchange::kTaskName, &SynchronizeServices::RunTaskSync},
    {exchange::kCalendarName, &SynchronizeServices::RunCalendarSync},
    {exchange::kContactName, &SynchronizeServices::RunContactSync},
};

constexpr ui::CaptionRow kMainCaptions[] = {
    {ui::kDialogCaption, {L"同步", L"Synchronization"}},
    {IDC_SYNC_CONFIGURE, {L"配置(&F)", L"Con&figuare"}},
    {IDC_SYNC_START, {L"同步(&S)", L"&Synchronization"}},
    {IDCANCEL, {L"关闭(&C)", L"&Close"}},
    {IDC_SYNC_REPORT, IDS_REPORT_OPEN},
};

class FrmSynchronizeItem : public ui::Dialog, private exchange::RunDisplay
{
  public:
    explicit FrmSynchronizeItem(const SynchronizeServices& services)
        : Dialog(IDD_SYNCHRONIZEITEM, kMainCaptions), mServices(services)
    {
    }

  private:
    void OnInit() override
    {
        state::Trapped([&] { FillCategories(); });
    }

    void FillCategories()
    {
        SstbOption.AddTab(resources::Choose(L"同步项", L"Synchronization Item"));
        SstbOption.Fill(lvCategory, kListMargin);
        lvCategory.Prepare();
        lvCategory.AddColumn(resources::String(IDS_CATEGORY));
        for (const CategoryRow& row : kCategories)
        {
            lvCategory.Add(resources::String(row.kind.Caption), row.kind.TransObject);
        }
        lvCategory.FillWidth();
    }

    LRESULT OnNotify(const NMHDR& notification) override
    {
        if (const auto row = lvCategory.NewlySelected(notification))
        {
            OnCategoryClick(*row);
        }
        return 0;
    }

    void OnCategoryClick(int row)
    {
        mCurrentCategory = row;
        SetCaption(CategoryCaption(CategoryText()));
        CmdConfigure.Enable(true);
        CmdSynchronize.Enable(true);
    }

    void OnCommand(int id, int notification) override
    {
        switch (id)
        {
        case IDC_SYNC_CONFIGURE: OnConfigure(); break;
        case IDC_SYNC_START: OnSynchronize(); break;
        case IDC_SYNC_REPORT: report::ShowReport(*mLastRun); break;
        default: Dialog::OnCommand(id, notification);
        }
    }

    // The configuration opens on the kind that its record names.
    void OnConfigure()
    {
        if (mCurrentCategory)
        {
            state::Shared().gConfigureParameter.TransObject = lvCategory.KeyOf(*mCurrentCategory);
        }
        mServices.ShowConfigure();
    }

    void OnSynchronize()
    {
        mLastRun.reset();
        ShowReportButton(false);
        const std::wstring outcome = AtWork([&] { return Synchronize(); });
        if (mLastRun)
        {
            mLastRun->Outcome = outcome;
            report::LogRun(*mLastRun);
            ShowReportButton(mLastRun->Report.HasSomethingToTell());
        }
        if (!outcome.empty())
        {
            SetStatus(outcome);
        }
    }

    // Beside the status line, which makes room for it.
    void ShowReportButton(bool visible)
    {
        RECT line = lblState.Place();
        line.right = visible ? cmdReport.Place().left - kReportMargin : cmdReport.Place().right;
        lblState.MoveTo(line);
        cmdReport.Show(visible);
    }

    // The dialog takes no input from before the first thing is read. That is over before the outcome is
    // written: who reads it may go on.
    template<typename Work>
    std::wstring AtWork(Work&& work)
    {
        const ui::Busy busy(*this);
        return state::Trapped(OutcomeText(true), work);
    }

    // The text for the status line; empty when a message has said why there is no run.
    std::wstring Synchronize()
    {
        if (mServices.CheckOutlookProfiles())
        {
            state::LogError();
            return resources::String(IDS_RUN_NO_PROFILE);
        }
        if (!mCurrentCategory)
        {
            ui::ShowMessageBox(kNoCategoryChosen, MB_ICONINFORMATION);
            return {};
        }
        if (!LoadParameters().IsTrans)
        {
            ui::ShowMessage(resources::String(IDS_MESSAGE), 0, NotEnabledText());
            return {};
        }
        return OutcomeText(RunChosenCategory());
    }

    const state::SynParameter& LoadParameters()
    {
        state::SynParameter& parameter = state::Shared().gSynParameter;
        // A value that cannot be loaded keeps its content, and the folder of the last run may hold another
        // kind of items.
        parameter.IsTrans = false;
        parameter.CurrentFolder.clear();
        mServices.SetSynParamenter(parameter, lvCategory.KeyOf(*mCurrentCategory));
        return parameter;
    }

    // By the row's text as it reads in the language of this moment, not by its key. True for failure.
    bool RunChosenCategory()
    {
        const std::wstring text = CategoryText();
        for (const CategoryRow& row : kCategories)
        {
            if (text == resources::String(row.kind.Caption))
            {
                return (mServices.*row.run)(*this);
            }
        }
        ui::ShowMessageBox(kNothingToSynchronize, MB_ICONINFORMATION);
        return false;
    }

    void OnUnload() override
    {
        state::SharedState& shared = state::Shared();
        shared.gDTC = {};
        shared.gOlNamespace = {};
        shared.gOlApplication = {};
    }

    // The run's display.
    void SetStatus(const std::wstring& text) override
    {
        lblState.SetText(text);
        lblState.Repaint();
        KeepPainted();
    }

    void ShowProgress(bool visible) override
    {
        prgbarSyn.Show(visible);
        KeepPainted();
    }

    void SetProgress(double fraction) override
    {
        prgbarSyn.SetFraction(fraction);
        KeepPainted(); // which paints it often enough for an eye, not once per record
    }

    std::wstring CategoryText() const override { return lvCategory.TextOf(*mCurrentCategory); }

    void Confirm(const exchange::Kind& kind, exchange::Run& run) override
    {
        ConfirmChanges(kind, run, CategoryText());
    }

    void TakeReport(exchange::Report&& taken) override
    {
        mLastRun.emplace(report::FinishedRun{.Category = CategoryText(), .Report = std::move(taken)});
        GetLocalTime(&mLastRun->EndedAt);
    }

    ui::TabFrame SstbOption{*this, IDC_SYNC_OPTION};
    ui::ListView lvCategory{*this, IDC_SYNC_CATEGORY};
    ui::Label lblState{*this, IDC_SYNC_STATE};
    ui::Button cmdReport{*this, IDC_SYNC_REPORT};
    ui::ProgressBar prgbarSyn{*this, IDC_SYNC_PROGRESS};
    ui::Button CmdSynchronize{*this, IDC_SYNC_START};
    ui::Button CmdConfigure{*this, IDC_SYNC_CONFIGURE};

    const SynchronizeServices& mServices;
    std::optional<int> mCurrentCategory; // the row last clicked
    std::optional<report::FinishedRun> mLastRun;
};

} // namespace

void ShowSynchronizeItem(const SynchronizeServices& services)
{
    FrmSynchronizeItem(services).ShowModal();
}

} // namespace run
