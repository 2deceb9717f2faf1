#include <gtest/gtest.h>

#include <atomic>

#include "tests/apartments/Apartments.h"
#include "tests/apartments/MixedDrawing.h"

namespace vxgui {
namespace {

// Each thread draws in an order of its own, and gets the pictures that one thread alone gets.
TEST(DrawingThreads, FourDrawMixedTextAndShapesAtOnce) {
    constexpr int kPictures = 60;
    std::vector<std::vector<uint32_t>> expected;
    test::OnThreads(1, [&](int) {
        test::MixedDrawing drawing;
        for (int i = 0; i < kPictures; ++i) expected.push_back(drawing.Draw(i));
    });
    ASSERT_NE(expected[0], expected[1]);
    std::atomic<int> wrong{0};
    const int rounds = test::StressThreads(4, [&](int thread, int number) {
        thread_local test::MixedDrawing drawing;
        const int picture = (number * (2 * thread + 1) + thread) % kPictures;
        wrong += drawing.Draw(picture) != expected[static_cast<size_t>(picture)];
    });
    EXPECT_EQ(wrong, 0) << "of " << rounds;
    RecordProperty("pictures", rounds);
}

}  // namespace
}  // namespace vxgui
