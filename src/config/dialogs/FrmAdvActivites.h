// The advanced options of tasks: the conflict rule, and whether all tasks are exchanged or only pending ones.
#pragma once

#include "config/dialogs/FrmAdvanced.h"

namespace config
{

class FrmAdvActivites : public FrmAdvanced
{
  public:
    FrmAdvActivites();

  private:
    const wchar_t* Caption() const override;
    void AddRangePage(ui::TabPages& tabs) override;
    void LoadRange(const automation::Recordset& row) override;
    void OnRange(int id, int notification) override;
    void Store() override;

    ui::Label lblRange;
    ui::Frame fraRange;
    ui::OptionGroup OptTransRange;

    Code mRangeCode;
};

} // namespace config
