#include "entry/SharedDefaults.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "resources/Strings.h"

#include <olectl.h>
#include <wrl/client.h>

namespace entry
{

namespace
{

constexpr automation::Moment kStart{.hour = 6, .minute = 0};
constexpr automation::Moment kEnd{.hour = 17, .minute = 30};
constexpr long kReminderMinutes = 20;

automation::Object NewFont(std::wstring name, long points)
{
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name.data();
    description.cySize.int64 = points * 10000LL; // currency: ten-thousandths
    description.sWeight = FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    Microsoft::WRL::ComPtr<IFontDisp> font;
    automation::Check(OleCreateFontIndirect(&description, __uuidof(IFontDisp),
                                            reinterpret_cast<void**>(font.GetAddressOf())),
                      L"StdFont");
    return automation::Object(font.Get());
}

} // namespace

void SetSharedDefaults(state::SharedState& shared)
{
    shared.gCalendarStartTime = automation::MinuteOfDay(automation::DateOf(kStart));
    shared.gCalendarEndTime = automation::MinuteOfDay(automation::DateOf(kEnd));
    shared.gCalendarPreviewAlarmTime = kReminderMinutes;
    shared.gFontName = resources::Choose(L"宋体", L"Arial");
    shared.gFontSize = resources::IsChinese() ? 9 : 8;
    shared.gFont = NewFont(shared.gFontName, shared.gFontSize);
}

} // namespace entry
