#include "vxgui/surface/modBlur.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <vector>

namespace vxgui {
namespace {

std::vector<ARGB> Noise(size_t count) {
    std::vector<ARGB> pixels(count);
    uint32_t seed = 1;
    for (ARGB& pixel : pixels) pixel = ARGBFromValue(static_cast<int32_t>(seed *= 2654435761u));
    return pixels;
}

/// One page of memory with a forbidden one behind it.
class Page {
public:
    Page()
        : size_(static_cast<size_t>(sysconf(_SC_PAGESIZE))),
          memory_(mmap(nullptr, 2 * size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1,
                       0)) {
        mprotect(static_cast<char*>(memory_) + size_, size_, PROT_NONE);
    }
    ~Page() { munmap(memory_, 2 * size_); }

    ARGB* Pixels() const { return static_cast<ARGB*>(memory_); }
    int32_t Count() const { return static_cast<int32_t>(size_ / sizeof(ARGB)); }
    void Forbid(int protection) const { mprotect(memory_, size_, protection); }

private:
    size_t size_;
    void* memory_;
};

const ConvolutionKernel kHalf{ConvolutionSkip, 1, 1, {0.5F}};

TEST(ConvolveBits, StatusSaysWhatIsWrong) {
    std::vector<ARGB> pixels = Noise(12), target(12);
    EXPECT_EQ(ConvolveBits(kHalf, pixels.data(), nullptr, 0, 3, 0, 0, 0, 0), -1);
    EXPECT_EQ(ConvolveBits(kHalf, pixels.data(), nullptr, 4, -3, 0, 0, 0, 0), -1);
    EXPECT_EQ(ConvolveBits(kHalf, nullptr, nullptr, 4, 3, 0, 0, 0, 0), -2);
    EXPECT_EQ(ConvolveBits(kHalf, pixels.data(), nullptr, 4, 3, 4, 0, 0, 0), -1);
    EXPECT_EQ(ConvolveBits(kHalf, pixels.data(), target.data(), 4, 3, 0, 3, 0, 0), -1);
    EXPECT_EQ(pixels, Noise(12));
    EXPECT_EQ(target, std::vector<ARGB>(12));
}

TEST(ConvolveBits, MemoryThatIsNotThereIsNotTouched) {
    const Page page;
    std::vector<ARGB> pixels(static_cast<size_t>(page.Count()) + 1);
    EXPECT_EQ(ConvolveBits(kHalf, page.Pixels(), nullptr, page.Count() + 1, 1, 0, 0, 0, 0), -3);
    EXPECT_EQ(ConvolveBits(kHalf, pixels.data(), page.Pixels(), page.Count() + 1, 1, 0, 0, 0, 0),
              -4);
    EXPECT_EQ(ConvolveBits(kHalf, page.Pixels(), nullptr, page.Count(), 1, 0, 0, 0, 0), 0);
    page.Forbid(PROT_READ);
    EXPECT_EQ(ConvolveBits(kHalf, page.Pixels(), nullptr, page.Count(), 1, 0, 0, 0, 0), -4);
    EXPECT_EQ(ConvolveBits(kHalf, page.Pixels(), pixels.data(), page.Count(), 1, 0, 0, 0, 0), 0);
}

TEST(ConvolveBits, WritesToTheDestinationOrInPlace) {
    std::vector<ARGB> source = Noise(20), target(20), expected(20);
    Convolve(kHalf, source, expected, 5, 0, 0, 0, 0);
    EXPECT_EQ(ConvolveBits(kHalf, source.data(), target.data(), 5, 4, 0, 0, 0, 0), 0);
    EXPECT_EQ(target, expected);
    EXPECT_EQ(source, Noise(20));
    EXPECT_EQ(ConvolveBits(kHalf, source.data(), nullptr, 5, 4, 0, 0, 0, 0), 0);
    EXPECT_EQ(source, expected);
}

TEST(EdgeKernel3x3, FiltersTheWholePicture) {
    std::vector<ARGB> source = Noise(20), target(20), expected = Noise(20);
    EdgeKernel3x3(expected, 5);
    EdgeKernel3x3(source.data(), target.data(), 5, 4);
    EXPECT_EQ(target, expected);
    EdgeKernel3x3(source.data(), nullptr, 5, 4);
    EXPECT_EQ(source, expected);
}

TEST(ScaleBitsLevel, ScalesTheRectangleAndLeavesTheRest) {
    std::vector<ARGB> pixels(20, ARGB{100, 200, 31, 255});
    EXPECT_EQ(ScaleBitsLevel(pixels.data(), 0.5F, 5, 4, 1, 1, 3, 2), 0);
    for (size_t y = 0; y < 4; ++y) {
        for (size_t x = 0; x < 5; ++x) {
            const bool inside = x >= 1 && x <= 3 && y >= 1 && y <= 2;
            EXPECT_EQ(pixels[y * 5 + x],
                      (inside ? ARGB{50, 100, 15, 127} : ARGB{100, 200, 31, 255}))
                << x << ", " << y;
        }
    }
}

TEST(ScaleBitsLevel, SecondCornerUnderOneOrOutsideIsTheLast) {
    for (int32_t end : {0, -1, 100}) {
        std::vector<ARGB> pixels(6, ARGB{10, 10, 10, 10});
        ScaleBitsLevel(pixels.data(), 2.0F, 3, 2, 0, 0, end, end);
        EXPECT_EQ(pixels, std::vector<ARGB>(6, ARGB{20, 20, 20, 20})) << end;
    }
}

TEST(ScaleBitsLevel, OfOneChangesNothingAndOfMoreSaturates) {
    std::vector<ARGB> pixels = Noise(12);
    ScaleBitsLevel(pixels.data(), 1.0F, 4, 3, 0, 0, 0, 0);
    EXPECT_EQ(pixels, Noise(12));
    std::vector<ARGB> beyond{{0, 1, 2, 255}}, most = beyond;
    ScaleBitsLevel(beyond.data(), 300.0F, 1, 1, 0, 0, 0, 0);
    ScaleBitsLevel(most.data(), 256.0F, 1, 1, 0, 0, 0, 0);
    EXPECT_EQ(beyond, most);
    EXPECT_EQ(most[0], (ARGB{0, 255, 255, 255}));
}

TEST(ScaleBitsLevel, FirstRowIsBoundedByTheWidth) {
    std::vector<ARGB> tall(10, ARGB{10, 10, 10, 10});
    ScaleBitsLevel(tall.data(), 2.0F, 2, 5, 0, 2, 0, 0);
    EXPECT_EQ(tall, std::vector<ARGB>(10, ARGB{10, 10, 10, 10}));
    ScaleBitsLevel(tall.data(), 2.0F, 2, 5, 0, 1, 0, 0);
    EXPECT_EQ(tall[9].Blue, 20);
    EXPECT_EQ(tall[1].Blue, 10);
    // Below the last row of a wide picture there is nothing to scale.
    std::vector<ARGB> wide(10, ARGB{10, 10, 10, 10});
    ScaleBitsLevel(wide.data(), 2.0F, 5, 2, 0, 4, 0, 0);
    EXPECT_EQ(wide, std::vector<ARGB>(10, ARGB{10, 10, 10, 10}));
}

TEST(ScaleBitsLevel, CornersAndMemoryThatCannotBeChangeNothing) {
    const Page page;
    page.Pixels()[0] = {10, 10, 10, 10};
    EXPECT_EQ(ScaleBitsLevel(nullptr, 2.0F, 4, 4, 0, 0, 0, 0), 0);
    EXPECT_EQ(ScaleBitsLevel(page.Pixels(), 2.0F, page.Count() + 1, 1, 0, 0, 0, 0), 0);
    EXPECT_EQ(ScaleBitsLevel(page.Pixels(), 2.0F, 4, 4, 4, 0, 0, 0), 0);
    EXPECT_EQ(ScaleBitsLevel(page.Pixels(), 2.0F, 4, 4, -1, 0, 0, 0), 0);
    EXPECT_EQ(ScaleBitsLevel(page.Pixels(), 2.0F, 4, 4, 0, -1, 0, 0), 0);
    EXPECT_EQ(ScaleBitsLevel(page.Pixels(), 2.0F, 0, 4, 0, 0, 0, 0), 0);
    EXPECT_EQ(ScaleBitsLevel(page.Pixels(), 2.0F, 4, -4, 0, 0, 0, 0), 0);
    EXPECT_EQ(page.Pixels()[0], (ARGB{10, 10, 10, 10}));
}

}  // namespace
}  // namespace vxgui
