#pragma once

#include <afxwin.h>

#include "platform/moduleskin/module_skin.h"

/// A text of the module's resource library.
inline CString ResourceText(UINT id)
{
    const CModuleSkin skin(kModuleCalcTol);
    CString text;
    text.LoadString(id);
    return text;
}
