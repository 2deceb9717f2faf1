#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <vector>

#include "vxgui/pixels/Blur.h"
#include "vxgui/platform/corehlp/Services.h"

namespace vxgui::corehlp {
namespace {

/// A service as a stub calls it: by its number.
template <class Function>
Function* Service(int32_t number) {
    return reinterpret_cast<Function*>(VxCoreHlpEntry(0, 0, 1, number));
}
const auto gBlur = Service<BlurFunction>(kBlur);
const auto gSetTransColor = Service<SetTransColorFunction>(kSetTransColor);
const auto gMergeTransparent = Service<MergeTransparentFunction>(kMergeTransparent);
const auto gGaussianBlur = Service<GaussianBlurFunction>(kGaussianBlur);
const auto gGaussianBlurEx = Service<GaussianBlurExFunction>(kGaussianBlurEx);

constexpr int32_t kWidth = 31, kHeight = 17;

std::vector<ARGB> Noise() {
    std::vector<ARGB> pixels;
    for (uint32_t i = 0; i < kWidth * kHeight; ++i) {
        pixels.push_back(ARGBFromValue(static_cast<int32_t>(i * 2654435761u)));
    }
    return pixels;
}

std::vector<ARGB> Blurred(const BoxKernel& horizontal, const BoxKernel& vertical,
                          const PixelBox& part = {0, 0, kWidth - 1, kHeight - 1}) {
    std::vector<ARGB> pixels = Noise();
    vxgui::Blur(pixels, kWidth, part, horizontal, vertical);
    return pixels;
}

TEST(SetTransColor, WithTheKeepFlagOnlyMatchesBecomeClear) {
    std::vector<ARGB> pixels{{255, 0, 255, 9}, {255, 0, 255, 255}, {1, 2, 3, 77}};
    EXPECT_EQ(gSetTransColor(pixels.data(), 0xFF00FF, 12, 0, 255, 1), 0);
    EXPECT_EQ(pixels, (std::vector<ARGB>{{255, 0, 255, 0}, {255, 0, 255, 0}, {1, 2, 3, 77}}));
}

TEST(SetTransColor, WithoutTheKeepFlagAllOthersBecomeOpaque) {
    std::vector<ARGB> pixels{{255, 0, 255, 9}, {1, 2, 3, 77}, {0, 0, 0, 0}};
    EXPECT_EQ(gSetTransColor(pixels.data(), 0xFF00FF, 12, 0, 255, 0), 0);
    EXPECT_EQ(pixels, (std::vector<ARGB>{{255, 0, 255, 0}, {1, 2, 3, 255}, {0, 0, 0, 255}}));
}

TEST(SetTransColor, KeyHasRedLowestAndItsTopByteDoesNotCount) {
    std::vector<ARGB> pixels{{3, 2, 1, 9}, {1, 2, 3, 9}};
    gSetTransColor(pixels.data(), static_cast<int32_t>(0x80030201), 8, 0, 255, 1);
    EXPECT_EQ(pixels[0].Alpha, 0);
    EXPECT_EQ(pixels[1].Alpha, 9);
}

TEST(SetTransColor, TouchesWholePixelsOfTheSizeOnly) {
    std::vector<ARGB> pixels(3, ARGB{1, 1, 1, 1});
    gSetTransColor(pixels.data(), 0, 11, 0, 255, 0);
    EXPECT_EQ(pixels[1].Alpha, 255);
    EXPECT_EQ(pixels[2].Alpha, 1);
}

TEST(MergeTransparent, CopiesWhatIsNotTheKey) {
    const std::vector<ARGB> source{{3, 2, 1, 7}, {1, 2, 3, 7}};
    std::vector<ARGB> target(2);
    EXPECT_EQ(gMergeTransparent(source.data(), target.data(), 8, 0x030201), 0);
    EXPECT_EQ(target, (std::vector<ARGB>{{}, {1, 2, 3, 7}}));
    target.assign(2, {});
    EXPECT_EQ(gMergeTransparent(source.data(), target.data(), 8, 0x010203), 0);
    EXPECT_EQ(target, (std::vector<ARGB>{{3, 2, 1, 7}, {}}));
}

TEST(Services, AnEmptySurfaceIsLeftAlone) {
    EXPECT_NE(gSetTransColor(nullptr, 0xFF00FF, 0, 0, 255, 1), 0);
    EXPECT_NE(gMergeTransparent(nullptr, nullptr, 0, 0xFF00FF), 0);
    EXPECT_NE(gBlur(nullptr, 0, 0, 3, 3, 0, 0), 0);
    EXPECT_NE(gGaussianBlur(nullptr, 0, 0, 0, 4, 4), 0);
    EXPECT_NE(gGaussianBlurEx(nullptr, 0, 0, 0, 4, 4, 0, 0, 0, 0), 0);
}

TEST(Services, NullMemoryDoesNothing) {
    ARGB pixel{1, 2, 3, 4};
    EXPECT_EQ(gSetTransColor(nullptr, 0, 4, 0, 255, 0), kNoBits);
    EXPECT_EQ(gMergeTransparent(nullptr, &pixel, 4, 0), kNoBits);
    EXPECT_EQ(gMergeTransparent(&pixel, nullptr, 4, 0), kNoBits);
    EXPECT_EQ(gBlur(nullptr, 1, 1, 3, 3, 0, 0), kNoBits);
    EXPECT_EQ(gGaussianBlur(nullptr, 0, 1, 1, 4, 4), kNoBits);
    EXPECT_EQ(gGaussianBlurEx(nullptr, 0, 1, 1, 4, 4, 0, 0, 0, 0), kNoBits);
    EXPECT_EQ(pixel, (ARGB{1, 2, 3, 4}));
}

TEST(Services, SizesThatAreNoneDoNothing) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gSetTransColor(pixels.data(), 0, -4, 0, 255, 0), kBadSize);
    EXPECT_EQ(gMergeTransparent(pixels.data(), pixels.data(), INT32_MIN, 0), kBadSize);
    const std::pair<int32_t, int32_t> sizes[] = {
        {0, 5},   {5, 0},         {-1, 5},      {5, -1},
        {-5, -5}, {65536, 65536}, {1, 1 << 30}, {INT32_MAX, INT32_MAX}};
    for (const auto& [width, height] : sizes) {
        EXPECT_EQ(gBlur(pixels.data(), width, height, 3, 3, 1, 0), kBadSize);
        EXPECT_EQ(gGaussianBlur(pixels.data(), 0, width, height, 4, 4), kBadSize);
        EXPECT_EQ(gGaussianBlurEx(pixels.data(), 0, width, height, 4, 4, 0, 0, 1, 1), kBadSize);
    }
    EXPECT_EQ(pixels, Noise());
}

