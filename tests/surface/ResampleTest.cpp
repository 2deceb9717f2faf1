#include "vxgui/pixels/Resample.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

Ref<cAlphaDIBSection> Noise(int32_t width, int32_t height) {
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->Create(width, height));
    uint32_t seed = 1;
    for (ARGB& pixel : surface->Pixels()) {
        pixel = ARGBFromValue(static_cast<int32_t>(seed *= 2654435761u));
    }
    return surface;
}

TEST(Resample, AtItsOwnSizeIsAnExactCopyWithAlpha) {
    const Ref<cAlphaDIBSection> surface = Noise(13, 7), copy = surface->Resample(7, 13);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(std::ranges::equal(copy->Pixels(), surface->Pixels()));
    EXPECT_NE(copy->DIBSectionBitsPtr(), surface->DIBSectionBitsPtr());
}

TEST(Resample, AtAnotherSizeHasNoAlpha) {
    const Ref<cAlphaDIBSection> surface = Noise(13, 7);
    for (const auto& [height, width] : {std::pair{14, 26}, {3, 5}, {7, 14}, {8, 13}, {1, 1}}) {
        const Ref<cAlphaDIBSection> scaled = surface->Resample(height, width);
        ASSERT_TRUE(scaled);
        EXPECT_EQ(scaled->Width(), width);
        EXPECT_EQ(scaled->Height(), height);
        for (ARGB pixel : scaled->Pixels()) ASSERT_EQ(pixel.Alpha, 0);
        std::vector<ARGB> expected(scaled->Pixels().size());
        ResampleBilinear(surface->Pixels(), 13, expected, width);
        EXPECT_TRUE(std::ranges::equal(scaled->Pixels(), expected));
    }
}

TEST(Resample, TakesTheHeightFirst) {
    const Ref<cAlphaDIBSection> scaled = Noise(4, 4)->Resample(2, 9);
    EXPECT_EQ(scaled->Height(), 2);
    EXPECT_EQ(scaled->Width(), 9);
}

TEST(Resample, ToTwiceTheSizeNeverReachesTheLastColumn) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->Create(4, 1);
    std::ranges::fill(surface->Pixels(), ARGB{10, 10, 10, 10});
    surface->Pixels()[3] = {10, 10, 250, 10};  // red is the one channel that nothing else takes
    const Ref<cAlphaDIBSection> scaled = surface->Resample(1, 8);
    for (ARGB pixel : scaled->Pixels()) EXPECT_EQ(pixel.Red, 10);
}

TEST(Resample, OfOneRowOrColumnReadsNothingBeyond) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 5}, {5, 1}}) {
        const Ref<cAlphaDIBSection> surface = Noise(width, height);
        const Ref<cAlphaDIBSection> scaled = surface->Resample(height * 3, width * 2);
        ASSERT_TRUE(scaled);
        EXPECT_EQ(scaled->Pixels()[0].Red, surface->Pixels()[0].Red);
    }
}

TEST(Resample, OfLongRowsReadsNothingBeyond) {
    const Ref<cAlphaDIBSection> surface = Noise(131, 2);
    for (const int32_t width : {9, 20, 32, 40, 64, 100, 260}) {
        const Ref<cAlphaDIBSection> scaled = surface->Resample(2, width);
        ASSERT_TRUE(scaled);
        EXPECT_EQ(scaled->Pixels()[0].Red, surface->Pixels()[0].Red);
    }
}

TEST(Resample, CarriesNoKeyAndNoFlagsOver) {
    const Ref<cAlphaDIBSection> surface = Noise(4, 4);
    surface->TransparentColor(0x123456);
    surface->PreMultiplyAlpha();
    surface->UseDrawDib(false);
    for (int32_t size : {4, 5}) {
        const Ref<cAlphaDIBSection> scaled = surface->Resample(size, size);
        EXPECT_EQ(scaled->TransparentColor(), DefaultTransColor);
        EXPECT_EQ(scaled->Flags(), 3u);
    }
}

TEST(Resample, ToASizeThatCannotBeIsNone) {
    const Ref<cAlphaDIBSection> surface = Noise(4, 4);
    EXPECT_FALSE(surface->Resample(0, 4));
    EXPECT_FALSE(surface->Resample(4, -1));
}

TEST(Resample, OfAnEmptySurfaceIsClear) {
    const Ref<cAlphaDIBSection> scaled = New<cAlphaDIBSection>()->Resample(3, 3);
    ASSERT_TRUE(scaled);
    for (ARGB pixel : scaled->Pixels()) EXPECT_EQ(pixel, ARGB{});
}

}  // namespace
}  // namespace vxgui
