#include "ui/Dialog.h"

#include "automation/Error.h"
#include "resources/Strings.h"
#include "state/Failures.h"
#include "ui/AlignedNotification.h"
#include "ui/ApplyFormFont.h"
#include "ui/Busy.h"
#include "ui/RowPainting.h"
#include "ui/SentMessage.h"
#include "ui/VisualStyles.h"
#include "ui/WindowPlacement.h"

#include <span>
#include <stdexcept>
#include <utility>

#include <commctrl.h>

namespace ui
{

namespace
{

// A window's property that leads to its dialog object.
constexpr wchar_t kDialogProperty[] = L"Telvix.Dialog";

Dialog* DialogOf(HWND window)
{
    return static_cast<Dialog*>(GetPropW(window, kDialogProperty));
}

std::span<const std::byte> TemplateResource(UINT id)
{
    const HINSTANCE module = resources::Module();
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
    const HGLOBAL loaded = found != nullptr ? LoadResource(module, found) : nullptr;
    const void* data = loaded != nullptr ? LockResource(loaded) : nullptr;
    if (data == nullptr)
    {
        throw automation::Error(HRESULT_FROM_WIN32(GetLastError()), L"dialog template");
    }
    return {static_cast<const std::byte*>(data), SizeofResource(module, found)};
}

struct Search
{
    UINT templateId;
    Dialog* found;
};

BOOL CALLBACK FindShown(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    Dialog* const dialog = DialogOf(window);
    if (dialog != nullptr && dialog->TemplateId() == search.templateId && IsWindowVisible(window))
    {
        search.found = dialog;
    }
    return search.found == nullptr;
}

} // namespace

INT_PTR Dialog::ShowModal()
{
    return Run(nullptr);
}

INT_PTR Dialog::ShowModalOver(const Dialog& owner)
{
    return Run(owner.mWindow);
}

Dialog* Dialog::Shown(UINT templateId)
{
    Search search = {templateId, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), FindShown, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

INT_PTR Dialog::Run(HWND owner)
{
    if (Shown(mTemplateId) != nullptr)
    {
        throw std::logic_error("the dialog is shown already");
    }
    const auto dialogTemplate = ApplyFormFont(TemplateResource(mTemplateId), FontOfForms());
    const VisualStyles styles;
    if (owner == nullptr)
    {
        mModal.emplace();
    }
    const INT_PTR result = DialogBoxIndirectParamW(
        resources::Module(), reinterpret_cast<const DLGTEMPLATE*>(dialogTemplate.data()), owner, Procedure,
        reinterpret_cast<LPARAM>(this));
    const DWORD error = GetLastError();
    mModal.reset(); // for a window that was not closed by Unload
    if (mFailure)
    {
        std::rethrow_exception(std::exchange(mFailure, nullptr));
    }
    if (result == -1)
    {
        throw automation::Error(HRESULT_FROM_WIN32(error), L"dialog");
    }
    return result;
}

void Dialog::Unload(INT_PTR result)
{
    if (mWindow != nullptr)
    {
        mModal.reset();
        EndDialog(mWindow, result);
    }
}

void Dialog::SetCaption(const std::wstring& text)
{
    SetWindowTextW(mWindow, text.c_str());
}

void Dialog::GrowBy(int pixels)
{
    RECT place;
    GetWindowRect(mWindow, &place);
    SetWindowPos(mWindow, nullptr, 0, 0, place.right - place.left, place.bottom - place.top + pixels,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(mWindow, DM_REPOSITION, 0, 0);
}

void Dialog::KeepPainted()
{
    if (mBusy != nullptr)
    {
        mBusy->KeepPainted();
    }
}

void Dialog::OnCommand(int id, int /*notification*/)
{
    if (id == IDCANCEL)
    {
        Unload();
    }
}

LRESULT Dialog::OnNotify(const NMHDR& /*notification*/)
{
    return 0;
}

INT_PTR CALLBACK Dialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        auto* const created = reinterpret_cast<Dialog*>(lParam);
        created->mWindow = window;
        SetPropW(window, kDialogProperty, created);
    }
    Dialog* const dialog = DialogOf(window);
    return dialog != nullptr ? dialog->HandleGuarded(message, wParam, lParam) : FALSE;
}

// No exception may pass through the system's frames: it is kept, and Run throws it again.
INT_PTR Dialog::HandleGuarded(UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    try
    {
        return Handle(message, wParam, lParam);
    }
    catch (...)
    {
        mFailure = std::current_exception();
        Unload();
        return FALSE;
    }
}

INT_PTR Dialog::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_INITDIALOG: return HandleInit();
    case WM_COMMAND:
    case WM_CLOSE: return HandleOrder(message, wParam, lParam);
    case WM_NOTIFY: return HandleNotify(AlignedNotification(lParam).Header());
    case WM_SIZE:
        mAnchors.Place();
        OnSize();
        return FALSE;
    case WM_GETMINMAXINFO: mAnchors.Limit(*reinterpret_cast<MINMAXINFO*>(lParam)); return FALSE;
    case WM_TIMER: OnTimer(wParam); return TRUE;
    case WM_SETCURSOR: return HandleSetCursor(LOWORD(lParam));
    case WM_DESTROY:
        RemovePropW(mWindow, kDialogProperty);
        mWindow = nullptr;
        OnUnload();
        return TRUE;
    default: return FALSE;
    }
}

