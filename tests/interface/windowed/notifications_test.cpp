#include <vector>

#include <gtest/gtest.h>

#include "interface/notifications.h"
#include "interface/notify_host.h"
#include "tests/support/message_pump.h"
#include "tests/support/recording_window.h"

namespace
{

TEST(Notifications, HaveTheCodesThatHostsKnow)
{
    EXPECT_EQ(kLinkAccepted, 1U);
    EXPECT_EQ(kDialogClosed, 2U);
    EXPECT_EQ(kChildCancelled, 3U);
    EXPECT_EQ(kEditBegins, 30U);
    EXPECT_EQ(kLinkBegins, 32U);
    EXPECT_EQ(kDistributionAccepted, 35U);
    EXPECT_EQ(kClosingAccepted, 93U);
    EXPECT_EQ(kLinkApplied, 107U);
    EXPECT_EQ(kClosingBegins, 246U);
    EXPECT_EQ(kNotificationMark, 65535);
}

TEST(Notifications, ArriveBeforeTheCallReturns)
{
    RecordingWindow host;
    NotifyHost(&host, kClosingBegins);
    const std::vector<ReceivedMessage> received = host.Received();
    ASSERT_EQ(received.size(), 1U);
    EXPECT_EQ(received[0].message, static_cast<UINT>(WM_CHAR));
    EXPECT_EQ(received[0].wParam, 246U);
    EXPECT_EQ(received[0].lParam, 0xFFFF);
}

// A window of the other character set, as an older host may have: Windows would take the codes for typed characters
// and translate them into the set's.
TEST(Notifications, ReachAWindowOfTheAnsiSetUntranslated)
{
    static std::vector<WPARAM> received;
    received.clear();
    WNDCLASSA description{};
    description.lpfnWndProc = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (message != WM_CHAR)
            return ::DefWindowProcA(window, message, wParam, lParam);
        received.push_back(wParam);
        return 0;
    };
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = "NotificationsAnsiHost";
    ASSERT_NE(::RegisterClassA(&description), 0);
    const HWND window = ::CreateWindowExA(0, description.lpszClassName, "", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                          nullptr, nullptr, description.hInstance, nullptr);
    ASSERT_NE(window, nullptr);
    ASSERT_FALSE(::IsWindowUnicode(window));
    CWnd host;
    host.Attach(window);

    // Which of the numbers a translation changes depends on the system's character set: so all of one byte.
    std::vector<WPARAM> sent;
    for (UINT code = 1; code <= 255; ++code)
    {
        sent.push_back(code);
        NotifyHost(&host, static_cast<HostNotification>(code));
    }
    EXPECT_EQ(received, sent);

    host.Detach();
    ::DestroyWindow(window);
    ::UnregisterClassA(description.lpszClassName, description.hInstance);
}

TEST(Notifications, AreNotSentWithoutAWindow)
{
    RecordingWindow host;
    host.DestroyWindow();
    NotifyHost(&host, kDialogClosed);
    NotifyHost(nullptr, kDialogClosed);
    PumpUntilIdle();
    EXPECT_TRUE(host.Received().empty());
}

}  // namespace
