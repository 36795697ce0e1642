// Gives a text to the user to keep: on the clipboard, or in a file.
#pragma once

#include <optional>
#include <string>

#include <windows.h>

namespace ui
{

// False when another program holds the clipboard.
bool CopyToClipboard(HWND owner, const std::wstring& text);

// Asks for the name of a file to write; nothing when the user gives up. files: what the system's dialog calls
// them ("Text files (*.txt)"); pattern: "*.txt"; extension: "txt". Throws automation::Error when the dialog
// cannot be shown.
std::optional<std::wstring> AskForFile(HWND owner, const std::wstring& name, const std::wstring& files,
                                       const std::wstring& pattern, const wchar_t* extension);

// In UTF-8 with its mark, so that other programs recognise it. False with the system's error (GetLastError)
// when the file cannot be written.
bool WriteTextFile(const std::wstring& path, const std::wstring& text);

} // namespace ui
