// The window of the calculation dialog: what Create answers, and what the lists hold then.

#include <new>
#include <stdexcept>

#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "tests/dialog/windowed/calc_dialog_test.h"
#include "tests/support/pixels.h"
#include "tests/support/resource_count.h"

namespace
{

using Creation = CalcDialogTest;

TEST_F(Creation, AnswersOneAndShowsTheDialogOwnedByTheHost)
{
    EXPECT_EQ(dialog->Create(&host), 1);
    EXPECT_TRUE(::IsWindowVisible(Window()));
    EXPECT_EQ(::GetWindow(Window(), GW_OWNER), host.m_hWnd);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd)) << "modeless: the host stays usable";
    EXPECT_TRUE(Codes().empty());
}

TEST_F(Creation, UsesItsOwnTemplateWithItsMenu)
{
    Open();
    EXPECT_NE(Control(IDC_CHAIN_LIST), nullptr);
    EXPECT_NE(Control(IDC_CLOSING_LIST), nullptr);
    EXPECT_NE(Control(IDC_CHAIN_DIAGRAM), nullptr);
    EXPECT_NE(::GetMenu(Window()), nullptr);
}

TEST_F(Creation, FocusesTheChainList)
{
    Open();
    EXPECT_EQ(::GetActiveWindow(), Window());
    EXPECT_EQ(::GetFocus(), Control(IDC_CHAIN_LIST));
}

TEST_F(Creation, GivesBothListsTheirExtendedStyles)
{
    Open();
    EXPECT_EQ(ListView_GetExtendedListViewStyle(Links().Window()) & 0xB1U, 0xB1U);
    EXPECT_EQ(ListView_GetExtendedListViewStyle(Closing().Window()) & 0xB1U, 0xB1U);
}

void ExpectColumns(const ListView& list, std::vector<UINT> headings, std::vector<int> widths)
{
    const std::vector<ListView::Column> columns = list.Columns();
    ASSERT_EQ(columns.size(), headings.size());
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        EXPECT_EQ(columns[i].heading, ResourceText(headings[i])) << "column " << i;
        EXPECT_FALSE(columns[i].heading.IsEmpty()) << "column " << i;
        EXPECT_EQ(columns[i].format, i == 0 ? LVCFMT_LEFT : LVCFMT_CENTER) << "column " << i;
        EXPECT_EQ(columns[i].width, widths[i]) << "column " << i;
    }
}

TEST_F(Creation, GivesTheChainListItsColumns)
{
    Open();
    ExpectColumns(Links(),
                  {IDS_COLUMN_LINK, IDS_COLUMN_NOMINAL, IDS_COLUMN_FIELD, IDS_COLUMN_UPPER_DEV, IDS_COLUMN_LOWER_DEV,
                   IDS_COLUMN_WEIGHT_FIXED},
                  {130, 60, 60, 60, 60, 50});
    EXPECT_EQ(Links().Grid().TreeColumn(), 0);
}

TEST_F(Creation, GivesTheClosingListTheFirstFiveWithoutATree)
{
    Open();
    ExpectColumns(Closing(),
                  {IDS_COLUMN_LINK, IDS_COLUMN_NOMINAL, IDS_COLUMN_FIELD, IDS_COLUMN_UPPER_DEV, IDS_COLUMN_LOWER_DEV},
                  {130, 60, 60, 60, 60});
    EXPECT_EQ(Closing().Grid().TreeColumn(), -1);
}

TEST_F(Creation, MovesTheFocusByCellsInTheChainAndByRowsInTheClosingList)
{
    Open();
    EXPECT_FALSE(Links().Grid().RowMode());
    EXPECT_TRUE(Closing().Grid().RowMode());
}

TEST_F(Creation, ShowsTheChainRowWithTheLabel)
{
    Open(L"Reducer, output shaft");
    const ListView links = Links();
    ASSERT_EQ(links.Rows(), 1);
    EXPECT_EQ(links.Texts(0), (std::vector<CString>{L"Reducer, output shaft", L"", L"", L"", L"", L""}));
    EXPECT_EQ(links.Row(0).Image(0), 2);
    EXPECT_EQ(links.Row(0).ChildCount(), 0);
}

