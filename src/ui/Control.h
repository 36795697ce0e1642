// The controls of a dialog as typed members: each names its dialog and its number, and finds its window when
// it is used. Without a window (the dialog is not shown) reading gives nothing and writing does nothing.
#pragma once

#include <string>

#include <windows.h>

namespace ui
{

class Dialog;

class Control
{
  public:
    Control(const Dialog& dialog, int id) noexcept : mDialog(dialog), mId(id) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    int Id() const noexcept { return mId; }
    HWND Handle() const;

    std::wstring Text() const;
    void SetText(const std::wstring& text);
    bool IsEnabled() const;
    void Enable(bool enabled);
    void Show(bool visible);
    void Focus();
    // Paints at once any part that waits for painting.
    void Repaint();

    // The place in the dialog's client area, in pixels.
    RECT Place() const;
    void MoveTo(const RECT& place);
    void MoveBy(int right, int down);

  protected:
    ~Control() = default;
    // The looks that lists and trees have in the system's own windows, where there are visual styles.
    void UseExplorerTheme();
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    // For messages that take a structure or a text.
    template<typename T>
    LRESULT SendPointer(UINT message, WPARAM wParam, T* data) const
    {
        return Send(message, wParam, reinterpret_cast<LPARAM>(data));
    }

  private:
    const Dialog& mDialog;
    int mId;
};

class Button : public Control
{
  public:
    using Control::Control;
    using Control::Enable;
    // A button that has the focus as it is disabled gives it to another control.
    void Enable(bool enabled, Control& next);
};

class Label : public Control
{
  public:
    using Control::Control;
};

// A frame around other controls; no behaviour.
class Frame : public Control
{
  public:
    using Control::Control;
};

class TextBox : public Control
{
  public:
    using Control::Control;
    // Adds to the end of the text and shows that end.
    void Append(const std::wstring& text);
};

// A static picture of the system's.
class IconBox : public Control
{
  public:
    using Control::Control;
    // systemIcon: IDI_ERROR, IDI_INFORMATION, ...
    void ShowSystemIcon(const wchar_t* systemIcon);
};

} // namespace ui
