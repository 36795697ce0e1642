// Closes each dialog and message box that comes up, at once and on the thread that shows it, and keeps its
// text.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace test_support
{

class AnsweredMessages
{
  public:
    AnsweredMessages();
    AnsweredMessages(const AnsweredMessages&) = delete;
    AnsweredMessages& operator=(const AnsweredMessages&) = delete;
    ~AnsweredMessages();

    // Captions and texts.
    const std::vector<std::wstring>& Texts() const noexcept { return mTexts; }

  private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    void Answer(HWND dialog);

    std::vector<std::wstring> mTexts;
    HHOOK mHook;
};

} // namespace test_support