TEST_F(Creation, ShowsAnEmptyLabelWhenTheHostGivesNone)
{
    ASSERT_TRUE(dialog->Create(&host));
    EXPECT_EQ(Links().Text(0, 0), L"");
    EXPECT_EQ(Links().Rows(), 1);
}

TEST_F(Creation, ReadsTheLabelOnlyThen)
{
    Open(L"first");
    dialog->SetFileName(L"second");
    PumpUntilIdle();
    EXPECT_EQ(Links().Text(0, 0), L"first");
}

TEST_F(Creation, ShowsTheClosingRowWithACheckBox)
{
    Open();
    const ListView closing = Closing();
    ASSERT_EQ(closing.Rows(), 1);
    EXPECT_EQ(closing.Texts(0), (std::vector<CString>{L"      X", L"", L"", L"", L""}));
    EXPECT_EQ(closing.Row(0).Image(0), 0);
    EXPECT_EQ(closing.Row(0).Item(0).kind, 8);
    EXPECT_EQ(closing.Row(0).UserData(), nullptr);
}

/// The list's images are those of the strip, in its order.
void ExpectImages(const ListView& list, UINT strip, int count, int width, int height)
{
    const HIMAGELIST images = ListView_GetImageList(list.Window(), LVSIL_SMALL);
    ASSERT_NE(images, nullptr);
    int imageWidth = 0;
    int imageHeight = 0;
    ImageList_GetIconSize(images, &imageWidth, &imageHeight);
    EXPECT_EQ(imageWidth, width);
    EXPECT_EQ(imageHeight, height);
    IMAGEINFO image{};
    ASSERT_TRUE(ImageList_GetImageInfo(images, 0, &image));
    BITMAP bitmap{};
    ASSERT_NE(::GetObjectW(image.hbmImage, sizeof(bitmap), &bitmap), 0);
    EXPECT_EQ(bitmap.bmBitsPixel, 16);
    EXPECT_NE(image.hbmMask, nullptr);

    const CModuleSkin skin(kModuleCalcTol);
    const Pixels expected = BitmapPixels(strip);
    EXPECT_EQ(ImageList_GetImageCount(images), count);
    EXPECT_EQ(expected.width, count * width);
    const Pixels shown = PaintedPixels(count * width, height, [&](CDC& dc) {
        dc.FillSolidRect(CRect(0, 0, count * width, height), RGB(255, 0, 255));
        for (int i = 0; i < count; ++i)
            ImageList_Draw(images, i, dc.m_hDC, i * width, 0, ILD_TRANSPARENT);
    });
    // The list keeps five bits of each primary colour.
    constexpr std::uint32_t kKeptBits = 0xF8F8F8;
    int different = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < count * width; ++x)
            different += (shown.At(x, y) & kKeptBits) != (expected.At(x, y) & kKeptBits) ? 1 : 0;
    EXPECT_EQ(different, 0);
}

constexpr UINT kChainStrip = 1004;
constexpr UINT kClosingStrip = 1001;

TEST_F(Creation, GivesTheListsTheirImages)
{
    Open();
    ExpectImages(Links(), kChainStrip, 12, 16, 16);
    ExpectImages(Closing(), kClosingStrip, 1, 25, 16);
}

// Drawn on two grounds: where both show, the image is transparent.
TEST_F(Creation, MakesMagentaTransparent)
{
    Open();
    for (const ListView& list : {Links(), Closing()})
    {
        const HIMAGELIST images = ListView_GetImageList(list.Window(), LVSIL_SMALL);
        CClientDC screen(&host);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 25, 16);
        const HGDIOBJ former = ::SelectObject(memory.m_hDC, bitmap);
        int transparent = 0;
        int drawn = 0;
        for (const COLORREF ground : {RGB(0, 0, 0), RGB(255, 255, 255)})
        {
            memory.FillSolidRect(CRect(0, 0, 25, 16), ground);
            ImageList_Draw(images, 0, memory.m_hDC, 0, 0, ILD_TRANSPARENT);
            for (int x = 0; x < 16; ++x)
                for (int y = 0; y < 16; ++y)
                    ++(memory.GetPixel(x, y) == ground ? transparent : drawn);
        }
        ::SelectObject(memory.m_hDC, former);
        EXPECT_GT(transparent, 0);
        EXPECT_GT(drawn, 0);
    }
}

