// Problems and notices that need more room than a message box: the routine that the main dialog, the folder
// and profile checks and the configuration dialogs call.
#pragma once

#include <string>

namespace ui
{

// Shows the error dialog for a code other than 0, the information dialog for 0 and a text; 0 without a text
// shows nothing. Returns when the user has closed the dialog. While the same dialog is on the screen already,
// the message is added to it, on a line of its own, and the call returns at once. Errors are ignored.
void ShowMessage(const std::wstring& title, long code, const std::wstring& message);

} // namespace ui
