#include <gtest/gtest.h>

#include "tests/support/Bitmaps.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/codecs.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {
namespace {

class GdiplusBitmap : public testing::Test {
protected:
    ~GdiplusBitmap() override {
        for (GpBitmap* bitmap : made_) GdipDisposeImage(AsImage(bitmap));
    }

    static GpImage* AsImage(GpBitmap* bitmap) { return reinterpret_cast<GpImage*>(bitmap); }

    // A bitmap of these pixels, the top row first.
    GpBitmap* Make(int32_t width, int32_t height, std::vector<uint32_t> pixels) {
        const Ref<Bitmap> bitmap = Bitmap::Create(width, height, PixelFormat32bppARGB);
        for (int32_t y = 0; y < height; ++y) {
            bitmap->WriteStraight(
                0, y,
                std::span(pixels).subspan(static_cast<size_t>(y) * static_cast<size_t>(width),
                                          static_cast<size_t>(width)));
        }
        return Keep(static_cast<GpBitmap*>(EnterObject(bitmap)));
    }
    GpBitmap* FromFile(const std::string& file) {
        GpBitmap* bitmap = nullptr;
        EXPECT_EQ(GdipCreateBitmapFromFile(String(test::ImagePath(file)).data(), &bitmap), Ok);
        return Keep(bitmap);
    }
    GpBitmap* Keep(GpBitmap* bitmap) {
        made_.push_back(bitmap);
        return bitmap;
    }

    test::GdiplusSession session_;
    std::vector<GpBitmap*> made_;
};

void ExpectPixels(GpBitmap* bitmap, const test::TestPicture& expected, int tolerance) {
    BitmapData data{};
    ASSERT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
              Ok);
    test::TestPicture picture{static_cast<int>(data.Width), static_cast<int>(data.Height), {}};
    const auto* pixels = static_cast<const uint32_t*>(data.Scan0);
    picture.pixels.assign(pixels, pixels + data.Width * data.Height);
    EXPECT_TRUE(test::ComparePictures(picture, expected, tolerance).Equal());
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
}

TEST_F(GdiplusBitmap, ReadsFiveFormatsFromFiles) {
    for (const char* file : {"bmp-24.bmp", "png-rgba-8.png", "gif-89.gif", "tiff-rgba.tif"}) {
        ExpectPixels(FromFile(file), test::ExpectedImage(file), 0);
    }
    ExpectPixels(FromFile("jpeg-444.jpg"), test::ExpectedImage("jpeg-444.jpg"), 2);
}

TEST_F(GdiplusBitmap, ReadsStreamsFromTheirStart) {
    const auto stream = ole::CreateStreamOnHGlobal(test::ReadTestFile("images/png-rgba-8.png"));
    stream->Seek(5, ole::SeekOrigin::Set);
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromStream(stream.get(), &bitmap), Ok);
    ExpectPixels(Keep(bitmap), test::ExpectedImage("png-rgba-8.png"), 0);
}

