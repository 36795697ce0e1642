// The advanced options of the calendar: the conflict rule, and whether all entries are exchanged, only future
// ones, or those within a range of days around today.
#pragma once

#include "config/dialogs/FrmAdvanced.h"
#include "ui/DigitBox.h"

namespace config
{

class FrmAdvCalendar : public FrmAdvanced
{
  public:
    FrmAdvCalendar();

  private:
    const wchar_t* Caption() const override;
    void AddRangePage(ui::TabPages& tabs) override;
    void LoadRange(const automation::Recordset& row) override;
    void OnRange(int id, int notification) override;
    void Store() override;

    void ChooseRange(Code code);
    void EnableDays(bool enabled);

    ui::Label lblRange;
    ui::Frame fraRange;
    ui::OptionGroup OptTransItems;
    ui::Label lblPrior;
    ui::DigitBox txtPrior;
    ui::Label lblAfter;
    ui::DigitBox txtAfter;

    Code mRangeCode;
};

} // namespace config
