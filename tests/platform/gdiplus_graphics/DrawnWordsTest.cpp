#include <functional>

#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

// Premultiplied pixels are drawn on without the drawing library; others by it, on a stand-in. Both
// ways must leave the same.
class GdiplusDrawnWords : public test::GraphicsFixture {
protected:
    using Draw = std::function<void(GpGraphics*)>;

    // Opaque pixels, of which both formats hold the same.
    test::TestPicture Drawn(PixelFormat format, const Draw& draw) {
        GpBitmap* const bitmap = MakeBitmap(Box(0, 0, 5, kHeight, 0xFF80A0C0, 0xFF102030), format);
        draw(GraphicsOf(bitmap));
        return PictureOf(bitmap);
    }
    void ExpectSameOnBoth(const Draw& draw) {
        ExpectSame(Drawn(PixelFormat32bppPARGB, draw), Drawn(PixelFormat32bppRGB, draw));
    }
    // A clip of two boxes with a hole.
    static void ClipToFrame(GpGraphics* graphics) {
        GdipSetClipRectI(graphics, 1, 1, 8, 7, CombineModeReplace);
        GdipSetClipRectI(graphics, 3, 3, 2, 2, CombineModeExclude);
    }
    // Pixels of all alphas.
    GpImage* Translucent(PixelFormat format) {
        test::TestPicture picture{6, 6, {}};
        for (ARGB i = 0; i < 36; ++i) picture.pixels.push_back((i * 7) << 24 | i * 0x070301);
        return AsImage(MakeBitmap(picture, format));
    }
};

TEST_F(GdiplusDrawnWords, FillTheClipAlone) {
    for (const ARGB color : {0xFFC08040u, 0x60C08040u}) {
        ExpectSameOnBoth([&](GpGraphics* graphics) {
            ClipToFrame(graphics);
            EXPECT_EQ(GdipFillRectangleI(graphics, Solid(color), 2, 2, 20, 20), Ok);
        });
    }
    EXPECT_EQ(Drawn(PixelFormat32bppPARGB,
                    [&](GpGraphics* graphics) {
                        ClipToFrame(graphics);
                        GdipFillRectangleI(graphics, Solid(kRed), 0, 0, 20, 20);
                    })
                  .At(3, 3),
              0xFF80A0C0u);
}

TEST_F(GdiplusDrawnWords, TakeThePlaceOfPixelsThatAreReplaced) {
    GpBitmap* const bitmap = MakeBitmap(Box(0, 0, 0, 0, 0, kBlue), PixelFormat32bppPARGB);
    GpGraphics* const graphics = GraphicsOf(bitmap);
    ASSERT_EQ(GdipSetCompositingMode(graphics, CompositingModeSourceCopy), Ok);
    ASSERT_EQ(GdipFillRectangleI(graphics, Solid(0x80FF0000), 1, 1, 3, 3), Ok);
    EXPECT_EQ(PictureOf(bitmap).At(2, 2) >> 24, 0x80u);
    for (const PixelFormat format : {PixelFormat32bppARGB, PixelFormat32bppPARGB}) {
        ASSERT_EQ(GdipDrawImageI(graphics, Translucent(format), 4, 1), Ok);
        EXPECT_EQ(PictureOf(bitmap).At(4, 1), 0u);
        EXPECT_EQ(PictureOf(bitmap).At(9, 6) >> 24, 245u);
    }
}

TEST_F(GdiplusDrawnWords, ShowImagesOfAllFormats) {
    for (const PixelFormat format :
         {PixelFormat32bppARGB, PixelFormat32bppPARGB, PixelFormat24bppRGB, PixelFormat8bppIndexed,
          PixelFormat64bppARGB, PixelFormat16bppARGB1555}) {
        GpImage* const image = Translucent(format);
        ExpectSameOnBoth([&](GpGraphics* graphics) {
            ClipToFrame(graphics);
            EXPECT_EQ(GdipDrawImageI(graphics, image, 2, -1), Ok);
            EXPECT_EQ(GdipDrawImageI(graphics, image, 9, 7), Ok);
        });
    }
}

TEST_F(GdiplusDrawnWords, ShowTheSamePixelsOfStraightAndOfMultipliedImages) {
    const auto shown = [&](PixelFormat format) {
        return Drawn(PixelFormat32bppPARGB, [&](GpGraphics* graphics) {
            GdipDrawImageRectI(graphics, Translucent(format), 1, 2, 6, 6);
        });
    };
    ExpectSame(shown(PixelFormat32bppARGB), shown(PixelFormat32bppPARGB));
}

// Nothing of an image is kept from one drawing to the next.
TEST_F(GdiplusDrawnWords, ShowWhatHasChangedInAnImage) {
    GpBitmap* const changing = MakeBitmap(Box(0, 0, 12, 10, kRed));
    GpBitmap* const target = MakeBitmap(Box(0, 0, 0, 0, 0), PixelFormat32bppPARGB);
    GpGraphics* const graphics = GraphicsOf(target);
    const auto shown = [&](int x) {
        EXPECT_EQ(GdipDrawImageI(graphics, AsImage(changing), 0, 0), Ok);
        return PictureOf(target).At(x, 0);
    };
    EXPECT_EQ(shown(0), kRed);
    EXPECT_EQ(GdipBitmapSetPixel(changing, 0, 0, kGreen), Ok);
    EXPECT_EQ(shown(0), kGreen);
    EXPECT_EQ(GdipFillRectangleI(GraphicsOf(changing), Solid(kBlue), 1, 0, 1, 1), Ok);
    EXPECT_EQ(shown(1), kBlue);
    BitmapData data{};
    const GpRect all{0, 0, 12, 10};
    ASSERT_EQ(GdipBitmapLockBits(changing, &all, ImageLockModeWrite, PixelFormat32bppARGB, &data),
              Ok);
    static_cast<ARGB*>(data.Scan0)[2] = 0xFF123456;
    ASSERT_EQ(GdipBitmapUnlockBits(changing, &data), Ok);
    EXPECT_EQ(shown(2), 0xFF123456u);
}

// The library draws between; each must see what the other has left.
TEST_F(GdiplusDrawnWords, StandBesideWhatTheLibraryDraws) {
    GpBitmap* const bitmap = MakeBitmap(Box(0, 0, 0, 0, 0), PixelFormat32bppPARGB);
    GpGraphics* const graphics = GraphicsOf(bitmap);
    GdipSetPixelOffsetMode(graphics, PixelOffsetModeHalf);
    const GpPointF square[] = {{2, 2}, {8, 2}, {8, 8}, {2, 8}};
    GdipFillRectangleI(graphics, Solid(kRed), 0, 0, 12, 10);
    GdipFillPolygon(graphics, Solid(0x80000000), square, 4, FillModeAlternate);
    GdipFillRectangleI(graphics, Solid(0x80FFFFFF), 4, 4, 2, 2);
    const test::TestPicture picture = PictureOf(bitmap);
    EXPECT_EQ(picture.At(0, 0), kRed);
    EXPECT_EQ(picture.At(2, 2), 0xFF7F0000u);
    EXPECT_EQ(picture.At(4, 4), 0xFFBF8080u);
}

}  // namespace
}  // namespace vxgui::gdiplus
