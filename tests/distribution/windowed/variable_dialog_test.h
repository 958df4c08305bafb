#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "distribution/variable_dlg.h"
#include "platform/moduleskin/resource.h"
#include "tests/support/modal_dialog_test.h"

/// A link 25 +0.2/-0.1: limits 25.2 and 24.9, field width 0.3.
inline CVariableParams UniformLink()
{
    return {.nominal = L"25",
            .name = L"A1",
            .caption = L"Size:",
            .upperDev = L"0.2",
            .lowerDev = L"-0.1",
            .dimKind = 1,
            .law = 2,
            .mean = 25.05};
}

inline bool operator==(const CVariableParams& left, const CVariableParams& right)
{
    return left.nominal == right.nominal && left.name == right.name && left.caption == right.caption &&
           left.upperDev == right.upperDev && left.lowerDev == right.lowerDev && left.dimKind == right.dimKind &&
           left.law == right.law && left.mean == right.mean;
}

inline void PrintTo(const CVariableParams& params, std::ostream* out)
{
    for (const CString& text : {params.nominal, params.name, params.caption, params.upperDev, params.lowerDev})
    {
        PrintTo(text, out);
        *out << ' ';
    }
    *out << params.dimKind << ' ' << params.law << ' ' << params.mean;
}

/// The dialog with UniformLink in its record.
class VariableDialogTest : public ModalDialogTest<CVariableDlg>
{
protected:
    VariableDialogTest() { MakeDialog(); }

    void MakeDialog()
    {
        dialog = std::make_unique<OnReleasedPages<CVariableDlg>>(&host);
        dialog->SetHostWindow(&host);
        dialog->Params() = UniformLink();
    }

    CVariableParams& Record() { return dialog->Params(); }

    int Position() const { return static_cast<int>(::SendMessageW(Window(IDC_VARIABLE_LAW), CB_GETCURSEL, 0, 0)); }

    /// As if the user had chosen an entry; CB_ERR for none.
    void Choose(int position) const
    {
        ::SendMessageW(Window(IDC_VARIABLE_LAW), CB_SETCURSEL, static_cast<WPARAM>(position), 0);
        ::SendMessageW(dialog->m_hWnd, WM_COMMAND, MAKEWPARAM(IDC_VARIABLE_LAW, CBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(Window(IDC_VARIABLE_LAW)));
    }

    /// What the plot has to show for the record as it is now.
    Pixels ExpectedPlot();
    Pixels ShownPlot() const { return ShownPixels(Window(IDC_VARIABLE_PLOT)); }
};

// positions of the laws in the box
constexpr int kNormal = 0;
constexpr int kUniform = 1;
constexpr int kTriangular = 2;
