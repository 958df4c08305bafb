#pragma once

#include "window/wnd.h"

/// One run of data between a dialog's members and its controls.
class FRAMEWORK_API CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;  ///< TRUE from controls to members, FALSE from members to controls
    CWnd* m_pDlgWnd;

    /// The control's window. Raises CNotSupportedException when the dialog has no such control.
    HWND PrepareCtrl(int id);
    /// Ends the exchange by raising CUserException; the user must have been told why.
    [[noreturn]] void Fail();
};

/// Binds a control of the dialog to a member, once: the member's window is the control from then on.
FRAMEWORK_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
