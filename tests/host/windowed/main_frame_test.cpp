// The main window: keyboard, mouse, menu, status line.

#include <cmath>

#include "host/resource.h"
#include "host_test.h"
#include "tests/support/framework_printers.h"
#include "tests/support/input.h"
#include "tests/support/resource_count.h"

namespace
{
class MainFrame : public HostTest
{
protected:
    std::string Highlighted() const
    {
        const std::optional<std::size_t> index = m_frame->Sheet().Highlighted();
        return index ? m_frame->Objects().At(*index).Name() : "none";
    }

    void Key(UINT key) const
    {
        PostKey(m_frame->GetSafeHwnd(), key);
        PumpUntilIdle();
    }

    /// A point on the dimension's line.
    CPoint PointOf(const std::string& name) const
    {
        const std::size_t index = *m_frame->Objects().IndexOf(&Object(name));
        const SheetLine& line = m_frame->Sheet().Layout().dimensions[index].dimensionLines.at(0);
        return {static_cast<int>(std::lround((line.from.x + line.to.x) / 2)),
                static_cast<int>(std::lround((line.from.y + line.to.y) / 2))};
    }

    void MoveMouse(CPoint point) const { m_frame->Sheet().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y)); }

    COLORREF PixelAt(CPoint point) const
    {
        m_frame->Sheet().UpdateWindow();
        return CClientDC(&m_frame->Sheet()).GetPixel(point);
    }

    /// The state of a menu item as it is when its menu has dropped down.
    bool IsEnabled(UINT command) const
    {
        CMenu* const bar = m_frame->GetMenu();
        for (int i = 0; i < static_cast<int>(bar->GetMenuItemCount()); ++i)
        {
            CMenu* const popup = bar->GetSubMenu(i);
            m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->GetSafeHmenu()),
                                 MAKELPARAM(i, FALSE));
            const UINT state = popup->GetMenuState(command, MF_BYCOMMAND);
            if (state != static_cast<UINT>(-1))
                return (state & (MF_GRAYED | MF_DISABLED)) == 0;
        }
        ADD_FAILURE() << "no menu has the command " << command;
        return false;
    }
};

TEST_F(MainFrame, ItsTitleNamesTheDrawing)
{
    CString title;
    m_frame->GetWindowText(title);

    EXPECT_EQ(title, L"Plate - Sample host");
}

TEST_F(MainFrame, KeysMoveTheHighlightRoundTheDimensions)
{
    EXPECT_EQ(Highlighted(), "none");
    Key(VK_TAB);
    EXPECT_EQ(Highlighted(), "A1");
    Key(VK_RIGHT);
    Key(VK_DOWN);
    EXPECT_EQ(Highlighted(), "X");
    Key(VK_LEFT);
    EXPECT_EQ(Highlighted(), "A2");
    Key(VK_UP);
    Key(VK_UP);
    EXPECT_EQ(Highlighted(), "N");
    Key(VK_HOME);
    EXPECT_EQ(Highlighted(), "A1");
    Key(VK_END);
    EXPECT_EQ(Highlighted(), "N");
    {
        const HeldKey shift(VK_SHIFT);
        Key(VK_TAB);
    }
    EXPECT_EQ(Highlighted(), "X");
    Key(VK_ESCAPE);
    EXPECT_EQ(Highlighted(), "none");
}

TEST_F(MainFrame, EnterAndSpacePickTheHighlightedDimension)
{
    for (const UINT key : {static_cast<UINT>(VK_RETURN), static_cast<UINT>(VK_SPACE)})
    {
        SCOPED_TRACE(key);
        Open();
        Begin(kLinkBegins);
        m_frame->SetFocus();
        Key(VK_ESCAPE);
        Key(key);
        EXPECT_EQ(Dialog().TakeCalls(), Calls{}) << "nothing is highlighted";

        Key(VK_TAB);
        Key(key);
        EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetDlgParams"});
        EXPECT_EQ(Protocol().Loaded(), &Object("A1"));
        EXPECT_EQ(::GetActiveWindow(), Dialog().GetSafeHwnd()) << "what was picked is to be confirmed now";
    }
}

// Held down, Enter would go on in the dialog and confirm what nobody has read.
TEST_F(MainFrame, TheDialogGetsTheFocusWhenTheKeyIsUp)
{
    Open();
    Begin(kLinkBegins);
    m_frame->SetActiveWindow();
    m_frame->SendMessage(WM_KEYDOWN, VK_TAB, 1);
    m_frame->SendMessage(WM_KEYDOWN, VK_RETURN, 1);
    m_frame->SendMessage(WM_KEYDOWN, VK_RETURN, 0x40000001);
    EXPECT_EQ(::GetActiveWindow(), m_frame->GetSafeHwnd());

    m_frame->SendMessage(WM_KEYUP, VK_RETURN, static_cast<LPARAM>(0xC0000001));
    EXPECT_EQ(::GetActiveWindow(), Dialog().GetSafeHwnd());
}

