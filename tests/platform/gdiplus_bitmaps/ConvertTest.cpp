#include <algorithm>
#include <numeric>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/Formats.h"
#include "tests/platform/gdiplus_bitmaps/PaletteBuffer.h"
#include "vxgui/platform/gdiplus/bitmap/DitherMatrix.h"

namespace vxgui::gdiplus {
namespace {

class Convert : public BitmapTest {
protected:
    static constexpr INT kSide = 64;

    GpBitmap* Gray(ARGB level) {
        return Make(kSide, kSide, PixelFormat32bppARGB,
                    std::vector<ARGB>(size_t{kSide} * kSide, 0xFF000000 | level * 0x010101));
    }
    static double MeanBlue(GpBitmap* bitmap) {
        double sum = 0;
        for (const ARGB pixel : Pixels(bitmap)) sum += pixel & 255;
        return sum / (kSide * kSide);
    }
};

TEST_F(Convert, BringsABitmapIntoAnyFormat) {
    for (const PixelFormat format : kColorFormats) {
        GpBitmap* bitmap = Make(2, 1, PixelFormat32bppARGB, {0xFFFFFFFF, 0xFF000000});
        ASSERT_EQ(
            GdipBitmapConvertFormat(bitmap, format, DitherTypeNone, PaletteTypeCustom, nullptr, 0),
            Ok);
        PixelFormat now = 0;
        GdipGetImagePixelFormat(AsImage(bitmap), &now);
        EXPECT_EQ(now, format);
        EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFFFFFFFF, 0xFF000000}));
    }
}

TEST_F(Convert, GivesAnIndexedBitmapItsPalette) {
    GpBitmap* bitmap = Make(2, 1, PixelFormat32bppARGB, {0xFFF80808, 0xFF0808F8});
    PaletteBuffer palette;
    palette.Set({0xFF0000FF, 0xFFFF0000});
    ASSERT_EQ(GdipBitmapConvertFormat(bitmap, PixelFormat8bppIndexed, DitherTypeSolid,
                                      PaletteTypeCustom, palette.Get(), 0),
              Ok);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFFFF0000, 0xFF0000FF}));
    PaletteBuffer now;
    ASSERT_EQ(GdipGetImagePalette(AsImage(bitmap), now.Get(), PaletteBuffer::kSize), Ok);
    EXPECT_EQ(now.Get()->Count, 2u);
}

TEST_F(Convert, MakesTheOptimalPaletteItself) {
    const std::vector<ARGB> pixels{0xFF123456, 0xFF654321, 0xFFABCDEF, 0xFF123456};
    for (const PixelFormat format : {PixelFormat4bppIndexed, PixelFormat8bppIndexed}) {
        GpBitmap* bitmap = Make(2, 2, PixelFormat24bppRGB, pixels);
        ASSERT_EQ(GdipBitmapConvertFormat(bitmap, format, DitherTypeErrorDiffusion,
                                          PaletteTypeOptimal, nullptr, 0),
                  Ok);
        EXPECT_EQ(Pixels(bitmap), pixels);
    }
}

TEST_F(Convert, EveryDitherKeepsTheMeanOfGrayInBlackAndWhite) {
    for (int dither = DitherTypeOrdered4x4; dither < DitherTypeMax; ++dither) {
        for (const ARGB level : {0u, 32u, 64u, 128u, 160u, 224u, 255u}) {
            GpBitmap* bitmap = Gray(level);
            ASSERT_EQ(GdipBitmapConvertFormat(bitmap, PixelFormat1bppIndexed,
                                              static_cast<DitherType>(dither), PaletteTypeFixedBW,
                                              nullptr, 0),
                      Ok);
            EXPECT_NEAR(MeanBlue(bitmap), level, 255.0 / 16) << "dither " << dither;
        }
    }
}

TEST_F(Convert, EveryDitherKeepsTheMeanIn16Bits) {
    for (int dither = DitherTypeOrdered4x4; dither < DitherTypeMax; ++dither) {
        GpBitmap* bitmap = Gray(133);
        ASSERT_EQ(
            GdipBitmapConvertFormat(bitmap, PixelFormat16bppRGB555, static_cast<DitherType>(dither),
                                    PaletteTypeCustom, nullptr, 0),
            Ok);
        EXPECT_NEAR(MeanBlue(bitmap), 133, 3) << "dither " << dither;
    }
}

TEST_F(Convert, WithoutDitherEachPixelIsTheNearest) {
    GpBitmap* bitmap = Gray(100);
    ASSERT_EQ(GdipBitmapConvertFormat(bitmap, PixelFormat8bppIndexed, DitherTypeSolid,
                                      PaletteTypeFixedHalftone216, nullptr, 0),
              Ok);
    EXPECT_EQ(MeanBlue(bitmap), 102);
}

TEST_F(Convert, AlphaBelowTheThresholdBecomesClear) {
    for (const PixelFormat format : {PixelFormat16bppARGB1555, PixelFormat8bppIndexed}) {
        GpBitmap* bitmap = Make(3, 1, PixelFormat32bppARGB, {0x40FFFFFF, 0xC0FFFFFF, 0xFF000000});
        PaletteBuffer palette;
        palette.Set({0xFF000000, 0xFFFFFFFF, 0x00000000});
        ASSERT_EQ(GdipBitmapConvertFormat(bitmap, format, DitherTypeSolid, PaletteTypeCustom,
                                          palette.Get(), 50),
                  Ok);
        EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0, 0xFFFFFFFF, 0xFF000000}));
    }
}

TEST_F(Convert, RefusesWhatIsNoConversion) {
    GpBitmap* bitmap = Make(1, 1, PixelFormat32bppARGB);
    const auto convert = [&](GpBitmap* of, PixelFormat format, int dither, int type, REAL alpha) {
        return GdipBitmapConvertFormat(of, format, static_cast<DitherType>(dither),
                                       static_cast<PaletteType>(type), nullptr, alpha);
    };
    EXPECT_EQ(convert(nullptr, PixelFormat24bppRGB, 0, 0, 0), InvalidParameter);
    EXPECT_EQ(convert(bitmap, 12345, 0, 0, 0), InvalidParameter);
    EXPECT_EQ(convert(bitmap, PixelFormat24bppRGB, 10, 0, 0), InvalidParameter);
    EXPECT_EQ(convert(bitmap, PixelFormat24bppRGB, 0, 10, 0), InvalidParameter);
    EXPECT_EQ(convert(bitmap, PixelFormat24bppRGB, 0, 0, 101), InvalidParameter);
    EXPECT_EQ(convert(bitmap, PixelFormat24bppRGB, 0, 0, -1), InvalidParameter);
    EXPECT_EQ(convert(bitmap, PixelFormat8bppIndexed, 0, PaletteTypeCustom, 0), InvalidParameter);
}

TEST(DitherMatrices, HaveEachRankOnce) {
    for (int type = DitherTypeOrdered4x4; type < DitherTypeErrorDiffusion; ++type) {
        const DitherMatrix matrix = MatrixOf(static_cast<DitherType>(type));
        std::vector<int> ranks = matrix.ranks;
        std::ranges::sort(ranks);
        std::vector<int> expected(static_cast<size_t>(matrix.width * matrix.height));
        std::iota(expected.begin(), expected.end(), 0);
        EXPECT_EQ(ranks, expected) << type;
    }
    EXPECT_EQ(MatrixOf(DitherTypeOrdered4x4).ranks,
              (std::vector<int>{0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5}));
}

}  // namespace
}  // namespace vxgui::gdiplus
