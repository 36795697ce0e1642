// The base of the three advanced option dialogs: a tabbed frame whose first tab is the conflict rule
// of one kind of data. Each dialog loads its row of the user's parameters as it opens, keeps the codes that
// are clicked, and writes them on OK to the host's table and into the configuration record: those that were
// loaded or clicked, and nothing at all when the row could not be loaded. Opened by the
// Advanced button of FrmConfigure.
#pragma once

#include "automation/Recordset.h"
#include "config/store/AdvancedOptions.h"
#include "exchange/KindName.h"
#include "state/SynParameter.h"
#include "ui/Choices.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/TabPages.h"

namespace config
{

inline constexpr int kConflictCount = 5; // option buttons

class FrmAdvanced : public ui::Dialog
{
  protected:
    // captions: of the dialog and its second tab.
    FrmAdvanced(UINT templateId, const exchange::KindName& kind, std::span<const ui::CaptionRow> captions);

    void OnInit() override;
    void OnCommand(int id, int notification) override;
    LRESULT OnNotify(const NMHDR& notification) override;

    // A second tab, where there is one.
    virtual void AddRangePage(ui::TabPages& /*tabs*/) {}
    // Copies the codes of the user's row into the record and shows them, those of the conflict rule excepted.
    virtual void LoadRange(const automation::Recordset& /*row*/) {}
    virtual void OnRange(int /*id*/, int /*notification*/) {}
    // Writes the codes to the host's table and the record.
    virtual void Store() = 0;

    // Throws automation::Error for a row that cannot be read; a column that holds no code is none.
    static Code CodeIn(const automation::Recordset& row, const wchar_t* column);
    // Writes nothing for an empty clause.
    void UpdateRow(const std::wstring& setClause) const;
    Code ConflictCode() const noexcept { return mConflictCode; }

  private:
    void WriteConflictRules();
    void FitExplanations();
    bool Load();

    ui::TabPages SstbOption{*this, IDC_ADV_TABS};
    ui::Label lblConflict{*this, IDC_ADV_CONFLICT_EXPLANATION};
    ui::OptionGroup OptConflict{*this, IDC_ADV_CONFLICT, kConflictCount, state::kAddAllConflicting};
    ui::Button CmdOk{*this, IDOK};

    const exchange::KindName& mKind;
    std::span<const ui::CaptionRow> mCaptions;
    Code mConflictCode;
    bool mIsLoaded = false;
};

// The dialogs, modally. Throw as ui::Dialog::ShowModal.
void ShowAdvContacts();
void ShowAdvActivites();
void ShowAdvCalendar();

// Shows the dialog of the kind with this name, modally; any other name does nothing. Throws as
// ui::Dialog::ShowModal.
void ShowAdvancedOptions(const std::wstring& objectName);

} // namespace config
