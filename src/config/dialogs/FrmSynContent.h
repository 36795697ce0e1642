// The folder picker: the tree of the current profile's folders, reduced to those that suit one kind of data,
// and the folders chosen from it, one of them the default. Opened by FrmSynChoose as its owner; on OK it
// replaces the user's stored folders of the kind and enters the current one into the record.
#pragma once

#include "state/SynParameter.h"
#include "ui/Dialog.h"

namespace config
{

// Shows the picker, modally, for the kind that the record names. Throws as ui::Dialog::ShowModal.
void ShowSynContent(state::SynParameter& record, const ui::Dialog* owner = nullptr);

} // namespace config
