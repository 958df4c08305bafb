#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/support/message_box_guard.h"
#include "tests/support/recording_window.h"

namespace
{
enum class Thrown
{
    nothing,
    invalidArgument,
    standard,
    memory,
    number
};

class CThrowingWindow : public CWnd
{
public:
    Thrown m_inCreate = Thrown::nothing;
    Thrown m_inPaint = Thrown::nothing;
    int m_paints = 0;

    static void Throw(Thrown what)
    {
        switch (what)
        {
        case Thrown::invalidArgument:
            AfxThrowInvalidArgException();
        case Thrown::standard:
            throw std::runtime_error("the table is empty");
        case Thrown::memory:
            throw std::bad_alloc();
        case Thrown::number:
            throw 7;
        case Thrown::nothing:
            break;
        }
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT)
    {
        Throw(m_inCreate);
        return 0;
    }
    afx_msg void OnPaint()
    {
        ++m_paints;
        Throw(m_inPaint);
        CWnd::OnPaint();
    }
    afx_msg LRESULT OnThrow(WPARAM what, LPARAM)
    {
        Throw(static_cast<Thrown>(what));
        return 1;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CThrowingWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_APP, &CThrowingWindow::OnThrow)
END_MESSAGE_MAP()

BOOL CreateThrowing(CThrowingWindow& window)
{
    return window.CreateEx(0, nullptr, L"throwing", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr);
}

LRESULT SendThrow(CThrowingWindow& window, Thrown what)
{
    return window.SendMessage(WM_APP, static_cast<WPARAM>(what));
}
}  // namespace

TEST(WindowException, FrameworkExceptionIsReportedAndTheWindowGoesOn)
{
    CThrowingWindow window;
    ASSERT_TRUE(CreateThrowing(window));
    {
        const ExpectMessageBox box;
        EXPECT_EQ(SendThrow(window, Thrown::invalidArgument), 0);
        EXPECT_EQ(box.Text(), L"The operation was given a value that it can't work with.");
    }
    EXPECT_EQ(SendThrow(window, Thrown::nothing), 1);
}

TEST(WindowException, StandardExceptionIsReportedWithItsText)
{
    CThrowingWindow window;
    ASSERT_TRUE(CreateThrowing(window));
    const ExpectMessageBox box;
    EXPECT_EQ(SendThrow(window, Thrown::standard), 0);
    EXPECT_EQ(box.Text(), L"the table is empty");
}

TEST(WindowException, LackOfMemoryIsReportedAsSuch)
{
    CThrowingWindow window;
    ASSERT_TRUE(CreateThrowing(window));
    const ExpectMessageBox box;
    EXPECT_EQ(SendThrow(window, Thrown::memory), 0);
    EXPECT_EQ(box.Text(), L"There is not enough memory for this operation.");
}

TEST(WindowException, AnythingElseIsReportedAsUnknown)
{
    CThrowingWindow window;
    ASSERT_TRUE(CreateThrowing(window));
    const ExpectMessageBox box;
    EXPECT_EQ(SendThrow(window, Thrown::number), 0);
    EXPECT_EQ(box.Text(), L"The operation failed. Nothing more is known about the cause.");
}

TEST(WindowException, WindowThatThrowsInItsCreationIsNotCreated)
{
    CThrowingWindow window;
    window.m_inCreate = Thrown::invalidArgument;
    EXPECT_FALSE(CreateThrowing(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(WindowException, WindowThatThrowsInItsPaintingIsNotPaintedForEver)
{
    CThrowingWindow window;
    ASSERT_TRUE(CreateThrowing(window));
    window.m_inPaint = Thrown::invalidArgument;
    window.m_paints = 0;
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(window.m_paints, 1);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
    window.m_inPaint = Thrown::nothing;
}

TEST(WindowException, ReportBelongsToTheActiveWindowAndDisablesTheWindowsAboveIt)
{
    RecordingWindow main;
    RecordingWindow dialog(300, 200, &main);
    dialog.SetActiveWindow();
    bool mainMeanwhile = true;
    ExpectMessageBox box;
    box.WhileShown([&] { mainMeanwhile = main.IsWindowEnabled(); });
    CNotSupportedException(FALSE).ReportError();
    EXPECT_EQ(box.Owner(), dialog.m_hWnd);
    EXPECT_EQ(box.Caption(), L"framework_windowed_tests");
    EXPECT_FALSE(mainMeanwhile);
    EXPECT_TRUE(main.IsWindowEnabled());
}

// AfxGetThread is the application object as soon as there is one.
TEST(WindowException, ApplicationMayDealWithItItself)
{
    class CQuietApp : public CWinApp
    {
    public:
        UINT m_message = 0;
        bool m_isInvalidArgument = false;
        LRESULT ProcessWndProcException(CException* exception, const MSG* message) override
        {
            m_message = message->message;
            m_isInvalidArgument = exception->IsKindOf(RUNTIME_CLASS(CInvalidArgException)) != FALSE;
            return 77;
        }
    };
    CQuietApp app;
    CThrowingWindow window;
    ASSERT_TRUE(CreateThrowing(window));
    EXPECT_EQ(SendThrow(window, Thrown::invalidArgument), 77);
    EXPECT_EQ(app.m_message, static_cast<UINT>(WM_APP));
    EXPECT_TRUE(app.m_isInvalidArgument);
}
