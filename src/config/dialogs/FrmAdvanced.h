// The base of the three advanced option dialogs: a tabbed frame whose first tab is the conflict rule
// of one kind of data. Each dialog loads its row of the user's parameters as it opens, keeps the codes that
// are clicked, and writes them on OK to the host's table and into the configuration record: those that were
// loaded or clicked, and nothing at all when the row could not be loaded. Opened by the
// Advanced button of FrmConfigure.
#pragma once

#include "automation/Recordset.h"
#include "config/store/AdvancedOptions.h"
#include "state/SynParameter.h"
#include "ui/Choices.h"
#include "ui/Control.h"
#include "ui/Dialog.h"
#include "ui/TabPages.h"

namespace config
{

class FrmAdvanced : public ui::Dialog
{
  protected:
    // objectName: "Contact", "Task" or "Calendar".
    FrmAdvanced(UINT templateId, const wchar_t* objectName);

    void OnInit() override;
    void OnCommand(int id, int notification) override;
    LRESULT OnNotify(const NMHDR& notification) override;
    int FirstFocus() const override;

    // The dialog's caption, and the captions of a second tab where there is one.
    virtual const wchar_t* Caption() const = 0;
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
    void SetCaptions();
    void FitExplanations();
    bool Load();

    ui::TabPages SstbOption;
    ui::Label lblConflict;
    ui::Frame fraConflict;
    ui::OptionGroup OptConflict;
    ui::Button CmdOk;
    ui::Button cmdCancel;

    const wchar_t* mObjectName;
    Code mConflictCode;
    bool mIsLoaded = false;
};

// Shows the dialog of the kind with this name, modally; any other name does nothing. Throws as
// ui::Dialog::ShowModal.
void ShowAdvancedOptions(const std::wstring& objectName);

} // namespace config