TEST_F(GdiplusBitmap, LoadsImagesToo) {
    GpImage* image = nullptr;
    ASSERT_EQ(GdipLoadImageFromFile(String(test::ImagePath("gif-89.gif")).data(), &image), Ok);
    UINT width = 0, height = 0;
    EXPECT_EQ(GdipGetImageWidth(image, &width), Ok);
    EXPECT_EQ(GdipGetImageHeight(image, &height), Ok);
    EXPECT_EQ(width, 13u);
    EXPECT_EQ(height, 11u);
    EXPECT_EQ(GdipGetImageWidth(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipDisposeImage(image), Ok);
}

TEST_F(GdiplusBitmap, TellsWhyThereIsNone) {
    const String missing = test::ImagePath("none.png");
    const String other = test::ImagePath("tga-24.tga");
    auto* bitmap = reinterpret_cast<GpBitmap*>(1);
    EXPECT_EQ(GdipCreateBitmapFromFile(missing.data(), &bitmap), InvalidParameter);
    EXPECT_EQ(bitmap, nullptr);
    EXPECT_EQ(GdipCreateBitmapFromFile(other.data(), &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromFile(nullptr, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromFile(other.data(), nullptr), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromStream(nullptr, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromStream(ole::CreateStreamOnHGlobal().get(), &bitmap),
              InvalidParameter);
    GpImage* image = nullptr;
    EXPECT_EQ(GdipLoadImageFromFile(missing.data(), &image), FileNotFound);
    EXPECT_EQ(GdipLoadImageFromFile(other.data(), &image), OutOfMemory);
    EXPECT_EQ(GdipLoadImageFromFile(nullptr, &image), InvalidParameter);
}

TEST_F(GdiplusBitmap, AHandleThatIsDeadOrOfNoBitmapIsAnInvalidParameter) {
    GpBitmap* bitmap = Make(1, 1, {0});
    EXPECT_EQ(GdipDisposeImage(AsImage(bitmap)), Ok);
    UINT width = 77;
    BitmapData data{};
    gdi::HBITMAP dib = nullptr;
    char other = 0;
    for (void* handle :
         {static_cast<void*>(bitmap), static_cast<void*>(nullptr), static_cast<void*>(&other)}) {
        EXPECT_EQ(GdipDisposeImage(static_cast<GpImage*>(handle)), InvalidParameter);
        EXPECT_EQ(GdipGetImageWidth(static_cast<GpImage*>(handle), &width), InvalidParameter);
        EXPECT_EQ(GdipCreateHBITMAPFromBitmap(static_cast<GpBitmap*>(handle), &dib, 0),
                  InvalidParameter);
        EXPECT_EQ(GdipBitmapLockBits(static_cast<GpBitmap*>(handle), nullptr, 1,
                                     PixelFormat32bppARGB, &data),
                  InvalidParameter);
    }
    EXPECT_EQ(width, 77u);
    EXPECT_NE(Make(1, 1, {0}), bitmap) << "a handle isn't used again";
}

TEST_F(GdiplusBitmap, DisposingLeavesNothing) {
    const size_t before = LiveObjectCount();
    GpBitmap* bitmap = FromFile("bmp-24.bmp");
    EXPECT_EQ(LiveObjectCount(), before + 1);
    GdipDisposeImage(AsImage(bitmap));
    EXPECT_EQ(LiveObjectCount(), before);
}

test::TestPicture DibOf(GpBitmap* bitmap, ARGB background) {
    gdi::HBITMAP dib = nullptr;
    EXPECT_EQ(GdipCreateHBITMAPFromBitmap(bitmap, &dib, background), Ok);
    const test::TestPicture picture = test::PictureOf(dib);
    gdi::DIBSECTION section{};
    EXPECT_EQ(gdi::GetObjectA(dib, sizeof section, &section), gdi::kDibSectionRecordSize);
    EXPECT_EQ(section.dsBm.bmBitsPixel, 32);
    EXPECT_GT(section.dsBmih.biHeight, 0) << "the bottom row first";
    gdi::DeleteObject(dib);
    return picture;
}

TEST_F(GdiplusBitmap, ADibKeepsThePixelsInTheirPlaces) {
    const test::TestPicture dib =
        DibOf(Make(2, 2, {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004}), 0);
    EXPECT_EQ(dib.width, 2);
    EXPECT_EQ(dib.height, 2);
    EXPECT_EQ(dib.pixels, (std::vector<uint32_t>{0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004}));
}

TEST_F(GdiplusBitmap, ADibIsPremultipliedOverTheBackgroundAndKeepsItsAlpha) {
    // All pairs of a channel and an alpha: the blue of pixel (c, a) is c.
    std::vector<uint32_t> pixels;
    for (uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (uint32_t channel = 0; channel < 256; ++channel)
            pixels.push_back(alpha << 24 | channel);
    }
    GpBitmap* bitmap = Make(256, 256, pixels);
    for (const uint32_t background : {0x00000000u, 0xFFFFFFFFu, 0x000000FFu, 0x12804020u}) {
        const test::TestPicture dib = DibOf(bitmap, background);
        for (uint32_t alpha = 0; alpha < 256; ++alpha) {
            const uint32_t red = (background >> 16 & 255) * (255 - alpha) / 255;
            for (uint32_t channel = 0; channel < 256; ++channel) {
                const uint32_t pixel = dib.At(static_cast<int>(channel), static_cast<int>(alpha));
                const auto own = static_cast<uint32_t>(channel * alpha / 255.0 + 0.5);
                ASSERT_EQ(pixel & 255, own + (background & 255) * (255 - alpha) / 255);
                ASSERT_EQ(pixel >> 16 & 255, red);
                ASSERT_EQ(pixel >> 24, alpha);
            }
        }
    }
}

TEST_F(GdiplusBitmap, ALockOpensThePixelsThemselves) {
    GpBitmap* bitmap = Make(3, 2, {1, 2, 3, 4, 5, 6});
    const GpRect area{1, 1, 2, 1};
    BitmapData data{};
    ASSERT_EQ(GdipBitmapLockBits(bitmap, &area, ImageLockModeRead | ImageLockModeWrite,
                                 PixelFormat32bppARGB, &data),
              Ok);
    EXPECT_EQ(data.Width, 2u);
    EXPECT_EQ(data.Height, 1u);
    EXPECT_EQ(data.Stride, 12) << "the whole bitmap's";
    EXPECT_EQ(data.PixelFormat, PixelFormat32bppARGB);
    auto* pixels = static_cast<uint32_t*>(data.Scan0);
    EXPECT_EQ(pixels[0], 5u);
    pixels[1] = 60;
    ASSERT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    ExpectPixels(bitmap, {3, 2, {1, 2, 3, 4, 5, 60}}, 0);
}

TEST_F(GdiplusBitmap, ALockFillsTheCallersBuffer) {
    GpBitmap* bitmap = Make(3, 2, {1, 2, 3, 4, 5, 6});
    const GpRect area{1, 0, 2, 2};
    uint32_t buffer[4] = {};
    BitmapData data{};
    data.Scan0 = buffer;
    data.Stride = 8;
    ASSERT_EQ(GdipBitmapLockBits(bitmap, &area,
                                 ImageLockModeRead | ImageLockModeWrite | ImageLockModeUserInputBuf,
                                 PixelFormat32bppARGB, &data),
              Ok);
    EXPECT_EQ(std::vector<uint32_t>(buffer, buffer + 4), (std::vector<uint32_t>{2, 3, 5, 6}));
    buffer[2] = 50;
    ASSERT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    ExpectPixels(bitmap, {3, 2, {1, 2, 3, 4, 50, 6}}, 0);

    data.Scan0 = nullptr;
    EXPECT_EQ(GdipBitmapLockBits(bitmap, &area, ImageLockModeRead | ImageLockModeUserInputBuf,
                                 PixelFormat32bppARGB, &data),
              InvalidParameter);
}

TEST_F(GdiplusBitmap, ALockLiesWithinTheBitmap) {
    GpBitmap* bitmap = Make(3, 2, {1, 2, 3, 4, 5, 6});
    BitmapData data{};
    for (const GpRect& area : {GpRect{-1, 0, 1, 1}, GpRect{0, -1, 1, 1}, GpRect{0, 0, 4, 1},
                               GpRect{0, 0, 1, 3}, GpRect{2, 0, 2, 1}, GpRect{0, 0, 0, 1},
                               GpRect{0, 0, 1, -1}, GpRect{2, 0, INT32_MAX, 1}}) {
        EXPECT_EQ(GdipBitmapLockBits(bitmap, &area, ImageLockModeRead, PixelFormat32bppARGB, &data),
                  InvalidParameter)
            << area.X << "," << area.Y << " " << area.Width << "x" << area.Height;
    }
    EXPECT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, PixelFormat32bppARGB, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, 12345, &data),
              InvalidParameter);
}

TEST_F(GdiplusBitmap, ThereIsOneLockAtATime) {
    GpBitmap* bitmap = Make(1, 1, {1});
    BitmapData data{};
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), WrongState);
    ASSERT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
              Ok);
    EXPECT_EQ(GdipBitmapLockBits(bitmap, nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
              WrongState);
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), WrongState);
}

}  // namespace
}  // namespace vxgui::gdiplus
