#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include <afxcmn.h>
#include <afxwin.h>

#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "skin_dialog.h"
#include "tests/support/framework_printers.h"

namespace
{

constexpr COLORREF kMagenta = RGB(255, 0, 255);

/// Pixels by row, from the top left.
struct Picture
{
    explicit Picture(UINT id)
    {
        const CModuleSkin skin(kModuleCalcTol);
        CBitmap bitmap;
        if (!bitmap.LoadBitmap(id))
            return;
        BITMAP description{};
        bitmap.GetBitmap(&description);
        size = CSize(description.bmWidth, description.bmHeight);
        const HDC dc = ::CreateCompatibleDC(nullptr);
        const HGDIOBJ former = ::SelectObject(dc, bitmap);
        for (int y = 0; y < size.cy; ++y)
            for (int x = 0; x < size.cx; ++x)
                pixels.push_back(::GetPixel(dc, x, y));
        ::SelectObject(dc, former);
        ::DeleteDC(dc);
    }

    COLORREF At(int x, int y) const { return pixels.at(static_cast<std::size_t>(y * size.cx + x)); }

    /// One image of a strip.
    std::vector<COLORREF> Image(int index, int width) const
    {
        std::vector<COLORREF> image;
        for (int y = 0; y < size.cy; ++y)
            for (int x = index * width; x < (index + 1) * width; ++x)
                image.push_back(At(x, y));
        return image;
    }

    CSize size{0, 0};
    std::vector<COLORREF> pixels;
};

TEST(SkinBitmaps, ChainImagesAreTwelveOfSixteenPixels)
{
    EXPECT_EQ(Picture(IDB_CHAIN_IMAGES).size, CSize(12 * 16, 16));
}

TEST(SkinBitmaps, ClosingImagesAreOneOfTwentyFivePixels)
{
    EXPECT_EQ(Picture(IDB_CLOSING_IMAGES).size, CSize(25, 16));
}

TEST(SkinBitmaps, ChainImagesDifferFromEachOther)
{
    const Picture strip(IDB_CHAIN_IMAGES);
    std::set<std::vector<COLORREF>> images;
    for (int index = 0; index < 12; ++index)
        images.insert(strip.Image(index, 16));
    EXPECT_EQ(images.size(), 12U);
}

TEST(SkinBitmaps, EveryImageShowsSomethingOnATransparentGround)
{
    const Picture strip(IDB_CHAIN_IMAGES);
    for (int index = 0; index < 12; ++index)
    {
        SCOPED_TRACE(index);
        const std::vector<COLORREF> image = strip.Image(index, 16);
        const auto transparent = std::count(image.begin(), image.end(), kMagenta);
        EXPECT_GT(transparent, 16 * 16 / 4);
        EXPECT_LT(transparent, 16 * 16 - 16);
    }
}

// What is nearly magenta would stay as a coloured edge.
TEST(SkinBitmaps, StripsHaveNoShadesOfTheTransparentColour)
{
    const auto isShade = [](COLORREF pixel) {
        return pixel != kMagenta && GetRValue(pixel) > GetGValue(pixel) + 64 &&
               GetBValue(pixel) > GetGValue(pixel) + 64;
    };
    for (const UINT id : {IDB_CHAIN_IMAGES, IDB_CLOSING_IMAGES})
    {
        const std::vector<COLORREF> pixels = Picture(id).pixels;
        EXPECT_EQ(std::count_if(pixels.begin(), pixels.end(), isShade), 0) << id;
    }
}

TEST(SkinBitmaps, ChainImagesFillAnImageListOfSixteenBitColours)
{
    const CModuleSkin skin(kModuleCalcTol);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_CHAIN_IMAGES));
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR16 | ILC_MASK, 0, 9));
    EXPECT_EQ(images.Add(&bitmap, kMagenta), 0);
    EXPECT_EQ(images.GetImageCount(), 12);
}

TEST(SkinBitmaps, KindsDiffer)
{
    const Picture one(IDB_KIND_1);
    const Picture two(IDB_KIND_2);
    const Picture three(IDB_KIND_3);
    ASSERT_EQ(one.size, two.size);
    ASSERT_EQ(one.size, three.size);
    EXPECT_NE(one.pixels, two.pixels);
    EXPECT_NE(one.pixels, three.pixels);
    EXPECT_NE(two.pixels, three.pixels);
}

struct PictureFrameOf
{
    UINT dialog;
    int control;
};

void PrintTo(const PictureFrameOf& frame, std::ostream* out)
{
    *out << frame.dialog << ", control " << frame.control;
}

class KindPictures : public testing::TestWithParam<PictureFrameOf>
{
};

// Also with the base units of Windows, 6 x 13, which are smaller than those of the fonts elsewhere.
TEST_P(KindPictures, FitTheirFrame)
{
    const SkinDialog dialog(GetParam().dialog);
    RECT frame;
    ::GetClientRect(dialog.Item(GetParam().control), &frame);
    const CSize units = dialog.BaseUnits();
    for (const UINT id : {IDB_KIND_1, IDB_KIND_2, IDB_KIND_3})
    {
        const CSize size = Picture(id).size;
        ASSERT_GT(size.cx, 0);
        EXPECT_LE(size.cx, frame.right);
        EXPECT_LE(size.cy, frame.bottom);
        EXPECT_LE(size.cx, ::MulDiv(frame.right, 6, units.cx));
        EXPECT_LE(size.cy, ::MulDiv(frame.bottom, 13, units.cy));
    }
}

INSTANTIATE_TEST_SUITE_P(Frames, KindPictures,
                         testing::Values(PictureFrameOf{IDD_EDIT_TOL, IDC_LINK_PICTURE},
                                         PictureFrameOf{IDD_EDIT_CLOSE_TOL, IDC_CLOSING_PICTURE},
                                         PictureFrameOf{IDD_VARIABLE, IDC_VARIABLE_PICTURE},
                                         PictureFrameOf{IDD_WEIGHT, IDC_WEIGHT_PICTURE}));

}  // namespace
