// The main dialog, which SynLoad shows: the three kinds of data, one of which the user chooses, configures
// and exchanges. It stays open from run to run and tells the outcome of the last one in its status line.
#pragma once

#include "exchange/RunDisplay.h"
#include "state/SynParameter.h"

#include <functional>
#include <string>

namespace run
{

// The services that the dialog uses of the rest of the component.
struct SynchronizeServices
{
    // True when there is no Outlook profile; the user has been told.
    std::function<bool()> CheckOutlookProfiles;
    // Loads the parameters of a kind ("Task", "Calendar" or "Contact").
    std::function<void(state::SynParameter& parameter, const std::wstring& objectName)> SetSynParamenter;
    std::function<void()> ShowConfigure;
    // One exchange each; true when it failed.
    std::function<bool(exchange::RunDisplay& display)> RunTaskSync;
    std::function<bool(exchange::RunDisplay& display)> RunCalendarSync;
    std::function<bool(exchange::RunDisplay& display)> RunContactSync;
};

// The component's own.
SynchronizeServices RealServices();

// Shows the dialog without an owner and returns when the user has closed it; the host's and Outlook's objects
// are released by then. Throws when it cannot be shown.
void ShowSynchronizeItem(const SynchronizeServices& services);
void ShowSynchronizeItem();

} // namespace run
