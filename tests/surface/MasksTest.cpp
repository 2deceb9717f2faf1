#include "tests/surface/SurfaceSupport.h"

namespace vxgui::test {
namespace {

constexpr ARGB kKeyPixel = Pixel(0xFF, 0x00, 0xFF, 0x40);

TEST(SurfaceMasks, OpaqueThroughoutHasNoAlphaChannel) {
    EXPECT_FALSE(MakeSurface(7, 5, Pixel(1, 2, 3, 255))->HasAlphaChannel());
    EXPECT_FALSE(MakeSurface(7, 5, Pixel(1, 2, 3, 0))->HasAlphaChannel());
}

TEST(SurfaceMasks, HalfTransparentThroughoutHasOne) {
    EXPECT_TRUE(MakeSurface(7, 5, Pixel(1, 2, 3, 128))->HasAlphaChannel());
}

TEST(SurfaceMasks, OneOtherPixelInTheRectangleMakesAnAlphaChannel) {
    for (int i = 1; i < 35; ++i) {
        const auto surface = MakeSurface(7, 5);
        FillMemory(surface, [=](int at) { return Pixel(0, 0, 0, at == i ? 255 : 0); });
        EXPECT_TRUE(surface->HasAlphaChannel()) << i;
    }
}

TEST(SurfaceMasks, ARectangleThatMissesEveryOtherPixelGivesFalse) {
    const auto surface = MakeSurface(7, 5);
    const int x = 4;
    const int y = 1;  // from the top
    static_cast<ARGB*>(surface->DIBSectionBitsPtr())[(5 - y - 1) * 7 + x].Alpha = 9;
    EXPECT_TRUE(surface->HasAlphaChannel());
    EXPECT_FALSE(surface->HasAlphaChannel(0, 0, 3, -1));
    EXPECT_FALSE(surface->HasAlphaChannel(5, 0));
    EXPECT_FALSE(surface->HasAlphaChannel(0, 0, -1, 0));
    EXPECT_FALSE(surface->HasAlphaChannel(0, 2));
    EXPECT_TRUE(surface->HasAlphaChannel(4, 1, 4, 1));
}

TEST(SurfaceMasks, TheReferenceIsTheBottomLeftPixelWhateverTheRectangleIs) {
    const auto surface = MakeSurface(4, 4);
    static_cast<ARGB*>(surface->DIBSectionBitsPtr())[0].Alpha = 7;
    EXPECT_TRUE(surface->HasAlphaChannel(3, 0, 3, 0));
    static_cast<ARGB*>(surface->DIBSectionBitsPtr())[0].Alpha = 255;
    EXPECT_TRUE(surface->HasAlphaChannel(3, 0, 3, 0));  // a 0 among 255
}

TEST(SurfaceMasks, ARectangleFromRightToLeftIsEmpty) {
    const auto surface = MakeSurface(9, 9);
    for (int i = 1; i < 81; ++i) static_cast<ARGB*>(surface->DIBSectionBitsPtr())[i].Alpha = 50;
    EXPECT_FALSE(surface->HasAlphaChannel(5, 5, 2, 2));
    EXPECT_FALSE(surface->HasAlphaChannel(5, 0, 2, 8));
    EXPECT_FALSE(surface->HasAlphaChannel(0, 5, 8, 2));
}

TEST(SurfaceMasks, TheRectangleIsForcedIntoTheSurface) {
    const auto surface = MakeSurface(3, 3);
    static_cast<ARGB*>(surface->DIBSectionBitsPtr())[8].Alpha = 50;  // top right
    EXPECT_TRUE(surface->HasAlphaChannel(-50, -50, 500, 500));
    EXPECT_TRUE(surface->HasAlphaChannel(500, -500, 500, -2));
    EXPECT_FALSE(surface->HasAlphaChannel(0, 0, -2, 500));
    EXPECT_TRUE(surface->HasAlphaChannel(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX));
}

TEST(SurfaceMasks, AnEmptySurfaceHasNoAlphaChannel) {
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_FALSE(surface->HasAlphaChannel());
    EXPECT_FALSE(surface->HasAlphaCached());
}

TEST(SurfaceMasks, TheCachedAnswerOutlivesWhatItWasAskedAbout) {
    const auto surface = MakeSurface(2, 2, kKeyPixel);
    FillMemory(surface, [](int i) { return i ? Pixel(1, 1, 1, 255) : Pixel(255, 0, 255, 255); });
    EXPECT_FALSE(surface->HasAlphaCached());
    surface->SetTransColor();
    EXPECT_TRUE(surface->HasAlphaChannel());
    EXPECT_FALSE(surface->HasAlphaCached());
    surface->ClearUp();
    EXPECT_FALSE(surface->HasAlphaCached());
    ASSERT_TRUE(surface->Create(1, 1));
    static_cast<ARGB*>(surface->DIBSectionBitsPtr())->Alpha = 3;
    EXPECT_TRUE(surface->HasAlphaCached());
    static_cast<ARGB*>(surface->DIBSectionBitsPtr())->Alpha = 0;
    EXPECT_TRUE(surface->HasAlphaCached());
}

TEST(SurfaceMasks, SetTransColorClearsMatchesAndKeepsOtherAlphas) {
    const auto surface = MakeSurface(3, 1);
    FillMemory(surface, [](int i) {
        return std::vector{kKeyPixel, Pixel(1, 2, 3, 9), Pixel(0xFF, 0, 0xFE, 200)}[i];
    });
    EXPECT_TRUE(surface->SetTransColor().IsEmpty());
    EXPECT_EQ(MemoryOf(surface)[0].Alpha, 0);
    EXPECT_EQ(MemoryOf(surface)[1], Pixel(1, 2, 3, 9));
    EXPECT_EQ(MemoryOf(surface)[2], Pixel(0xFF, 0, 0xFE, 200));
}

TEST(SurfaceMasks, SetTransColor2GivesEveryPixelADefinedAlpha) {
    const auto surface = MakeSurface(3, 1);
    FillMemory(surface, [](int i) {
        return std::vector{Pixel(3, 2, 1, 77), Pixel(1, 2, 3, 9), Pixel(0, 0, 0, 0)}[i];
    });
    EXPECT_TRUE(surface->SetTransColor2(0x030201).IsEmpty());  // red lowest
    EXPECT_EQ(MemoryOf(surface)[0].Alpha, 0);
    EXPECT_EQ(MemoryOf(surface)[1], Pixel(1, 2, 3, 255));
    EXPECT_EQ(MemoryOf(surface)[2], Pixel(0, 0, 0, 255));
}

TEST(SurfaceMasks, OfAKeyTheLow24BitsCount) {
    for (const bool keep : {false, true}) {
        const auto surface = MakeSurface(1, 1, Pixel(3, 2, 1, 77));
        keep ? surface->SetTransColor(0x7F030201) : surface->SetTransColor2(0x7F030201);
        EXPECT_EQ(MemoryOf(surface)[0].Alpha, 0) << keep;
    }
}

TEST(SurfaceMasks, SetTransColor3LeavesEveryByte) {
    const auto surface = MakeSurface(2, 2, kKeyPixel);
    EXPECT_TRUE(surface->SetTransColor3().IsEmpty());
    EXPECT_TRUE(surface->SetTransColor3(0, -7).IsEmpty());
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(4, kKeyPixel));
}

TEST(SurfaceMasks, TheKeysOfAnEmptySurfaceDoNothing) {
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->SetTransColor().IsEmpty());
    EXPECT_TRUE(surface->SetTransColor2().IsEmpty());
    surface->MaskFromColor(0xFFFFFF);
}

