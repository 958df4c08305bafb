#include "drawing/picture_frame.h"

#include <functional>

#include <gtest/gtest.h>

#include "drawing/display_list.h"
#include "drawing/gdi_painter.h"
#include "drawing/kind_bitmap.h"
#include "gdi_exhaustion.h"
#include "platform/moduleskin/module_skin.h"
#include "tests/support/resource_count.h"
#include "white_canvas.h"

namespace
{

constexpr int kWidth = 120;
constexpr int kHeight = 90;
constexpr COLORREF kDirt = RGB(200, 0, 200);

/// A frame in a visible window.
class PictureFrame : public testing::Test
{
protected:
    PictureFrame()
    {
        m_parent = ::CreateWindowExW(WS_EX_TOOLWINDOW, L"#32770", L"", WS_POPUP | WS_VISIBLE, 50, 50, 300, 200, nullptr,
                                     nullptr, nullptr, nullptr);
        const HWND control = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 20, 10, kWidth, kHeight,
                                               m_parent, nullptr, nullptr, nullptr);
        m_frame.SubclassWindow(control);
        ::UpdateWindow(m_parent);
        Repaint();
    }
    ~PictureFrame() override { ::DestroyWindow(m_parent); }

    COLORREF At(int x, int y) const
    {
        const HDC dc = ::GetDC(m_frame.m_hWnd);
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(m_frame.m_hWnd, dc);
        return color;
    }

    /// What another window leaves behind that covered the frame.
    void MakeDirty() const
    {
        const HDC dc = ::GetDC(m_frame.m_hWnd);
        const HBRUSH brush = ::CreateSolidBrush(kDirt);
        const RECT all{0, 0, kWidth, kHeight};
        ::FillRect(dc, &all, brush);
        ::DeleteObject(brush);
        ::ReleaseDC(m_frame.m_hWnd, dc);
    }

    void Repaint() const
    {
        ::RedrawWindow(m_frame.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }

    void Uncover() const
    {
        MakeDirty();
        Repaint();
    }

    COLORREF Background() const
    {
        WhiteCanvas canvas(1, 1);
        const HDC dc = canvas.Dc().GetSafeHdc();
        const auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(
            m_parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_frame.m_hWnd)));
        const RECT all{0, 0, 1, 1};
        ::FillRect(dc, &all, brush);
        return canvas.At(0, 0);
    }

    HWND m_parent;
    CPictureFrame m_frame;
};

/// A bitmap of the resource library, drawn without a frame.
struct DrawnBitmap
{
    explicit DrawnBitmap(UINT id) : canvas(kWidth, kHeight)
    {
        CBitmap bitmap;
        bitmap.LoadBitmap(id);
        BITMAP description{};
        bitmap.GetBitmap(&description);
        width = description.bmWidth;
        height = description.bmHeight;
        CDC memory;
        memory.CreateCompatibleDC(&canvas.Dc());
        const ScopedSelect selected(memory, bitmap);
        canvas.Dc().BitBlt(0, 0, width, height, &memory, 0, 0, SRCCOPY);
    }

    WhiteCanvas canvas;
    int width = 0;
    int height = 0;
};

DisplayList GreenBlock()
{
    DisplayList list;
    list.Rect({97, 220, 5}, 10, 10, 50, 40);
    return list;
}

TEST_F(PictureFrame, ShowsABitmapAtTheTopLeftInItsOwnSize)
{
    const CModuleSkin skin(kModuleCalcTol);
    const DrawnBitmap expected(KindBitmap(1));
    ASSERT_GT(expected.width, 0);
    ASSERT_TRUE(m_frame.ShowBitmap(KindBitmap(1)));
    for (int y = 0; y < expected.height && y < kHeight; y += 3)
        for (int x = 0; x < expected.width && x < kWidth; x += 3)
            ASSERT_EQ(At(x, y), expected.canvas.At(x, y)) << x << ' ' << y;
}

TEST_F(PictureFrame, LeavesTheDialogsBackgroundBesideABitmap)
{
    const CModuleSkin skin(kModuleCalcTol);
    const DrawnBitmap expected(KindBitmap(1));
    ASSERT_LT(expected.width, kWidth);
    MakeDirty();
    m_frame.ShowBitmap(KindBitmap(1));
    EXPECT_EQ(At(expected.width, 0), Background());
    EXPECT_EQ(At(kWidth - 1, kHeight - 1), Background());
}

