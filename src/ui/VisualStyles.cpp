#include "ui/VisualStyles.h"

#include "resources/Strings.h"

#include <commctrl.h>

namespace ui
{

VisualStyles::VisualStyles()
{
    ACTCTXW context = {};
    context.cbSize = sizeof(context);
    context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    context.hModule = resources::Module();
    context.lpResourceName = MAKEINTRESOURCEW(IDR_MANIFEST);
    mContext = CreateActCtxW(&context);
    // Without the context the dialogs look older and work as well.
    mActive = mContext != INVALID_HANDLE_VALUE && ActivateActCtx(mContext, &mCookie) != FALSE;

    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&classes);
}

VisualStyles::~VisualStyles()
{
    if (mActive)
    {
        DeactivateActCtx(0, mCookie);
    }
    if (mContext != INVALID_HANDLE_VALUE)
    {
        ReleaseActCtx(mContext);
    }
}

} // namespace ui
