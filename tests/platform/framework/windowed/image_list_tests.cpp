#include <gtest/gtest.h>

#include <afxcmn.h>

#include "tests/platform/framework/windowed/resource_module.h"
#include "tests/platform/framework/windowed/window_resources.h"
#include "tests/support/recording_window.h"
#include "tests/support/resource_count.h"

namespace
{
constexpr COLORREF kMask = RGB(255, 0, 255);

// strip.bmp holds two images of 16 x 16: columns 0 to 7 have the mask colour, 8 to 15 are red, 16 to 31 green.
class ImageListTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_module.IsLoaded());
        ASSERT_TRUE(m_images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
        CBitmap strip;
        ASSERT_TRUE(strip.LoadBitmap(IDB_STRIP));
        ASSERT_EQ(m_images.Add(&strip, kMask), 0);
    }

    const ResourceModule m_module;
    CImageList m_images;
};
}  // namespace

TEST_F(ImageListTest, AddedStripIsCutIntoImages)
{
    EXPECT_EQ(m_images.GetImageCount(), 2);
}

TEST_F(ImageListTest, MaskedPixelsStayTransparent)
{
    RecordingWindow window;
    CClientDC dc(&window);
    dc.FillSolidRect(0, 0, 40, 20, RGB(0, 0, 255));
    EXPECT_TRUE(m_images.Draw(&dc, 0, CPoint(0, 0), ILD_TRANSPARENT));
    EXPECT_TRUE(m_images.Draw(&dc, 1, CPoint(20, 0), ILD_TRANSPARENT));
    EXPECT_EQ(dc.GetPixel(4, 8), RGB(0, 0, 255));
    EXPECT_EQ(dc.GetPixel(12, 8), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(28, 8), RGB(0, 255, 0));
}

TEST_F(ImageListTest, ListIsCreatedFromABitmapInOneStep)
{
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, kMask));
    EXPECT_EQ(images.GetImageCount(), 2);
}

TEST_F(ImageListTest, ListViewLeavesItsOwnersImageListAlone)
{
    {
        RecordingWindow window;
        CListCtrl list;
        ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, CRect(0, 0, 100, 100), &window, 1));
        EXPECT_EQ(list.SetImageList(&m_images, LVSIL_SMALL), nullptr);
        EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &m_images);
        list.DestroyWindow();
    }
    EXPECT_EQ(m_images.GetImageCount(), 2);
}

TEST_F(ImageListTest, RoundsLeaveNoObjectBehind)
{
    const auto round = [] {
        CImageList images;
        images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4);
        CBitmap strip;
        strip.LoadBitmap(IDB_STRIP);
        images.Add(&strip, kMask);
    };
    round();
    round();
    const int before = GdiObjectCount();
    for (int i = 0; i < 10; ++i)
        round();
    EXPECT_EQ(GdiObjectCount(), before);
}
