#include "entry/SynLoad.h"

#include "automation/MessageFilter.h"
#include "run/FrmSynchronizeItem.h"
#include "state/Failures.h"
#include "state/SharedState.h"

namespace entry
{

using automation::Object;

bool SynLoad(const Object& dtc, const std::wstring& connection)
{
    if (connection.empty() || !dtc)
    {
        state::LogError();
        return true;
    }
    return state::Trapped(false, [&] {
        state::SharedState& shared = state::Shared();
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
