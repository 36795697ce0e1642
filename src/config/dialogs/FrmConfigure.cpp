#include "config/dialogs/FrmConfigure.h"

#include "config/dialogs/FrmAdvanced.h"
#include "config/dialogs/FrmSynChoose.h"
#include "config/dialogs/NotLoaded.h"
#include "config/dialogs/Pictures.h"
#include "config/store/ParameterStore.h"
#include "config/store/Translation.h"
#include "config/store/UserRows.h"
#include "data/Literals.h"
#include "exchange/KindName.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/PictureListView.h"

#include <utility>

namespace config
{

namespace
{

constexpr int kArrowColumn = 1;
constexpr int kArrowColumnWidth = 10; // dialog units; the column then takes the rest

constexpr ui::CaptionRow kConfigureCaptions[] = {
    {ui::kDialogCaption, {L"配置同步传输", L"Config Translation"}},
    {IDC_CONFIGURE_LABEL, {L"本系统同步项目:", L"Quenlar Applications"}},
    {IDC_CONFIGURE_ADVANCE, {L"高级(&A)...", L"&Advanced..."}},
    {IDC_CONFIGURE_CHOOSE, {L"选择(&S)...", L"Choo&se..."}},
    {IDOK, IDS_OK},
    {IDCANCEL, IDS_CANCEL},
};

// Its rows are edited in memory and written on OK; the configuration record of the shared state always
// describes the selected row. At first that is the row of the kind that the record names: the one chosen in
// the main dialog.
class FrmConfigure : public ui::Dialog
{
  public:
    FrmConfigure() : Dialog(IDD_CONFIGURE, kConfigureCaptions, ui::Errors::AreTrapped) {}

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    LRESULT OnNotify(const NMHDR& notification) override;

    void FillList();
    void SelectKindOfRecord();
    void DescribeSelected(int row);
    void EnableButtons();
    void Redraw(int row);
    void TakeCheckMark(int row);
    void OnChoose();
    void OnAdvance();
    void OnOk();

    ui::PictureListView lvTran{*this, IDC_CONFIGURE_LIST};
    ui::Button cmdChoose{*this, IDC_CONFIGURE_CHOOSE};
    ui::Button cmdAdvance{*this, IDC_CONFIGURE_ADVANCE};
    ui::Button CmdOk{*this, IDOK};

    Pictures mPictures;
    std::vector<Translation> mRows;
    bool mDrawing = false; // the program, not the user, is changing the list
};

// The row's own picture, or that of its kind where the row names none that there is.
int PictureOfKind(const Translation& row)
{
    const int picture = Pictures::IndexOf(row.TransObjectPic);
    const exchange::KindName* kind = exchange::FindKindName(row.TransObject);
    return picture >= 0 || kind == nullptr ? picture : Pictures::IndexOf(kind->Picture);
}

} // namespace

void FrmConfigure::OnInit()
{
    lvTran.Prepare();
    lvTran.UsePictures(mPictures.List());
    lvTran.UseCheckBoxes();
    FillList();
    SelectKindOfRecord();
}

void FrmConfigure::FillList()
{
    auto rows = LoadTranslations();
    if (!rows)
    {
        ShowNotLoaded();
        CmdOk.Enable(false);
    }
    mRows = std::move(rows).value_or(std::vector<Translation>());
    lvTran.AddColumn(resources::String(IDS_CATEGORY), 0);
    lvTran.AddColumn(resources::String(IDS_CHOOSE_OPERATION), kArrowColumnWidth);
    for (const Translation& translation : mRows)
    {
        const int row = lvTran.Add(translation.Name, translation.TransObject);
        lvTran.SetPicture(row, 0, PictureOfKind(translation));
        Redraw(row);
    }
    lvTran.FitFirstColumn();
    lvTran.FillWidth();
}

void FrmConfigure::SelectKindOfRecord()
{
    for (size_t i = 0; i < mRows.size(); ++i)
    {
        if (mRows[i].TransObject == state::EditedParameter().TransObject)
        {
            lvTran.Select(static_cast<int>(i));
            return;
        }
    }
}

// The stored values, with the changes that are not stored yet.
void FrmConfigure::DescribeSelected(int row)
{
    const Translation& translation = mRows.at(static_cast<size_t>(row));
    // A value that cannot be loaded keeps its content, and a folder of another kind must not be shown.
    state::EditedParameter().CurrentFolder.clear();
    state::EditedParameter().DefaultFolder.clear();
    SetSynParamenter(state::EditedParameter(), translation.TransObject);
    state::EditedParameter().TransObject = translation.TransObject;
    if (const exchange::KindName* kind = exchange::FindKindName(translation.TransObject); kind != nullptr)
    {
        state::EditedParameter().TransObjectPic = kind->Picture;
    }
    ApplyTo(state::EditedParameter(), translation);
}

void FrmConfigure::EnableButtons()
{
    const bool isSelected = lvTran.Selected().has_value();
    cmdChoose.Enable(isSelected);
    cmdAdvance.Enable(isSelected);
}

void FrmConfigure::Redraw(int row)
{
    const Translation& translation = mRows.at(static_cast<size_t>(row));
    const bool drawingBefore = std::exchange(mDrawing, true);
    lvTran.Check(row, translation.Checked);
    const Direction* direction = FindDirection(translation.Arrow());
    lvTran.SetText(row, kArrowColumn,
                   direction != nullptr ? resources::String(direction->Caption) : std::wstring());
    lvTran.SetPicture(row, kArrowColumn, Pictures::IndexOf(translation.Arrow()));
    mDrawing = drawingBefore;
}

void FrmConfigure::TakeCheckMark(int row)
{
    SetChecked(mRows.at(static_cast<size_t>(row)), lvTran.IsChecked(row));
    Redraw(row);
    if (lvTran.Selected() == row)
    {
        ApplyTo(state::EditedParameter(), mRows[static_cast<size_t>(row)]);
    }
}

LRESULT FrmConfigure::OnNotify(const NMHDR& notification)
{
    if (lvTran.IsSelectionChange(notification))
    {
        if (const auto selected = lvTran.NewlySelected(notification))
        {
            DescribeSelected(*selected);
        }
        EnableButtons();
    }
    else if (const auto toggled = lvTran.Toggled(notification); toggled && !mDrawing)
    {
        TakeCheckMark(*toggled);
    }
    return LRESULT{0};
}

void FrmConfigure::OnCommand(int id, int notification)
{
    switch (id)
    {
    case IDC_CONFIGURE_CHOOSE: OnChoose(); break;
    case IDC_CONFIGURE_ADVANCE: OnAdvance(); break;
    case IDOK: OnOk(); break;
    default: Dialog::OnCommand(id, notification); break;
    }
}

void FrmConfigure::OnChoose()
{
    const auto row = lvTran.Selected();
    if (!row)
    {
        return;
    }
    ShowSynChoose();
    TakeFrom(mRows.at(static_cast<size_t>(*row)), state::EditedParameter());
    Redraw(*row);
}

void FrmConfigure::OnAdvance()
{
    ShowAdvancedOptions(state::EditedParameter().TransObject);
}

void FrmConfigure::OnOk()
{
    for (const Translation& row : mRows)
    {
        UpdateUserRows(TranslationSetClause(row), kParameterTable,
                       L"TransObject=" + data::QuotedText(row.TransObject));
    }
    Unload(IDOK);
}

void ShowConfigure()
{
    state::Trapped([] { FrmConfigure().ShowModal(); });
}

} // namespace config
