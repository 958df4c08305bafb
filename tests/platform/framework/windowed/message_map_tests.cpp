#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <afxcmn.h>

#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/recording_window.h"

namespace
{
constexpr UINT kAnswerMessage = WM_APP + 1;
constexpr UINT kBaseMessage = WM_APP + 2;
constexpr UINT kUnknownMessage = WM_APP + 3;

class CBaseWindow : public CWnd
{
public:
    std::vector<std::string> m_calls;

protected:
    afx_msg void OnBoth() { m_calls.push_back("base command"); }
    afx_msg void OnOnlyBase() { m_calls.push_back("base only"); }
    afx_msg LRESULT OnBaseMessage(WPARAM, LPARAM) { return 7; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBaseWindow, CWnd)
    ON_COMMAND(ID_DRAW, &CBaseWindow::OnBoth)
    ON_COMMAND(ID_ERASE, &CBaseWindow::OnOnlyBase)
    ON_MESSAGE(kBaseMessage, &CBaseWindow::OnBaseMessage)
END_MESSAGE_MAP()

class CRoutedWindow : public CBaseWindow
{
public:
    CScrollBar* m_bar = nullptr;
    CPoint m_point;
    UINT m_key = 0;

protected:
    afx_msg void OnBoth() { m_calls.push_back("derived command"); }
    afx_msg void OnRange(UINT id) { m_calls.push_back("range " + std::to_string(id)); }
    afx_msg void OnEdited() { m_calls.push_back("edited"); }
    afx_msg void OnNotification(NMHDR* header, LRESULT* result)
    {
        m_calls.push_back("notification of " + std::to_string(header->idFrom));
        *result = 42;
    }
    afx_msg LRESULT OnAnswer(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar)
    {
        m_calls.push_back("scroll " + std::to_string(code) + ' ' + std::to_string(position));
        m_bar = bar;
        CWnd::OnHScroll(code, position, bar);
    }
    afx_msg void OnLButtonDown(UINT, CPoint point) { m_point = point; }
    afx_msg void OnKeyDown(UINT key, UINT, UINT) { m_key = key; }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTTAB; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CRoutedWindow, CBaseWindow)
    // window
    ON_WM_HSCROLL()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    // commands
    ON_COMMAND(ID_DRAW, &CRoutedWindow::OnBoth)
    ON_COMMAND_RANGE(33000, 33010, &CRoutedWindow::OnRange)
    // controls
    ON_EN_CHANGE(IDC_FIRST, &CRoutedWindow::OnEdited)
    ON_NOTIFY(NM_DBLCLK, IDC_FIRST, &CRoutedWindow::OnNotification)
    ON_MESSAGE(kAnswerMessage, &CRoutedWindow::OnAnswer)
END_MESSAGE_MAP()

class MessageMap : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.CreateEx(0, nullptr, L"routed", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr));
    }

    LRESULT Notify(UINT_PTR id, UINT code)
    {
        NMHDR header = {nullptr, id, code};
        return m_window.SendMessage(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
    }

    CRoutedWindow m_window;
    using Calls = std::vector<std::string>;
};
}  // namespace

TEST_F(MessageMap, DerivedHandlerComesBeforeTheBaseHandler)
{
    m_window.SendMessage(WM_COMMAND, ID_DRAW);
    EXPECT_EQ(m_window.m_calls, Calls{"derived command"});
}

TEST_F(MessageMap, BaseHandlerGetsWhatTheDerivedMapDoesNotName)
{
    m_window.SendMessage(WM_COMMAND, ID_ERASE);
    EXPECT_EQ(m_window.m_calls, Calls{"base only"});
    EXPECT_EQ(m_window.SendMessage(kBaseMessage), 7);
}

TEST_F(MessageMap, RangeTakesItsEndsAndNothingBeyond)
{
    for (const WPARAM id : {32999, 33000, 33005, 33010, 33011})
        m_window.SendMessage(WM_COMMAND, id);
    EXPECT_EQ(m_window.m_calls, (Calls{"range 33000", "range 33005", "range 33010"}));
}

TEST_F(MessageMap, AcceleratorCommandReachesTheCommandHandler)
{
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(ID_ERASE, 1));
    EXPECT_EQ(m_window.m_calls, Calls{"base only"});
}

TEST_F(MessageMap, ControlNotificationNeedsBothCodeAndControl)
{
    const auto control = reinterpret_cast<LPARAM>(::GetDesktopWindow());
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_FIRST, EN_CHANGE), control);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_FIRST, EN_UPDATE), control);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_SECOND, EN_CHANGE), control);
    EXPECT_EQ(m_window.m_calls, Calls{"edited"});
}

TEST_F(MessageMap, NotificationHandlerSetsTheResult)
{
    EXPECT_EQ(Notify(IDC_FIRST, NM_DBLCLK), 42);
    EXPECT_EQ(m_window.m_calls, Calls{"notification of 210"});
}

TEST_F(MessageMap, NotificationOfAnotherControlOrCodeIsNotHandled)
{
    Notify(IDC_SECOND, NM_DBLCLK);
    Notify(IDC_FIRST, NM_CLICK);
    EXPECT_EQ(m_window.m_calls, Calls{});
}

TEST_F(MessageMap, MessageHandlerAnswersTheSender)
{
    EXPECT_EQ(m_window.SendMessage(kAnswerMessage, 40, 2), 42);
    EXPECT_EQ(m_window.SendMessage(kUnknownMessage, 40, 2), 0);
}

TEST_F(MessageMap, ScrollHandlerGetsTheObjectOfTheSlider)
{
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE, CRect(0, 0, 100, 30), &m_window, 5));
    m_window.SendMessage(WM_HSCROLL, MAKEWPARAM(TB_THUMBPOSITION, 9), reinterpret_cast<LPARAM>(slider.m_hWnd));
    EXPECT_EQ(m_window.m_calls, Calls{"scroll 4 9"});
    EXPECT_EQ(static_cast<CWnd*>(m_window.m_bar), static_cast<CWnd*>(&slider));
}

TEST_F(MessageMap, ScrollHandlerGetsNoObjectForTheWindowsOwnBar)
{
    m_window.m_bar = reinterpret_cast<CScrollBar*>(&m_window);
    m_window.SendMessage(WM_HSCROLL, SB_LINERIGHT, 0);
    EXPECT_EQ(m_window.m_bar, nullptr);
}

TEST_F(MessageMap, MousePositionsKeepTheirSign)
{
    m_window.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(-3, 17));
    EXPECT_EQ(m_window.m_point, CPoint(-3, 17));
}

TEST_F(MessageMap, KeyHandlerGetsTheKey)
{
    m_window.SendMessage(WM_KEYDOWN, VK_F2, 1);
    EXPECT_EQ(m_window.m_key, static_cast<UINT>(VK_F2));
}

TEST_F(MessageMap, DialogCodeIsTheHandlersAnswer)
{
    EXPECT_EQ(m_window.SendMessage(WM_GETDLGCODE), DLGC_WANTTAB);
}

TEST_F(MessageMap, AskingForTheHandlerDoesNotRunIt)
{
    AFX_CMDHANDLERINFO info = {nullptr};
    EXPECT_TRUE(m_window.OnCmdMsg(ID_DRAW, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_window);
    EXPECT_FALSE(m_window.OnCmdMsg(ID_DRAW + 50, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(m_window.m_calls, Calls{});
}
