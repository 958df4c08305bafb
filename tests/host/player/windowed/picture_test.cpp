#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "host/player/picture.h"
#include <windows.h>

#include <windowsx.h>

#include "test_play.h"
#include "test_windows.h"

namespace
{

constexpr COLORREF kFocusColour = RGB(240, 220, 40);

// The focus cell of the test's grid; column -1 is the whole row.
int g_focusRow = -1;
int g_focusColumn = -1;

/// A dialog that scripts call `weight`: the grid 1018 of three rows with images, painted like a grid with a focus cell,
/// and a frame 1024 that shows a bitmap.
class PictureDialog : public TestDialog
{
public:
    explicit PictureDialog(HWND owner) : TestDialog(owner, L"Weight")
    {
        const HWND grid = Add(WC_LISTVIEWW, 1018, L"", LVS_REPORT, {10, 10, 250, 120});
        for (int column = 0; column < 2; ++column)
        {
            LVCOLUMNW description = {};
            description.mask = LVCF_WIDTH;
            description.cx = 100;
            SendMessageW(grid, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&description));
        }
        m_images = ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 9);
        for (int image = 0; image < 4; ++image)
            AddImage(image);
        ListView_SetImageList(grid, m_images, LVSIL_SMALL);
        for (int row = 0; row < 3; ++row)
        {
            LVITEMW item = {};
            item.mask = LVIF_TEXT | LVIF_IMAGE;
            item.iItem = row;
            item.iImage = row == 2 ? I_IMAGENONE : row + 1;  // images 1 and 2, then none
            item.pszText = const_cast<wchar_t*>(L"link");
            SendMessageW(grid, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
        Add(WC_STATICW, 1024, L"", SS_OWNERDRAW, {260, 10, 300, 40});
        OnMessage(Handle);
        Show();
    }

    static inline int shownBitmap = 0;
    static inline HMODULE library = nullptr;

private:
    // A triangle, in each image in another colour and size, on the transparent colour.
    void AddImage(int image)
    {
        const HDC screen = GetDC(nullptr);
        const HDC dc = CreateCompatibleDC(screen);
        const HBITMAP bitmap = CreateCompatibleBitmap(screen, 16, 16);
        ReleaseDC(nullptr, screen);
        const HGDIOBJ former = SelectObject(dc, bitmap);
        for (int y = 0; y < 16; ++y)
        {
            for (int x = 0; x < 16; ++x)
                SetPixel(dc, x, y, x + 2 * image < y ? RGB(60 * image, 100, 200) : RGB(255, 0, 255));
        }
        SelectObject(dc, former);
        DeleteDC(dc);
        ImageList_AddMasked(m_images, bitmap, RGB(255, 0, 255));
        DeleteObject(bitmap);
    }

    static bool Handle(TestDialog& dialog, UINT message, WPARAM, LPARAM lParam)
    {
        if (message == WM_DRAWITEM)
        {
            DrawFrame(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return true;
        }
        if (message != WM_NOTIFY || reinterpret_cast<const NMHDR*>(lParam)->code != NM_CUSTOMDRAW ||
            reinterpret_cast<const NMHDR*>(lParam)->idFrom != 1018)
            return false;
        auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(lParam);
        LRESULT answer = CDRF_DODEFAULT;
        if (draw.nmcd.dwDrawStage == CDDS_PREPAINT)
            answer = CDRF_NOTIFYITEMDRAW;
        else if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT)
            answer = CDRF_NOTIFYSUBITEMDRAW;
        else
            answer = Colour(draw);
        SetWindowLongPtrW(dialog.Window(), DWLP_MSGRESULT, answer);
        return true;
    }

    static LRESULT Colour(NMLVCUSTOMDRAW& draw)
    {
        draw.clrTextBk = GetSysColor(COLOR_WINDOW);
        if (static_cast<int>(draw.nmcd.dwItemSpec) == g_focusRow)
            draw.clrTextBk = draw.iSubItem == g_focusColumn ? kFocusColour : GetSysColor(COLOR_HIGHLIGHT);
        RECT cell = {};
        ListView_GetSubItemRect(draw.nmcd.hdr.hwndFrom, static_cast<int>(draw.nmcd.dwItemSpec), draw.iSubItem,
                                LVIR_BOUNDS, &cell);
        if (draw.iSubItem == 0)
            cell.right = cell.left + 100;
        const HBRUSH brush = CreateSolidBrush(draw.clrTextBk);
        FillRect(draw.nmcd.hdc, &cell, brush);
        DeleteObject(brush);
        if (draw.iSubItem == 0)
        {
            LVITEMW item = {};
            item.mask = LVIF_IMAGE;
            item.iItem = static_cast<int>(draw.nmcd.dwItemSpec);
            SendMessageW(draw.nmcd.hdr.hwndFrom, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            if (item.iImage >= 0)
                ImageList_Draw(ListView_GetImageList(draw.nmcd.hdr.hwndFrom, LVSIL_SMALL), item.iImage, draw.nmcd.hdc,
                               cell.left + 5, cell.top, ILD_TRANSPARENT);
        }
        return CDRF_SKIPDEFAULT;
    }

    static void DrawFrame(const DRAWITEMSTRUCT& request)
    {
        FillRect(request.hDC, &request.rcItem, GetSysColorBrush(COLOR_BTNFACE));
        if (shownBitmap == 0)
            return;
        const HBITMAP bitmap = LoadBitmapW(library, MAKEINTRESOURCEW(shownBitmap));
        const HDC dc = CreateCompatibleDC(request.hDC);
        const HGDIOBJ former = SelectObject(dc, bitmap);
        BitBlt(request.hDC, 0, 0, 20, 12, dc, 0, 0, SRCCOPY);
        SelectObject(dc, former);
        DeleteDC(dc);
        DeleteObject(bitmap);
    }

    HIMAGELIST m_images = nullptr;  // the grid's from SetImageList on
};

class PlayedPicture : public testing::Test
{
protected:
    PlayedPicture()
    {
        PictureDialog::library = resources.Library();
        // What the test before has set is painted already.
        Focus(-1, -1);
        ShowBitmap(0);
    }

    void Focus(int row, int column)
    {
        g_focusRow = row;
        g_focusColumn = column;
        RedrawWindow(dialog.Control(1018), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }

    void ShowBitmap(int id)
    {
        PictureDialog::shownBitmap = id;
        RedrawWindow(dialog.Control(1024), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }

    TestResources resources;
    TestHost host;
    PictureDialog dialog{host.MainWindow()};
};

}  // namespace

TEST_F(PlayedPicture, TheFocusCellIsTheOneInTheFocusColours)
{
    Focus(1, 1);
    ExpectHolds(host, "expect-focus weight 1018 1 1\n");
    ExpectFails(host, "expect-focus weight 1018 1 0\n", 1, "expected row 1 column 0, found row 1 column 1");
    Focus(2, 0);
    ExpectHolds(host, "expect-focus weight 1018 2 0\n");
}

TEST_F(PlayedPicture, AHighlightedRowWithoutAFocusCellHasColumnMinusOne)
{
    Focus(2, -1);
    ExpectHolds(host, "expect-focus weight 1018 2 -1\n");
    Focus(-1, -1);
    ExpectHolds(host, "expect-focus weight 1018 -1 -1\n");
}

TEST_F(PlayedPicture, ACellUnderAnOpenEditorIsTheFocusCell)
{
    Focus(1, 2);
    const HWND grid = dialog.Control(1018);
    RECT row = {};
    ListView_GetItemRect(grid, 1, &row, LVIR_BOUNDS);
    CreateWindowW(WC_EDITW, L"", WS_CHILD | WS_VISIBLE, 100, row.top, 100, row.bottom - row.top, grid,
                  reinterpret_cast<HMENU>(301), nullptr, nullptr);
    ExpectHolds(host, "expect-focus weight 1018 1 1\n");
}

TEST_F(PlayedPicture, ARowsImageIsFoundByItsPixels)
{
    ExpectHolds(host, "expect-image weight 1018 2 1\nexpect-image weight 1018 none 2\n");
    ExpectFails(host, "expect-image weight 1018 3 1\n", 1, "expected image 3, found 2");
    ExpectFails(host, "expect-image weight 1018 1 2\n", 1, "expected image 1, found none");
    Focus(1, -1);
    ExpectHolds(host, "expect-image weight 1018 2 1\n");
}

// Image 1 of the list is the one of a collapsed row; the test's grid draws it 5 pixels from the left.
TEST_F(PlayedPicture, AClickOnTheExpandImageHitsIt)
{
    static int x;
    x = -1;
    SetWindowSubclass(
        dialog.Control(1018),
        [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
            if (message == WM_LBUTTONDOWN)
                x = GET_X_LPARAM(lParam);
            return DefSubclassProc(window, message, wParam, lParam);
        },
        1, 0);
    ExpectHolds(host, "click weight 1018 0 1 expand\n");
    EXPECT_GE(x, 5);
    EXPECT_LT(x, 5 + 16);
    ExpectFails(host, "click weight 1018 2 0 expand\n", 1, "row 2 shows no expand image");
    // Behind the expand image of 20 pixels, in the middle of the 20 of the box.
    ExpectHolds(host, "click weight 1018 0 0 check\n");
    EXPECT_EQ(x, 5 + 20 + 10);
}

TEST_F(PlayedPicture, AFrameShowsABitmapOfTheLibrary)
{
    ShowBitmap(1003);
    ExpectHolds(host, "expect-image weight 1024 1003\n");
    ExpectFails(host, "expect-image weight 1024 1000\n", 1, "expected image 1000, found 1003");
    ExpectFails(host, "expect-image weight 1024 none\n", 1, "expected image none, found 1003");
    ShowBitmap(1000);
    ExpectHolds(host, "expect-image weight 1024 1000\n");
    ShowBitmap(0);
    ExpectHolds(host, "expect-image weight 1024 none\n");
    ShowBitmap(1003);
    ShowWindow(dialog.Control(1024), SW_HIDE);
    ExpectHolds(host, "expect-image weight 1024 none\n");
}

// Bitmap 1003 is red right above its diagonal and blue below; the grid's focus cell has the focus colour.
TEST_F(PlayedPicture, APixelIsReadFromTheScreen)
{
    ShowBitmap(1003);
    Focus(1, 1);
    ExpectHolds(host, "expect-pixel weight 1024 10 0 FF0000\nexpect-pixel weight 1024 0 10 0000FF\n"
                      "expect-pixel weight 1024 10 0 F80800 8\nexpect-pixel weight 1018 w/2 h/2 F0DC28 at 1 1\n");
    ExpectFails(host, "expect-pixel weight 1024 10 0 F80800 7\n", 1, "expected F80800 at 10, 0, found FF0000");
    ExpectFails(host, "expect-pixel weight 1024 w 0 F80800\n", 1, "found a picture of 40 x 30");
}

TEST_F(PlayedPicture, AWindowThatCoversAnotherIsNotInItsPicture)
{
    ShowBitmap(1003);
    RECT place = {};
    GetWindowRect(dialog.Window(), &place);
    const HWND cover =
        CreateWindowExW(WS_EX_TOPMOST, L"TestHost", L"", WS_POPUP | WS_VISIBLE, place.left, place.top,
                        place.right - place.left, place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
    UpdateWindow(cover);
    ExpectHolds(host, "expect-pixel weight 1024 10 0 FF0000\nexpect-image weight 1018 2 1\n");
    DestroyWindow(cover);
}

TEST_F(PlayedPicture, AScreenshotIsAPictureFileOfTheWholeWindow)
{
    ShowBitmap(1003);
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "player_screenshot.png";
    std::filesystem::remove(file);
    ExpectHolds(host, "screenshot weight \"" + file.generic_string() + "\"\n");

    // A PNG file: signature, then the header with width and height, most significant byte first.
    std::ifstream stream(file, std::ios::binary);
    unsigned char head[24] = {};
    stream.read(reinterpret_cast<char*>(head), sizeof(head));
    ASSERT_TRUE(stream.good());
    EXPECT_EQ(std::string(head + 1, head + 4), "PNG");
    RECT place = {};
    GetWindowRect(dialog.Window(), &place);
    const auto number = [&head](int at) {
        return head[at] << 24 | head[at + 1] << 16 | head[at + 2] << 8 | head[at + 3];
    };
    EXPECT_EQ(number(16), place.right - place.left);
    EXPECT_EQ(number(20), place.bottom - place.top);
    stream.close();
    std::filesystem::remove(file);
    ExpectFails(host, "screenshot weight no/such/folder/x.png\n", 1, "no/such/folder/x.png can't be written");
}

TEST_F(PlayedPicture, TheWholePictureHasTheChildrenInTheirPlaces)
{
    ShowBitmap(1003);
    const Picture whole = WholePicture(dialog.Window());
    RECT window = {};
    RECT frame = {};
    GetWindowRect(dialog.Window(), &window);
    GetWindowRect(dialog.Control(1024), &frame);
    const int x = frame.left - window.left;
    const int y = frame.top - window.top;
    EXPECT_EQ(whole.At(x + 10, y), 0xFF0000U);
    EXPECT_EQ(whole.At(x, y + 10), 0x0000FFU);
}

TEST_F(PlayedPicture, PicturesLeaveNothingBehind)
{
    ShowBitmap(1003);
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "player_steady.png";
    const std::string look = "screenshot weight \"" + file.generic_string() +
                             "\"\nexpect-image weight 1024 1003\nexpect-image weight 1018 2 1\n"
                             "expect-focus weight 1018 -1 -1\nexpect-pixel weight 1024 10 0 FF0000\n";
    ExpectHolds(host, look + "mark\n" + look + look + "expect-steady\n");
    std::filesystem::remove(file);
}
