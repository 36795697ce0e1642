// Shows an error to the user in a message box, once: the routines above it find out that the user knows, and
// stay silent.
#pragma once

#include "automation/Error.h"
#include "ui/ShowMessageBox.h"

namespace ui
{

// An error that the user has been shown.
class ShownError : public automation::Error
{
  public:
    explicit ShownError(const automation::Error& error) : Error(error) {}
};

// Shows "<origin>:<description>" in a message box, unless the user has been shown the error already, and
// throws it as a ShownError. Call it where the error has been caught.
[[noreturn]] void ShowAndThrow(const automation::Error& error, const std::wstring& origin, UINT style,
                               const std::wstring& title = kApplicationTitle);

} // namespace ui
