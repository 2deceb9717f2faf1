#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

#include "tests/support/Bitmaps.h"

namespace vxgui::test {

using namespace gdiplus;

GraphicsFixture::GraphicsFixture() {
    bitmap_ = MakeBitmap({kWidth, kHeight, std::vector<uint32_t>(kWidth * kHeight)});
    onBitmap_ = GraphicsOf(bitmap_);
    uint8_t* bits = nullptr;
    dib_ = gdi::CreateDib(kWidth, kHeight, 32, &bits);
    dc_ = gdi::CreateCompatibleDC(nullptr);
    gdi::SelectObject(dc_, dib_);
    EXPECT_EQ(GdipCreateFromHDC(dc_, &onContext_), Ok);
}

GraphicsFixture::~GraphicsFixture() {
    for (GpPath* path : paths_) GdipDeletePath(path);
    for (GpBrush* brush : brushes_) GdipDeleteBrush(brush);
    for (GpGraphics* graphics : graphics_) GdipDeleteGraphics(graphics);
    for (GpBitmap* bitmap : bitmaps_) GdipDisposeImage(AsImage(bitmap));
    GdipDeleteGraphics(onContext_);
    gdi::DeleteDC(dc_);
    gdi::DeleteObject(dib_);
}

GpBitmap* GraphicsFixture::MakeBitmap(const TestPicture& picture, PixelFormat format) {
    GpBitmap* bitmap = nullptr;
    EXPECT_EQ(GdipCreateBitmapFromScan0(picture.width, picture.height, 0, format, nullptr, &bitmap),
              Ok);
    bitmaps_.push_back(bitmap);
    auto* bits = const_cast<uint32_t*>(picture.pixels.data());
    BitmapData data{0, 0, picture.width * 4, 0, bits, 0};
    constexpr UINT kWrite = ImageLockModeWrite | ImageLockModeUserInputBuf;
    EXPECT_EQ(GdipBitmapLockBits(bitmap, nullptr, kWrite, PixelFormat32bppARGB, &data), Ok);
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    return bitmap;
}

GpGraphics* GraphicsFixture::GraphicsOf(GpBitmap* bitmap) {
    GpGraphics* graphics = nullptr;
    EXPECT_EQ(GdipGetImageGraphicsContext(AsImage(bitmap), &graphics), Ok);
    graphics_.push_back(graphics);
    return graphics;
}

GpPath* GraphicsFixture::Nested() {
    const GpPointF points[] = {{1, 1}, {9, 1}, {9, 9}, {1, 9}, {3, 3}, {7, 3}, {7, 7}, {3, 7}};
    const BYTE types[] = {0, 1, 1, 0x81, 0, 1, 1, 0x81};
    GpPath* path = nullptr;
    EXPECT_EQ(GdipCreatePath2(points, types, 8, FillModeAlternate, &path), Ok);
    paths_.push_back(path);
    return path;
}

GpBrush* GraphicsFixture::Solid(gdiplus::ARGB color) {
    GpBrush* brush = nullptr;
    EXPECT_EQ(GdipCreateSolidFill(color, &brush), Ok);
    brushes_.push_back(brush);
    return brush;
}

TestPicture GraphicsFixture::PictureOf(GpBitmap* bitmap) {
    BitmapData data{};
    EXPECT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
              Ok);
    TestPicture picture{static_cast<int>(data.Width), static_cast<int>(data.Height), {}};
    for (UINT y = 0; y < data.Height; ++y) {
        const auto* row = reinterpret_cast<const uint32_t*>(static_cast<uint8_t*>(data.Scan0) +
                                                            ptrdiff_t{data.Stride} * y);
        picture.pixels.insert(picture.pixels.end(), row, row + data.Width);
    }
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    return picture;
}

TestPicture GraphicsFixture::OnContext() const { return test::PictureOf(dib_); }

TestPicture GraphicsFixture::Box(int left, int top, int right, int bottom, gdiplus::ARGB color,
                                 gdiplus::ARGB around, int width, int height) {
    TestPicture picture{width, height, std::vector<uint32_t>(size_t(width) * height, around)};
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) picture.At(x, y) = color;
    }
    return picture;
}

void GraphicsFixture::ExpectSame(const TestPicture& actual, const TestPicture& expected,
                                 int tolerance) {
    const PictureDifference difference = ComparePictures(actual, expected, tolerance);
    EXPECT_TRUE(difference.Equal())
        << difference.pixels << " pixels differ, by up to " << difference.largest << ", first at ("
        << difference.firstX << ", " << difference.firstY << ")";
}

}  // namespace vxgui::test
