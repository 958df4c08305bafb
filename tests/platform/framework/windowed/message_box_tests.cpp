#include <vector>

#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/resource_module.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/message_box_guard.h"
#include "tests/support/recording_window.h"

TEST(AfxMessageBox, ShowsTheTextWithAnOkButtonUnderTheProgramsName)
{
    RecordingWindow owner;
    const ExpectMessageBox box;
    EXPECT_EQ(AfxMessageBox(L"Mean is outside"), IDOK);
    EXPECT_EQ(box.Text(), L"Mean is outside");
    EXPECT_EQ(box.Caption(), L"framework_windowed_tests");
    EXPECT_EQ(box.Buttons(), std::vector<int>{IDOK});
}

TEST(AfxMessageBox, GivesTheButtonThatWasPressed)
{
    RecordingWindow owner;
    const ExpectMessageBox box(IDNO);
    EXPECT_EQ(AfxMessageBox(L"Delete?", MB_YESNO), IDNO);
    EXPECT_EQ(box.Buttons(), (std::vector<int>{IDYES, IDNO}));
}

TEST(AfxMessageBox, StringNumberIsLookedUpInTheCurrentResourceModule)
{
    RecordingWindow owner;
    {
        const ExpectMessageBox box;
        AfxMessageBox(IDS_MESSAGE);
        EXPECT_EQ(box.Text(), L"From the program");
    }
    const ResourceModule module;
    ASSERT_TRUE(module.IsLoaded());
    const ExpectMessageBox box;
    AfxMessageBox(IDS_MESSAGE, MB_OK);
    EXPECT_EQ(box.Text(), L"From the module");
}

TEST(AfxMessageBox, ActiveWindowOwnsItAndTheWindowsAboveAreDisabledMeanwhile)
{
    RecordingWindow main;
    RecordingWindow dialog(300, 200, &main);
    dialog.SetActiveWindow();
    bool mainMeanwhile = true;
    bool dialogMeanwhile = true;
    ExpectMessageBox box;
    box.WhileShown([&] {
        mainMeanwhile = main.IsWindowEnabled();
        dialogMeanwhile = dialog.IsWindowEnabled();
    });
    AfxMessageBox(L"text");
    EXPECT_EQ(box.Owner(), dialog.m_hWnd);
    EXPECT_FALSE(mainMeanwhile);
    EXPECT_FALSE(dialogMeanwhile);
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_TRUE(dialog.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), dialog.m_hWnd);
}

TEST(AfxMessageBox, LastPopupOfTheMainWindowOwnsItWhenNoWindowIsActive)
{
    RecordingWindow main;
    AfxGetThread()->m_pMainWnd = &main;
    ::SetActiveWindow(nullptr);
    const HWND active = ::GetActiveWindow();
    const ExpectMessageBox box;
    AfxMessageBox(L"text");
    EXPECT_EQ(box.Owner(), active == nullptr ? ::GetLastActivePopup(main) : active);
}