TEST_F(MainFrame, AClickPicksAndLeadsToTheDialog)
{
    Open();
    Begin(kLinkBegins);
    m_frame->SetActiveWindow();
    PostClick(m_frame->Sheet().GetSafeHwnd(), PointOf("A2"));
    PumpUntilIdle();

    EXPECT_EQ(Dialog().TakeCalls(), Calls{"SetDlgParams"});
    EXPECT_EQ(Protocol().Loaded(), &Object("A2"));
    EXPECT_EQ(::GetActiveWindow(), Dialog().GetSafeHwnd());
}

TEST_F(MainFrame, AClickBesideTheDimensionsPicksNothing)
{
    Open();
    Begin(kLinkBegins);
    PostClick(m_frame->Sheet().GetSafeHwnd(), CPoint(2, 2));
    PumpUntilIdle();

    EXPECT_EQ(Dialog().TakeCalls(), Calls{});
}

TEST_F(MainFrame, TheMouseHighlightsAndTheStatusLineDescribes)
{
    MoveMouse(PointOf("A1"));
    EXPECT_EQ(Highlighted(), "A1");
    EXPECT_EQ(m_frame->DimensionStatus(), L"A1 = 40 h8 0/-0.039");

    MoveMouse(CPoint(2, 2));
    EXPECT_EQ(Highlighted(), "none");
    EXPECT_EQ(m_frame->DimensionStatus(), L"");

    MoveMouse(PointOf("A1"));
    m_frame->Sheet().SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(Highlighted(), "none");
}

TEST_F(MainFrame, AMouseThatRestsDoesNotTakeTheKeyboardsChoiceBack)
{
    MoveMouse(PointOf("A1"));
    Key(VK_TAB);
    MoveMouse(PointOf("A1"));

    EXPECT_EQ(Highlighted(), "A2");
}

TEST_F(MainFrame, HighlightedAndLoadedDimensionsAreColoured)
{
    Open();
    Begin(kLinkBegins);
    ::ShowWindow(Dialog().GetSafeHwnd(), SW_HIDE);
    const CPoint point = PointOf("A1");
    const COLORREF plain = PixelAt(point);
    m_frame->Sheet().Highlight(0);
    const COLORREF highlighted = PixelAt(point);
    m_frame->Sheet().MarkLoaded(0);
    const COLORREF loaded = PixelAt(point);

    EXPECT_NE(plain, ::GetSysColor(COLOR_WINDOW));
    EXPECT_NE(plain, highlighted);
    EXPECT_NE(highlighted, loaded);
    EXPECT_NE(plain, loaded);
    m_frame->Sheet().MarkLoaded(std::nullopt);
    m_frame->Sheet().Highlight(std::nullopt);
    EXPECT_EQ(PixelAt(point), plain);
}

TEST_F(MainFrame, PaintingKeepsNoGdiObjects)
{
    m_frame->Sheet().Highlight(0);
    const auto paint = [this] { m_frame->Sheet().RedrawWindow(); };
    paint();
    paint();
    const int before = GdiObjectCount();
    for (int i = 0; i < 20; ++i)
        paint();

    EXPECT_EQ(GdiObjectCount(), before);
}

TEST_F(MainFrame, TheDrawingFollowsTheSizeOfTheWindow)
{
    const double scale = m_frame->Sheet().Layout().transform.scale;
    m_frame->SetWindowPos(nullptr, 0, 0, 1000, 760, SWP_NOZORDER | SWP_NOMOVE);

    EXPECT_GT(m_frame->Sheet().Layout().transform.scale, scale);
}

TEST_F(MainFrame, ItIsNeverSmallerThanItsDrawingNeeds)
{
    m_frame->SetWindowPos(nullptr, 0, 0, 100, 100, SWP_NOZORDER | SWP_NOMOVE);
    CRect place;
    m_frame->GetWindowRect(&place);

    EXPECT_GE(place.Width(), 640);
    EXPECT_GE(place.Height(), 480);
}

TEST_F(MainFrame, TheStatusLineSaysWhatToDoNext)
{
    EXPECT_EQ(m_frame->Prompt(), L"Press Ctrl+D to open the calculation dialog.");
    Open();
    EXPECT_EQ(m_frame->Prompt(), L"Choose a method and a command in the calculation dialog (F6).");
    Begin(kLinkBegins);
    EXPECT_EQ(m_frame->Prompt(), L"Pick a dimension for the link dialog (click, or Tab and Enter).");
    m_frame->ClickDimension(Object("A1"));
    EXPECT_EQ(m_frame->Prompt(), L"A1 is loaded: confirm it in the dialog (F6), or pick another one.");
    Notify(kChildCancelled);
    Begin(kClosingBegins);
    EXPECT_EQ(m_frame->Prompt(), L"Pick the dimension that closes the chain (click, or Tab and Enter).");
    m_frame->EnableWindow(FALSE);
    Begin(kLinkBegins);
    EXPECT_EQ(m_frame->Prompt(), L"Confirm or cancel the distribution dialog.");
    Protocol().DeleteDialog();
    EXPECT_EQ(m_frame->Prompt(), L"Press Ctrl+D to open the calculation dialog.");
}