template<typename Handler>
void Dialog::RunHandler(Handler&& handler)
{
    if (mErrors == Errors::AreTrapped)
    {
        state::Trapped(handler);
    }
    else
    {
        handler();
    }
}

void Dialog::WriteCaptions(std::span<const CaptionRow> captions)
{
    for (const CaptionRow& row : captions)
    {
        const HWND window = row.ControlId == kDialogCaption ? mWindow : GetDlgItem(mWindow, row.ControlId);
        SetWindowTextW(window, row.Text.Text().c_str());
    }
}

INT_PTR Dialog::HandleInit()
{
    SetIcons(mWindow);
    RunHandler([&] {
        WriteCaptions(mCaptions);
        OnInit();
        mAnchors.Attach(mWindow, AnchoredControls());
        if (const auto size = OpeningSize())
        {
            SetWindowPos(mWindow, nullptr, 0, 0, size->cx, size->cy,
                         SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        }
    });
    CenterOverActiveBefore(mWindow);
    // Windows would take the first control of the template, whatever OnInit has made of the tab order.
    const int first = FirstFocus();
    const HWND focused = first != 0 ? GetDlgItem(mWindow, first) : GetNextDlgTabItem(mWindow, nullptr, FALSE);
    SendMessageW(mWindow, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(focused), TRUE);
    return FALSE; // keeps that focus
}

INT_PTR Dialog::HandleOrder(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (mBusy != nullptr)
    {
        return TRUE;
    }
    // A control that reports on itself by a command gets its command at once.
    const bool mayCallOut = message == WM_CLOSE || HIWORD(wParam) == BN_CLICKED;
    if (mayCallOut && IsSenderWaiting())
    {
        PostMessageW(mWindow, message, wParam, lParam);
    }
    else if (message == WM_COMMAND)
    {
        RunHandler([&] { OnCommand(LOWORD(wParam), HIWORD(wParam)); });
    }
    else
    {
        OnClose();
    }
    return TRUE;
}

INT_PTR Dialog::HandleNotify(const NMHDR& notification)
{
    if (notification.code == static_cast<UINT>(NM_CUSTOMDRAW))
    {
        SetWindowLongPtrW(mWindow, DWLP_MSGRESULT, PaintRow(notification));
        return TRUE;
    }
    if (mBusy != nullptr)
    {
        return FALSE;
    }
    LRESULT result = 0;
    RunHandler([&] { result = OnNotify(notification); });
    SetWindowLongPtrW(mWindow, DWLP_MSGRESULT, result);
    return TRUE;
}

INT_PTR Dialog::HandleSetCursor(WORD hitTest) const
{
    if (mBusy == nullptr || hitTest != HTCLIENT)
    {
        return FALSE;
    }
    Busy::ShowHourglass();
    SetWindowLongPtrW(mWindow, DWLP_MSGRESULT, TRUE);
    return TRUE;
}

} // namespace ui
