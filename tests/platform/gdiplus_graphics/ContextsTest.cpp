#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"
#include "tests/support/Bitmaps.h"
#include "vxgui/platform/gdi.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusGraphics = test::GraphicsFixture;

TEST_F(GdiplusGraphics, DrawsOnThePixelsOfADeviceContext) {
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(kRed), 2, 3, 4, 5), Ok);
    ExpectSame(OnContext(), Box(2, 3, 6, 8, kRed));
}

TEST_F(GdiplusGraphics, SeesWhatTheContextDraws) {
    gdi::PatBlt(dc_, 0, 0, kWidth, kHeight, gdi::WHITENESS);
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(0x80FF0000), 0, 0, 1, 1), Ok);
    EXPECT_EQ(OnContext().At(0, 0), 0xFFFF7F7Fu);
    EXPECT_EQ(OnContext().At(1, 0), 0xFFFFFFFFu);
}

TEST_F(GdiplusGraphics, FollowsTheBitmapThatTheContextSelects) {
    uint8_t* bits = nullptr;
    const gdi::HBITMAP other = gdi::CreateDib(3, 2, 32, &bits);
    gdi::SelectObject(dc_, other);
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(kBlue), 0, 0, 2, 1), Ok);
    ExpectSame(test::PictureOf(other), Box(0, 0, 2, 1, kBlue, 0, 3, 2));
    gdi::SelectObject(dc_, dib_);
    gdi::DeleteObject(other);
}

TEST_F(GdiplusGraphics, DrawsWithinTheContextsClip) {
    const gdi::HRGN left = gdi::CreateRectRgn(1, 1, 3, 9), right = gdi::CreateRectRgn(8, 4, 10, 6);
    gdi::CombineRgn(left, left, right, gdi::RGN_OR);
    gdi::SelectClipRgn(dc_, left);
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(kRed), 0, 0, kWidth, kHeight), Ok);
    test::TestPicture expected = Box(1, 1, 3, 9, kRed);
    for (int y = 4; y < 6; ++y) expected.At(8, y) = expected.At(9, y) = kRed;
    ExpectSame(OnContext(), expected);
    ASSERT_EQ(GdipGraphicsClear(onContext_, kBlue), Ok);
    for (uint32_t& pixel : expected.pixels) pixel = pixel ? kBlue : 0;
    ExpectSame(OnContext(), expected);
    gdi::DeleteObject(left);
    gdi::DeleteObject(right);
}

TEST_F(GdiplusGraphics, DrawsOnContextsOfFewerBits) {
    uint8_t* bits = nullptr;
    const gdi::HBITMAP plain = gdi::CreateDib(4, 2, 24, &bits);
    gdi::SelectObject(dc_, plain);
    ASSERT_EQ(GdipGraphicsClear(onContext_, 0xFFFFFFFF), Ok);
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(0x80FF0000), 1, 0, 2, 1), Ok);
    ExpectSame(test::PictureOf(plain), Box(1, 0, 3, 1, 0x00FF7F7F, 0x00FFFFFF, 4, 2));
    gdi::SelectObject(dc_, dib_);
    gdi::DeleteObject(plain);
}

TEST_F(GdiplusGraphics, DrawsBlackAndWhiteOnAMonochromeContext) {
    const gdi::HBITMAP mono = gdi::CreateBitmap(8, 2, 1, 1, nullptr);
    gdi::SelectObject(dc_, mono);
    ASSERT_EQ(GdipGraphicsClear(onContext_, 0xFFFFFFFF), Ok);
    ASSERT_EQ(GdipFillRectangleI(onContext_, Solid(0xFF202020), 0, 0, 3, 1), Ok);
    EXPECT_EQ(gdi::GetPixel(dc_, 2, 0), 0x000000u);
    EXPECT_EQ(gdi::GetPixel(dc_, 3, 0), 0xFFFFFFu);
    gdi::SelectObject(dc_, dib_);
    gdi::DeleteObject(mono);
}

TEST_F(GdiplusGraphics, RefusesWhatIsNoContext) {
    auto* graphics = reinterpret_cast<GpGraphics*>(this);
    EXPECT_EQ(GdipCreateFromHDC(nullptr, &graphics), OutOfMemory);
    EXPECT_EQ(graphics, nullptr);
    EXPECT_EQ(GdipCreateFromHDC(reinterpret_cast<gdi::HDC>(0x1234), &graphics), OutOfMemory);
    EXPECT_EQ(GdipCreateFromHDC(dc_, nullptr), InvalidParameter);
}

