#include "run/SynchronizeTexts.h"

#include "resources/Strings.h"

namespace run
{

using resources::Choose;

std::wstring CategoryCaption(const std::wstring& categoryText)
{
    return Choose(L"同步", L"Synchroniztion") + categoryText;
}

std::wstring NotEnabledText()
{
    return Choose(L"该项目没有被确定需要进行同步!\r\n\r\n要进行同步，请选择 配置 按钮，选择允许同步。",
                  L"No item be selected to synchronize!\r\n\r\n"
                  L"Please select the button of the configure,then selectint this item as true.");
}

std::wstring OutcomeText(bool failed)
{
    return failed ? Choose(L"传输操作失败!", L"Translate fail!") : resources::String(IDS_RUN_SUCCEEDED);
}

} // namespace run
