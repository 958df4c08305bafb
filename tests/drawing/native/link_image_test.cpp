#include "drawing/link_image.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

TEST(LinkImage, OfEachKindIsItsOwn)
{
    EXPECT_EQ(LinkImage(1), 9);
    EXPECT_EQ(LinkImage(2), 10);
    EXPECT_EQ(LinkImage(3), 11);
}

TEST(LinkImage, OfNoKindIsNone)
{
    for (const std::int32_t kind : {0, 4, -1, std::numeric_limits<std::int32_t>::max()})
        EXPECT_EQ(LinkImage(kind), -1) << kind;
}

TEST(LinkImage, LeadsBackToItsKind)
{
    for (const std::int32_t kind : {1, 2, 3})
        EXPECT_EQ(KindOfLinkImage(LinkImage(kind)), kind);
}

TEST(LinkImage, ThatIsNoLinksHasNoKind)
{
    for (const int image : {-1, 0, kChainImage, 8, 12, std::numeric_limits<int>::min()})
        EXPECT_EQ(KindOfLinkImage(image), 0) << image;
}

}  // namespace
