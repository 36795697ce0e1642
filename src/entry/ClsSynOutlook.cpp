#include "entry/ClsSynOutlook.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Guard.h"
#include "entry/SharedDefaults.h"
#include "entry/SynLoad.h"
#include "state/SharedState.h"

#include <olectl.h>

namespace entry
{

using automation::Guard;
using automation::Object;
using state::Shared;

namespace
{

std::wstring TextOfBstr(BSTR text)
{
    return {text, SysStringLen(text)};
}

template<typename T>
HRESULT Give(T value, T* result)
{
    if (result == nullptr)
    {
        return E_POINTER;
    }
    *result = value;
    return S_OK;
}

HRESULT TakeTimeOfDay(automation::Date& target, const DATE* time)
{
    return Guard([&] {
        if (time == nullptr)
        {
            return E_POINTER;
        }
        target = automation::MinuteOfDay({*time});
        return S_OK;
    });
}

} // namespace

ClsSynOutlook::ClsSynOutlook()
{
    SetSharedDefaults(Shared());
}

void* ClsSynOutlook::Find(REFIID id) noexcept
{
    return id == __uuidof(IDispatch) ? static_cast<_ClsSynOutlook*>(this) : ComObject::Find(id);
}

STDMETHODIMP ClsSynOutlook::get_CalendarEndTime(DATE* time)
{
    return Guard([&] { return Give(Shared().gCalendarEndTime.days, time); });
}

STDMETHODIMP ClsSynOutlook::put_CalendarEndTime(DATE* time)
{
    return Guard([&] { return TakeTimeOfDay(Shared().gCalendarEndTime, time); });
}

STDMETHODIMP ClsSynOutlook::get_CalendarStartTime(DATE* time)
{
    return Guard([&] { return Give(Shared().gCalendarStartTime.days, time); });
}

STDMETHODIMP ClsSynOutlook::put_CalendarStartTime(DATE* time)
{
    return Guard([&] { return TakeTimeOfDay(Shared().gCalendarStartTime, time); });
}

STDMETHODIMP ClsSynOutlook::get_CalendarPreviewAlarmTime(LONG* minutes)
{
    return Guard([&] { return Give(Shared().gCalendarPreviewAlarmTime, minutes); });
}

STDMETHODIMP ClsSynOutlook::put_CalendarPreviewAlarmTime(LONG minutes)
{
    return Guard([&] { return Give(minutes, &Shared().gCalendarPreviewAlarmTime); });
}

STDMETHODIMP ClsSynOutlook::get_FontName(BSTR* name)
{
    return Guard([&] {
        const std::wstring& text = Shared().gFontName;
        return Give(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())), name);
    });
}

STDMETHODIMP ClsSynOutlook::put_FontName(BSTR name)
{
    return Guard([&] {
        Shared().gFontName = TextOfBstr(name);
        Shared().gFont.Put(L"Name", Shared().gFontName);
        return S_OK;
    });
}

STDMETHODIMP ClsSynOutlook::get_FontSize(LONG* points)
{
    return Guard([&] { return Give(Shared().gFontSize, points); });
}

STDMETHODIMP ClsSynOutlook::put_FontSize(LONG points)
{
    return Guard([&] {
        Shared().gFontSize = points;
        Shared().gFont.Put(L"Size", points);
        return S_OK;
    });
}

STDMETHODIMP ClsSynOutlook::get_Font(IFontDisp** font)
{
    return Guard([&] {
        // A font's dispatch interface has no members beside those of IDispatch.
        const Microsoft::WRL::ComPtr<IFontDisp> held(static_cast<IFontDisp*>(Shared().gFont.Dispatch()));
        return held.CopyTo(font);
    });
}

STDMETHODIMP ClsSynOutlook::putref_Font(IFontDisp* font)
{
    return Guard([&] {
        if (font != nullptr)
        {
            Object given(font);
            // Read both before anything is taken over, so that a failing font object changes nothing.
            std::wstring name = automation::TextOf(given.Get(L"Name"));
            const long points = automation::LongOf(given.Get(L"Size")); // rounds half to even
            Shared().gFont = std::move(given);
            Shared().gFontName = std::move(name);
            Shared().gFontSize = points;
        }
        return S_OK;
    });
}

STDMETHODIMP ClsSynOutlook::SynLoad(IDispatch** dtc, BSTR connection, VARIANT_BOOL* refused)
{
    // The dialog runs the host's code, which may let go of this object; the module must stay all the same.
    const Microsoft::WRL::ComPtr<_ClsSynOutlook> kept(this);
    return Guard([&] {
        const bool isRefused =
            entry::SynLoad(Object(dtc != nullptr ? *dtc : nullptr), TextOfBstr(connection));
        return Give(isRefused ? VARIANT_TRUE : VARIANT_FALSE, refused);
    });
}

STDMETHODIMP ClsSynOutlook::InterfaceSupportsErrorInfo(REFIID id)
{
    return id == __uuidof(_ClsSynOutlook) ? S_OK : S_FALSE;
}

} // namespace entry
