#pragma once

#include <vector>

#include <afxext.h>

/// A field box, or one derived from it, in a visible window of its own.
template <class Box>
class BoxInWindow
{
public:
    BoxInWindow()
    {
        const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_USEREX_CLASSES};
        ::InitCommonControlsEx(&classes);
        m_parent = ::CreateWindowExW(WS_EX_TOOLWINDOW, L"#32770", L"", WS_POPUP | WS_VISIBLE, 60, 60, 200, 60, nullptr,
                                     nullptr, nullptr, nullptr);
        const HWND control =
            ::CreateWindowExW(0, WC_COMBOBOXEXW, L"",
                              WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_AUTOHSCROLL,
                              10, 10, 150, 200, m_parent, nullptr, nullptr, nullptr);
        ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
        m_box.SubclassWindow(control);
        m_box.SetFieldStyles();
    }
    ~BoxInWindow() { ::DestroyWindow(m_parent); }
    BoxInWindow(const BoxInWindow&) = delete;
    BoxInWindow& operator=(const BoxInWindow&) = delete;

    Box& operator*() { return m_box; }
    Box* operator->() { return &m_box; }

    std::vector<CString> Codes()
    {
        std::vector<CString> codes;
        for (int index = 0; index < m_box.GetCount(); ++index)
            codes.push_back(m_box.Code(index));
        return codes;
    }

private:
    HWND m_parent;
    Box m_box;
};
