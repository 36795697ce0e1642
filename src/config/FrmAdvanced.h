// What the three advanced option dialogs have in common: a tabbed frame whose first tab is the conflict rule
// of one kind of data. Each dialog loads its row of the user's parameters as it opens, keeps the codes that
// are clicked, and writes them on OK to the host's table and into the configuration record. Opened by the
// Advanced button of FrmConfigure.
#pragma once

#include "automation/Recordset.h"
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

    void UpdateRow(const std::wstring& setClause) const;
    long ConflictCode() const noexcept { return mConflictCode; }

  private:
    void SetCaptions();
    void Load();

    ui::TabPages SstbOption;
    ui::Label lblConflict;
    ui::Frame fraConflict;
    ui::OptionGroup OptConflict;
    ui::Button CmdOk;
    ui::Button cmdCancel;

    const wchar_t* mObjectName;
    long mConflictCode = 0;
};

// Shows the dialog of the kind with this name, modally; any other name does nothing. Throws as
// ui::Dialog::ShowModal.
void ShowAdvancedOptions(const std::wstring& objectName);

} // namespace config
