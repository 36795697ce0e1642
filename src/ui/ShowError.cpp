#include "ui/ShowError.h"

namespace ui
{

void ShowAndThrow(const automation::Error& error, const std::wstring& origin, UINT style,
                  const std::wstring& title)
{
    if (dynamic_cast<const ShownError*>(&error) == nullptr)
    {
        ShowMessageBox(origin + L":" + error.Description(), style, title);
    }
    throw ShownError(error);
}

} // namespace ui
