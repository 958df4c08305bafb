// The tolerance dialogs give the application's main window back while they open: what the host does in that moment.

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class OpeningToleranceDialog : public EachChild
{
protected:
    static bool IsClosing() { return GetParam().ownControl == IDC_CLOSING_FIELD; }
    static WPARAM BeginCode()
    {
        if (GetParam().command == ID_LINK_ADD)
            return kLinkBegins;
        return GetParam().command == ID_CLOSING_ADD ? kClosingBegins : kEditBegins;
    }

    void LoadPicked(const CDimParams& params) const { IsClosing() ? LoadClosing(params) : Load(params); }
    CString Nominal() const { return ChildText(IsClosing() ? IDC_CLOSING_NOMINAL : IDC_LINK_NOMINAL); }
    CString Upper() const { return ChildText(IsClosing() ? IDC_CLOSING_UPPER_DEV : IDC_LINK_UPPER_DEV); }
    HWND Picture() const { return ChildControl(IsClosing() ? IDC_CLOSING_PICTURE : IDC_LINK_PICTURE); }
};

INSTANTIATE_TEST_SUITE_P(Kinds, OpeningToleranceDialog,
                         testing::Values(kLinkChild, kClosingChild, kNewLinkChild, kNewClosingChild),
                         testing::PrintToStringParamName());

TEST_P(OpeningToleranceDialog, MayBeGivenADimension)
{
    host.OnEnabled([this] { LoadPicked(Dimension(L"B", L"20", L"0.3", L"-0.2", 1, 3)); });
    Command(GetParam().command, {[this] {
                EXPECT_EQ(Nominal(), L"20");
                EXPECT_EQ(Upper(), L"0.3");
                EXPECT_TRUE(::IsWindowVisible(Picture()));
                EXPECT_TRUE(::IsWindowEnabled(ChildControl(GetParam().ownControl)));
                ClickChild(GetParam().cancel);
            }});
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{BeginCode(), kChildCancelled}));
}

// The second one takes the place of the first, which never opens.
TEST_P(OpeningToleranceDialog, MayBeReplacedByTheSameCommand)
{
    int opened = 0;
    host.OnEnabled([&] {
        Command(GetParam().command, {[&] {
                    opened += ChildControl(GetParam().ownControl) != nullptr ? 1 : 0;
                    ClickChild(GetParam().cancel);
                }});
    });
    Command(GetParam().command);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(Child(), nullptr);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{BeginCode(), BeginCode(), kChildCancelled}));
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

TEST_P(OpeningToleranceDialog, MayLoseItsDialog)
{
    host.OnEnabled([this] { dialog.reset(); });
    Command(GetParam().command);
    EXPECT_EQ(dialog, nullptr);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{BeginCode()}));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

TEST_P(OpeningToleranceDialog, MayLoseItsDialogsWindow)
{
    host.OnEnabled([this] { dialog->DestroyWindow(); });
    Command(GetParam().command);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{BeginCode()}));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

TEST_P(OpeningToleranceDialog, MayHaveItsDialogsWindowOpenedAnew)
{
    host.OnEnabled([this] { OpenAnew(); });
    Command(GetParam().command);
    ExpectNoChild();
    EXPECT_TRUE(::IsWindowVisible(Window()));
    PumpUntilIdle();
}

TEST_P(OpeningToleranceDialog, MayBeEnded)
{
    host.OnEnabled([this] { dialog->EndModal(); });
    Command(GetParam().command);
    EXPECT_EQ(Child(), nullptr);
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{BeginCode()}));
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
    PumpUntilIdle();
}

}  // namespace
