#include "grid/Twips.h"

#include <gtest/gtest.h>

namespace Twips = KOVAVSFDataGridLib::Twips;

TEST(Twips, FifteenMakeAPixelAt96DotsPerInch)
{
    EXPECT_EQ(Twips::toPixels(960, 96), 64);
    EXPECT_EQ(Twips::fromPixels(64, 96), 960);
    EXPECT_EQ(Twips::toPixels(0, 96), 0);
    EXPECT_EQ(Twips::toPixels(-67, 96), -4);
}

TEST(Twips, FollowTheResolution)
{
    EXPECT_EQ(Twips::toPixels(1440, 144), 144);
    EXPECT_EQ(Twips::toPixels(960, 192), 128);
    EXPECT_EQ(Twips::fromPixels(1, 192), 8); // 7.5 rounded
}

TEST(Twips, AWidthAboveNoneNeverVanishes)
{
    EXPECT_EQ(Twips::toPixels(1, 96), 1);
}

TEST(Twips, PixelsSurviveTheWayThereAndBack)
{
    for (const int dpi : {72, 96, 120, 144, 192, 240}) {
        for (int pixels = 0; pixels < 3000; ++pixels)
            ASSERT_EQ(Twips::toPixels(Twips::fromPixels(pixels, dpi), dpi), pixels) << dpi;
    }
}
