#include "controls/combo_box_ex.h"

#include "window/control_class.h"

IMPLEMENT_DYNCREATE(CComboBoxEx, CComboBox)

namespace
{
const ControlClass comboBoxExClass(WC_COMBOBOXEX, RUNTIME_CLASS(CComboBoxEx));
}

CComboBoxEx::CComboBoxEx() = default;
CComboBoxEx::~CComboBoxEx() = default;

BOOL CComboBoxEx::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create(WC_COMBOBOXEX, nullptr, style, rect, parent, id);
}

CComboBox* CComboBoxEx::GetComboBoxCtrl() const
{
    return static_cast<CComboBox*>(FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETCOMBOCONTROL))));
}
