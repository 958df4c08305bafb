#include "application/message_box.h"

#include "application/app.h"
#include "window/disabled_owners.h"
#include "window/wnd.h"

namespace
{
HWND OwnerOfMessage()
{
    HWND window = ::GetActiveWindow();
    if (window == nullptr)
        window = HandleOf(AfxGetMainWnd());
    return window == nullptr ? nullptr : ::GetLastActivePopup(::GetAncestor(window, GA_ROOT));
}
}  // namespace

int AfxMessageBox(LPCWSTR text, UINT type, UINT)
{
    const HWND owner = OwnerOfMessage();
    // The box disables its owner, and enables it again before it goes.
    DisabledOwners aboveOwner;
    aboveOwner.DisableAbove(owner);
    return ::MessageBoxW(owner, text, AfxGetAppName(), type);
}

int AfxMessageBox(UINT stringId, UINT type, UINT helpContext)
{
    CString text;
    VERIFY(text.LoadString(stringId));
    return AfxMessageBox(text, type, helpContext);
}
