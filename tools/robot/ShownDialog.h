// A dialog or message box on the screen of another thread of this process, as a user sees and uses it. What
// it reads it asks the window for; what it does it posts, so that a dialog which a click opens does not hold
// up the robot. Every question has a deadline: a window that has gone reads as nothing.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace tools
{

class ShownDialog
{
  public:
    explicit ShownDialog(HWND window) noexcept : mWindow(window) {}

    HWND Handle() const noexcept { return mWindow; }
    // On the screen, and not behind another modal dialog.
    bool TakesInput() const;
    bool IsOpen() const;
    // Takes input, is not at work, and what its work wrote last can be read.
    bool IsAtRest() const;
    std::wstring Caption() const;

    // Controls, by number.
    HWND Control(int id) const;
    bool IsEnabled(int id) const;
    bool IsVisible(int id) const;
    std::wstring Text(int id) const;
    void Click(int id) const;
    // The control that has the keyboard focus; 0 for none.
    int Focused() const;

    // What a keyboard does: a key for the focused control, a letter with Alt.
    void Press(WORD key) const;
    void PressAlt(wchar_t letter) const;
    // The close button of the window.
    void Close() const;
    // A command that no button sends, for example that of a disabled one.
    void Command(int id) const;

    // List views in report style.
    int Rows(int id) const;
    std::wstring Row(int id, int row, int column = 0) const;
    std::wstring ColumnHeader(int id, int column) const;
    void ChooseRow(int id, int row) const;
    // Tabbed frames.
    std::wstring Tab(int id, int tab) const;

    // Message boxes.
    bool IsMessageBox() const;
    std::wstring Message() const;
    // icon: IDI_INFORMATION, IDI_QUESTION, ...
    bool ShowsIcon(const wchar_t* icon) const;
    // Numbers of the buttons (IDOK, IDYES, ...), from left to right.
    std::vector<int> Buttons() const;

    // Sends a message and waits for the answer.
    LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

  private:
    HWND mWindow;
};

} // namespace tools
