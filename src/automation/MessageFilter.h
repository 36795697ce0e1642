// For the duration of a scope, calls that a busy server rejects ("call rejected", "retry later") are tried
// again for a bounded time instead of failing, as the COM documentation asks of clients of Office. Installed
// per thread. The host's own filter keeps its say about calls that come in and messages that arrive during a
// call, and is put back afterwards.
#pragma once

#include <windows.h>

#include <objidl.h>
#include <wrl/client.h>

namespace automation
{

class MessageFilterScope
{
  public:
    MessageFilterScope();
    MessageFilterScope(const MessageFilterScope&) = delete;
    MessageFilterScope& operator=(const MessageFilterScope&) = delete;
    ~MessageFilterScope();

  private:
    Microsoft::WRL::ComPtr<IMessageFilter> mFilter;
    Microsoft::WRL::ComPtr<IMessageFilter> mPrevious;
};

} // namespace automation
