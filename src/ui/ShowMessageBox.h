// The plain message box.
#pragma once

#include <string>

#include <windows.h>

namespace ui
{

// The caption of a message box that has none of its own.
inline constexpr wchar_t kApplicationTitle[] = L"Telvix";

// Shows a message box without an owner; the thread's windows take no input meanwhile. style: MB_OK,
// MB_ICONINFORMATION, ...; the result is the button (IDOK, IDYES, ...).
int ShowMessageBox(const std::wstring& text, UINT style, const std::wstring& title = kApplicationTitle);

} // namespace ui
