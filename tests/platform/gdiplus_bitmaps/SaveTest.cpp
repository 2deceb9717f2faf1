#include <algorithm>
#include <cmath>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/Formats.h"
#include "tests/platform/gdiplus_bitmaps/OtherProgram.h"
#include "tests/platform/gdiplus_bitmaps/Parameters.h"
#include "tests/support/TemporaryFolder.h"

namespace vxgui::gdiplus {
namespace {

struct Target {
    const char* name;
    CLSID codec;
};
const Target kLossless[] = {
    {"a.bmp", CodecBMP}, {"a.png", CodecPNG}, {"a.gif", CodecGIF}, {"a.tif", CodecTIFF}};

// Programs widen 5 bits in ways of their own.
bool Is16Bit(PixelFormat format) {
    return format == PixelFormat16bppRGB555 || format == PixelFormat16bppRGB565;
}

class Save : public BitmapTest {
protected:
    // Every pixel different in a 16 x 9 motif, opaque.
    static std::vector<ARGB> Motif() {
        std::vector<ARGB> pixels;
        for (ARGB i = 0; i < 144; ++i) {
            pixels.push_back(0xFF000000 | (i * 8 & 248) << 16 | (i * 24 & 248) << 8 |
                             (i & 31) << 3);
        }
        return pixels;
    }
    GpBitmap* Open(const String& path) {
        GpBitmap* bitmap = nullptr;
        EXPECT_EQ(GdipCreateBitmapFromFile(path.data(), &bitmap), Ok) << path.Utf8();
        return Keep(bitmap);
    }
    String SaveAs(GpBitmap* bitmap, const Target& target,
                  const EncoderParameters* parameters = nullptr) {
        const String path = folder_.Path(target.name);
        EXPECT_EQ(GdipSaveImageToFile(AsImage(bitmap), path.data(), &target.codec, parameters), Ok)
            << target.name;
        return path;
    }
    static void ExpectClose(const std::vector<ARGB>& a, const std::vector<ARGB>& b, int tolerance) {
        ASSERT_EQ(a.size(), b.size());
        for (size_t i = 0; i < a.size(); ++i) {
            for (int shift = 0; shift < 32; shift += 8) {
                const int x = static_cast<int>(a[i] >> shift & 255);
                const int y = static_cast<int>(b[i] >> shift & 255);
                ASSERT_NEAR(x, y, tolerance) << "pixel " << i << " shift " << shift;
            }
        }
    }

