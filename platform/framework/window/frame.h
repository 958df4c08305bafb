#pragma once

#include "window/wnd.h"

/// A top-level window with a menu and accelerators. It is made with new and deletes itself with its window.
class FRAMEWORK_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    static const CRect rectDefault;  ///< for Create: Windows chooses place and size

    CFrameWnd();
    ~CFrameWnd() override;

    /// @param className  null for a plain frame class
    /// @param menuName   menu resource, of the current resource module; null for none
    virtual BOOL Create(LPCWSTR className, LPCWSTR title, DWORD style = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCWSTR menuName = nullptr,
                        DWORD exStyle = 0);
    /// Creates the frame with the menu, accelerators, icon and title string of that number, each when it exists.
    virtual BOOL LoadFrame(UINT id, DWORD style = WS_OVERLAPPEDWINDOW, CWnd* parent = nullptr);
    /// Loads the accelerators, which work in the frame and its children. Only once.
    BOOL LoadAccelTable(LPCWSTR name);

    BOOL PreTranslateMessage(MSG* message) override;
    /// What the frame does not handle goes on to the application.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

    HACCEL m_hAccelTable = nullptr;

protected:
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
};
