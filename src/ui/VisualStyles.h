// For the length of a scope, windows are created with the common controls that the module's manifest selects,
// whatever the host's own manifest says.
#pragma once

#include <windows.h>

namespace ui
{

class VisualStyles
{
  public:
    VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;
    ~VisualStyles();

  private:
    HANDLE mContext;
    ULONG_PTR mCookie = 0;
    bool mActive = false;
};

} // namespace ui
