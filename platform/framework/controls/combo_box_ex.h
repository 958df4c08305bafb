#pragma once

#include "controls/combo_box.h"

/// The extended combo box: a window that holds a combo box, which sends its drawing requests to this window.
class FRAMEWORK_API CComboBoxEx : public CComboBox
{
    DECLARE_DYNCREATE(CComboBoxEx)

public:
    CComboBoxEx();
    ~CComboBoxEx() override;

    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) override;

    /// Fills what the mask asks for. The text goes into the buffer that `item` names, or `item` names the control's own
    /// afterwards. Item -1 is the edit field.
    BOOL GetItem(COMBOBOXEXITEM* item) const
    {
        return static_cast<BOOL>(SendMessage(CBEM_GETITEM, 0, reinterpret_cast<LPARAM>(item)));
    }
    /// @return  the index; -1 on failure. Item -1 appends.
    int InsertItem(const COMBOBOXEXITEM* item)
    {
        return static_cast<int>(SendMessage(CBEM_INSERTITEM, 0, reinterpret_cast<LPARAM>(item)));
    }

    CComboBox* GetComboBoxCtrl() const;
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(CBEM_GETEXTENDEDSTYLE)); }
    /// @param mask  the bits to change; 0 for all
    DWORD SetExtendedStyle(DWORD mask, DWORD style)
    {
        return static_cast<DWORD>(SendMessage(CBEM_SETEXTENDEDSTYLE, mask, static_cast<LPARAM>(style)));
    }
};
