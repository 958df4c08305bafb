#include "test_windows.h"

TestDialog::TestDialog(HWND owner, const wchar_t* title)
{
    // A template without controls: title, no menu, the dialog's own class.
    struct
    {
        DLGTEMPLATE dialog;
        WORD menu, windowClass, title;
    } const description = {{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN, 0, 0, 20, 20, 320, 200}, 0, 0, 0};
    m_window = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &description.dialog, owner, DialogProcedure,
                                          reinterpret_cast<LPARAM>(this));
    SetWindowTextW(m_window, title);
}

TestDialog::~TestDialog()
{
    DestroyWindow(m_window);
}

HWND TestDialog::Add(const wchar_t* windowClass, int id, const wchar_t* text, DWORD style, RECT place, DWORD exStyle)
{
    const HWND control =
        CreateWindowExW(exStyle, windowClass, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                        place.right - place.left, place.bottom - place.top, m_window,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    return control;
}

void TestDialog::Show()
{
    ShowWindow(m_window, SW_SHOW);
    UpdateWindow(m_window);
}

void TestDialog::OnMessage(bool (*handler)(TestDialog& dialog, UINT message, WPARAM wParam, LPARAM lParam))
{
    m_handler = handler;
}

INT_PTR CALLBACK TestDialog::DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
        return TRUE;
    }
    auto* const dialog = reinterpret_cast<TestDialog*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (dialog == nullptr)
        return FALSE;
    if (message == WM_COMMAND)
        dialog->commands.push_back(std::to_string(HIWORD(wParam)) + ":" + std::to_string(LOWORD(wParam)));
    if (message == WM_HSCROLL)
        dialog->scrolls.push_back(LOWORD(wParam));
    if (dialog->m_handler != nullptr && dialog->m_handler(*dialog, message, wParam, lParam))
        return TRUE;
    return FALSE;
}
