// The dialog in which one kind of data gets its translator, its direction and its Outlook folders. Opened by
// FrmConfigure for its selected row; edits the configuration record of the shared state, which FrmConfigure
// writes on its own OK. Only the folders are stored at once, by the folder picker.
#pragma once

namespace config
{

// Shows the dialog, modally. Throws as ui::Dialog::ShowModal.
void ShowSynChoose();

} // namespace config
