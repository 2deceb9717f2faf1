#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/platform/gdiplus_bitmaps/Formats.h"

namespace vxgui::gdiplus {
namespace {

class Histogram : public BitmapTest {
protected:
    using Counts = std::vector<std::vector<UINT>>;

    GpStatus Count(GpBitmap* bitmap, HistogramFormat format, Counts* counts) {
        counts->assign(4, std::vector<UINT>(256, 77));
        return GdipBitmapGetHistogram(bitmap, format, 256, (*counts)[0].data(), (*counts)[1].data(),
                                      (*counts)[2].data(), (*counts)[3].data());
    }
};

TEST_F(Histogram, CountsEachChannelByValue) {
    GpBitmap* bitmap = Make(3, 1, PixelFormat32bppARGB, {0x80402010, 0x80402011, 0xFF000000});
    struct Case {
        HistogramFormat format;
        std::vector<UINT> values;  ///< of the first pixel, a channel each
    };
    for (const Case& each : std::vector<Case>{{HistogramFormatARGB, {0x80, 0x40, 0x20, 0x10}},
                                              {HistogramFormatPARGB, {0x80, 0x20, 0x10, 0x08}},
                                              {HistogramFormatRGB, {0x40, 0x20, 0x10}},
                                              {HistogramFormatGray, {40}},
                                              {HistogramFormatB, {0x10}},
                                              {HistogramFormatG, {0x20}},
                                              {HistogramFormatR, {0x40}},
                                              {HistogramFormatA, {0x80}}}) {
        Counts counts;
        ASSERT_EQ(Count(bitmap, each.format, &counts), Ok);
        for (size_t i = 0; i < each.values.size(); ++i) {
            UINT sum = 0;
            for (const UINT count : counts[i]) sum += count;
            EXPECT_EQ(sum, 3u);
            EXPECT_GE(counts[i][each.values[i]], 1u) << each.format << " channel " << i;
        }
        for (size_t i = each.values.size(); i < 4; ++i) EXPECT_EQ(counts[i][0], 77u);
    }
}

TEST_F(Histogram, CountsEveryFormatsPixels) {
    for (const PixelFormat format : kColorFormats) {
        Counts counts;
        ASSERT_EQ(Count(Make(5, 3, format), HistogramFormatB, &counts), Ok);
        EXPECT_EQ(counts[0][0], 15u);
    }
}

TEST_F(Histogram, WantsTheRightNumberOfEntries) {
    for (int format = HistogramFormatARGB; format <= HistogramFormatA; ++format) {
        UINT entries = 0;
        EXPECT_EQ(
            GdipBitmapGetHistogramSize(nullptr, static_cast<HistogramFormat>(format), &entries),
            Ok);
        EXPECT_EQ(entries, 256u);
    }
    UINT entries = 0;
    EXPECT_EQ(GdipBitmapGetHistogramSize(nullptr, static_cast<HistogramFormat>(8), &entries),
              InvalidParameter);
    EXPECT_EQ(GdipBitmapGetHistogramSize(nullptr, HistogramFormatA, nullptr), InvalidParameter);
    GpBitmap* bitmap = Make(1, 1, PixelFormat32bppARGB);
    UINT counts[256];
    EXPECT_EQ(
        GdipBitmapGetHistogram(bitmap, HistogramFormatA, 255, counts, nullptr, nullptr, nullptr),
        InvalidParameter);
    EXPECT_EQ(
        GdipBitmapGetHistogram(bitmap, HistogramFormatRGB, 256, counts, counts, nullptr, nullptr),
        InvalidParameter);
    EXPECT_EQ(
        GdipBitmapGetHistogram(nullptr, HistogramFormatA, 256, counts, nullptr, nullptr, nullptr),
        InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