TEST_F(PictureFrame, BringsABitmapBackWhenItIsUncovered)
{
    const CModuleSkin skin(kModuleCalcTol);
    const DrawnBitmap expected(KindBitmap(3));
    m_frame.ShowBitmap(KindBitmap(3));
    Uncover();
    for (int y = 0; y < expected.height && y < kHeight; y += 3)
        for (int x = 0; x < expected.width && x < kWidth; x += 3)
            ASSERT_EQ(At(x, y), expected.canvas.At(x, y)) << x << ' ' << y;
    EXPECT_EQ(At(kWidth - 1, kHeight - 1), Background());
}

TEST_F(PictureFrame, IsEmptyForANumberWithoutABitmap)
{
    const CModuleSkin skin(kModuleCalcTol);
    m_frame.ShowBitmap(KindBitmap(1));
    EXPECT_TRUE(m_frame.ShowBitmap(kNoBitmap));
    EXPECT_EQ(At(20, 20), Background());
    Uncover();
    EXPECT_EQ(At(20, 20), Background());
}

TEST_F(PictureFrame, ShowsADrawingOnWhite)
{
    ASSERT_TRUE(m_frame.ShowDrawing(GreenBlock()));
    EXPECT_EQ(At(10, 10), RGB(97, 220, 5));
    EXPECT_EQ(At(49, 39), RGB(97, 220, 5));
    EXPECT_EQ(At(50, 40), RGB(255, 255, 255));
    EXPECT_EQ(At(0, 0), RGB(255, 255, 255));
    EXPECT_EQ(At(kWidth - 1, kHeight - 1), RGB(255, 255, 255));
}

/// What a drawing is in a font, on a canvas of the frame's size.
void ExpectInFont(const DisplayList& drawing, HGDIOBJ font, const std::function<COLORREF(int, int)>& shownAt)
{
    WhiteCanvas expected(kWidth, kHeight);
    const ScopedSelect selected(expected.Dc(), font);
    PaintDisplayList(expected.Dc(), drawing, CSize(kWidth, kHeight));
    ASSERT_GT(expected.Count(RGB(0, 0, 0)), 10);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            ASSERT_EQ(shownAt(x, y), expected.At(x, y)) << x << ' ' << y;
}

