#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/Formats.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB A = 0xFF101010, B = 0xFF212121, C = 0xFF313131, D = 0xFF424242, E = 0xFF525252,
               F = 0xFF636363;

class Clone : public BitmapTest {
protected:
    GpBitmap* Area(GpBitmap* bitmap, const GpRect& area, PixelFormat format) {
        GpBitmap* clone = nullptr;
        EXPECT_EQ(
            GdipCloneBitmapAreaI(area.X, area.Y, area.Width, area.Height, format, bitmap, &clone),
            Ok);
        return Keep(clone);
    }
};

TEST_F(Clone, OfAnImageIsItsOwn) {
    GpBitmap* bitmap = Make(2, 1, PixelFormat24bppRGB, {A, B});
    GdipBitmapSetResolution(bitmap, 10, 20);
    GpImage* clone = nullptr;
    ASSERT_EQ(GdipCloneImage(AsImage(bitmap), &clone), Ok);
    auto* copy = Keep(reinterpret_cast<GpBitmap*>(clone));
    GdipBitmapSetPixel(bitmap, 0, 0, 0xFFFFFFFF);
    EXPECT_EQ(Pixels(copy), (std::vector<ARGB>{A, B}));
    REAL dpi = 0;
    GdipGetImageVerticalResolution(clone, &dpi);
    EXPECT_EQ(dpi, 20);
    EXPECT_EQ(GdipCloneImage(nullptr, &clone), InvalidParameter);
    EXPECT_EQ(GdipCloneImage(AsImage(bitmap), nullptr), InvalidParameter);
}

TEST_F(Clone, OfAnAreaTakesAnyFormat) {
    GpBitmap* bitmap = Make(3, 2, PixelFormat32bppARGB, {A, B, C, D, E, F});
    EXPECT_EQ(Pixels(Area(bitmap, {1, 0, 2, 2}, PixelFormat24bppRGB)),
              (std::vector<ARGB>{B, C, E, F}));
    GpBitmap* same = Area(bitmap, {2, 1, 1, 1}, PixelFormatUndefined);
    PixelFormat format = 0;
    GdipGetImagePixelFormat(AsImage(same), &format);
    EXPECT_EQ(format, PixelFormat32bppARGB);
    EXPECT_EQ(Pixels(same), (std::vector<ARGB>{F}));
}

TEST_F(Clone, OfAnAreaWithRealSidesRoundsThem) {
    GpBitmap* bitmap = Make(3, 2, PixelFormat32bppARGB, {A, B, C, D, E, F});
    GpBitmap* clone = nullptr;
    ASSERT_EQ(GdipCloneBitmapArea(0.6f, 0.4f, 1.6f, 1.2f, PixelFormat32bppARGB, bitmap, &clone),
              Ok);
    EXPECT_EQ(Pixels(Keep(clone)), (std::vector<ARGB>{B, C}));
    EXPECT_EQ(GdipCloneBitmapArea(0, 0, 1, 1, PixelFormat32bppARGB, nullptr, &clone),
              InvalidParameter);
}

TEST_F(Clone, KeepsIndexesAndPalette) {
    GpBitmap* bitmap = Make(9, 1, PixelFormat1bppIndexed);
    uint8_t bits[4] = {0x5A, 0x80};
    Write(bitmap, PixelFormat1bppIndexed, bits, 4);
    const ARGB o = 0xFF000000, w = 0xFFFFFFFF;
    EXPECT_EQ(Pixels(Area(bitmap, {1, 0, 8, 1}, PixelFormat1bppIndexed)),
              (std::vector<ARGB>{w, o, w, w, o, w, o, w}));
}

TEST_F(Clone, OfAnAreaOutsideIsOutOfMemory) {
    GpBitmap* bitmap = Make(3, 2, PixelFormat32bppARGB);
    for (const GpRect& area : {GpRect{0, 0, 4, 1}, GpRect{-1, 0, 1, 1}, GpRect{0, 0, 0, 1}}) {
        GpBitmap* clone = nullptr;
        EXPECT_EQ(GdipCloneBitmapAreaI(area.X, area.Y, area.Width, area.Height,
                                       PixelFormat32bppARGB, bitmap, &clone),
                  OutOfMemory);
    }
}

struct Turned {
    RotateFlipType type;
    INT width;
    std::vector<ARGB> pixels;
};

// A B C
// D E F
const std::vector<Turned> kTurned = {
    {RotateNoneFlipNone, 3, {A, B, C, D, E, F}}, {Rotate90FlipNone, 2, {D, A, E, B, F, C}},
    {Rotate180FlipNone, 3, {F, E, D, C, B, A}},  {Rotate270FlipNone, 2, {C, F, B, E, A, D}},
    {RotateNoneFlipX, 3, {C, B, A, F, E, D}},    {Rotate90FlipX, 2, {A, D, B, E, C, F}},
    {Rotate180FlipX, 3, {D, E, F, A, B, C}},     {Rotate270FlipX, 2, {F, C, E, B, D, A}},
};

