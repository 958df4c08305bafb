#pragma once

#include <ostream>
#include <string>
#include <vector>

#include <afxwin.h>

/// What the module expects of a control.
struct ExpectedControl
{
    int id;
    const wchar_t* className;
    DWORD mask;   ///< bits of the window style that matter
    DWORD style;  ///< their values
};

/// What the module expects of a dialog.
struct ExpectedDialog
{
    UINT id;
    const char* name;
    std::vector<ExpectedControl> controls;  ///< all but the labels
    std::vector<int> tabOrder;
    int okButton;  ///< 0: none
};

void PrintTo(const ExpectedDialog& dialog, std::ostream* out);

/// All dialogs of the library.
const std::vector<ExpectedDialog>& ExpectedDialogs();
const ExpectedDialog& ExpectationOf(UINT dialogId);
