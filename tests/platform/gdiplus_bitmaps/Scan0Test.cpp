#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/words/Premultiply.h"

namespace vxgui::gdiplus {
namespace {

constexpr PixelFormat kFormats[] = {
    PixelFormat1bppIndexed, PixelFormat4bppIndexed,    PixelFormat8bppIndexed,
    PixelFormat16bppRGB555, PixelFormat16bppRGB565,    PixelFormat16bppARGB1555,
    PixelFormat24bppRGB,    PixelFormat32bppRGB,       PixelFormat32bppARGB,
    PixelFormat32bppPARGB,  PixelFormat48bppRGB,       PixelFormat64bppARGB,
    PixelFormat64bppPARGB,  PixelFormat16bppGrayScale, PixelFormat32bppCMYK,
};

class Scan0 : public BitmapTest {};

TEST_F(Scan0, MakesAClearBitmapOfEachFormat) {
    for (const PixelFormat format : kFormats) {
        GpBitmap* bitmap = Make(5, 3, format);
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        EXPECT_EQ(found->Format(), format);
        EXPECT_EQ(found->Width(), 5u);
        EXPECT_EQ(found->Height(), 3u);
        EXPECT_EQ(found->Stride() % 4, 0);
        for (const ARGB pixel : Pixels(bitmap)) {
            const ARGB alpha = pixel >> 24;
            EXPECT_EQ(alpha, format & PixelFormatAlpha ? 0u : 255u) << std::hex << format;
        }
    }
}

TEST_F(Scan0, BlackAndWhiteSurviveInEachFormat) {
    for (const PixelFormat format : kFormats) {
        const std::vector<ARGB> pixels{0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000};
        EXPECT_EQ(Pixels(Make(2, 2, format, pixels)), pixels) << std::hex << format;
    }
}

TEST_F(Scan0, LivesInTheCallersMemory) {
    ARGB memory[6] = {1, 2, 3, 4, 5, 6};
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromScan0(2, 3, 8, PixelFormat32bppARGB,
                                        reinterpret_cast<BYTE*>(memory), &bitmap),
              Ok);
    Keep(bitmap);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{1, 2, 3, 4, 5, 6}));
    memory[3] = 44;
    EXPECT_EQ(Pixels(bitmap)[3], 44u);
    std::vector<ARGB> next{7, 8, 9, 10, 11, 12};
    Write(bitmap, PixelFormat32bppARGB, next.data(), 8);
    EXPECT_EQ(memory[5], 12u);
}

TEST_F(Scan0, ANegativeStrideStandsTheMemoryOnItsHead) {
    ARGB memory[6] = {1, 2, 3, 4, 5, 6};
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromScan0(2, 3, -8, PixelFormat32bppARGB,
                                        reinterpret_cast<BYTE*>(memory + 4), &bitmap),
              Ok);
    EXPECT_EQ(Pixels(Keep(bitmap)), (std::vector<ARGB>{5, 6, 3, 4, 1, 2}));
}

TEST_F(Scan0, RefusesWhatIsNoBitmap) {
    BYTE memory[64] = {};
    struct Case {
        INT width, height, stride;
        PixelFormat format;
        BYTE* scan0;
    };
    const Case cases[] = {
        {0, 1, 0, PixelFormat32bppARGB, nullptr},  {1, 0, 0, PixelFormat32bppARGB, nullptr},
        {-1, 1, 0, PixelFormat32bppARGB, nullptr}, {1, -1, 0, PixelFormat32bppARGB, nullptr},
        {1, 1, 0, PixelFormatUndefined, nullptr},  {1, 1, 0, 12345, nullptr},
        {1, 1, 0, PixelFormat24bppRGB, memory},    {1, 1, 3, PixelFormat24bppRGB, memory},
        {2, 1, 4, PixelFormat24bppRGB, memory},    {2, 1, -4, PixelFormat24bppRGB, memory},
    };
    for (const Case& each : cases) {
        auto* bitmap = reinterpret_cast<GpBitmap*>(1);
        EXPECT_EQ(GdipCreateBitmapFromScan0(each.width, each.height, each.stride, each.format,
                                            each.scan0, &bitmap),
                  InvalidParameter);
        EXPECT_EQ(bitmap, nullptr);
    }
    EXPECT_EQ(GdipCreateBitmapFromScan0(1, 1, 0, PixelFormat32bppARGB, nullptr, nullptr),
              InvalidParameter);
    GpBitmap* bitmap = nullptr;
    EXPECT_EQ(GdipCreateBitmapFromScan0(60000, 60000, 0, PixelFormat32bppARGB, nullptr, &bitmap),
              OutOfMemory);
}

TEST_F(Scan0, PremultipliedWritesLeaveEqualPixelsToTheBit) {
    std::vector<ARGB> pixels;
    for (ARGB i = 0; i < 600; ++i) pixels.push_back((i << 24 | 0x00FEDC10) ^ i);
    const Ref<Bitmap> bitmap = Find<Bitmap>(Make(600, 1, PixelFormat32bppARGB, pixels));
    std::vector<ARGB> read(600);
    bitmap->ReadPremultiplied(0, 0, read);
    for (size_t i = 0; i < read.size(); ++i) ASSERT_EQ(read[i], Premultiplied(pixels[i]));
    read[300] = 0x80400000;
    bitmap->WritePremultiplied(0, 0, read);
    std::vector<ARGB> now(600);
    bitmap->ReadStraight(0, 0, now);
    pixels[300] = 0x80800000;
    EXPECT_EQ(now, pixels);
}

}  // namespace
}  // namespace vxgui::gdiplus
