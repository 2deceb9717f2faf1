#include <cstring>
#include <set>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/PaletteBuffer.h"

namespace vxgui::gdiplus {
namespace {

class BitmapPalette : public BitmapTest {};

TEST_F(BitmapPalette, StartsWithAStandardOne) {
    struct Case {
        PixelFormat format;
        UINT count;
    };
    for (const Case& each : {Case{PixelFormat1bppIndexed, 2}, Case{PixelFormat4bppIndexed, 16},
                             Case{PixelFormat8bppIndexed, 256}, Case{PixelFormat24bppRGB, 0}}) {
        GpImage* image = AsImage(Make(1, 1, each.format));
        INT size = 0;
        ASSERT_EQ(GdipGetImagePaletteSize(image, &size), Ok);
        EXPECT_EQ(size, static_cast<INT>(8 + 4 * each.count));
        PaletteBuffer palette;
        ASSERT_EQ(GdipGetImagePalette(image, palette.Get(), size), Ok);
        EXPECT_EQ(palette.Get()->Count, each.count);
        EXPECT_EQ(GdipGetImagePalette(image, palette.Get(), size - 1), InvalidParameter);
    }
    EXPECT_EQ(GdipGetImagePaletteSize(nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImagePalette(nullptr, nullptr, 0), InvalidParameter);
}

TEST_F(BitmapPalette, OfEightBitsHasTheSystemsColoursAndACube) {
    GpImage* image = AsImage(Make(1, 1, PixelFormat8bppIndexed));
    PaletteBuffer palette;
    ASSERT_EQ(GdipGetImagePalette(image, palette.Get(), PaletteBuffer::kSize), Ok);
    EXPECT_EQ(palette.At(1), 0xFF800000);
    EXPECT_EQ(palette.At(11), 0xFFFFFF00);
    EXPECT_EQ(palette.At(20), 0u);
    EXPECT_EQ(palette.At(40), 0xFF000000);
    EXPECT_EQ(palette.At(41), 0xFF000033);
    EXPECT_EQ(palette.At(255), 0xFFFFFFFF);
}

TEST_F(BitmapPalette, ChangesWhatIndexesMean) {
    GpBitmap* bitmap = Make(2, 1, PixelFormat8bppIndexed);
    uint8_t indexes[4] = {1, 5};
    Write(bitmap, PixelFormat8bppIndexed, indexes, 4);
    PaletteBuffer palette;
    palette.Set({0xFF111111, 0x80222222, 0xFF333333});
    ASSERT_EQ(GdipSetImagePalette(AsImage(bitmap), palette.Get()), Ok);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0x80222222, 0xFF000000}));
    palette.Set({});
    EXPECT_EQ(GdipSetImagePalette(AsImage(bitmap), palette.Get()), InvalidParameter);
    EXPECT_EQ(GdipSetImagePalette(AsImage(bitmap), nullptr), InvalidParameter);
}

TEST_F(BitmapPalette, TypesHaveTheirPublishedNumbersOfColours) {
    struct Case {
        PaletteType type;
        UINT count;
    };
    for (const Case& each :
         {Case{PaletteTypeFixedBW, 2}, Case{PaletteTypeFixedHalftone8, 16},
          Case{PaletteTypeFixedHalftone27, 28}, Case{PaletteTypeFixedHalftone64, 72},
          Case{PaletteTypeFixedHalftone125, 133}, Case{PaletteTypeFixedHalftone216, 224},
          Case{PaletteTypeFixedHalftone252, 252}, Case{PaletteTypeFixedHalftone256, 256}}) {
        PaletteBuffer palette;
        palette.Get()->Count = 256;
        ASSERT_EQ(GdipInitializePalette(palette.Get(), each.type, 0, 0, nullptr), Ok);
        ASSERT_EQ(palette.Get()->Count, each.count);
        std::set<ARGB> different;
        for (UINT i = 0; i < each.count; ++i) different.insert(palette.At(i));
        EXPECT_EQ(different.size(), each.count);
        EXPECT_EQ(GdipInitializePalette(palette.Get(), each.type, 0, 0, nullptr), Ok);
        palette.Get()->Count = each.count - 1;
        EXPECT_EQ(GdipInitializePalette(palette.Get(), each.type, 0, 0, nullptr), InvalidParameter);
    }
}

TEST_F(BitmapPalette, AClearColourIsTheLast) {
    PaletteBuffer palette;
    palette.Get()->Count = 256;
    ASSERT_EQ(GdipInitializePalette(palette.Get(), PaletteTypeFixedBW, 0, 1, nullptr), Ok);
    EXPECT_EQ(palette.Get()->Count, 3u);
    EXPECT_EQ(palette.At(2), 0u);
    EXPECT_TRUE(palette.Get()->Flags & PaletteFlagsHasAlpha);
}

TEST_F(BitmapPalette, AnOptimalOneHasTheBitmapsOwnColours) {
    GpBitmap* bitmap =
        Make(4, 1, PixelFormat32bppARGB, {0xFF102030, 0xFFF0E0D0, 0xFF102030, 0x00FFFFFF});
    PaletteBuffer palette;
    palette.Get()->Count = 256;
    ASSERT_EQ(GdipInitializePalette(palette.Get(), PaletteTypeOptimal, 16, 0, bitmap), Ok);
    ASSERT_EQ(palette.Get()->Count, 2u);
    EXPECT_EQ(std::set<ARGB>({palette.At(0), palette.At(1)}),
              (std::set<ARGB>{0xFF102030, 0xFFF0E0D0}));
    EXPECT_EQ(GdipInitializePalette(palette.Get(), PaletteTypeOptimal, 16, 0, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipInitializePalette(palette.Get(), PaletteTypeOptimal, 0, 0, bitmap),
              InvalidParameter);
    EXPECT_EQ(GdipInitializePalette(palette.Get(), PaletteTypeCustom, 0, 0, bitmap),
              InvalidParameter);
    EXPECT_EQ(GdipInitializePalette(nullptr, PaletteTypeFixedBW, 0, 0, nullptr), InvalidParameter);
}

TEST_F(BitmapPalette, AnOptimalOneIsNeverLargerThanAsked) {
    std::vector<ARGB> pixels;
    for (ARGB i = 0; i < 1024; ++i) pixels.push_back(0xFF000000 | i * 0x4321 % 0x1000000);
    GpBitmap* bitmap = Make(32, 32, PixelFormat24bppRGB, pixels);
    for (const INT count : {1, 2, 7, 16, 255, 256}) {
        PaletteBuffer palette;
        palette.Get()->Count = 256;
        ASSERT_EQ(GdipInitializePalette(palette.Get(), PaletteTypeOptimal, count, 0, bitmap), Ok);
        EXPECT_EQ(palette.Get()->Count, static_cast<UINT>(count));
    }
}

}  // namespace
}  // namespace vxgui::gdiplus
