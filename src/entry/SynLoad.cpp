#include "entry/SynLoad.h"

#include "automation/BusyServer.h"
#include "automation/MessageFilter.h"
#include "run/FrmSynchronizeItem.h"
#include "state/Failures.h"
#include "state/SharedState.h"
#include "ui/AskWhetherToWait.h"

namespace entry
{

using automation::Object;

namespace
{

// From the start of Outlook until the dialog has closed, whatever loop of messages brings the host back.
class Loading
{
  public:
    explicit Loading(state::SharedState& shared) : mShared(shared) { mShared.isLoading = true; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;
    ~Loading() { mShared.isLoading = false; }

  private:
    state::SharedState& mShared;
};

} // namespace

bool SynLoad(const Object& dtc, const std::wstring& connection)
{
    if (connection.empty() || !dtc)
    {
        state::LogError();
        return true;
    }
    return state::Trapped(false, [&] {
        state::SharedState& shared = state::Shared();
        if (shared.isLoading)
        {
            return false;
        }
        const Loading loading(shared);
        automation::AskWhenBusy(&ui::AskWhetherToWait);
        const automation::MessageFilterScope busyOutlookIsAskedAgain;
        shared.gDTC = dtc;
        shared.gOlApplication = Object::Create(L"Outlook.Application");
        shared.gOlNamespace = shared.gOlApplication.GetObject(L"GetNamespace", L"MAPI");
        shared.gCnnString = connection;
        run::ShowSynchronizeItem();
        return false;
    });
}

} // namespace entry
