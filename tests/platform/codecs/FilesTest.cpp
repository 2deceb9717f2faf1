#include <gtest/gtest.h>

#include "tests/support/Images.h"
#include "vxgui/platform/codecs/BmpDecoder.h"
#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {
namespace {

using test::TestPicture;

struct FileCase {
    const char* file;
    ImageFormat format;
    int tolerance;
};

// Other than 8 bits a channel are brought to 8 in more than one way: one step either side.
constexpr FileCase kFiles[] = {
    {"bmp-1.bmp", ImageFormat::Bmp, 0},
    {"bmp-4.bmp", ImageFormat::Bmp, 0},
    {"bmp-8.bmp", ImageFormat::Bmp, 0},
    {"bmp-24.bmp", ImageFormat::Bmp, 0},
    {"bmp-24-core.bmp", ImageFormat::Bmp, 0},
    {"bmp-4-core.bmp", ImageFormat::Bmp, 0},
    {"bmp-24-topdown.bmp", ImageFormat::Bmp, 0},
    {"bmp-16-555.bmp", ImageFormat::Bmp, 1},
    {"bmp-16-565.bmp", ImageFormat::Bmp, 1},
    {"bmp-16-1555.bmp", ImageFormat::Bmp, 1},
    {"bmp-16-4444.bmp", ImageFormat::Bmp, 0},
    {"bmp-32-masks.bmp", ImageFormat::Bmp, 1},
    {"bmp-32-v4-alpha.bmp", ImageFormat::Bmp, 0},
    {"bmp-32-v5-alpha.bmp", ImageFormat::Bmp, 0},
    {"bmp-4-rle.bmp", ImageFormat::Bmp, 0},
    {"bmp-8-rle.bmp", ImageFormat::Bmp, 0},
    {"bmp-8-rle-jump.bmp", ImageFormat::Bmp, 0},
    {"png-grey-1.png", ImageFormat::Png, 0},
    {"png-grey-2.png", ImageFormat::Png, 0},
    {"png-grey-2-interlaced.png", ImageFormat::Png, 0},
    {"png-grey-4.png", ImageFormat::Png, 0},
    {"png-grey-8.png", ImageFormat::Png, 0},
    {"png-grey-16.png", ImageFormat::Png, 0},
    {"png-grey-key.png", ImageFormat::Png, 0},
    {"png-grey-alpha-8.png", ImageFormat::Png, 0},
    {"png-grey-alpha-16.png", ImageFormat::Png, 0},
    {"png-palette-1.png", ImageFormat::Png, 0},
    {"png-palette-2.png", ImageFormat::Png, 0},
    {"png-palette-4.png", ImageFormat::Png, 0},
    {"png-palette-8.png", ImageFormat::Png, 0},
    {"png-palette-alpha.png", ImageFormat::Png, 0},
    {"png-rgb-8.png", ImageFormat::Png, 0},
    {"png-rgb-16.png", ImageFormat::Png, 0},
    {"png-rgb-key.png", ImageFormat::Png, 0},
    {"png-rgba-8.png", ImageFormat::Png, 0},
    {"png-rgba-8-interlaced.png", ImageFormat::Png, 0},
    {"png-rgba-16.png", ImageFormat::Png, 0},
    {"jpeg-grey.jpg", ImageFormat::Jpeg, 2},
    {"jpeg-444.jpg", ImageFormat::Jpeg, 2},
    {"jpeg-420.jpg", ImageFormat::Jpeg, 2},
    {"jpeg-progressive.jpg", ImageFormat::Jpeg, 2},
    {"jpeg-cmyk.jpg", ImageFormat::Jpeg, 2},
    {"gif-87.gif", ImageFormat::Gif, 0},
    {"gif-89.gif", ImageFormat::Gif, 0},
    {"gif-interlaced.gif", ImageFormat::Gif, 0},
    {"gif-transparent.gif", ImageFormat::Gif, 0},
    {"gif-animated.gif", ImageFormat::Gif, 0},
    {"tiff-rgb.tif", ImageFormat::Tiff, 0},
    {"tiff-rgb-lzw.tif", ImageFormat::Tiff, 0},
    {"tiff-rgb-tiled.tif", ImageFormat::Tiff, 0},
    {"tiff-rgb-msb.tif", ImageFormat::Tiff, 0},
    {"tiff-rgba.tif", ImageFormat::Tiff, 0},
    {"tiff-rgba-associated.tif", ImageFormat::Tiff, 1},
    {"tiff-palette.tif", ImageFormat::Tiff, 0},
    {"tiff-grey-16.tif", ImageFormat::Tiff, 0},
    {"tiff-g4.tif", ImageFormat::Tiff, 0},
    {"ico-32.ico", ImageFormat::Icon, 0},
    {"ico-4.ico", ImageFormat::Icon, 0},
    {"ico-8.ico", ImageFormat::Icon, 0},
    {"ico-8-mask.ico", ImageFormat::Icon, 0},
    {"ico-png.ico", ImageFormat::Icon, 0},
};

std::vector<uint8_t> FileBytes(const char* file) {
    return test::ReadTestFile(std::string("images/") + file);
}

// Colours count only where something of them is seen.
void ExpectSamePicture(const TestPicture& actual, const TestPicture& expected, int tolerance) {
    TestPicture a = actual, b = expected;
    for (TestPicture* picture : {&a, &b}) {
        for (uint32_t& pixel : picture->pixels) {
            if (pixel >> 24 == 0) pixel = 0;
        }
    }
    const test::PictureDifference found = test::ComparePictures(a, b, tolerance);
    EXPECT_TRUE(found.Equal()) << found.pixels << " pixels differ, by up to " << found.largest
                               << ", the first at " << found.firstX << "," << found.firstY;
}

TestPicture PictureOf(const DecodedImage& image) {
    return {image.header.width, image.header.height, image.pixels};
}

TEST(Decoders, ReadWhatOtherProgramsWrote) {
    for (const FileCase& each : kFiles) {
        SCOPED_TRACE(each.file);
        const std::vector<uint8_t> bytes = FileBytes(each.file);
        const std::optional<DecodedImage> image = DecodeImage(bytes);
        ASSERT_TRUE(image);
        EXPECT_EQ(image->header.format, each.format);
        ExpectSamePicture(PictureOf(*image), test::ExpectedImage(each.file), each.tolerance);
    }
}

TEST(Decoders, KnowByTheHeaderWhetherThereIsAlpha) {
    for (const FileCase& each : kFiles) {
        const std::vector<uint8_t> bytes = FileBytes(each.file);
        const auto decoder = OpenImage(bytes);
        ASSERT_TRUE(decoder) << each.file;
        const TestPicture expected = test::ExpectedImage(each.file);
        const bool opaque = std::all_of(expected.pixels.begin(), expected.pixels.end(),
                                        [](uint32_t pixel) { return pixel >> 24 == 255; });
        EXPECT_EQ(decoder->Header().hasAlpha, !opaque) << each.file;
    }
}

TEST(Decoders, FillMemoryThatRunsFromTheBottomUp) {
    for (const FileCase& each : kFiles) {
        SCOPED_TRACE(each.file);
        const std::vector<uint8_t> bytes = FileBytes(each.file);
        const auto decoder = OpenImage(bytes);
        ASSERT_TRUE(decoder);
        std::vector<uint32_t> rows(13 * 11 + 13);
        auto* last = reinterpret_cast<uint8_t*>(&rows[13 * 10]);
        ASSERT_TRUE(decoder->Decode({last, -13 * 4}));
        TestPicture picture{13, 11, {}};
        for (int y = 10; y >= 0; --y) {
            picture.pixels.insert(picture.pixels.end(), &rows[13 * y], &rows[13 * y + 13]);
        }
        ExpectSamePicture(picture, test::ExpectedImage(each.file), each.tolerance);
        for (int i = 0; i < 13; ++i) ASSERT_EQ(rows[13 * 11 + i], 0u) << "written past the rows";
    }
}

// What may be missing are the padding of the last row and the marks behind the last pixel.
TEST(Decoders, ATruncatedFileIsNoPictureOrTheWholePicture) {
    for (const FileCase& each : kFiles) {
        SCOPED_TRACE(each.file);
        const std::vector<uint8_t> bytes = FileBytes(each.file);
        for (size_t size = 0; size < bytes.size(); ++size) {
            const std::vector<uint8_t> part(bytes.begin(), bytes.begin() + size);
            const std::optional<DecodedImage> image = DecodeImage(part);
            if (!image) continue;
            EXPECT_GT(size, bytes.size() * 3 / 4) << "of " << bytes.size() << " bytes";
            ExpectSamePicture(PictureOf(*image), test::ExpectedImage(each.file), each.tolerance);
        }
    }
}

// Whatever the answer: nothing outside the file and the rows is touched.
TEST(Decoders, SurviveEveryTruncation) {
    for (const FileCase& each : kFiles) {
        const std::vector<uint8_t> bytes = FileBytes(each.file);
        for (size_t size = 0; size <= bytes.size(); ++size) {
            const auto exact = std::make_unique<uint8_t[]>(size);
            std::copy_n(bytes.begin(), size, exact.get());
            DecodeImage(Bytes(exact.get(), size));
        }
    }
}

TEST(Decoders, SurviveAChangedByte) {
    DecodeLimits& limits = ApartmentDecodeLimits();
    const DecodeLimits kept = limits;
    limits.area = 1 << 16;
    limits.bytes = 1 << 20;
    for (const FileCase& each : kFiles) {
        std::vector<uint8_t> bytes = FileBytes(each.file);
        for (size_t at = 0; at < bytes.size(); at += at < 128 ? 1 : 3) {
            const uint8_t original = bytes[at];
            for (const int change : {0x01, 0x80, 0xFF}) {
                bytes[at] = static_cast<uint8_t>(original ^ change);
                DecodeImage(bytes);
            }
            bytes[at] = original;
        }
    }
    limits = kept;
}

TEST(Decoders, RefuseAPictureOverTheLimits) {
    DecodeLimits& limits = ApartmentDecodeLimits();
    const DecodeLimits kept = limits;
    const auto opens = [](const char* file) { return OpenImage(FileBytes(file)) != nullptr; };
    for (const char* file :
         {"bmp-24.bmp", "png-rgb-8.png", "jpeg-444.jpg", "gif-89.gif", "tiff-rgb.tif"}) {
        SCOPED_TRACE(file);
        limits = {13, 13 * 11, 13 * 11 * 4 + (1 << 20)};
        EXPECT_TRUE(opens(file));
        limits = {12, 13 * 11, 1 << 20};
        EXPECT_FALSE(opens(file));
        limits = {13, 13 * 11 - 1, 1 << 20};
        EXPECT_FALSE(opens(file));
        limits = {13, 13 * 11, 13 * 11 * 4 - 1};
        EXPECT_FALSE(opens(file));
    }
    limits = kept;
}

TEST(Decoders, LimitsStartAtTheRangeOfBlitsAndAQuarterGigabyte) {
    const DecodeLimits limits;
    EXPECT_TRUE(limits.Allow(32767, 2048));
    EXPECT_FALSE(limits.Allow(32768, 1));
    EXPECT_FALSE(limits.Allow(1, 32768));
    EXPECT_TRUE(limits.Allow(8192, 8192));
    EXPECT_FALSE(limits.Allow(8192, 8193));
    EXPECT_FALSE(limits.Allow(0, 1));
    EXPECT_FALSE(limits.Allow(1, -1));
}

TEST(Decoders, AnswerNoneForWhatIsNoPicture) {
    EXPECT_EQ(OpenImage({}), nullptr);
    const uint8_t text[] = "No picture at all";
    EXPECT_EQ(OpenImage(text), nullptr);
}

}  // namespace
}  // namespace vxgui::codecs
