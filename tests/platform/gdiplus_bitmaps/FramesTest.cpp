#include <cstring>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/support/Images.h"
#include "vxgui/platform/gdiplus/codec/ImageLoader.h"

namespace vxgui::gdiplus {
namespace {

// Three pictures on a canvas of 2 x 1, without a global palette. The first is red and stays; the
// second is a green pixel at the right and goes back to nothing, or as `disposal` says; the third is
// a blue one at the left. Delays of 5, 6 and 7 hundredths.
ByteArray SmallAnimation(uint8_t disposal = 2) {
    ByteArray gif = {'G', 'I', 'F', '8', '9', 'a', 2, 0, 1, 0, 0, 0, 0};
    const auto append = [&](std::initializer_list<uint8_t> bytes) { gif.insert(gif.end(), bytes); };
    append({0x21, 0xFF, 11, 'N', 'E', 'T', 'S', 'C', 'A', 'P', 'E', '2', '.', '0', 3, 1, 9, 0, 0});
    append({0x21, 0xFE, 2, 'h', 'i', 0});
    struct Part {
        uint8_t left, width, disposal, delay, r, g, b;
    };
    for (const Part& part :
         {Part{0, 2, 1, 5, 255, 0, 0}, Part{1, 1, disposal, 6, 0, 255, 0},
          Part{0, 1, 1, 7, 0, 0, 255}}) {
        append({0x21, 0xF9, 4, static_cast<uint8_t>(part.disposal << 2), part.delay, 0, 0, 0});
        append({0x2C, part.left, 0, 0, 0, part.width, 0, 1, 0, 0x80});
        append({part.r, part.g, part.b, 1, 1, 1});
        // Codes of 3 bits: clear (4), one index 0 a pixel, end (5).
        const uint8_t two = 4 | 0 << 3 | 0 << 6, one = 4 | 0 << 3 | (5 & 3) << 6;
        if (part.width == 2)
            append({2, 2, two, 5 << 1, 0});
        else
            append({2, 2, one, 5 >> 2, 0});
    }
    append({0x3B});
    return gif;
}

class Frames : public BitmapTest {
protected:
    GpBitmap* FromBytes(ByteArray bytes) {
        GpBitmap* bitmap = nullptr;
        EXPECT_EQ(
            GdipCreateBitmapFromStream(ole::CreateStreamOnHGlobal(std::move(bytes)).get(), &bitmap),
            Ok);
        return Keep(bitmap);
    }
};

constexpr ARGB kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF;

TEST_F(Frames, OfAGifAddUp) {
    GpBitmap* bitmap = FromBytes(SmallAnimation());
    UINT count = 0;
    ASSERT_EQ(GdipImageGetFrameCount(AsImage(bitmap), &FrameDimensionTime, &count), Ok);
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{kRed, kRed}));
    const std::vector<std::vector<ARGB>> shown = {{kRed, kRed}, {kRed, kGreen}, {kBlue, 0}};
    for (const UINT frame : {1u, 2u, 0u}) {
        ASSERT_EQ(GdipImageSelectActiveFrame(AsImage(bitmap), &FrameDimensionTime, frame), Ok);
        EXPECT_EQ(Pixels(bitmap), shown[frame]) << frame;
    }
    EXPECT_EQ(GdipImageSelectActiveFrame(AsImage(bitmap), &FrameDimensionTime, 3),
              InvalidParameter);
    EXPECT_EQ(GdipImageSelectActiveFrame(AsImage(bitmap), &FrameDimensionPage, 0),
              InvalidParameter);
    EXPECT_EQ(GdipImageSelectActiveFrame(nullptr, &FrameDimensionTime, 0), InvalidParameter);
}

TEST_F(Frames, OfAGifMayGoBackToWhatTheyCovered) {
    GpBitmap* bitmap = FromBytes(SmallAnimation(3));
    ASSERT_EQ(GdipImageSelectActiveFrame(AsImage(bitmap), &FrameDimensionTime, 2), Ok);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{kBlue, kRed}));
}

TEST_F(Frames, OfAGifHaveTheirDelays) {
    GpImage* image = AsImage(FromBytes(SmallAnimation()));
    const auto value = [&](PROPID id) {
        UINT size = 0;
        EXPECT_EQ(GdipGetPropertyItemSize(image, id, &size), Ok) << std::hex << id;
        std::vector<uint64_t> buffer(size / 8 + 1);
        auto* item = reinterpret_cast<PropertyItem*>(buffer.data());
        EXPECT_EQ(GdipGetPropertyItem(image, id, size, item), Ok);
        const auto* bytes = static_cast<const uint8_t*>(item->value);
        return std::vector<uint8_t>(bytes, bytes + item->length);
    };
    EXPECT_EQ(value(0x5100), (std::vector<uint8_t>{5, 0, 0, 0, 6, 0, 0, 0, 7, 0, 0, 0}));
    EXPECT_EQ(value(0x5101), (std::vector<uint8_t>{9, 0}));
    EXPECT_EQ(value(0x9286), (std::vector<uint8_t>{'h', 'i', 0}));
}

TEST_F(Frames, AreAsAnotherProgramAddsThemUp) {
    const std::string path = test::ImagePath("gif-animated.gif");
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromFile(String(path).data(), &bitmap), Ok);
    Keep(bitmap);
    UINT count = 0;
    GdipImageGetFrameCount(AsImage(bitmap), &FrameDimensionTime, &count);
    ASSERT_GT(count, 1u);
    const std::vector<uint8_t> bytes = test::ReadTestFile("images/gif-animated-frames.bgra");
    std::vector<ARGB> all(bytes.size() / sizeof(ARGB));
    std::memcpy(all.data(), bytes.data(), all.size() * sizeof(ARGB));
    for (UINT frame = 0; frame < count; ++frame) {
        ASSERT_EQ(GdipImageSelectActiveFrame(AsImage(bitmap), &FrameDimensionTime, frame), Ok);
        std::vector<ARGB> ours = Pixels(bitmap);
        ASSERT_EQ(all.size(), ours.size() * count);
        for (size_t i = 0; i < ours.size(); ++i) {
            const ARGB theirs = all[frame * ours.size() + i];
            ASSERT_EQ(ours[i] >> 24, theirs >> 24) << "frame " << frame << " pixel " << i;
            if (theirs >> 24) {
                ASSERT_EQ(ours[i], theirs) << "frame " << frame << " pixel " << i;
            }
        }
    }
}

TEST_F(Frames, OfOtherImagesAreOnePage) {
    GpImage* image = AsImage(Make(1, 1, PixelFormat24bppRGB));
    UINT count = 0;
    EXPECT_EQ(GdipImageGetFrameDimensionsCount(image, &count), Ok);
    EXPECT_EQ(count, 1u);
    GUID dimension{};
    EXPECT_EQ(GdipImageGetFrameDimensionsList(image, &dimension, 1), Ok);
    EXPECT_EQ(dimension, FrameDimensionPage);
    EXPECT_EQ(GdipImageGetFrameCount(image, &dimension, &count), Ok);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(GdipImageSelectActiveFrame(image, &dimension, 0), Ok);
    EXPECT_EQ(GdipImageGetFrameDimensionsCount(image, nullptr), InvalidParameter);
    EXPECT_EQ(GdipImageGetFrameDimensionsList(image, &dimension, 2), InvalidParameter);
    EXPECT_EQ(GdipImageGetFrameCount(image, nullptr, &count), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
