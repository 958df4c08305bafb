#include "dialog_lists.h"

#include <algorithm>

#include <afxcmn.h>

#include "platform/moduleskin/resource.h"

namespace
{

constexpr DWORD kTabStop = WS_TABSTOP;

// A text that the program fills in: '&' is no mnemonic there.
ExpectedControl Text(int id)
{
    return {id, L"Static", SS_TYPEMASK | SS_NOPREFIX | SS_ENDELLIPSIS | kTabStop,
            SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS};
}

ExpectedControl Picture(int id)
{
    return {id, L"Static", SS_TYPEMASK | WS_VISIBLE | kTabStop, SS_LEFT | WS_VISIBLE};
}

ExpectedControl Edit(int id)
{
    return {id, L"Edit", ES_MULTILINE | ES_READONLY | ES_AUTOHSCROLL | kTabStop, ES_AUTOHSCROLL | kTabStop};
}

ExpectedControl Button(int id)
{
    return {id, L"Button", BS_TYPEMASK | kTabStop, BS_PUSHBUTTON | kTabStop};
}

ExpectedControl DefaultButton(int id)
{
    return {id, L"Button", BS_TYPEMASK | kTabStop, BS_DEFPUSHBUTTON | kTabStop};
}

ExpectedControl CheckBox(int id)
{
    return {id, L"Button", BS_TYPEMASK | kTabStop, BS_AUTOCHECKBOX | kTabStop};
}

// Its positions have a meaning, so it doesn't sort.
ExpectedControl Choice(int id)
{
    constexpr DWORD kType = CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST;
    return {id, L"ComboBox", kType | CBS_SORT | kTabStop, CBS_DROPDOWNLIST | kTabStop};
}

ExpectedControl FieldBox(int id)
{
    constexpr DWORD kType = CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST;
    return {id, L"ComboBoxEx32", kType | CBS_OWNERDRAWFIXED | CBS_SORT | kTabStop,
            CBS_DROPDOWN | CBS_OWNERDRAWFIXED | kTabStop};
}

ExpectedControl Grid(int id)
{
    return {id, L"SysListView32",
            LVS_TYPEMASK | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SORTASCENDING | LVS_SORTDESCENDING |
                LVS_NOCOLUMNHEADER | kTabStop,
            LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | kTabStop};
}

ExpectedControl Slider(int id)
{
    return {id, L"msctls_trackbar32", TBS_VERT | TBS_AUTOTICKS | TBS_NOTICKS | kTabStop, TBS_AUTOTICKS | kTabStop};
}

}  // namespace

void PrintTo(const ExpectedDialog& dialog, std::ostream* out)
{
    *out << dialog.name;
}

const std::vector<ExpectedDialog>& ExpectedDialogs()
{
    static const std::vector<ExpectedDialog> dialogs{
        {IDD_CALC_TOL,
         "Calculation",
         {Grid(IDC_CHAIN_LIST), Grid(IDC_CLOSING_LIST), Picture(IDC_CHAIN_DIAGRAM)},
         {IDC_CHAIN_LIST, IDC_CLOSING_LIST},
         0},
        {IDD_EDIT_TOL,
         "LinkTolerance",
         {DefaultButton(IDC_LINK_OK), Button(IDC_LINK_CANCEL), Button(IDC_LINK_APPLY), Choice(IDC_LINK_DIRECTION),
          Edit(IDC_LINK_UPPER_DEV), Edit(IDC_LINK_LOWER_DEV), CheckBox(IDC_LINK_WEIGHT_FIXED), Text(IDC_LINK_CAPTION),
          Text(IDC_LINK_NOMINAL), Picture(IDC_LINK_PICTURE), Edit(IDC_LINK_NAME), CheckBox(IDC_LINK_FILTER),
          FieldBox(IDC_LINK_FIELD)},
         {IDC_LINK_NAME, IDC_LINK_DIRECTION, IDC_LINK_FIELD, IDC_LINK_FILTER, IDC_LINK_UPPER_DEV, IDC_LINK_LOWER_DEV,
          IDC_LINK_WEIGHT_FIXED, IDC_LINK_OK, IDC_LINK_CANCEL, IDC_LINK_APPLY},
         IDC_LINK_OK},
        {IDD_EDIT_CLOSE_TOL,
         "ClosingTolerance",
         {Text(IDC_CLOSING_NOMINAL), Text(IDC_CLOSING_CAPTION), FieldBox(IDC_CLOSING_FIELD),
          CheckBox(IDC_CLOSING_FILTER), Edit(IDC_CLOSING_UPPER_DEV), Edit(IDC_CLOSING_LOWER_DEV),
          DefaultButton(IDC_CLOSING_OK), Button(IDC_CLOSING_CANCEL), Picture(IDC_CLOSING_PICTURE)},
         {IDC_CLOSING_FIELD, IDC_CLOSING_FILTER, IDC_CLOSING_UPPER_DEV, IDC_CLOSING_LOWER_DEV, IDC_CLOSING_OK,
          IDC_CLOSING_CANCEL},
         IDC_CLOSING_OK},
        {IDD_VARIABLE,
         "Distribution",
         {Text(IDC_VARIABLE_CAPTION), Text(IDC_VARIABLE_NOMINAL), Picture(IDC_VARIABLE_PICTURE),
          Edit(IDC_VARIABLE_NAME), Button(IDC_VARIABLE_REDRAW), Choice(IDC_VARIABLE_LAW), Edit(IDC_VARIABLE_MEAN),
          DefaultButton(IDC_VARIABLE_OK), Button(IDC_VARIABLE_CANCEL), Text(IDC_VARIABLE_SIGMA),
          Picture(IDC_VARIABLE_PLOT)},
         {IDC_VARIABLE_NAME, IDC_VARIABLE_LAW, IDC_VARIABLE_MEAN, IDC_VARIABLE_REDRAW, IDC_VARIABLE_OK,
          IDC_VARIABLE_CANCEL},
         IDC_VARIABLE_OK},
        {IDD_WEIGHT,
         "Weights",
         {Grid(IDC_WEIGHT_LIST), Text(IDC_WEIGHT_NAME), Slider(IDC_WEIGHT_SLIDER), Text(IDC_WEIGHT_VALUE),
          Picture(IDC_WEIGHT_PICTURE), DefaultButton(IDOK), Button(IDCANCEL)},
         {IDC_WEIGHT_LIST, IDC_WEIGHT_SLIDER, IDOK, IDCANCEL},
         IDOK},
    };
    return dialogs;
}

const ExpectedDialog& ExpectationOf(UINT dialogId)
{
    return *std::find_if(ExpectedDialogs().begin(), ExpectedDialogs().end(),
                         [dialogId](const ExpectedDialog& dialog) { return dialog.id == dialogId; });
}
