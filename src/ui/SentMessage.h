// What a message from another thread or process asks for: as long as its sender waits for the answer, COM
// refuses every call out of this process (RPC_E_CANTCALLOUT_ININPUTSYNCCALL). Screen readers and test tools
// press buttons that way. What may call Outlook is therefore posted, and done after the sender has its
// answer.
#pragma once

#include <windows.h>

namespace ui
{

// A sender waits for the message that this thread is handling.
inline bool IsSenderWaiting() noexcept
{
    return (InSendMessageEx(nullptr) & (ISMEX_SEND | ISMEX_REPLIED)) == ISMEX_SEND;
}

} // namespace ui
