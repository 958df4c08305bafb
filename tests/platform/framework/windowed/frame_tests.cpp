#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/message_pump.h"
#include "tests/support/planned_actions.h"

namespace
{
int frames = 0;

class CTestFrame : public CFrameWnd
{
public:
    CTestFrame() { ++frames; }
    ~CTestFrame() override { --frames; }

    int m_draws = 0;

protected:
    afx_msg void OnDraw() { ++m_draws; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    ON_COMMAND(ID_DRAW, &CTestFrame::OnDraw)
END_MESSAGE_MAP()

class CTestApp : public CWinApp
{
public:
    CTestApp() : CWinApp(L"Test application") {}

    int m_erases = 0;
    int m_idles = 0;
    bool m_start = true;

    BOOL InitInstance() override
    {
        auto* frame = new CTestFrame;  // deletes itself with its window
        if (!frame->LoadFrame(IDR_FRAME))
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
        return m_start;
    }
    BOOL OnIdle(LONG count) override
    {
        ++m_idles;
        return CWinApp::OnIdle(count);
    }

protected:
    afx_msg void OnErase() { ++m_erases; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestApp, CWinApp)
    ON_COMMAND(ID_ERASE, &CTestApp::OnErase)
END_MESSAGE_MAP()
}  // namespace

TEST(Frame, IsLoadedWithTitleMenuAndAccelerators)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    CString title;
    frame->GetWindowText(title);
    EXPECT_EQ(title, CString(L"Frame title"));
    ASSERT_NE(frame->GetMenu(), nullptr);
    EXPECT_EQ(frame->GetMenu()->GetMenuItemCount(), 1u);
    EXPECT_NE(frame->m_hAccelTable, nullptr);
    frame->DestroyWindow();
}

TEST(Frame, DeletesItselfWithItsWindow)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->Create(nullptr, L"frame"));
    EXPECT_EQ(frames, 1);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(frames, 0);
}

TEST(Frame, AcceleratorSendsTheCommand)
{
    auto* frame = new CTestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    frame->ShowWindow(SW_SHOW);
    PumpUntilIdle();
    {
        const HeldKey control(VK_CONTROL);
        PostKey(frame->m_hWnd, 'D');
        PumpUntilIdle();
    }
    EXPECT_EQ(frame->m_draws, 1);
    frame->DestroyWindow();
}

TEST(Application, RunsUntilItsMainWindowIsClosed)
{
    CTestApp app;
    DoWhen([&app] { return app.m_idles > 0; }, [&app] { app.m_pMainWnd->PostMessage(WM_CLOSE); });
    EXPECT_EQ(AfxWinMain(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOW), 0);
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    EXPECT_EQ(frames, 0);
}

TEST(Application, ExitCodeIsThatOfTheQuitMessage)
{
    CTestApp app;
    DoLater([] { AfxPostQuitMessage(23); });
    EXPECT_EQ(AfxWinMain(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOW), 23);
    app.m_pMainWnd->DestroyWindow();
}

TEST(Application, FailedStartDestroysTheMainWindowAndDoesNotRun)
{
    CTestApp app;
    app.m_start = false;
    EXPECT_EQ(AfxWinMain(::GetModuleHandleW(nullptr), nullptr, nullptr, SW_SHOW), 0);
    EXPECT_EQ(frames, 0);
    EXPECT_EQ(app.m_idles, 0);
}

TEST(Application, GetsTheCommandsThatTheFrameDoesNotHandle)
{
    CTestApp app;
    ASSERT_TRUE(app.InitInstance());
    app.m_pMainWnd->SendMessage(WM_COMMAND, ID_ERASE);
    EXPECT_EQ(app.m_erases, 1);
    app.m_pMainWnd->DestroyWindow();
}

TEST(Application, IsTheThreadObjectAndGivesItsName)
{
    const CTestApp app;
    EXPECT_EQ(AfxGetApp(), &app);
    EXPECT_EQ(AfxGetThread(), &app);
    EXPECT_EQ(CString(AfxGetAppName()), CString(L"Test application"));
}
