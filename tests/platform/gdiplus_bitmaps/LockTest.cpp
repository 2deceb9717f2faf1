#include <cstring>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/Formats.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/words/Premultiply.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"

namespace vxgui::gdiplus {
namespace {

class Lock : public BitmapTest {
protected:
    static GpStatus Open(GpBitmap* bitmap, const GpRect& area, UINT flags, PixelFormat format,
                         BitmapData* data) {
        return GdipBitmapLockBits(bitmap, &area, flags, format, data);
    }
};

// What is left of a straight colour in a format: by hand, from the published layouts.
ARGB Kept(PixelFormat format, ARGB color) {
    const ARGB a = color >> 24, r = color >> 16 & 255, g = color >> 8 & 255, b = color & 255;
    const auto five = [](ARGB v) { return (v >> 3) << 3 | v >> 5; };
    const auto six = [](ARGB v) { return (v >> 2) << 2 | v >> 6; };
    const auto pack = [](ARGB al, ARGB re, ARGB gr, ARGB bl) {
        return al << 24 | re << 16 | gr << 8 | bl;
    };
    switch (format) {
        case PixelFormat16bppRGB555:
            return pack(255, five(r), five(g), five(b));
        case PixelFormat16bppRGB565:
            return pack(255, five(r), six(g), five(b));
        case PixelFormat16bppARGB1555:
            return pack(a >= 128 ? 255 : 0, five(r), five(g), five(b));
        case PixelFormat24bppRGB:
        case PixelFormat32bppRGB:
        case PixelFormat48bppRGB:
            return pack(255, r, g, b);
        case PixelFormat32bppPARGB:
            return Straight(Premultiplied(color));
        default:
            return color;
    }
}

TEST_F(Lock, ConvertsBetweenAllFormatsOfColours) {
    const std::vector<ARGB> pixels{0xFF010203, 0xFFFEDCBA, 0x80FF8040, 0xFF123456,
                                   0x7F00FF00, 0xFF808080, 0x01FFFFFF, 0xFF0000FF};
    for (const PixelFormat own : kColorFormats) {
        GpBitmap* bitmap = Make(4, 2, own, pixels);
        const std::vector<ARGB> stored = Pixels(bitmap);
        for (size_t i = 0; i < pixels.size(); ++i) {
            if (own == PixelFormat64bppPARGB) continue;  // has a test of its own
            EXPECT_EQ(stored[i], Kept(own, pixels[i])) << std::hex << own;
        }
        for (const PixelFormat format : kColorFormats) {
            if (format == PixelFormat64bppPARGB || IsDeep(own)) continue;
            const auto stride = static_cast<INT>(PaddedRowBytes(format, 4));
            std::vector<BYTE> bytes(static_cast<size_t>(stride) * 2);
            Transfer(bitmap, ImageLockModeRead, format, bytes.data(), stride);
            GpBitmap* copy = Make(4, 2, format);
            Write(copy, format, bytes.data(), stride);
            const std::vector<ARGB> seen = Pixels(copy);
            for (size_t i = 0; i < seen.size(); ++i) {
                EXPECT_EQ(seen[i], Kept(format, stored[i])) << std::hex << own << " " << format;
            }
        }
    }
}

TEST_F(Lock, WritesBackThroughAnyFormat) {
    for (const PixelFormat format : kColorFormats) {
        GpBitmap* bitmap = Make(3, 1, PixelFormat32bppARGB);
        BitmapData data{};
        ASSERT_EQ(Open(bitmap, {1, 0, 2, 1}, ImageLockModeWrite, format, &data), Ok);
        std::memset(data.Scan0, 0xFF, RowBytes(format, 2));
        ASSERT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
        EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0, 0xFFFFFFFF, 0xFFFFFFFF}))
            << std::hex << format;
    }
}

TEST_F(Lock, ReadingWritesNothingBack) {
    GpBitmap* bitmap = Make(2, 1, PixelFormat24bppRGB, {0xFF112233, 0xFF445566});
    BitmapData data{};
    ASSERT_EQ(Open(bitmap, {0, 0, 2, 1}, ImageLockModeRead, PixelFormat32bppARGB, &data), Ok);
    EXPECT_EQ(data.Stride, 8);
    std::memset(data.Scan0, 0, 8);
    ASSERT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFF112233, 0xFF445566}));
}

TEST_F(Lock, OpensIndexesAtAnyColumn) {
    for (const PixelFormat format : kIndexedFormats) {
        GpBitmap* bitmap = Make(19, 2, format);
        std::vector<uint8_t> bytes(40);
        for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i * 37 + 11);
        Write(bitmap, format, bytes.data(), 20);
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        for (INT x = 0; x < 19; ++x) {
            BitmapData data{};
            ASSERT_EQ(Open(bitmap, {x, 1, 1, 1}, ImageLockModeRead, format, &data), Ok);
            const int bits = BitsPerPixel(format);
            const uint8_t byte = bytes[static_cast<size_t>(20 + x * bits / 8)];
            const int index = byte >> (8 - bits - x * bits % 8) & ((1 << bits) - 1);
            EXPECT_EQ(*static_cast<uint8_t*>(data.Scan0) >> (8 - bits), index);
            ASSERT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
        }
    }
}

