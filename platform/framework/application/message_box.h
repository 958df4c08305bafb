#pragma once

#include "afx.h"

/// Shows a message, owned by the last active pop-up of the thread's active window or else of its main window; the
/// windows above that owner are disabled meanwhile.
/// @param type         MB_ constants
/// @param helpContext  not used: no message here has a help topic
/// @return             the button pressed; 0 when the box can't be shown
FRAMEWORK_API int AfxMessageBox(LPCWSTR text, UINT type = MB_OK, UINT helpContext = 0);
/// The text is a string of the current resource module.
FRAMEWORK_API int AfxMessageBox(UINT stringId, UINT type = MB_OK, UINT helpContext = static_cast<UINT>(-1));