TEST_F(Creation, HasNoLinksAndNoClosingLink)
{
    Open();
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(dialog->GetCloseObject(), nullptr);
}

// Without a parent the main window owns it; there is nobody to be notified.
TEST_F(Creation, WorksWithoutAHost)
{
    ASSERT_TRUE(dialog->Create(nullptr));
    EXPECT_EQ(::GetWindow(Window(), GW_OWNER), host.m_hWnd);
    ::SendMessageW(Window(), WM_CLOSE, 0, 0);
    PumpUntilIdle();
    EXPECT_TRUE(Codes().empty());
    EXPECT_TRUE(::IsWindow(Window()));
}

TEST_F(Creation, WorksWithAHostThatHasNoWindow)
{
    CWnd windowless;
    ASSERT_TRUE(dialog->Create(&windowless));
    Command(ID_LINK_ADD, {[this] { ClickChild(IDC_LINK_CANCEL); }});
    EXPECT_TRUE(Codes().empty());
    dialog->DestroyWindow();
}

// Windows refuses: a hook lets no dialog be made.
class NoNewDialogs
{
public:
    NoNewDialogs() : m_hook(::SetWindowsHookExW(WH_CBT, &Hook, nullptr, ::GetCurrentThreadId())) {}
    ~NoNewDialogs() { ::UnhookWindowsHookEx(m_hook); }
    NoNewDialogs(const NoNewDialogs&) = delete;
    NoNewDialogs& operator=(const NoNewDialogs&) = delete;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        wchar_t name[10] = L"";
        if (code == HCBT_CREATEWND && ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 10) > 0 &&
            CString(name) == L"#32770")
            return 1;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK m_hook;
};

