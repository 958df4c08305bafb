#include "controls/combo_box.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CComboBox, CWnd)

namespace
{
const ControlClass comboBoxClass(WC_COMBOBOX, RUNTIME_CLASS(CComboBox));
}

CComboBox::CComboBox() = default;
CComboBox::~CComboBox() = default;

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_COMBOBOX, nullptr, style, rect, parent, id);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        *result = TRUE;
        return TRUE;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        *result = TRUE;
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}
