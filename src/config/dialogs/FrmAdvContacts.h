// The advanced options of contacts: the conflict rule alone.
#pragma once

#include "config/dialogs/FrmAdvanced.h"

namespace config
{

class FrmAdvContacts : public FrmAdvanced
{
  public:
    FrmAdvContacts();

  private:
    const wchar_t* Caption() const override;
    void Store() override;
};

} // namespace config