TEST_F(MainFrame, CommandsAreOfferedWhenTheyMakeSense)
{
    EXPECT_TRUE(IsEnabled(ID_FILE_OPEN_DRAWING));
    EXPECT_FALSE(IsEnabled(ID_CHAIN_GO_TO_DIALOG));
    EXPECT_FALSE(IsEnabled(ID_DIMENSION_PICK));
    EXPECT_TRUE(IsEnabled(ID_DIMENSION_NEXT));

    Open();
    m_frame->Sheet().Highlight(0);
    EXPECT_FALSE(IsEnabled(ID_FILE_OPEN_DRAWING)) << "the chain belongs to this drawing";
    EXPECT_TRUE(IsEnabled(ID_CHAIN_GO_TO_DIALOG));
    EXPECT_TRUE(IsEnabled(ID_DIMENSION_PICK));

    m_frame->ShowDrawing(Drawing{});
    EXPECT_FALSE(IsEnabled(ID_DIMENSION_NEXT));
    EXPECT_FALSE(IsEnabled(ID_DIMENSION_PREVIOUS));
}

TEST_F(MainFrame, TheCommandOpensTheDialogOnceAndLeadsToItLater)
{
    m_frame->SendMessage(WM_COMMAND, ID_CHAIN_OPEN_DIALOG);
    ASSERT_NE(FakeCalcTolDlg::Living(), nullptr);
    FakeCalcTolDlg* const dialog = FakeCalcTolDlg::Living();
    EXPECT_EQ(dialog->TakeCalls(), (Calls{"SetFileName Plate", "Create"}));

    m_frame->SetActiveWindow();
    m_frame->SendMessage(WM_COMMAND, ID_CHAIN_OPEN_DIALOG);
    EXPECT_EQ(FakeCalcTolDlg::Living(), dialog);
    EXPECT_EQ(::GetActiveWindow(), dialog->GetSafeHwnd());
}

TEST_F(MainFrame, F6GoesToTheDialogThatIsEnabled)
{
    Open();
    const HWND child = ::CreateWindowExW(0, L"#32770", L"child", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                         Dialog().GetSafeHwnd(), nullptr, nullptr, nullptr);
    Dialog().EnableWindow(FALSE);
    m_frame->SetActiveWindow();
    Key(VK_F6);
    EXPECT_EQ(::GetActiveWindow(), child);

    ::DestroyWindow(child);
    Dialog().EnableWindow(TRUE);
    m_frame->SetActiveWindow();
    Key(VK_F6);
    EXPECT_EQ(::GetActiveWindow(), Dialog().GetSafeHwnd());
}

TEST_F(MainFrame, F6InADialogLeadsBackToTheDrawing)
{
    Open();
    Dialog().SetActiveWindow();
    const MSG f6 = {Dialog().GetSafeHwnd(), WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_TRUE(m_frame->TakesKey(f6));
    EXPECT_EQ(::GetActiveWindow(), m_frame->GetSafeHwnd());
    EXPECT_EQ(::GetFocus(), m_frame->GetSafeHwnd());

    const MSG ownKey = {m_frame->GetSafeHwnd(), WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_FALSE(m_frame->TakesKey(ownKey));
    const MSG otherKey = {Dialog().GetSafeHwnd(), WM_KEYDOWN, VK_F5, 1, 0, {}};
    EXPECT_FALSE(m_frame->TakesKey(otherKey));
    m_frame->EnableWindow(FALSE);
    EXPECT_FALSE(m_frame->TakesKey(f6)) << "nothing can be picked";
    m_frame->EnableWindow(TRUE);
}

TEST_F(MainFrame, TheDialogOpensBesideTheWindowWhereTheScreenHasRoom)
{
    m_frame->SetWindowPos(nullptr, 10, 20, 700, 500, SWP_NOZORDER);
    Open();
    CRect place;
    Dialog().GetWindowRect(&place);
    EXPECT_EQ(place.TopLeft(), CPoint(710, 20));

    Protocol().DeleteDialog();
    const int screenWidth = ::GetSystemMetrics(SM_CXSCREEN);
    m_frame->SetWindowPos(nullptr, screenWidth - 700, 20, 700, 500, SWP_NOZORDER);
    Open();
    Dialog().GetWindowRect(&place);
    EXPECT_EQ(place.TopLeft(), CPoint(screenWidth - 100, 20));
}

TEST_F(MainFrame, TheFocusStaysWithTheMainWindow)
{
    m_frame->SetFocus();
    PostClick(m_frame->Sheet().GetSafeHwnd(), CPoint(2, 2));
    PumpUntilIdle();

    EXPECT_EQ(::GetFocus(), m_frame->GetSafeHwnd());
}
}  // namespace
