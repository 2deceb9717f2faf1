#include <set>

#include "tests/surface/SurfaceSupport.h"

namespace vxgui::test {
namespace {

TEST(SurfacePixels, GetPixelAtTheOriginIsTheFirstOfTheLastRowInMemory) {
    const auto surface = MakeCountedSurface(5, 4);
    EXPECT_EQ(surface->GetPixel(0, 0), 15 + 1);
    EXPECT_EQ(surface->GetPixel(4, 3), 4 + 1);
}

TEST(SurfacePixels, GetPixelHasBlueInTheLowestByte) {
    const auto surface = MakeSurface(1, 1, Pixel(0x11, 0x22, 0x33, 0xF4));
    EXPECT_EQ(static_cast<uint32_t>(surface->GetPixel(0, 0)), 0xF4332211u);
}

TEST(SurfacePixels, GetPixelCountsOnIntoNeighbouringRowsAndNotOutOfTheMemory) {
    const auto surface = MakeCountedSurface(5, 4);
    EXPECT_EQ(surface->GetPixel(5, 1), surface->GetPixel(0, 0));
    EXPECT_EQ(surface->GetPixel(-1, 0), surface->GetPixel(4, 1));
    EXPECT_EQ(surface->GetPixel(5, 0), 0);
    EXPECT_EQ(surface->GetPixel(-1, 3), 0);
    EXPECT_EQ(surface->GetPixel(0, 4), 0);
    EXPECT_EQ(surface->GetPixel(0, -1), 0);
    EXPECT_EQ(surface->GetPixel(INT32_MAX, INT32_MIN), 0);
}

TEST(SurfacePixels, SetPixelLeavesTheOldValue) {
    const auto surface = MakeCountedSurface(2, 2);
    surface->SetPixel(0, 0, 0x123456);
    EXPECT_EQ(surface->GetPixel(0, 0), 3);
}

TEST(SurfacePixels, PremultiplyingTwiceChangesThePixelsOnce) {
    const auto surface = MakeSurface(3, 2, Pixel(200, 100, 255, 127));
    EXPECT_EQ(surface->Flags(), 3u);
    surface->PreMultiplyAlpha();
    const auto once = MemoryOf(surface);
    EXPECT_EQ(once[5], Pixel(100, 50, 127, 127));
    EXPECT_EQ(surface->Flags(), 0x80000003u);
    surface->PreMultiplyAlpha();
    EXPECT_EQ(MemoryOf(surface), once);
    ASSERT_TRUE(surface->Create(1, 1));
    EXPECT_EQ(surface->Flags(), 3u);
}

TEST(SurfacePixels, ColouredNoiseIsPremultipliedAndLeavesTheFlags) {
    const auto surface = MakeSurface(64, 64);
    surface->RandomiseBits();
    std::set<int32_t> values;
    for (const ARGB pixel : MemoryOf(surface)) {
        EXPECT_LE(pixel.Blue, pixel.Alpha);
        EXPECT_LE(pixel.Green, pixel.Alpha);
        EXPECT_LE(pixel.Red, pixel.Alpha);
        values.insert(ValueFromARGB(pixel));
    }
    EXPECT_GT(values.size(), 3500u);
    EXPECT_EQ(surface->Flags(), 3u);
}

TEST(SurfacePixels, GrayNoiseHasEqualChannelsUnderEveryAlpha) {
    const auto surface = MakeSurface(64, 64);
    surface->RandomiseBits(true);
    std::set<int> alphas;
    for (const ARGB pixel : MemoryOf(surface)) {
        EXPECT_EQ(pixel.Blue, pixel.Green);
        EXPECT_EQ(pixel.Green, pixel.Red);
        EXPECT_LE(pixel.Red, pixel.Alpha);
        alphas.insert(pixel.Alpha);
    }
    EXPECT_GT(alphas.size(), 240u);
}

TEST(SurfacePixels, NoiseDiffersFromCallToCall) {
    const auto surface = MakeSurface(16, 16);
    surface->RandomiseBits();
    const auto first = MemoryOf(surface);
    surface->RandomiseBits();
    EXPECT_NE(MemoryOf(surface), first);
}

TEST(SurfacePixels, DrawEdgeIsRaisedAllAroundByDefault) {
    const auto surface = MakeSurface(6, 5, Pixel(1, 2, 3, 4));
    EXPECT_NE(surface->DrawEdge(), 0);
    const auto reference = MakeSurface(6, 5, Pixel(1, 2, 3, 4));
    gdi::RECT whole{0, 0, 6, 5};
    gdi::DrawEdge(reference->hDC(), &whole, gdi::EDGE_RAISED, gdi::BF_RECT);
    EXPECT_EQ(MemoryOf(surface), MemoryOf(reference));
    EXPECT_EQ(surface->GetPixel(2, 2), ValueFromARGB(Pixel(1, 2, 3, 4)));
    EXPECT_EQ(New<cAlphaDIBSection>()->DrawEdge(), 0);
}

TEST(SurfacePixels, AnArrayOfPixelsIsAViewByStorageRows) {
    const auto surface = MakeCountedSurface(3, 2);
    ARGBArray pixels = surface->GetARGBArray();
    EXPECT_EQ(pixels.Rows(), 2);
    EXPECT_EQ(pixels.Columns(), 3);
    EXPECT_EQ(ValueFromARGB(pixels(1, 0)), 4);
    pixels(0, 2) = Pixel(9, 8, 7, 6);
    EXPECT_EQ(MemoryOf(surface)[2], Pixel(9, 8, 7, 6));
    EXPECT_THROW(pixels(2, 0), Error);
    EXPECT_THROW(pixels(0, 3), Error);
    EXPECT_THROW(pixels(-1, 0), Error);
}

TEST(SurfacePixels, DestroyingTheArrayLeavesThePixels) {
    const auto surface = MakeCountedSurface(3, 2);
    ARGBArray pixels = surface->GetARGBArray();
    EXPECT_TRUE(surface->DestroyARGBArray(pixels).IsEmpty());
    EXPECT_EQ(pixels.Rows(), 0);
    EXPECT_THROW(pixels(0, 0), Error);
    EXPECT_EQ(surface->GetPixel(0, 0), 4);
}

}  // namespace
}  // namespace vxgui::test