TEST_F(Creation, AnswersZeroWhenWindowsRefuses)
{
    {
        const NoNewDialogs refusal;
        EXPECT_EQ(dialog->Create(&host), 0);
    }
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(Creation, CanBeTriedAgainAfterAFailure)
{
    {
        const NoNewDialogs refusal;
        dialog->Create(&host);
    }
    Open(L"again");
    EXPECT_EQ(Links().Text(0, 0), L"again");
}

/// Memory runs out, or something else fails, while the window is set up.
class FailingDialog : public CCalcTolDlg
{
public:
    using CCalcTolDlg::CCalcTolDlg;

    /// Throws; nothing fails without one.
    std::function<void()> failure;

protected:
    void DoDataExchange(CDataExchange* /*exchange*/) override
    {
        if (failure)
            failure();
    }
};

const std::vector<std::function<void()>> kFailures = {
    &AfxThrowMemoryException,       &AfxThrowResourceException,
    &AfxThrowInvalidArgException,   [] { throw new CResourceException; },
    [] { throw std::bad_alloc(); }, [] { throw std::length_error("text"); }};

TEST_F(Creation, AnswersZeroAndShowsNothingWhenItFailsHalfway)
{
    FailingDialog failing;
    for (const std::function<void()>& failure : kFailures)
    {
        failing.failure = failure;
        EXPECT_EQ(failing.Create(&host), 0);
        EXPECT_EQ(failing.m_hWnd, nullptr);
    }
    EXPECT_TRUE(Codes().empty());
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(Creation, CanBeTriedAgainAfterItFailedHalfway)
{
    FailingDialog failing;
    failing.failure = &AfxThrowMemoryException;
    failing.Create(&host);
    failing.failure = nullptr;
    EXPECT_EQ(failing.Create(&host), 1);
    EXPECT_EQ(ListView(::GetDlgItem(failing.m_hWnd, IDC_CHAIN_LIST)).Rows(), 1);
    EXPECT_EQ(ListView(::GetDlgItem(failing.m_hWnd, IDC_CLOSING_LIST)).Rows(), 1);
    failing.DestroyWindow();
}

// The first rounds fill the caches of the system and of the framework.
TEST_F(Creation, LeavesNothingBehindWhenItFailsHalfway)
{
    FailingDialog failing;
    const auto fail = [&](int rounds) {
        for (int i = 0; i < rounds; ++i)
        {
            for (const std::function<void()>& failure : kFailures)
            {
                failing.failure = failure;
                failing.Create(&host);
            }
            PumpUntilIdle();
            AfxGetThread()->OnIdle(0);  // the end of temporary objects
        }
        failing.failure = nullptr;
    };
    fail(3);
    const int gdiObjects = GdiObjectCount();
    const std::size_t heapBlocks = HeapBlockCount();
    fail(4);
    EXPECT_EQ(GdiObjectCount(), gdiObjects);
    EXPECT_EQ(HeapBlockCount(), heapBlocks);
}

// --- as a modal dialog of the framework, for a host that makes it with a parent ---

TEST_F(Creation, PassesItsTemplateAndTheParentToTheFrameworksDialog)
{
    const CModuleSkin skin(kModuleCalcTol);
    RecordingWindow owner;
    CCalcTolDlg modal(&owner);
    HWND shownOwner = nullptr;
    int links = -1;
    const LoopScript script({[&] {
                                shownOwner = ::GetWindow(modal.m_hWnd, GW_OWNER);
                                links = ListView(::GetDlgItem(modal.m_hWnd, IDC_CHAIN_LIST)).Rows();
                                modal.EndDialog(7);
                            }},
                            [&] { modal.EndDialog(IDABORT); });
    EXPECT_EQ(modal.DoModal(), 7);
    EXPECT_EQ(shownOwner, owner.m_hWnd);
    EXPECT_EQ(links, 1) << "the chain row";
}

TEST_F(Creation, EndsAModalRunThatFailsHalfway)
{
    const CModuleSkin skin(kModuleCalcTol);
    FailingDialog failing(&host);
    failing.failure = &AfxThrowMemoryException;
    EXPECT_EQ(failing.DoModal(), -1);
    EXPECT_EQ(failing.m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(Creation, IsRefusedWhileTheWindowIsThere)
{
    Open();
    const HWND window = Window();
    RecordingWindow other;
    EXPECT_EQ(dialog->Create(&other), 0);
    EXPECT_EQ(Window(), window);
    EXPECT_EQ(Links().Rows(), 1);
    ::SendMessageW(window, WM_CLOSE, 0, 0);
    PumpUntilIdle();
    EXPECT_EQ(Codes(), (std::vector<WPARAM>{kDialogClosed})) << "the host stays the one that was given first";
    EXPECT_TRUE(other.Notifications().empty());
}

TEST_F(Creation, StartsAnewAfterTheWindowWasDestroyed)
{
    OpenWith(kProbabilistic);
    FillChain();
    dialog->DestroyWindow();
    Open(L"second");
    const ListView links = Links();
    EXPECT_EQ(links.Columns().size(), 6U);
    EXPECT_EQ(Closing().Columns().size(), 5U);
    ASSERT_EQ(links.Rows(), 1);
    EXPECT_EQ(links.Text(0, 0), L"second");
    EXPECT_EQ(links.Row(0).ItemCount(), 6);
    ASSERT_EQ(Closing().Rows(), 1);
    EXPECT_EQ(Closing().Row(0).ItemCount(), 5);
    EXPECT_EQ(Closing().Row(0).UserData(), nullptr);
    ExpectImages(links, kChainStrip, 12, 16, 16);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(Creation, ComesWithoutAMethodAgainAfterTheWindowWasDestroyed)
{
    OpenWith(kProbabilistic);
    dialog->DestroyWindow();
    Open();
    const HMENU bar = ::GetMenu(Window());
    const HMENU methods = ::GetSubMenu(bar, 0);
    ::SendMessageW(Window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(methods), 0);
    EXPECT_EQ(::GetMenuState(bar, ID_METHOD_PROBABILISTIC, MF_BYCOMMAND) & MF_CHECKED, 0U);
    EXPECT_NE(::GetMenuState(bar, ID_LINK_ADD, MF_BYCOMMAND) & MF_GRAYED, 0U);
}

TEST_F(Creation, LetsTheChainBeFilledAfterTheSecondTimeAsAfterTheFirst)
{
    OpenWith(kAnalytic);
    FillChain();
    dialog->DestroyWindow();
    OpenWith(kAnalytic);
    FillChain();
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[1]}));
    EXPECT_EQ(Links().Rows(), 3);
    EXPECT_EQ(Links().Text(2, 1), L"4");
}

}  // namespace