TEST_F(GdiplusGraphics, DrawsOnTheScreenWithoutAWindow) {
    GpGraphics* graphics = nullptr;
    ASSERT_EQ(GdipCreateFromHWND(nullptr, &graphics), Ok);
    EXPECT_EQ(GdipFillRectangleI(graphics, Solid(kRed), 0, 0, 5, 5), Ok);
    EXPECT_EQ(GdipDeleteGraphics(graphics), Ok);
    EXPECT_EQ(GdipCreateFromHWND(this, &graphics), NotImplemented);
    EXPECT_EQ(GdipCreateFromHWND(nullptr, nullptr), InvalidParameter);
    ASSERT_EQ(GdipCreateFromHWNDICM(nullptr, &graphics), Ok);
    EXPECT_EQ(GdipDeleteGraphics(graphics), Ok);
    EXPECT_EQ(GdipCreateFromHWNDICM(this, &graphics), NotImplemented);
}

TEST_F(GdiplusGraphics, DrawsOnBitmaps) {
    ASSERT_EQ(GdipFillRectangle(onBitmap_, Solid(kGreen), 1, 2, 3, 4), Ok);
    ExpectSame(OnBitmap(), Box(1, 2, 4, 6, kGreen));
    GpGraphics* graphics = nullptr;
    EXPECT_EQ(GdipGetImageGraphicsContext(nullptr, &graphics), InvalidParameter);
    EXPECT_EQ(GdipGetImageGraphicsContext(AsImage(bitmap_), nullptr), InvalidParameter);
}

TEST_F(GdiplusGraphics, DrawsOnBitmapsOfAllFormatsThatCanBeDrawnOn) {
    for (const PixelFormat format :
         {PixelFormat16bppRGB555, PixelFormat16bppRGB565, PixelFormat24bppRGB, PixelFormat32bppRGB,
          PixelFormat32bppARGB, PixelFormat32bppPARGB, PixelFormat48bppRGB, PixelFormat64bppARGB,
          PixelFormat64bppPARGB}) {
        GpBitmap* bitmap = MakeBitmap(Box(0, 0, 0, 0, 0, kBlue), format);
        ASSERT_EQ(GdipFillRectangleI(GraphicsOf(bitmap), Solid(kRed), 3, 4, 5, 6), Ok);
        SCOPED_TRACE(format);
        ExpectSame(PictureOf(bitmap), Box(3, 4, 8, 10, kRed, kBlue));
    }
}

TEST_F(GdiplusGraphics, RefusesFormatsThatCannotBeDrawnOn) {
    for (const PixelFormat format :
         {PixelFormat1bppIndexed, PixelFormat4bppIndexed, PixelFormat8bppIndexed,
          PixelFormat16bppGrayScale, PixelFormat16bppARGB1555}) {
        GpBitmap* bitmap = MakeBitmap(Box(0, 0, 0, 0, 0, kBlue), format);
        GpGraphics* graphics = nullptr;
        EXPECT_EQ(GdipGetImageGraphicsContext(AsImage(bitmap), &graphics), OutOfMemory);
        EXPECT_EQ(graphics, nullptr);
    }
}

TEST_F(GdiplusGraphics, DrawsOnPixelsOfTheCallerInEitherRowOrder) {
    for (const INT stride : {kWidth * 4, -kWidth * 4}) {
        std::vector<uint32_t> memory(kWidth * kHeight);
        uint32_t* top = stride > 0 ? memory.data() : &memory[kWidth * (kHeight - 1)];
        GpBitmap* bitmap = nullptr;
        ASSERT_EQ(GdipCreateBitmapFromScan0(kWidth, kHeight, stride, PixelFormat32bppPARGB,
                                            reinterpret_cast<BYTE*>(top), &bitmap),
                  Ok);
        GpGraphics* graphics = nullptr;
        ASSERT_EQ(GdipGetImageGraphicsContext(AsImage(bitmap), &graphics), Ok);
        ASSERT_EQ(GdipFillRectangleI(graphics, Solid(0x80FF0000), 0, 0, 2, 1), Ok);
        EXPECT_EQ(top[1], 0x80800000u);
        EXPECT_EQ(top[2], 0u);
        EXPECT_EQ(GdipDeleteGraphics(graphics), Ok);
        EXPECT_EQ(GdipDisposeImage(AsImage(bitmap)), Ok);
    }
}

TEST_F(GdiplusGraphics, FollowsABitmapThatIsTurned) {
    GpBitmap* bitmap = MakeBitmap(Box(0, 0, 0, 0, 0), PixelFormat32bppPARGB);
    GpGraphics* graphics = GraphicsOf(bitmap);
    ASSERT_EQ(GdipGraphicsClear(graphics, kBlue), Ok);
    ASSERT_EQ(GdipFillRectangleI(graphics, Solid(kRed), 0, 0, 3, 1), Ok);
    ASSERT_EQ(GdipImageRotateFlip(AsImage(bitmap), Rotate90FlipNone), Ok);
    ASSERT_EQ(GdipFillRectangleI(graphics, Solid(kGreen), 0, kWidth - 1, kHeight, 1), Ok);
    test::TestPicture expected =
        Box(0, kWidth - 1, kHeight, kWidth, kGreen, kBlue, kHeight, kWidth);
    for (int y = 0; y < 3; ++y) expected.At(kHeight - 1, y) = kRed;
    ExpectSame(PictureOf(bitmap), expected);
}

