// The base of every dialog: one class per dialog, a template by number, captions as a table, messages as
// virtual functions. An object is made, shown modally and thrown away; its window exists only while it is
// shown.
#pragma once

#include "ui/Anchors.h"
#include "ui/Caption.h"
#include "ui/ModalScope.h"

#include <exception>
#include <optional>
#include <span>
#include <string>

#include <windows.h>

namespace ui
{

class Busy;

// An exception in a handler.
enum class Errors
{
    EndTheDialog, // the function that showed it throws the exception again
    AreTrapped,   // the dialog stays
};

class Dialog
{
  public:
    // captions: written before OnInit; they outlive the dialog.
    explicit Dialog(UINT templateId, std::span<const CaptionRow> captions = {},
                    Errors errors = Errors::EndTheDialog) noexcept
        : mTemplateId(templateId), mCaptions(captions), mErrors(errors)
    {
    }
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    virtual ~Dialog() = default;

    // Shows the dialog and returns when it has closed, with the result given to Unload. Without an owner, the
    // thread's other windows take no input meanwhile. Throws std::logic_error when a dialog of the same
    // template is on this thread's screen already: each exists once.
    INT_PTR ShowModal();
    INT_PTR ShowModalOver(const Dialog& owner);

    // Closes the dialog.
    void Unload(INT_PTR result = IDCANCEL);

    // The dialog of this template that is on the calling thread's screen, or null.
    static Dialog* Shown(UINT templateId);

    HWND Handle() const noexcept { return mWindow; }
    UINT TemplateId() const noexcept { return mTemplateId; }
    void SetCaption(const std::wstring& text);

    // Makes the dialog higher, or lower for a negative number of pixels; it stays on the screen.
    void GrowBy(int pixels);

    // During a run: paints changed parts, lets the user move the dialog. Free when called often.
    void KeepPainted();

  protected:
    // Writes further captions.
    void WriteCaptions(std::span<const CaptionRow> captions);

    // The window and its controls exist, nothing is shown yet.
    virtual void OnInit() {}
    // A control's notification (BN_CLICKED, ...), or a command of the keyboard (IDOK, IDCANCEL).
    virtual void OnCommand(int id, int notification);
    // A common control's notification; the result goes back to the control.
    virtual LRESULT OnNotify(const NMHDR& notification);
    // The close button or the system menu.
    virtual void OnClose() { Unload(); }
    // The window closes.
    virtual void OnUnload() {}
    // The control that has the focus at first; 0 for the first one in tab order when OnInit has run.
    virtual int FirstFocus() const { return 0; }
    // How the controls of a resizable dialog follow its edges; asked once, after OnInit.
    virtual std::span<const AnchoredControl> AnchoredControls() const { return {}; }
    // The size in pixels that the dialog opens with; nothing for the template's, which is its least.
    virtual std::optional<SIZE> OpeningSize() const { return std::nullopt; }
    // The controls have followed the dialog's new size.
    virtual void OnSize() {}
    // A timer that SetTimer has set for the dialog's window.
    virtual void OnTimer(UINT_PTR /*id*/) {}

  private:
    friend class Busy;

    INT_PTR Run(HWND owner);
    INT_PTR HandleGuarded(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
    template<typename Handler>
    void RunHandler(Handler&& handler);
    INT_PTR HandleInit();
    INT_PTR HandleOrder(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR HandleNotify(const NMHDR& notification);
    INT_PTR HandleSetCursor(WORD hitTest) const;
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    UINT mTemplateId;
    std::span<const CaptionRow> mCaptions;
    Errors mErrors;
    HWND mWindow = nullptr;
    std::optional<ModalScope> mModal;
    Busy* mBusy = nullptr;
    Anchors mAnchors;
    std::exception_ptr mFailure;
};

} // namespace ui
