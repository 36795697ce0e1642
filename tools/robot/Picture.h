// Pictures of dialogs, for the documentation and for looking at.
#pragma once

#include "tools/robot/ShownDialog.h"

#include <string>

namespace tools
{

// Saves the dialog with its caption bar as a PNG file (a Windows path). Throws automation::Error on failure.
void SavePicture(const ShownDialog& dialog, const std::wstring& path);

} // namespace tools
