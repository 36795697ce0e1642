// The component's public class (TelvixOutlook.ClsSynOutlook): display and calendar properties, and SynLoad,
// which shows the synchronization dialog. All values live in the calling thread's shared state; a new
// instance sets them to their defaults.
#pragma once

#include "automation/ComObject.h"
#include "entry/ClassFactory.h"

#include "TelvixIdl.h"

namespace entry
{

class ClsSynOutlook : public automation::ComObject<_ClsSynOutlook, ISupportErrorInfo>
{
  public:
    ClsSynOutlook();

    // Times of day: date and seconds are dropped on writing.
    STDMETHODIMP get_CalendarEndTime(DATE* time) override;
    STDMETHODIMP put_CalendarEndTime(DATE* time) override;
    STDMETHODIMP get_CalendarStartTime(DATE* time) override;
    STDMETHODIMP put_CalendarStartTime(DATE* time) override;
    // Minutes, unchecked.
    STDMETHODIMP get_CalendarPreviewAlarmTime(LONG* minutes) override;
    STDMETHODIMP put_CalendarPreviewAlarmTime(LONG minutes) override;
    // Also set the name and the size of the font object held, whoever owns it.
    STDMETHODIMP get_FontName(BSTR* name) override;
    STDMETHODIMP put_FontName(BSTR name) override;
    STDMETHODIMP get_FontSize(LONG* points) override;
    STDMETHODIMP put_FontSize(LONG points) override;
    // Keeps the host's font object and takes its name and rounded size; nothing changes nothing.
    STDMETHODIMP get_Font(IFontDisp** font) override;
    STDMETHODIMP putref_Font(IFontDisp* font) override;

    // True when the arguments are refused and nothing was done; False when the dialog was shown and has
    // closed, an automation error stopped the call, or the thread's dialog is open already.
    STDMETHODIMP SynLoad(IDispatch** dtc, BSTR connection, VARIANT_BOOL* refused) override;

    // Late binding, through the type library.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override;

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override;

  private:
    void* Find(REFIID id) noexcept override;

    ModuleUse mUse;
    Microsoft::WRL::ComPtr<ITypeInfo> mTypeInfo; // loaded on first late-bound use
};

} // namespace entry