TEST(Services, SizesThatSayMoreThanThereIsDoNothing) {
    const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    void* const memory =
        mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    mprotect(static_cast<char*>(memory) + page, page, PROT_NONE);
    auto* const pixels = static_cast<ARGB*>(memory);
    pixels[0] = {1, 2, 3, 4};
    const auto columns = static_cast<int32_t>(page / 4);
    const auto lie = static_cast<int32_t>(page + 4);
    std::vector<ARGB> enough(static_cast<size_t>(columns) + 1);

    EXPECT_EQ(gSetTransColor(memory, 0, lie, 0, 255, 0), kBitsUnwritable);
    EXPECT_EQ(gMergeTransparent(enough.data(), memory, lie, 9), kBitsUnwritable);
    EXPECT_EQ(gMergeTransparent(memory, enough.data(), lie, 9), kBitsUnreadable);
    EXPECT_EQ(gBlur(memory, columns, 2, 3, 3, 1, 0), kBitsUnwritable);
    EXPECT_EQ(gGaussianBlur(memory, 0, columns, 2, 4, 4), kBitsUnwritable);
    EXPECT_EQ(gGaussianBlurEx(memory, 0, columns, 2, 4, 4, 0, 0, 1, 1), kBitsUnwritable);
    EXPECT_EQ(pixels[0], (ARGB{1, 2, 3, 4}));
    EXPECT_EQ(enough[0], ARGB{});
    EXPECT_EQ(gSetTransColor(memory, 0, lie - 4, 0, 255, 0), kDone);
    munmap(memory, 2 * page);
}

