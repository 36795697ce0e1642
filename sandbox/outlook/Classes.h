// The classes of the fake Outlook.
#pragma once

#include <windows.h>

namespace sandbox::outlook
{

inline constexpr CLSID kOutlookClass = {
    0x8c1d3a52, 0x6e0b, 0x4e0b, {0x9c, 0x57, 0x2d, 0x5d, 0x0b, 0x7a, 0x6f, 0x11}};
inline constexpr CLSID kControlClass = {
    0x8c1d3a53, 0x6e0b, 0x4e0b, {0x9c, 0x57, 0x2d, 0x5d, 0x0b, 0x7a, 0x6f, 0x11}};
inline constexpr const wchar_t* kOutlookProgId = L"Outlook.Application";
inline constexpr const wchar_t* kControlProgId = L"TelvixSandbox.OutlookControl";

} // namespace sandbox::outlook
