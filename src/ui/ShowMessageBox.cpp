#include "ui/ShowMessageBox.h"

#include "ui/FrontKeeper.h"
#include "ui/VisualStyles.h"

namespace ui
{

int ShowMessageBox(const std::wstring& text, UINT style, const std::wstring& title)
{
    const VisualStyles styles;
    const FrontKeeper keeper;
    return MessageBoxW(nullptr, text.c_str(), title.c_str(), style | MB_TASKMODAL | MB_SETFOREGROUND);
}

} // namespace ui