TEST_F(GdiplusGraphics, LeavesPixelsAloneThatDrawingDoesNotChange) {
    // Straight colours under a low alpha don't survive being multiplied and divided.
    GpBitmap* faint = MakeBitmap(Box(0, 0, 0, 0, 0, 0x03A55AC3));
    GpGraphics* graphics = GraphicsOf(faint);
    ASSERT_EQ(GdipFillRectangleI(graphics, Solid(0x00FFFFFF), 0, 0, kWidth, kHeight), Ok);
    ASSERT_EQ(GdipFillRectangleI(graphics, Solid(kRed), 1, 1, 2, 2), Ok);
    ExpectSame(PictureOf(faint), Box(1, 1, 3, 3, kRed, 0x03A55AC3));
}

TEST_F(GdiplusGraphics, ClearsToExactColours) {
    ASSERT_EQ(GdipGraphicsClear(onBitmap_, 0x03A55AC3), Ok);
    ExpectSame(OnBitmap(), Box(0, 0, 0, 0, 0, 0x03A55AC3));
    EXPECT_EQ(GdipGraphicsClear(nullptr, 0), InvalidParameter);
}

TEST_F(GdiplusGraphics, IsBusyWhileItsBitmapIsLocked) {
    BitmapData data{};
    ASSERT_EQ(GdipBitmapLockBits(bitmap_, nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
              Ok);
    EXPECT_EQ(GdipGraphicsClear(onBitmap_, kRed), ObjectBusy);
    GpGraphics* graphics = nullptr;
    EXPECT_EQ(GdipGetImageGraphicsContext(AsImage(bitmap_), &graphics), ObjectBusy);
    ASSERT_EQ(GdipBitmapUnlockBits(bitmap_, &data), Ok);
    EXPECT_EQ(GdipGraphicsClear(onBitmap_, kRed), Ok);
}

TEST_F(GdiplusGraphics, DeletesOnce) {
    GpGraphics* graphics = nullptr;
    ASSERT_EQ(GdipCreateFromHDC(dc_, &graphics), Ok);
    EXPECT_EQ(GdipDeleteGraphics(graphics), Ok);
    EXPECT_EQ(GdipDeleteGraphics(graphics), InvalidParameter);
    EXPECT_EQ(GdipFlush(graphics, FlushIntentionSync), InvalidParameter);
    EXPECT_EQ(GdipFlush(onContext_, FlushIntentionFlush), Ok);
}

TEST_F(GdiplusGraphics, LendsTheContextItDrawsOn) {
    gdi::HDC lent = nullptr;
    ASSERT_EQ(GdipGetDC(onContext_, &lent), Ok);
    EXPECT_EQ(lent, dc_);
    EXPECT_EQ(GdipGraphicsClear(onContext_, kRed), ObjectBusy);
    EXPECT_EQ(GdipDeleteGraphics(onContext_), ObjectBusy);
    EXPECT_EQ(GdipReleaseDC(onContext_, nullptr), InvalidParameter);
    ASSERT_EQ(GdipReleaseDC(onContext_, lent), Ok);
    EXPECT_EQ(GdipReleaseDC(onContext_, lent), InvalidParameter);
    EXPECT_EQ(GdipGetDC(onContext_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGraphicsClear(onContext_, kRed), Ok);
}

TEST_F(GdiplusGraphics, LendsAContextOverABitmap) {
    ASSERT_EQ(GdipFillRectangleI(onBitmap_, Solid(kRed), 0, 0, 6, 6), Ok);
    gdi::HDC lent = nullptr;
    ASSERT_EQ(GdipGetDC(onBitmap_, &lent), Ok);
    EXPECT_EQ(gdi::GetPixel(lent, 5, 5), 0x0000FFu);
    gdi::PatBlt(lent, 4, 4, 4, 4, gdi::BLACKNESS);  // clear pixels become opaque black, too
    ASSERT_EQ(GdipReleaseDC(onBitmap_, lent), Ok);
    test::TestPicture expected = Box(0, 0, 6, 6, kRed);
    for (int y = 4; y < 8; ++y) {
        for (int x = 4; x < 8; ++x) expected.At(x, y) = 0xFF000000;
    }
    ExpectSame(OnBitmap(), expected);
}

}  // namespace
}  // namespace vxgui::gdiplus