TEST(GaussianBlur, BlursEachDirectionByItsRadius) {
    const std::pair<int32_t, int32_t> radii[] = {{4, 4}, {3, 0}, {0, 5}, {1, 20}, {1000, 2}};
    for (const auto& [x, y] : radii) {
        std::vector<ARGB> pixels = Noise();
        EXPECT_EQ(gGaussianBlur(pixels.data(), 0, kWidth, kHeight, x, y), 0);
        EXPECT_EQ(pixels, Blurred(GaussianKernel(x), GaussianKernel(y))) << x << ", " << y;
    }
}

TEST(GaussianBlur, WithoutRadiusChangesNothing) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gGaussianBlur(pixels.data(), 0, kWidth, kHeight, 0, -4), 0);
    EXPECT_EQ(pixels, Noise());
}

TEST(GaussianBlur, RefusesAnotherPlaceForTheResult) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gGaussianBlur(pixels.data(), 1, kWidth, kHeight, 4, 4), kBitsUnwritable);
    EXPECT_EQ(pixels, Noise());
}

TEST(GaussianBlurEx, BlursTheRectangleEndsIncluded) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gGaussianBlurEx(pixels.data(), 0, kWidth, kHeight, 4, 3, 5, 2, 20, 11), 0);
    EXPECT_EQ(pixels, Blurred(GaussianKernel(4), GaussianKernel(3), {5, 2, 20, 11}));
}

TEST(GaussianBlurEx, SecondCornerUnderOneOrOutsideIsTheLast) {
    for (int32_t end : {0, -1, 1000}) {
        std::vector<ARGB> pixels = Noise();
        EXPECT_EQ(gGaussianBlurEx(pixels.data(), 0, kWidth, kHeight, 4, 3, 5, 2, end, end), 0);
        EXPECT_EQ(pixels,
                  Blurred(GaussianKernel(4), GaussianKernel(3), {5, 2, kWidth - 1, kHeight - 1}));
    }
}

TEST(GaussianBlurEx, FirstCornerOutsideDoesNothing) {
    std::vector<ARGB> pixels = Noise();
    const std::pair<int32_t, int32_t> corners[] = {{-1, 0}, {0, -1}, {kWidth, 0}, {0, kHeight}};
    for (const auto& [x, y] : corners) {
        EXPECT_EQ(gGaussianBlurEx(pixels.data(), 0, kWidth, kHeight, 4, 3, x, y, 9, 9), kBadSize);
    }
    EXPECT_EQ(pixels, Noise());
}

TEST(GaussianBlurEx, CornersInTheWrongOrderBlurNothing) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gGaussianBlurEx(pixels.data(), 0, kWidth, kHeight, 4, 3, 9, 9, 4, 4), 0);
    EXPECT_EQ(pixels, Noise());
}

TEST(BlurService, IsTheMeanOverItsWidthAndHeight) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gBlur(pixels.data(), kWidth, kHeight, 5, 4, 0, 0x123456), 0);
    EXPECT_EQ(pixels, Blurred(MeanKernel(5), MeanKernel(4)));
}

TEST(BlurService, WithAColourPaintsItUnderTheBlurredAlpha) {
    std::vector<ARGB> pixels = Noise();
    EXPECT_EQ(gBlur(pixels.data(), kWidth, kHeight, 5, 4, 1, 0x0000FF), 0);
    const std::vector<ARGB> blurred = Blurred(MeanKernel(5), MeanKernel(4));
    for (size_t i = 0; i < pixels.size(); ++i) {
        const int alpha = blurred[i].Alpha;
        const auto red = static_cast<uint8_t>(alpha ? 255 * (alpha + 1) / 256 : 0);
        ASSERT_EQ(pixels[i], (ARGB{0, 0, red, blurred[i].Alpha}));
    }
}

}  // namespace
}  // namespace vxgui::corehlp
