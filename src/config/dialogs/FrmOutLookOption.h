// The dialog "Ms Outlook Options", in which the user picks the default profile of Outlook. Opened by
// FrmSynChoose. A change is written to the registry; the component then reconnects to Outlook, and stored
// folders whose store the new profile does not have are dropped.
#pragma once

namespace config
{

// Shows the dialog, modally. Throws as ui::Dialog::ShowModal.
void ShowOutLookOption();

} // namespace config
