#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/Formats.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"

namespace vxgui::gdiplus {
namespace {

class BitmapPixels : public BitmapTest {};

TEST_F(BitmapPixels, AreSetAndReadOneByOne) {
    for (const PixelFormat format : kColorFormats) {
        GpBitmap* bitmap = Make(3, 2, format);
        ASSERT_EQ(GdipBitmapSetPixel(bitmap, 2, 1, 0xFFFF00FF), Ok);
        ARGB color = 0;
        ASSERT_EQ(GdipBitmapGetPixel(bitmap, 2, 1, &color), Ok);
        EXPECT_EQ(color, 0xFFFF00FF);
        ASSERT_EQ(GdipBitmapGetPixel(bitmap, 1, 1, &color), Ok);
        EXPECT_EQ(color & 0xFFFFFF, 0u);
    }
}

TEST_F(BitmapPixels, LieInTheBitmap) {
    GpBitmap* bitmap = Make(3, 2, PixelFormat32bppARGB);
    ARGB color = 0;
    for (const GpPoint& at : {GpPoint{-1, 0}, GpPoint{0, -1}, GpPoint{3, 0}, GpPoint{0, 2}}) {
        EXPECT_EQ(GdipBitmapGetPixel(bitmap, at.X, at.Y, &color), InvalidParameter);
        EXPECT_EQ(GdipBitmapSetPixel(bitmap, at.X, at.Y, 1), InvalidParameter);
    }
    EXPECT_EQ(GdipBitmapGetPixel(bitmap, 0, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipBitmapGetPixel(nullptr, 0, 0, &color), InvalidParameter);
    EXPECT_EQ(GdipBitmapSetPixel(nullptr, 0, 0, 0), InvalidParameter);
}

TEST_F(BitmapPixels, OfAnIndexedBitmapAreNotSet) {
    for (const PixelFormat format : kIndexedFormats) {
        GpBitmap* bitmap = Make(1, 1, format);
        ARGB color = 0;
        EXPECT_EQ(GdipBitmapSetPixel(bitmap, 0, 0, 0xFFFFFFFF), InvalidParameter);
        EXPECT_EQ(GdipBitmapGetPixel(bitmap, 0, 0, &color), Ok);
        EXPECT_EQ(color, 0xFF000000);
    }
}

TEST_F(BitmapPixels, HaveAResolution) {
    GpBitmap* bitmap = Make(1, 1, PixelFormat24bppRGB);
    REAL x = 0, y = 0;
    EXPECT_EQ(GdipGetImageHorizontalResolution(AsImage(bitmap), &x), Ok);
    EXPECT_EQ(x, 96);
    EXPECT_EQ(GdipBitmapSetResolution(bitmap, 72, 300), Ok);
    EXPECT_EQ(GdipGetImageHorizontalResolution(AsImage(bitmap), &x), Ok);
    EXPECT_EQ(GdipGetImageVerticalResolution(AsImage(bitmap), &y), Ok);
    EXPECT_EQ(x, 72);
    EXPECT_EQ(y, 300);
    EXPECT_EQ(GdipBitmapSetResolution(bitmap, 0, 1), InvalidParameter);
    EXPECT_EQ(GdipBitmapSetResolution(bitmap, 1, -1), InvalidParameter);
    EXPECT_EQ(GdipBitmapSetResolution(nullptr, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipGetImageHorizontalResolution(AsImage(bitmap), nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageVerticalResolution(nullptr, &y), InvalidParameter);
}

TEST_F(BitmapPixels, AreDescribed) {
    GpImage* image = AsImage(Make(7, 5, PixelFormat32bppARGB));
    GpRectF bounds{};
    Unit unit = UnitWorld;
    EXPECT_EQ(GdipGetImageBounds(image, &bounds, &unit), Ok);
    EXPECT_EQ(bounds.X, 0);
    EXPECT_EQ(bounds.Width, 7);
    EXPECT_EQ(bounds.Height, 5);
    EXPECT_EQ(unit, UnitPixel);
    REAL width = 0, height = 0;
    EXPECT_EQ(GdipGetImageDimension(image, &width, &height), Ok);
    EXPECT_EQ(width, 7);
    EXPECT_EQ(height, 5);
    ImageType type = ImageTypeUnknown;
    EXPECT_EQ(GdipGetImageType(image, &type), Ok);
    EXPECT_EQ(type, ImageTypeBitmap);
    UINT flags = 0;
    EXPECT_EQ(GdipGetImageFlags(image, &flags), Ok);
    EXPECT_EQ(flags, UINT{ImageFlagsHasAlpha});
    GUID raw{};
    EXPECT_EQ(GdipGetImageRawFormat(image, &raw), Ok);
    EXPECT_EQ(raw, ImageFormatMemoryBMP);
    PixelFormat format = 0;
    EXPECT_EQ(GdipGetImagePixelFormat(image, &format), Ok);
    EXPECT_EQ(format, PixelFormat32bppARGB);
}

TEST_F(BitmapPixels, AreNotDescribedToNobody) {
    GpImage* image = AsImage(Make(7, 5, PixelFormat32bppARGB));
    GpRectF bounds{};
    Unit unit = UnitWorld;
    EXPECT_EQ(GdipGetImageBounds(image, nullptr, &unit), InvalidParameter);
    EXPECT_EQ(GdipGetImageBounds(image, &bounds, nullptr), InvalidParameter);
    REAL width = 0;
    EXPECT_EQ(GdipGetImageDimension(image, &width, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageDimension(nullptr, &width, &width), InvalidParameter);
    EXPECT_EQ(GdipGetImageType(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageFlags(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageRawFormat(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImagePixelFormat(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageWidth(nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageHeight(image, nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
