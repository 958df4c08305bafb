// How a message finds its handler.

#include "application/app.h"
#include "window/window_message_map.h"
#include "window/wnd.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, result);
    const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(message, 0, 0);
    if (entry == nullptr)
        return FALSE;
    HandlerCall call = {wParam, lParam, 0};
    entry->pfn(*this, call);
    *result = call.result;
    return TRUE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_formerProcedure == nullptr)
        return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
    return ::CallWindowProcW(m_formerProcedure, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG message = *GetCurrentMessage();
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const auto control = reinterpret_cast<HWND>(lParam);
    LRESULT result = 0;
    if (control != nullptr && ReflectToControl(control, WM_COMMAND, wParam, lParam, &result))
        return TRUE;
    // An accelerator's command carries 1 where a control's carries its notification code.
    const int code = control == nullptr ? CN_COMMAND : HIWORD(wParam);
    return OnCmdMsg(LOWORD(wParam), code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectToControl(header->hwndFrom, WM_NOTIFY, wParam, lParam, result))
        return TRUE;
    AFX_NOTIFY notify = {result, header};
    return OnCmdMsg(static_cast<UINT>(header->idFrom), MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::ReflectToControl(HWND control, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    CWnd* wnd = FromHandlePermanent(control);
    return wnd != nullptr && wnd->OnChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    UINT code = 0;
    if (message == WM_COMMAND)
        code = HIWORD(wParam);
    else if (message == WM_NOTIFY)
        code = message_map::Code(reinterpret_cast<const NMHDR*>(lParam)->code);
    else
        return FALSE;
    const AFX_MSGMAP_ENTRY* entry = FindMessageEntry(message + kReflectedMessage, code, 0);
    if (entry == nullptr)
        return FALSE;
    HandlerCall call = {wParam, lParam, 0};
    entry->pfn(*this, call);
    *result = call.result;
    return TRUE;
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT draw)
{
    const MSG message = *GetCurrentMessage();
    LRESULT result = 0;
    if (draw->CtlType == ODT_MENU ||
        !ReflectToControl(draw->hwndItem, WM_DRAWITEM, message.wParam, message.lParam, &result))
        Default();
}

void CWnd::OnMeasureItem(int controlId, LPMEASUREITEMSTRUCT measure)
{
    const MSG message = *GetCurrentMessage();
    LRESULT result = 0;
    const HWND control = measure->CtlType == ODT_MENU ? nullptr : ::GetDlgItem(m_hWnd, controlId);
    if (control == nullptr || !ReflectToControl(control, WM_MEASUREITEM, message.wParam, message.lParam, &result))
        Default();
}

void CWnd::OnNcDestroy()
{
    CWinThread* thread = AfxGetThread();
    if (thread->m_pMainWnd == this)
    {
        thread->m_pMainWnd = nullptr;
        if (thread == AfxGetApp())
            AfxPostQuitMessage(0);  // the program ends with its main window; a foreign program is left alone
    }
    Default();
    Detach();
    PostNcDestroy();
}
