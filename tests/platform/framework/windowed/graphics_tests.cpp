#include <gtest/gtest.h>

#include <afxwin.h>

#include "tests/platform/framework/windowed/resource_module.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/framework_printers.h"
#include "tests/support/recording_window.h"
#include "tests/support/resource_count.h"

namespace
{
/// A memory picture to draw into, white at first.
class Picture
{
public:
    Picture(int width, int height) : m_screen(nullptr)
    {
        m_dc.CreateCompatibleDC(&m_screen);
        m_bitmap.CreateCompatibleBitmap(&m_screen, width, height);
        m_former = m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(0, 0, width, height, RGB(255, 255, 255));
    }
    ~Picture() { m_dc.SelectObject(m_former); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    CDC& Dc() { return m_dc; }

private:
    CClientDC m_screen;
    CBitmap m_bitmap;  // before the context, which must let go of it first
    CDC m_dc;
    CBitmap* m_former = nullptr;
};

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
}  // namespace

TEST(GdiObject, DeletesItsObjectWithItself)
{
    HGDIOBJ object = nullptr;
    {
        const CBrush brush(kRed);
        object = brush.GetSafeHandle();
        EXPECT_EQ(::GetObjectType(object), static_cast<DWORD>(OBJ_BRUSH));
    }
    EXPECT_EQ(::GetObjectType(object), 0u);
}

TEST(GdiObject, DetachedObjectLivesOn)
{
    HGDIOBJ object = nullptr;
    {
        CPen pen(PS_SOLID, 1, kRed);
        object = pen.Detach();
    }
    EXPECT_EQ(::GetObjectType(object), static_cast<DWORD>(OBJ_PEN));
    ::DeleteObject(object);
}

TEST(GdiObject, DeletedTwiceIsNothing)
{
    CBrush brush(kRed);
    EXPECT_TRUE(brush.DeleteObject());
    EXPECT_FALSE(brush.DeleteObject());
    EXPECT_EQ(brush.GetSafeHandle(), nullptr);
}

TEST(GdiObject, FontKeepsItsDescription)
{
    LOGFONT description = {};
    description.lfHeight = -13;
    description.lfWeight = FW_BOLD;
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&description));
    LOGFONT read = {};
    EXPECT_NE(font.GetLogFont(&read), 0);
    EXPECT_EQ(read.lfHeight, -13);
    EXPECT_EQ(read.lfWeight, FW_BOLD);
}

TEST(GdiObject, BitmapIsLoadedFromTheCurrentResourceModule)
{
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(IDB_STRIP)) << "the program has no such bitmap";
    const ResourceModule module;
    ASSERT_TRUE(module.IsLoaded());
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_STRIP));
    BITMAP description = {};
    bitmap.GetBitmap(&description);
    EXPECT_EQ(description.bmWidth, 32);
    EXPECT_EQ(description.bmHeight, 16);
}

TEST(DeviceContext, SelectObjectGivesTheFormerObject)
{
    Picture picture(10, 10);
    CBrush red(kRed);
    CBrush* former = picture.Dc().SelectObject(&red);
    ASSERT_NE(former, nullptr);
    EXPECT_EQ(::GetCurrentObject(picture.Dc().m_hDC, OBJ_BRUSH), red.GetSafeHandle());
    EXPECT_EQ(picture.Dc().SelectObject(former), &red);
}

TEST(DeviceContext, FilledRectangleExcludesRightAndBottom)
{
    Picture picture(10, 10);
    CBrush red(kRed);
    const CRect rect(2, 3, 5, 6);
    picture.Dc().FillRect(&rect, &red);
    EXPECT_EQ(picture.Dc().GetPixel(2, 3), kRed);
    EXPECT_EQ(picture.Dc().GetPixel(4, 5), kRed);
    EXPECT_EQ(picture.Dc().GetPixel(5, 5), kWhite);
    EXPECT_EQ(picture.Dc().GetPixel(4, 6), kWhite);
}

TEST(DeviceContext, SolidFillLeavesTheBackgroundColour)
{
    Picture picture(10, 10);
    picture.Dc().SetBkColor(RGB(1, 2, 3));
    picture.Dc().FillSolidRect(0, 0, 4, 4, kRed);
    EXPECT_EQ(picture.Dc().GetPixel(3, 3), kRed);
    EXPECT_EQ(picture.Dc().GetBkColor(), RGB(1, 2, 3));
}