TEST_F(Lock, TakesTheNearestColourOfAPalette) {
    GpBitmap* bitmap = Make(3, 1, PixelFormat4bppIndexed);
    std::vector<ARGB> pixels{0xFFF01010, 0xFF0000F0, 0xFF7F7F80};
    Write(bitmap, PixelFormat32bppARGB, pixels.data(), 12);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFFFF0000, 0xFF0000FF, 0xFF808080}));
}

TEST_F(Lock, HasNoIndexesForColours) {
    BitmapData data{};
    EXPECT_EQ(Open(Make(1, 1, PixelFormat24bppRGB), {0, 0, 1, 1}, ImageLockModeRead,
                   PixelFormat8bppIndexed, &data),
              InvalidParameter);
}

TEST_F(Lock, FillsACallersBufferInEitherRowOrder) {
    GpBitmap* bitmap = Make(1, 2, PixelFormat24bppRGB, {0xFF000001, 0xFF000002});
    ARGB buffer[4] = {};
    BitmapData data{0, 0, -8, 0, buffer + 2, 0};
    ASSERT_EQ(Open(bitmap, {0, 0, 1, 2}, ImageLockModeRead | ImageLockModeUserInputBuf,
                   PixelFormat32bppARGB, &data),
              Ok);
    EXPECT_EQ(buffer[2], 0xFF000001);
    EXPECT_EQ(buffer[0], 0xFF000002);
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    data = {0, 0, 2, 0, buffer, 0};
    EXPECT_EQ(Open(bitmap, {0, 0, 1, 2}, ImageLockModeRead | ImageLockModeUserInputBuf,
                   PixelFormat32bppARGB, &data),
              InvalidParameter);
}

TEST_F(Lock, KeepsEveryoneElseAway) {
    GpBitmap* bitmap = Make(2, 2, PixelFormat32bppARGB);
    BitmapData data{}, second{};
    ASSERT_EQ(Open(bitmap, {0, 0, 1, 1}, ImageLockModeRead, PixelFormat32bppARGB, &data), Ok);
    EXPECT_EQ(Open(bitmap, {1, 1, 1, 1}, ImageLockModeRead, PixelFormat32bppARGB, &second),
              WrongState);
    ARGB color = 0;
    EXPECT_EQ(GdipBitmapGetPixel(bitmap, 0, 0, &color), ObjectBusy);
    EXPECT_EQ(GdipBitmapSetPixel(bitmap, 0, 0, color), ObjectBusy);
    EXPECT_EQ(GdipBitmapSetResolution(bitmap, 1, 1), ObjectBusy);
    EXPECT_EQ(GdipImageRotateFlip(AsImage(bitmap), Rotate90FlipNone), ObjectBusy);
    GpImage* copy = nullptr;
    EXPECT_EQ(GdipCloneImage(AsImage(bitmap), &copy), ObjectBusy);
    gdi::HBITMAP dib = nullptr;
    EXPECT_EQ(GdipCreateHBITMAPFromBitmap(bitmap, &dib, 0), ObjectBusy);
    UINT width = 0;
    EXPECT_EQ(GdipGetImageWidth(AsImage(bitmap), &width), Ok);
    EXPECT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    EXPECT_EQ(GdipBitmapGetPixel(bitmap, 0, 0, &color), Ok);
}

TEST_F(Lock, KeepsDeepColoursAmongDeepFormats) {
    const uint16_t deep[8] = {1, 4000, 8192, 4096, 5, 6, 7, 8192};
    GpBitmap* bitmap = Make(2, 1, PixelFormat64bppARGB);
    uint16_t bytes[8];
    std::memcpy(bytes, deep, sizeof deep);
    Write(bitmap, PixelFormat64bppARGB, bytes, 16);
    uint16_t premultiplied[8] = {};
    Transfer(bitmap, ImageLockModeRead, PixelFormat64bppPARGB, premultiplied, 16);
    const uint16_t expected[8] = {1, 2000, 4096, 4096, 5, 6, 7, 8192};
    EXPECT_TRUE(std::equal(premultiplied, premultiplied + 8, expected));
    uint16_t rgb[8] = {};
    Transfer(bitmap, ImageLockModeRead, PixelFormat48bppRGB, rgb, 12);
    EXPECT_TRUE(std::equal(rgb, rgb + 3, deep));
    EXPECT_TRUE(std::equal(rgb + 3, rgb + 6, deep + 4));
}

TEST_F(Lock, DeepFormatsHoldEveryByte) {
    for (const PixelFormat format : {PixelFormat48bppRGB, PixelFormat64bppARGB}) {
        std::vector<ARGB> pixels;
        for (ARGB i = 0; i < 256; ++i) {
            const ARGB alpha = format == PixelFormat48bppRGB ? 255 : i;
            pixels.push_back(alpha << 24 | i << 16 | (255 - i) << 8 | (i * 7 & 255));
        }
        EXPECT_EQ(Pixels(Make(256, 1, format, pixels)), pixels);
    }
}

TEST_F(Lock, FourInksMeanWhatTheyMix) {
    GpBitmap* bitmap = Make(4, 1, PixelFormat32bppCMYK);
    uint8_t inks[16] = {0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 255, 0, 255, 255, 128};
    Write(bitmap, PixelFormat32bppCMYK, inks, 16);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFFFFFFFF, 0xFF00FFFF, 0xFF000000, 0xFF7F0000}));
}

}  // namespace
}  // namespace vxgui::gdiplus