    const test::TemporaryFolder folder_;
};

TEST_F(Save, LosslessFormatsKeepEveryPixelOfEveryFormat) {
    for (const PixelFormat format : kColorFormats) {
        GpBitmap* bitmap = Make(16, 9, format, Motif());
        const std::vector<ARGB> stored = Pixels(bitmap);
        for (const Target& target : kLossless) {
            EXPECT_EQ(Pixels(Open(SaveAs(bitmap, target))), stored)
                << target.name << " " << std::hex << format;
        }
    }
}

TEST_F(Save, IndexedFormatsStayIndexed) {
    for (const PixelFormat format : kIndexedFormats) {
        GpBitmap* bitmap = Make(16, 9, format, Motif());
        const std::vector<ARGB> stored = Pixels(bitmap);
        for (const Target& target : kLossless) {
            GpBitmap* back = Open(SaveAs(bitmap, target));
            EXPECT_EQ(Pixels(back), stored) << target.name << " " << std::hex << format;
            PixelFormat now = 0;
            GdipGetImagePixelFormat(AsImage(back), &now);
            EXPECT_EQ(now, target.codec == CodecGIF ? PixelFormat8bppIndexed : format)
                << target.name;
        }
    }
}

TEST_F(Save, AnotherProgramReadsWhatIsWritten) {
    if (!test::HasOtherProgram()) GTEST_SKIP() << "ImageMagick's convert isn't installed";
    struct Written {
        std::vector<ARGB> stored;
        int tolerance;
    };
    std::vector<Written> written;
    std::vector<std::string> files;
    for (const PixelFormat format :
         {PixelFormat24bppRGB, PixelFormat32bppRGB, PixelFormat16bppRGB555, PixelFormat16bppRGB565,
          PixelFormat8bppIndexed, PixelFormat4bppIndexed, PixelFormat1bppIndexed}) {
        GpBitmap* bitmap = Make(16, 9, format, Motif());
        for (const Target& target : kLossless) {
            const std::string name = std::to_string(written.size()) + target.name;
            files.push_back(SaveAs(bitmap, {name.c_str(), target.codec}).Utf8());
            written.push_back({Pixels(bitmap), Is16Bit(format) ? 8 : 0});
        }
    }
    const std::vector<ARGB> theirs = test::DecodeByOtherProgram(files);
    ASSERT_EQ(theirs.size(), written.size() * 144);
    for (size_t i = 0; i < written.size(); ++i) {
        SCOPED_TRACE(files[i]);
        const auto first = theirs.begin() + static_cast<ptrdiff_t>(i * 144);
        ExpectClose({first, first + 144}, written[i].stored, written[i].tolerance);
    }
}

TEST_F(Save, AlphaIsKeptWhereTheFormatHasIt) {
    std::vector<ARGB> pixels = Motif();
    for (size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = (pixels[i] & 0xFFFFFF) | static_cast<ARGB>(i * 255 / 143) << 24;
    }
    GpBitmap* bitmap = Make(16, 9, PixelFormat32bppARGB, pixels);
    EXPECT_EQ(Pixels(Open(SaveAs(bitmap, kLossless[1]))), pixels);
    EXPECT_EQ(Pixels(Open(SaveAs(bitmap, kLossless[3]))), pixels);
    if (!test::HasOtherProgram()) return;
    std::vector<ARGB> twice = pixels;
    twice.insert(twice.end(), pixels.begin(), pixels.end());
    EXPECT_EQ(
        test::DecodeByOtherProgram({folder_.Path("a.png").Utf8(), folder_.Path("a.tif").Utf8()}),
        twice);
}

TEST_F(Save, AGifHasOneClearColour) {
    GpBitmap* bitmap = Make(3, 1, PixelFormat32bppARGB, {0x00123456, 0xFF102030, 0xFFFFFFFF});
    const std::vector<ARGB> back = Pixels(Open(SaveAs(bitmap, kLossless[2])));
    EXPECT_EQ(back[0] >> 24, 0u);
    EXPECT_EQ(back[1], 0xFF102030);
    EXPECT_EQ(back[2], 0xFFFFFFFF);
}

TEST_F(Save, AJpegHasItsQuality) {
    std::vector<ARGB> pixels(64 * 64);
    for (ARGB i = 0; i < pixels.size(); ++i) {
        pixels[i] = 0xFF000000 | (i % 64 * 4) << 16 | (i / 64 * 4) << 8 | (i * 7 & 255);
    }
    GpBitmap* bitmap = Make(64, 64, PixelFormat24bppRGB, pixels);
    std::vector<uint64_t> sizes;
    for (const UINT32 quality : {5u, 50u, 95u}) {
        const Parameter parameter(EncoderQuality, quality);
        const Ref<ole::IStream> stream = ole::CreateStreamOnHGlobal();
        ASSERT_EQ(
            GdipSaveImageToStream(AsImage(bitmap), stream.get(), &CodecJPEG, parameter.List()), Ok);
        sizes.push_back(stream->Size());
    }
    EXPECT_LT(sizes[0], sizes[1]);
    EXPECT_LT(sizes[1], sizes[2]);
}

TEST_F(Save, AJpegIsCloseAndBlackWhereClear) {
    const Parameter best(EncoderQuality, 100);
    GpBitmap* bitmap = Make(16, 16, PixelFormat32bppARGB, std::vector<ARGB>(256, 0xFF3C78B4));
    const String path = SaveAs(bitmap, {"a.jpg", CodecJPEG}, best.List());
    ExpectClose(Pixels(Open(path)), Pixels(bitmap), 3);
    if (test::HasOtherProgram()) {
        ExpectClose(test::DecodeByOtherProgram({path.Utf8()}), Pixels(bitmap), 3);
    }
    GpBitmap* clear = Make(8, 8, PixelFormat32bppARGB, std::vector<ARGB>(64, 0x00FFFFFF));
    ExpectClose(Pixels(Open(SaveAs(clear, {"b.jpg", CodecJPEG}))),
                std::vector<ARGB>(64, 0xFF000000), 1);
}

TEST_F(Save, AJpegIsTurnedOnTheWay) {
    std::vector<ARGB> pixels(32 * 16);
    for (size_t i = 0; i < pixels.size(); ++i) pixels[i] = i % 32 < 16 ? 0xFFFFFFFF : 0xFF000000;
    GpBitmap* bitmap = Make(32, 16, PixelFormat24bppRGB, pixels);
    const Parameter turn(EncoderTransformation, EncoderValueTransformRotate90);
    GpBitmap* back = Open(SaveAs(bitmap, {"a.jpg", CodecJPEG}, turn.List()));
    UINT width = 0;
    GdipGetImageWidth(AsImage(back), &width);
    ASSERT_EQ(width, 16u);
    EXPECT_GT(Pixels(back)[0] & 255, 250u);
    EXPECT_LT(Pixels(back)[16 * 31] & 255, 5u);
}

TEST_F(Save, ATiffIsCompressedAsAsked) {
    GpBitmap* color = Make(16, 9, PixelFormat24bppRGB, Motif());
    for (const EncoderValue value : {EncoderValueCompressionLZW, EncoderValueCompressionNone}) {
        const Parameter parameter(EncoderCompression, value);
        EXPECT_EQ(Pixels(Open(SaveAs(color, kLossless[3], parameter.List()))), Motif());
    }
    GpBitmap* mono = Make(16, 9, PixelFormat1bppIndexed, Motif());
    const std::vector<ARGB> expected = Pixels(mono);
    std::vector<std::string> files;
    for (const EncoderValue value : {EncoderValueCompressionCCITT3, EncoderValueCompressionCCITT4,
                                     EncoderValueCompressionRle}) {
        const Parameter parameter(EncoderCompression, value);
        const std::string name = std::to_string(value) + ".tif";
        const String path = SaveAs(mono, {name.c_str(), CodecTIFF}, parameter.List());
        EXPECT_EQ(Pixels(Open(path)), expected);
        files.push_back(path.Utf8());
        PixelFormat format = 0;
        GdipGetImagePixelFormat(AsImage(Open(SaveAs(color, kLossless[3], parameter.List()))),
                                &format);
        EXPECT_EQ(format, PixelFormat1bppIndexed) << "colours become black and white";
    }
    if (!test::HasOtherProgram()) return;
    const std::vector<ARGB> theirs = test::DecodeByOtherProgram(files);
    ASSERT_EQ(theirs.size(), 3 * expected.size());
    for (size_t i = 0; i < theirs.size(); ++i) ASSERT_EQ(theirs[i], expected[i % expected.size()]);
}

TEST_F(Save, ATiffHasItsDepth) {
    GpBitmap* bitmap = Make(16, 9, PixelFormat24bppRGB, Motif());
    struct Case {
        UINT32 depth;
        PixelFormat format;
    };
    for (const Case& each : {Case{1, PixelFormat1bppIndexed}, Case{4, PixelFormat4bppIndexed},
                             Case{8, PixelFormat8bppIndexed}, Case{24, PixelFormat24bppRGB},
                             Case{32, PixelFormat32bppARGB}}) {
        const Parameter parameter(EncoderColorDepth, each.depth);
        PixelFormat format = 0;
        GdipGetImagePixelFormat(AsImage(Open(SaveAs(bitmap, kLossless[3], parameter.List()))),
                                &format);
        EXPECT_EQ(format, each.format);
    }
    const Parameter wrong(EncoderColorDepth, 5);
    EXPECT_EQ(GdipSaveImageToFile(AsImage(bitmap), folder_.Path("b.tif").data(), &CodecTIFF,
                                  wrong.List()),
              GenericError);
}

TEST_F(Save, PagesAreAddedOneByOne) {
    GpBitmap* first = Make(4, 3, PixelFormat24bppRGB, std::vector<ARGB>(12, 0xFF112233));
    GpBitmap* second = Make(2, 2, PixelFormat32bppARGB, std::vector<ARGB>(4, 0x80445566));
    const Parameter many(EncoderSaveFlag, EncoderValueMultiFrame);
    const Parameter page(EncoderSaveFlag, EncoderValueFrameDimensionPage);
    const Parameter end(EncoderSaveFlag, EncoderValueFlush);
    EXPECT_EQ(GdipSaveAdd(AsImage(first), page.List()), GenericError) << "no file is open";
    const String path = SaveAs(first, kLossless[3], many.List());
    ASSERT_EQ(GdipSaveAddImage(AsImage(first), AsImage(second), page.List()), Ok);
    GdipBitmapSetPixel(first, 0, 0, 0xFFFFFFFF);
    ASSERT_EQ(GdipSaveAdd(AsImage(first), page.List()), Ok);
    ASSERT_EQ(GdipSaveAdd(AsImage(first), end.List()), Ok);
    EXPECT_EQ(GdipSaveAdd(AsImage(first), page.List()), GenericError) << "it is closed";

    GpBitmap* back = Open(path);
    UINT count = 0;
    ASSERT_EQ(GdipImageGetFrameCount(AsImage(back), &FrameDimensionPage, &count), Ok);
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(Pixels(back), std::vector<ARGB>(12, 0xFF112233));
    ASSERT_EQ(GdipImageSelectActiveFrame(AsImage(back), &FrameDimensionPage, 1), Ok);
    EXPECT_EQ(Pixels(back), std::vector<ARGB>(4, 0x80445566));
    ASSERT_EQ(GdipImageSelectActiveFrame(AsImage(back), &FrameDimensionPage, 2), Ok);
    EXPECT_EQ(Pixels(back), Pixels(first));
    if (test::HasOtherProgram()) {
        EXPECT_EQ(test::DecodeByOtherProgram({path.Utf8()}).size(), 12u + 4u + 12u);
    }
}

TEST_F(Save, ResolutionComesBack) {
    GpBitmap* bitmap = Make(4, 3, PixelFormat24bppRGB);
    GdipBitmapSetResolution(bitmap, 150, 300);
    for (const Target& target :
         {kLossless[0], kLossless[1], kLossless[3], Target{"a.jpg", CodecJPEG}}) {
        GpImage* back = AsImage(Open(SaveAs(bitmap, target)));
        REAL x = 0, y = 0;
        GdipGetImageHorizontalResolution(back, &x);
        GdipGetImageVerticalResolution(back, &y);
        EXPECT_NEAR(x, 150, 0.02) << target.name;
        EXPECT_NEAR(y, 300, 0.02) << target.name;
    }
}

TEST_F(Save, AStreamIsWrittenFromItsPosition) {
    GpBitmap* bitmap = Make(16, 9, PixelFormat24bppRGB, Motif());
    const Ref<ole::IStream> stream = ole::CreateStreamOnHGlobal();
    stream->Write("12345", 5);
    ASSERT_EQ(GdipSaveImageToStream(AsImage(bitmap), stream.get(), &CodecPNG, nullptr), Ok);
    ByteArray bytes(stream->Size());
    stream->Seek(0, ole::SeekOrigin::Set);
    stream->Read(bytes.data(), static_cast<uint32_t>(bytes.size()));
    EXPECT_EQ(bytes[0], '1');
    EXPECT_EQ(bytes[6], 'P');
}

TEST_F(Save, RefusesWhatCantBeSaved) {
    GpImage* image = AsImage(Make(4, 3, PixelFormat24bppRGB));
    const String path = folder_.Path("a.png");
    const String nowhere = folder_.Path("none/a.png");
    const Ref<ole::IStream> stream = ole::CreateStreamOnHGlobal();
    EXPECT_EQ(GdipSaveImageToFile(nullptr, path.data(), &CodecPNG, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSaveImageToFile(image, nullptr, &CodecPNG, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSaveImageToFile(image, path.data(), nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSaveImageToFile(image, path.data(), &CodecIcon, nullptr), UnknownImageFormat);
    EXPECT_EQ(GdipSaveImageToFile(image, nowhere.data(), &CodecPNG, nullptr), GenericError);
    EXPECT_EQ(GdipSaveImageToStream(image, nullptr, &CodecPNG, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSaveImageToStream(nullptr, stream.get(), &CodecPNG, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSaveAdd(image, nullptr), InvalidParameter);
    const Parameter page(EncoderSaveFlag, EncoderValueFrameDimensionPage);
    EXPECT_EQ(GdipSaveAddImage(image, nullptr, page.List()), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
