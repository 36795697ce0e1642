#include "report/FrmReport.h"

#include "automation/Error.h"
#include "resources/Strings.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/Handover.h"
#include "ui/ShowMessageBox.h"
#include "ui/VirtualListView.h"

namespace report
{

namespace
{

using resources::String;
using ui::Anchor;

constexpr int kShownColumns = kCodeColumn;
// Of the list's width, in percent; the last column takes the rest.
constexpr int kWidths[kShownColumns] = {20, 17, 27, 12, 7, 0};

constexpr ui::CaptionRow kCaptions[] = {
    {IDC_REPORT_SUMMARY_LABEL, IDS_REPORT_SUMMARY},
    {IDC_REPORT_LIST_LABEL, IDS_REPORT_LIST},
    {IDC_REPORT_DETAILS_LABEL, IDS_REPORT_DETAILS},
    {IDC_REPORT_COPY, IDS_REPORT_COPY},
    {IDC_REPORT_SAVE, IDS_REPORT_SAVE},
    {IDCANCEL, IDS_REPORT_CLOSE},
};

constexpr ui::AnchoredControl kAnchors[] = {
    {IDC_REPORT_SUMMARY_LABEL, Anchor::Widens},
    {IDC_REPORT_SUMMARY, Anchor::Widens},
    {IDC_REPORT_LIST_LABEL, Anchor::Widens},
    {IDC_REPORT_LIST, Anchor::Fills},
    {IDC_REPORT_DETAILS_LABEL, Anchor::WidensBelow},
    {IDC_REPORT_DETAILS, Anchor::WidensBelow},
    {IDC_REPORT_COPY, Anchor::MovesDown},
    {IDC_REPORT_SAVE, Anchor::MovesDown},
    {IDCANCEL, Anchor::Follows},
};

class FrmReport : public ui::Dialog
{
  public:
    explicit FrmReport(const FinishedRun& run) : Dialog(IDD_REPORT, kCaptions), mRun(run) {}

  private:
    void OnInit() override
    {
        SetCaption(String(IDS_REPORT_CAPTION) + mRun.Category);
        ShowSummary();
        FillRows();
    }

    void ShowSummary()
    {
        std::wstring text;
        for (const std::wstring& line : SummaryOf(mRun))
        {
            text += (text.empty() ? L"" : L"\r\n") + line;
        }
        txtSummary.SetText(text);
    }

    void FillRows()
    {
        lvRows.Prepare();
        const RECT place = lvRows.Place();
        for (int column = 0; column < kShownColumns; ++column)
        {
            lvRows.AddColumn(HeaderOf(static_cast<Column>(column)),
                             (place.right - place.left) * kWidths[column] / 100);
        }
        lvRows.Show(static_cast<int>(Rows().size()), [this](int row, int column) {
            return InOneLine(CellOf(Rows().at(static_cast<size_t>(row)), static_cast<Column>(column)));
        });
        lvRows.FillWidth();
        if (!Rows().empty())
        {
            lvRows.Select(0);
            ShowDetails(0);
        }
    }

    const std::vector<exchange::ReportRow>& Rows() const { return mRun.Report.Rows(); }

    void ShowDetails(int row) { txtDetails.SetText(DetailsOf(Rows().at(static_cast<size_t>(row)))); }

    LRESULT OnNotify(const NMHDR& notification) override
    {
        if (!lvRows.Answer(notification))
        {
            if (const auto row = lvRows.NewlySelected(notification))
            {
                ShowDetails(*row);
            }
        }
        return 0;
    }

    void OnCommand(int id, int notification) override
    {
        switch (id)
        {
        case IDC_REPORT_COPY: OnCopy(); break;
        case IDC_REPORT_SAVE: OnSave(); break;
        default: Dialog::OnCommand(id, notification);
        }
    }

    void OnCopy()
    {
        if (!ui::CopyToClipboard(Handle(), TextOf(mRun, Values::Included)))
        {
            ui::ShowMessageBox(String(IDS_REPORT_NOT_COPIED), MB_ICONEXCLAMATION);
        }
    }

    void OnSave()
    {
        const auto path = ui::AskForFile(Handle(), String(IDS_REPORT_CAPTION) + mRun.Category + L".txt",
                                         String(IDS_REPORT_FILES), L"*.txt", L"txt");
        if (path && !ui::WriteTextFile(*path, TextOf(mRun, Values::Included)))
        {
            const HRESULT error = HRESULT_FROM_WIN32(GetLastError());
            ui::ShowMessageBox(String(IDS_REPORT_NOT_SAVED) + automation::SystemText(error),
                               MB_ICONEXCLAMATION);
        }
    }

    std::span<const ui::AnchoredControl> AnchoredControls() const override { return kAnchors; }
    void OnSize() override { lvRows.FillWidth(); }
    int FirstFocus() const override { return Rows().empty() ? cmdClose.Id() : lvRows.Id(); }

    ui::TextBox txtSummary{*this, IDC_REPORT_SUMMARY};
    ui::VirtualListView lvRows{*this, IDC_REPORT_LIST};
    ui::TextBox txtDetails{*this, IDC_REPORT_DETAILS};
    ui::Button cmdClose{*this, IDCANCEL};

    const FinishedRun& mRun;
};

} // namespace

void ShowReport(const FinishedRun& run)
{
    FrmReport(run).ShowModal();
}

} // namespace report
