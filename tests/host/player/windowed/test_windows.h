#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include <commctrl.h>

/// A dialog made of controls that are given one by one, for tests of what drives and reads windows. Kept until its end;
/// it destroys its window then.
class TestDialog
{
public:
    /// Hidden until Show, owned by `owner`.
    TestDialog(HWND owner, const wchar_t* title);
    ~TestDialog();
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;

    HWND Add(const wchar_t* windowClass, int id, const wchar_t* text, DWORD style, RECT place, DWORD exStyle = 0);
    void Show();
    /// Called with every message before the dialog's own handling; a result of true ends it.
    void OnMessage(bool (*handler)(TestDialog& dialog, UINT message, WPARAM wParam, LPARAM lParam));

    HWND Window() const { return m_window; }
    HWND Control(int id) const { return GetDlgItem(m_window, id); }

    /// What arrived as WM_COMMAND: code and ID, such as "0:1004".
    std::vector<std::string> commands;
    /// What arrived as WM_HSCROLL: the codes.
    std::vector<int> scrolls;

private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
    bool (*m_handler)(TestDialog&, UINT, WPARAM, LPARAM) = nullptr;
};