TEST_F(PictureFrame, WritesTheTextsOfADrawingInTheControlsFont)
{
    DisplayList drawing;
    drawing.Text(5, 5, TextAlign::Left, "1249.8755");
    LOGFONTW description{};
    description.lfHeight = -20;
    description.lfQuality = NONANTIALIASED_QUALITY;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    const HFONT font = ::CreateFontIndirectW(&description);
    ::SendMessageW(m_frame.m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    m_frame.ShowDrawing(drawing);
    ExpectInFont(drawing, font, [this](int x, int y) { return At(x, y); });
    ::SendMessageW(m_frame.m_hWnd, WM_SETFONT, 0, FALSE);
    ::DeleteObject(font);
}

TEST_F(PictureFrame, WritesTheTextsOfADrawingInTheSystemFontWhenTheControlHasNone)
{
    DisplayList drawing;
    drawing.Text(5, 5, TextAlign::Left, "1249.8755");
    m_frame.ShowDrawing(drawing);
    ExpectInFont(drawing, ::GetStockObject(SYSTEM_FONT), [this](int x, int y) { return At(x, y); });
}

TEST_F(PictureFrame, WritesPlainTextsInTheSystemFontWhateverTheControlsFontIs)
{
    DisplayList drawing;
    drawing.textLook = TextLook::PlainOnWhite;
    drawing.Text(5, 5, TextAlign::Left, "1249.8755");
    ::SendMessageW(m_frame.m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    m_frame.ShowDrawing(drawing);
    ExpectInFont(drawing, ::GetStockObject(SYSTEM_FONT), [this](int x, int y) { return At(x, y); });
    ::SendMessageW(m_frame.m_hWnd, WM_SETFONT, 0, FALSE);
}

TEST_F(PictureFrame, KeepsTheTextsOfADrawingWithinItsWidth)
{
    DisplayList outside;
    outside.Text(kWidth - 3, 5, TextAlign::Left, "1249");
    outside.Text(3, 30, TextAlign::Right, "1249");
    m_frame.ShowDrawing(outside);
    ExpectInFont(outside, ::GetStockObject(SYSTEM_FONT), [this](int x, int y) { return At(x, y); });
}

TEST_F(PictureFrame, BringsADrawingBackWhenItIsUncovered)
{
    m_frame.ShowDrawing(GreenBlock());
    Uncover();
    EXPECT_EQ(At(10, 10), RGB(97, 220, 5));
    EXPECT_EQ(At(kWidth - 1, kHeight - 1), RGB(255, 255, 255));
}

TEST_F(PictureFrame, ReplacesOnePictureByTheNext)
{
    m_frame.ShowDrawing(GreenBlock());
    m_frame.ShowDrawing(DisplayList{});
    EXPECT_EQ(At(20, 20), RGB(255, 255, 255));
    Uncover();
    EXPECT_EQ(At(20, 20), RGB(255, 255, 255));
}

TEST_F(PictureFrame, IsEmptyAgainWithoutABitmap)
{
    m_frame.ShowDrawing(GreenBlock());
    m_frame.ShowBitmap(kNoBitmap);
    EXPECT_EQ(At(20, 20), Background());
    Uncover();
    EXPECT_EQ(At(20, 20), Background());
}

TEST_F(PictureFrame, LeavesNothingToBePaintedLater)
{
    ::InvalidateRect(m_frame.m_hWnd, nullptr, TRUE);
    ASSERT_TRUE(::GetUpdateRect(m_frame.m_hWnd, nullptr, FALSE));
    m_frame.ShowDrawing(GreenBlock());
    EXPECT_FALSE(::GetUpdateRect(m_frame.m_hWnd, nullptr, FALSE));
}

// The object may live on, as that of a dialog does whose window was destroyed.
TEST_F(PictureFrame, KeepsNoPictureWithoutItsWindow)
{
    m_frame.ShowDrawing(GreenBlock());  // from the first time on the system keeps objects of its own
    m_frame.ShowBitmap(kNoBitmap);
    const int before = GdiObjectCount();
    m_frame.ShowDrawing(GreenBlock());
    ASSERT_GT(GdiObjectCount(), before);
    ::DestroyWindow(m_frame.m_hWnd);

    EXPECT_LE(GdiObjectCount(), before);
}

TEST_F(PictureFrame, ShowsAPictureThatItWasGivenWhileHidden)
{
    ::ShowWindow(m_frame.m_hWnd, SW_HIDE);
    m_frame.ShowDrawing(GreenBlock());
    ::ShowWindow(m_frame.m_hWnd, SW_SHOWNA);
    ::UpdateWindow(m_frame.m_hWnd);
    EXPECT_EQ(At(10, 10), RGB(97, 220, 5));
}

TEST_F(PictureFrame, LeavesNoGraphicsObjectsBehind)
{
    const CModuleSkin skin(kModuleCalcTol);
    const auto showAll = [this] {
        m_frame.ShowBitmap(KindBitmap(1));
        m_frame.ShowDrawing(GreenBlock());
        Uncover();
    };
    showAll();
    const int before = GdiObjectCount();
    for (int i = 0; i < 20; ++i)
        showAll();
    EXPECT_EQ(GdiObjectCount(), before) << "each picture replaces the one before";
    m_frame.ShowBitmap(kNoBitmap);
    EXPECT_EQ(GdiObjectCount(), before - 1) << "the picture alone is kept";
}

TEST_F(PictureFrame, SaysThatNoMemoryContextCouldBeMadeForABitmap)
{
    const CModuleSkin skin(kModuleCalcTol);
    {
        const GdiExhaustion exhaustion;
        EXPECT_FALSE(m_frame.ShowBitmap(KindBitmap(1)));
    }
    EXPECT_TRUE(m_frame.ShowBitmap(KindBitmap(1)));
}

TEST_F(PictureFrame, SaysThatNoMemoryContextCouldBeMadeForADrawing)
{
    {
        const GdiExhaustion exhaustion;
        EXPECT_FALSE(m_frame.ShowDrawing(GreenBlock()));
    }
    Repaint();
    EXPECT_EQ(At(20, 20), Background());
}

TEST(KindBitmap, IsTheKindsOwnForOneToThree)
{
    EXPECT_EQ(KindBitmap(1), 1003U);
    EXPECT_EQ(KindBitmap(2), 1000U);
    EXPECT_EQ(KindBitmap(3), 1002U);
}

TEST(KindBitmap, IsNoneForAnyOtherKind)
{
    for (const int kind : {-1, 0, 4, 100})
        EXPECT_EQ(KindBitmap(kind), kNoBitmap) << kind;
}

}  // namespace
