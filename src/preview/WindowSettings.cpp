#include "preview/WindowSettings.h"

#include <memory>
#include <type_traits>

namespace preview
{

namespace
{

constexpr wchar_t kKey[] = L"Software\\QUENLAR\\Telvix\\FrmChanges";
constexpr DWORD kLargest = 32767; // pixels

struct KeyCloser
{
    void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

Key OpenedKey(REGSAM access)
{
    HKEY key = nullptr;
    const LSTATUS status = access == KEY_READ
                               ? RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, access, &key)
                               : RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                                 access, nullptr, &key, nullptr);
    return Key(status == ERROR_SUCCESS ? key : nullptr);
}

std::optional<DWORD> NumberIn(const Key& key, const std::wstring& name)
{
    DWORD value = 0;
    DWORD size = sizeof value;
    DWORD type = 0;
    const LSTATUS status =
        RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
    const bool isUsable = status == ERROR_SUCCESS && type == REG_DWORD && value <= kLargest;
    return isUsable ? std::optional(value) : std::nullopt;
}

void PutNumber(const Key& key, const std::wstring& name, int value)
{
    const auto number = static_cast<DWORD>(value);
    RegSetValueExW(key.get(), name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number),
                   sizeof number);
}

std::wstring WidthName(size_t column)
{
    return L"Column" + std::to_wstring(column + 1);
}

} // namespace

WindowSettings WindowSettings::At(int dpi) const
{
    WindowSettings scaled = *this;
    scaled.Dpi = dpi;
    if (scaled.Size)
    {
        scaled.Size = SIZE{MulDiv(Size->cx, dpi, Dpi), MulDiv(Size->cy, dpi, Dpi)};
    }
    for (int& width : scaled.Widths)
    {
        width = MulDiv(width, dpi, Dpi);
    }
    return scaled;
}

WindowSettings LoadWindowSettings()
{
    WindowSettings settings;
    const Key key = OpenedKey(KEY_READ);
    const auto dpi = NumberIn(key, L"Dpi");
    if (!key || !dpi || *dpi == 0)
    {
        return settings;
    }
    settings.Dpi = static_cast<int>(*dpi);
    const auto width = NumberIn(key, L"Width");
    const auto height = NumberIn(key, L"Height");
    if (width && height)
    {
        settings.Size = SIZE{static_cast<LONG>(*width), static_cast<LONG>(*height)};
    }
    for (size_t column = 0; column < kColumns.size(); ++column)
    {
        if (const auto columnWidth = NumberIn(key, WidthName(column)))
        {
            settings.Widths.push_back(static_cast<int>(*columnWidth));
        }
    }
    const auto sorted = NumberIn(key, L"SortedBy");
    if (sorted && *sorted >= 1 && *sorted <= kColumns.size())
    {
        settings.SortedBy = kColumns.at(*sorted - 1);
    }
    settings.IsDescending = NumberIn(key, L"Descending").value_or(0) != 0;
    return settings;
}

void StoreWindowSettings(const WindowSettings& settings)
{
    const Key key = OpenedKey(KEY_WRITE);
    if (!key)
    {
        return;
    }
    PutNumber(key, L"Dpi", settings.Dpi);
    if (settings.Size)
    {
        PutNumber(key, L"Width", settings.Size->cx);
        PutNumber(key, L"Height", settings.Size->cy);
    }
    for (size_t column = 0; column < settings.Widths.size(); ++column)
    {
        PutNumber(key, WidthName(column), settings.Widths[column]);
    }
    PutNumber(key, L"SortedBy", settings.SortedBy ? static_cast<int>(*settings.SortedBy) + 1 : 0);
    PutNumber(key, L"Descending", settings.IsDescending ? 1 : 0);
}

int ScreenDpi()
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

} // namespace preview
