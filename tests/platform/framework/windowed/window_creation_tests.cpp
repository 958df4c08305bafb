#include <memory>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/support/framework_printers.h"
#include "tests/support/recording_window.h"

namespace
{
class CDynamicWindow : public CWnd
{
    DECLARE_DYNCREATE(CDynamicWindow)

public:
    bool m_allow = true;
    bool m_createChild = false;
    int m_creates = 0;
    int m_sizes = 0;
    int m_postNcDestroys = 0;
    bool m_hadWindowAtEnd = true;
    CEdit m_child;

    BOOL PreCreateWindow(CREATESTRUCT& creation) override { return m_allow && CWnd::PreCreateWindow(creation); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT creation)
    {
        ++m_creates;
        if (m_createChild)
            m_child.Create(WS_VISIBLE, CRect(0, 0, 10, 10), this, 1);
        return CWnd::OnCreate(creation);
    }
    afx_msg void OnSize(UINT type, int width, int height)
    {
        ++m_sizes;
        CWnd::OnSize(type, width, height);
    }
    void PostNcDestroy() override
    {
        ++m_postNcDestroys;
        m_hadWindowAtEnd = m_hWnd != nullptr;
    }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CDynamicWindow, CWnd)

BEGIN_MESSAGE_MAP(CDynamicWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

BOOL CreateTopLevel(CWnd& wnd)
{
    return wnd.CreateEx(0, nullptr, L"title", WS_OVERLAPPEDWINDOW, 10, 20, 300, 200, nullptr, nullptr);
}
}  // namespace

TEST(WindowCreation, ClassIsMadeByItsRunTimeClass)
{
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(CDynamicWindow)->CreateObject());
    auto* window = dynamic_cast<CDynamicWindow*>(object.get());
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(CreateTopLevel(*window));
}

TEST(WindowCreation, HandlersSeeTheCreationItself)
{
    CDynamicWindow window;
    ASSERT_TRUE(CreateTopLevel(window));
    EXPECT_EQ(window.m_creates, 1);
}

TEST(WindowCreation, WindowCreatedInsideACreationGetsItsOwnObject)
{
    CDynamicWindow window;
    window.m_createChild = true;
    ASSERT_TRUE(CreateTopLevel(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window), &window);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_child), &window.m_child);
    EXPECT_EQ(window.m_child.GetParent(), &window);
}

TEST(WindowCreation, ObjectMayForbidItsCreation)
{
    CDynamicWindow window;
    window.m_allow = false;
    EXPECT_FALSE(CreateTopLevel(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_postNcDestroys, 1);
}

TEST(WindowCreation, UnknownClassFailsAndEndsTheObjectAsADestroyedWindowDoes)
{
    CDynamicWindow window;
    EXPECT_FALSE(window.CreateEx(0, L"no such class", L"", 0, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_postNcDestroys, 1);
}

namespace
{
/// While one lives, Windows lets no window be created.
class NoNewWindows
{
public:
    NoNewWindows() : m_hook(::SetWindowsHookExW(WH_CBT, &Refuse, nullptr, ::GetCurrentThreadId())) {}
    ~NoNewWindows() { ::UnhookWindowsHookEx(m_hook); }
    NoNewWindows(const NoNewWindows&) = delete;
    NoNewWindows& operator=(const NoNewWindows&) = delete;

private:
    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam)
    {
        return code == HCBT_CREATEWND ? 1 : ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};
}  // namespace

TEST(WindowCreation, RefusalByAHookEndsTheObjectAsADestroyedWindowDoes)
{
    CDynamicWindow window;
    {
        const NoNewWindows refusal;
        EXPECT_FALSE(CreateTopLevel(window));
    }
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.m_creates, 0);
    EXPECT_EQ(window.m_postNcDestroys, 1);
    EXPECT_TRUE(CreateTopLevel(window)) << "it can be tried again";
}

TEST(WindowCreation, PostNcDestroyComesOnceAndWithoutAWindow)
{
    CDynamicWindow window;
    ASSERT_TRUE(CreateTopLevel(window));
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_postNcDestroys, 1);
    EXPECT_FALSE(window.m_hadWindowAtEnd);
}

TEST(WindowCreation, CreateMakesAChild)
{
    RecordingWindow parent;
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, L"", WS_VISIBLE, CRect(5, 6, 45, 36), &parent, 77));
    EXPECT_NE(child.GetStyle() & WS_CHILD, 0u);
    EXPECT_EQ(child.GetDlgCtrlID(), 77);
    CRect rect;
    child.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(5, 6, 45, 36));
}

TEST(WindowCreation, RegisteredClassIsSharedByEqualProperties)
{
    const CString first = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_EQ(first, CString(AfxRegisterWndClass(CS_DBLCLKS)));
    EXPECT_NE(first, CString(AfxRegisterWndClass(CS_HREDRAW)));
    CWnd window;
    EXPECT_TRUE(window.CreateEx(0, first, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr));
}

TEST(WindowProperties, StyleChangesOnlyWhereItDiffers)
{
    CDynamicWindow window;
    ASSERT_TRUE(CreateTopLevel(window));
    EXPECT_TRUE(window.ModifyStyle(WS_MAXIMIZEBOX, WS_VSCROLL));
    EXPECT_FALSE(window.ModifyStyle(WS_MAXIMIZEBOX, WS_VSCROLL));
    EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED));
    EXPECT_NE(window.GetExStyle() & WS_EX_CLIENTEDGE, 0u);
}

TEST(WindowProperties, TextIsSetAndReadWhole)
{
    CDynamicWindow window;
    ASSERT_TRUE(CreateTopLevel(window));
    const CString longText(L'\x044F', 300);
    window.SetWindowText(longText);
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, longText);
    window.SetWindowText(L"");
    window.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(MainWindow, IsForgottenWhenItIsDestroyed)
{
    CDynamicWindow window;
    ASSERT_TRUE(CreateTopLevel(window));
    AfxGetThread()->m_pMainWnd = &window;
    EXPECT_EQ(AfxGetMainWnd(), &window);
    window.DestroyWindow();
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    MSG message;
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE)) << "no application: no quitting";
}

TEST(MainWindow, ThreadWithoutApplicationHasAnObject)
{
    EXPECT_EQ(AfxGetApp(), nullptr);
    ASSERT_NE(AfxGetThread(), nullptr);
    EXPECT_EQ(AfxGetThread(), AfxGetThread());
}
