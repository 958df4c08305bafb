#pragma once

#include <windows.h>

#include <commctrl.h>

#include "window/message_map.h"

class CDataExchange;
class CDC;
class CFont;
class CMenu;
class CScrollBar;
class CWnd;

/// The window of an object; null for a null pointer.
inline HWND HandleOf(const CWnd* wnd);

/// A window and the object that stands for it.
///
/// An object that created or subclassed its window is permanent: messages reach its message map, and deleting it
/// destroys the window. FromHandle makes temporary objects for other windows; they live until the thread is idle.
class FRAMEWORK_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    // objects and handles
    static CWnd* FromHandle(HWND window);
    /// The permanent object of the window; null when there is none.
    static CWnd* FromHandlePermanent(HWND window);
    /// Makes this the permanent object of a window without receiving its messages.
    /// @return  zero when the window is null or this object has one already
    BOOL Attach(HWND window);
    HWND Detach();
    /// Makes this the permanent object of a window whose messages then come here first.
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    /// Gives the window its former procedure back and forgets it.
    HWND UnsubclassWindow();
    virtual void PreSubclassWindow();

    // creation and destruction
    virtual BOOL Create(LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, LPVOID parameter = nullptr);
    /// @param idOrMenu  the ID of a child, the menu of another window
    BOOL CreateEx(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU idOrMenu, LPVOID parameter = nullptr);
    /// May change what the window is created with; a zero answer stops the creation. Without a class name the window
    /// gets a plain class of the framework's.
    virtual BOOL PreCreateWindow(CREATESTRUCT& creation);
    virtual BOOL DestroyWindow();

    // messages
    static const MSG* GetCurrentMessage();
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    /// A look at a posted message before it is dispatched; non-zero when it is done with.
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Calls PreTranslateMessage of the permanent objects from the message's window upwards until `last`, included.
    static BOOL WalkPreTranslateTree(HWND last, MSG* message);
    /// IsDialogMessage of this window.
    BOOL IsDialogMessage(MSG* message) { return ::IsDialogMessageW(m_hWnd, message); }

    // data exchange with the controls of a dialog
    /// @param saveAndValidate  TRUE from the controls to the members, FALSE the other way
    /// @return                 zero when the exchange failed; the user has been told then
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    // text and font
    void SetWindowText(LPCWSTR text) { ::SetWindowTextW(m_hWnd, text); }
    int GetWindowText(LPWSTR buffer, int capacity) const { return ::GetWindowTextW(m_hWnd, buffer, capacity); }
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthW(m_hWnd); }
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;

    // state
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int showCommand) { return ::ShowWindow(m_hWnd, showCommand); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_EXSTYLE)); }
    /// @param positionFlags  when not 0, SetWindowPos is called with them and no move, size or order
    /// @return               zero when nothing was to change
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT positionFlags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags = 0);
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }

    // place
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE)
    {
        MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
    }
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int width, int height, UINT flags)
    {
        return ::SetWindowPos(m_hWnd, HandleOf(insertAfter), x, y, width, height, flags);
    }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(rect), 2); }
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const { ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(rect), 2); }

    // painting
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE) const { return ::GetUpdateRect(m_hWnd, rect, erase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, HRGN region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE)
    {
        return ::RedrawWindow(m_hWnd, rect, region, flags);
    }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }

    // relatives
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }

    // dialog items
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND* window) const { *window = ::GetDlgItem(m_hWnd, id); }
    void SetDlgItemText(int id, LPCWSTR text) { ::SetDlgItemTextW(m_hWnd, id, text); }
    int GetDlgItemText(int id, LPWSTR buffer, int capacity) const
    {
        return static_cast<int>(::GetDlgItemTextW(m_hWnd, id, buffer, capacity));
    }
    int GetDlgItemText(int id, CString& text) const;
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }

    // menu
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);

    int MessageBox(LPCWSTR text, LPCWSTR caption = nullptr, UINT type = MB_OK);

protected:
    /// A WM_COMMAND: control notifications go to the control first, then everything to OnCmdMsg. Non-zero when handled.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// A WM_NOTIFY: goes to the control first, then to OnCmdMsg. Non-zero when handled.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual void DoDataExchange(CDataExchange* exchange);

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Finds the handler in the message map; non-zero when there is one.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// What the window's class does with the message.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc for the message that is being handled.
    LRESULT Default();
    /// Called last of all, when the window is gone; may delete the object.
    virtual void PostNcDestroy();
    /// What the control sent to its parent. Non-zero when the control deals with it, so that the parent does not.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// Looks the reflected message up in the control's own map.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    // Handlers for derived classes to call: all but OnNcDestroy, OnDrawItem and OnMeasureItem leave it to the class of
    // the window, with the message as it came.
    afx_msg int OnCreate(LPCREATESTRUCT creation);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnChar(UINT character, UINT repeatCount, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeatCount, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeatCount, UINT flags);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short distance, CPoint screenPoint);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu);
    afx_msg void OnContextMenu(CWnd* wnd, CPoint screenPoint);
    afx_msg UINT OnGetDlgCode();
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnDrawItem(int controlId, LPDRAWITEMSTRUCT draw);
    afx_msg void OnMeasureItem(int controlId, LPMEASUREITEMSTRUCT measure);

    DECLARE_MESSAGE_MAP()

private:
    friend class WindowCreation;
    friend LRESULT CallWindowObject(CWnd& wnd, const MSG& message);

    /// Attaches the window and takes its messages.
    BOOL TakeMessages(HWND window);
    /// Offers to the control what it sent to its parent. Non-zero when the control deals with it.
    static BOOL ReflectToControl(HWND control, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    WNDPROC m_formerProcedure = nullptr;  // null when messages do not pass through this object
};

inline HWND HandleOf(const CWnd* wnd)
{
    return wnd == nullptr ? nullptr : wnd->m_hWnd;
}

/// The name of a window class with these properties, registered on first use; valid until the process ends.
FRAMEWORK_API LPCWSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                                          HICON icon = nullptr);