TEST_F(Clone, AllEightTurns) {
    for (const Turned& each : kTurned) {
        for (const PixelFormat format : {PixelFormat24bppRGB, PixelFormat32bppARGB,
                                         PixelFormat16bppRGB555, PixelFormat64bppARGB}) {
            GpBitmap* bitmap = Make(3, 2, format, {A, B, C, D, E, F});
            GdipBitmapSetResolution(bitmap, 10, 20);
            const std::vector<ARGB> stored = Pixels(bitmap);
            ASSERT_EQ(GdipImageRotateFlip(AsImage(bitmap), each.type), Ok);
            UINT width = 0;
            REAL dpi = 0;
            GdipGetImageWidth(AsImage(bitmap), &width);
            GdipGetImageHorizontalResolution(AsImage(bitmap), &dpi);
            EXPECT_EQ(width, static_cast<UINT>(each.width));
            EXPECT_EQ(dpi, each.width == 3 ? 10 : 20);
            std::vector<ARGB> expected = each.pixels;
            for (ARGB& pixel : expected) {
                const ARGB all[] = {A, B, C, D, E, F};
                pixel = stored[static_cast<size_t>(std::find(all, all + 6, pixel) - all)];
            }
            EXPECT_EQ(Pixels(bitmap), expected) << each.type;
        }
    }
    EXPECT_EQ(GdipImageRotateFlip(nullptr, Rotate90FlipNone), InvalidParameter);
    EXPECT_EQ(GdipImageRotateFlip(AsImage(Make(1, 1, PixelFormat24bppRGB)),
                                  static_cast<RotateFlipType>(8)),
              InvalidParameter);
}

TEST_F(Clone, TurnsIndexesToo) {
    for (const PixelFormat format : kIndexedFormats) {
        const ARGB o = 0xFF000000, w = 0xFFFFFFFF;
        GpBitmap* bitmap = Make(3, 2, format, {o, w, w, w, o, w});
        ASSERT_EQ(GdipImageRotateFlip(AsImage(bitmap), Rotate90FlipNone), Ok);
        EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{w, o, o, w, w, w}));
    }
}

TEST_F(Clone, AThumbnailIsScaled) {
    GpImage* image = AsImage(Make(4, 2, PixelFormat32bppARGB, {A, A, B, B, A, A, B, B}));
    const auto size = [&](UINT width, UINT height) {
        GpImage* thumbnail = nullptr;
        EXPECT_EQ(GdipGetImageThumbnail(image, width, height, &thumbnail, nullptr, nullptr), Ok);
        Keep(reinterpret_cast<GpBitmap*>(thumbnail));
        UINT w = 0, h = 0;
        GdipGetImageWidth(thumbnail, &w);
        GdipGetImageHeight(thumbnail, &h);
        return std::pair(w, h);
    };
    EXPECT_EQ(size(0, 0), std::pair(120u, 120u));
    EXPECT_EQ(size(8, 0), std::pair(8u, 4u));
    EXPECT_EQ(size(0, 1), std::pair(2u, 1u));
    GpImage* thumbnail = nullptr;
    ASSERT_EQ(GdipGetImageThumbnail(image, 2, 1, &thumbnail, nullptr, nullptr), Ok);
    const std::vector<ARGB> pixels = Pixels(Keep(reinterpret_cast<GpBitmap*>(thumbnail)));
    EXPECT_NEAR(static_cast<double>(pixels[0] & 255), 0x10, 2);
    EXPECT_NEAR(static_cast<double>(pixels[1] & 255), 0x21, 2);
    EXPECT_EQ(pixels[0] >> 24, 255u);
}

TEST_F(Clone, AStoredThumbnailServes) {
    GpImage* image = AsImage(Make(4, 4, PixelFormat24bppRGB));
    GpImage* red = AsImage(Make(2, 2, PixelFormat24bppRGB, std::vector<ARGB>(4, 0xFFFF0000)));
    const Ref<ole::IStream> stream = ole::CreateStreamOnHGlobal();
    ASSERT_EQ(GdipSaveImageToStream(red, stream.get(), &CodecPNG, nullptr), Ok);
    std::vector<uint8_t> bytes(stream->Size());
    stream->Seek(0, ole::SeekOrigin::Set);
    stream->Read(bytes.data(), static_cast<uint32_t>(bytes.size()));
    const PropertyItem item{0x501B, static_cast<DWORD>(bytes.size()), 1, bytes.data()};
    ASSERT_EQ(GdipSetPropertyItem(image, &item), Ok);
    GpImage* thumbnail = nullptr;
    ASSERT_EQ(GdipGetImageThumbnail(image, 3, 0, &thumbnail, nullptr, nullptr), Ok);
    EXPECT_EQ(Pixels(Keep(reinterpret_cast<GpBitmap*>(thumbnail))),
              std::vector<ARGB>(9, 0xFFFF0000));
}

TEST_F(Clone, AThumbnailCanBeCalledOff) {
    GpImage* image = AsImage(Make(4, 2, PixelFormat24bppRGB));
    GpImage* thumbnail = nullptr;
    const auto abort = [](void* data) -> BOOL { return *static_cast<int*>(data) == 5; };
    int five = 5;
    EXPECT_EQ(GdipGetImageThumbnail(image, 2, 1, &thumbnail, abort, &five), Aborted);
    EXPECT_EQ(GdipGetImageThumbnail(nullptr, 2, 1, &thumbnail, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageThumbnail(image, 40000, 1, &thumbnail, nullptr, nullptr),
              InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
