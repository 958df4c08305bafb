#pragma once

#include <string>
#include <vector>

#include <afxwin.h>

/// A dialog of the resource library in a visible window, with nothing filled in.
class SkinDialog
{
public:
    /// @param textScaling  percent; above 100 the template's font is enlarged, and with it, as by a scaled screen,
    ///                     everything that is measured in dialog units
    explicit SkinDialog(UINT templateId, int textScaling = 100);
    ~SkinDialog();
    SkinDialog(const SkinDialog&) = delete;
    SkinDialog& operator=(const SkinDialog&) = delete;

    /// Null when the dialog can't be created.
    HWND Window() const { return m_window; }
    HWND Item(int id) const { return ::GetDlgItem(m_window, id); }
    /// In the order of the template, labels included.
    std::vector<HWND> Controls() const;
    /// What Tab reaches, in its order.
    std::vector<int> TabOrder() const;
    /// Place in the client area; of a combo box that of its closed part.
    CRect Place(HWND control) const;
    CRect ClientArea() const;
    /// Pixels of four horizontal and of eight vertical dialog units.
    CSize BaseUnits() const;

private:
    CDialog m_dialog;
    HWND m_window = nullptr;
};

std::wstring TextOf(HWND window);
std::wstring ClassOf(HWND window);
/// The part of the window's style that its class defines.
DWORD ClassStyle(HWND window);