TEST(SurfaceMasks, MaskFromColorComparesInPixelForm) {
    const auto surface = MakeSurface(4, 1);
    FillMemory(surface, [](int i) {
        return std::vector{Pixel(0x56, 0x34, 0x12, 0), Pixel(0x56, 0x34, 0x12, 255),
                           Pixel(0x12, 0x34, 0x56, 0), Pixel(0, 0, 0, 0)}[i];
    });
    surface->MaskFromColor(0x123456);
    const ARGB black = Pixel(0, 0, 0, 255);
    EXPECT_EQ(MemoryOf(surface), (std::vector<ARGB>{{}, {}, black, black}));
}

/// Whether a region holds exactly the pixels for which `inside(x, y)` is true, and deletes it.
void ExpectRegion(gdi::HRGN region, int width, int height,
                  const std::function<bool(int, int)>& inside) {
    ASSERT_NE(region, nullptr);
    for (int y = -1; y <= height; ++y) {
        for (int x = -1; x <= width; ++x) {
            const bool within = x >= 0 && y >= 0 && x < width && y < height;
            EXPECT_EQ(gdi::PtInRegion(region, x, y) != 0, within && inside(x, y)) << x << "," << y;
        }
    }
    gdi::DeleteObject(region);
}

TEST(SurfaceMaskRegion, AKeyThatNoPixelHasGivesTheFullRectangle) {
    const auto surface = MakeSurface(5, 4, Pixel(1, 2, 3, 0));
    ExpectRegion(surface->GetMaskRgn(), 5, 4, [](int, int) { return true; });
}

TEST(SurfaceMaskRegion, AKeyThatAllPixelsHaveGivesTheEmptyRegion) {
    const auto surface = MakeSurface(5, 4, Pixel(3, 2, 1, 0));
    ExpectRegion(surface->GetMaskRgn(0x030201), 5, 4, [](int, int) { return false; });
}

TEST(SurfaceMaskRegion, RunsAtTheStartTheMiddleAndTheEndOfARowAreCutOut) {
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        const auto surface = MakeSurface(9, 6);
        FillMemory(surface, [&](int) { return random() % 2 ? kKeyPixel : Pixel(5, 5, 5, 5); });
        ExpectRegion(surface->GetMaskRgn(), 9, 6, [&](int x, int y) {
            return surface->GetPixel(x, y) != ValueFromARGB(kKeyPixel);
        });
    }
}

TEST(SurfaceMaskRegion, WithoutAContextNoPixelHasTheKey) {
    const auto surface = MakeSurface(5, 4, Pixel(3, 2, 1, 0));
    const gdi::HBITMAP bitmap = surface->ExtractDib();
    ExpectRegion(surface->GetMaskRgn(0x030201), 5, 4, [](int, int) { return true; });
    gdi::DeleteObject(bitmap);
    ExpectRegion(surface->GetMaskRgn(0x030201), 5, 4, [](int, int) { return true; });
}

TEST(SurfaceMaskRegion, AKeyIsComparedWithItsTopByte) {
    const auto surface = MakeSurface(5, 4, Pixel(3, 2, 1, 0));
    ExpectRegion(surface->GetMaskRgn(0x7F030201), 5, 4, [](int, int) { return true; });
}

TEST(SurfaceMaskRegion, AnEmptySurfaceGivesAnEmptyRegion) {
    ExpectRegion(New<cAlphaDIBSection>()->GetMaskRgn(), 2, 2, [](int, int) { return false; });
    const auto failed = New<cAlphaDIBSection>();
    failed->Create(100000, 100000);
    ExpectRegion(failed->GetMaskRgn(), 2, 2, [](int, int) { return false; });
}

}  // namespace
}  // namespace vxgui::test