TEST(DeviceContext, LineStopsBeforeItsEnd)
{
    Picture picture(10, 10);
    CPen red(PS_SOLID, 1, kRed);
    CPen* former = picture.Dc().SelectObject(&red);
    picture.Dc().MoveTo(1, 1);
    picture.Dc().LineTo(6, 1);
    picture.Dc().SelectObject(former);
    EXPECT_EQ(picture.Dc().GetPixel(1, 1), kRed);
    EXPECT_EQ(picture.Dc().GetPixel(5, 1), kRed);
    EXPECT_EQ(picture.Dc().GetPixel(6, 1), kWhite);
}

TEST(DeviceContext, PolygonRegionIsFilled)
{
    Picture picture(20, 20);
    const POINT corners[] = {{2, 2}, {12, 2}, {12, 12}, {2, 12}};
    CRgn region;
    ASSERT_TRUE(region.CreatePolygonRgn(corners, 4, ALTERNATE));
    CBrush red(kRed);
    EXPECT_TRUE(picture.Dc().FillRgn(&region, &red));
    EXPECT_EQ(picture.Dc().GetPixel(7, 7), kRed);
    EXPECT_EQ(picture.Dc().GetPixel(14, 7), kWhite);
}

TEST(DeviceContext, BlitCopiesAPictureIntoAnother)
{
    Picture source(4, 4);
    source.Dc().FillSolidRect(0, 0, 4, 4, kRed);
    Picture target(10, 10);
    EXPECT_TRUE(target.Dc().BitBlt(3, 3, 4, 4, &source.Dc(), 0, 0, SRCCOPY));
    EXPECT_EQ(target.Dc().GetPixel(3, 3), kRed);
    EXPECT_EQ(target.Dc().GetPixel(7, 7), kWhite);
}

TEST(DeviceContext, TextExtentGrowsWithTheText)
{
    Picture picture(10, 10);
    const CSize one = picture.Dc().GetTextExtent(L"8", 1);
    const CSize three = picture.Dc().GetTextExtent(CString(L"888"));
    EXPECT_GT(one.cx, 0);
    EXPECT_EQ(three.cx, 3 * one.cx);
    EXPECT_EQ(three.cy, one.cy);
}

TEST(DeviceContext, RefusedWindowRaisesAResourceException)
{
    CWnd gone;
    ASSERT_TRUE(gone.CreateEx(0, nullptr, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr));
    CWnd other;
    other.m_hWnd = gone.m_hWnd;
    gone.DestroyWindow();
    EXPECT_THROW(CClientDC dc(&other), CResourceException*);
    other.m_hWnd = nullptr;
}

TEST(GdiCount, DrawingRoundsLeaveNoObjectBehind)
{
    RecordingWindow window;
    const auto round = [&window] {
        CClientDC dc(&window);
        CPen pen(PS_SOLID, 1, kRed);
        CBrush brush(kRed);
        CFont font;
        LOGFONT description = {};
        description.lfHeight = -11;
        font.CreateFontIndirect(&description);
        CPen* formerPen = dc.SelectObject(&pen);
        CBrush* formerBrush = dc.SelectObject(&brush);
        CFont* formerFont = dc.SelectObject(&font);
        const POINT corners[] = {{0, 0}, {20, 0}, {20, 20}};
        dc.Polygon(corners, 3);
        dc.TextOut(1, 1, CString(L"T"));
        dc.SelectObject(formerFont);
        dc.SelectObject(formerBrush);
        dc.SelectObject(formerPen);
        Picture picture(30, 30);
        dc.BitBlt(0, 0, 30, 30, &picture.Dc(), 0, 0, SRCCOPY);
        window.RedrawWindow();
        AfxGetThread()->OnIdle(0);
    };
    round();
    round();
    const int before = GdiObjectCount();
    for (int i = 0; i < 10; ++i)
        round();
    EXPECT_EQ(GdiObjectCount(), before);
}

TEST(GdiCount, CountsWhatIsMade)
{
    const int before = GdiObjectCount();
    const CBrush brush(RGB(9, 8, 7));
    EXPECT_EQ(GdiObjectCount(), before + 1);
}
