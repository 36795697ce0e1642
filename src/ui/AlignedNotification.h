// A common control's notification at an aligned address: controls report keys in packed structures, which can
// be at any address, and a reference to such a structure is undefined behaviour.
#pragma once

#include <cstddef>

#include <windows.h>

#include <commctrl.h>

namespace ui
{

class AlignedNotification
{
  public:
    // parameter: of WM_NOTIFY. The object may be used while that message is handled.
    explicit AlignedNotification(LPARAM parameter);
    AlignedNotification(const AlignedNotification&) = delete;
    AlignedNotification& operator=(const AlignedNotification&) = delete;

    const NMHDR& Header() const noexcept { return *mHeader; }

  private:
    // The key notifications of all controls have one layout.
    alignas(NMHDR) std::byte mKey[sizeof(NMLVKEYDOWN)];
    const NMHDR* mHeader;
};

} // namespace ui
