#include <gtest/gtest.h>

#include <atomic>

#include "tests/apartments/Apartments.h"
#include "tests/apartments/MixedDrawing.h"
#include "tests/apartments/SkinRound.h"

namespace vxgui {
namespace {

constexpr int kThreads = 16;

// Each thread is an apartment of its own: its skins, surfaces and files are nobody else's.
TEST(SkinThreads, SixteenLoadDrawAdjustAndSaveAtOnce) {
    constexpr int kTurns = 6;
    std::vector<uint64_t> expected;
    test::OnThreads(1, [&](int) {
        test::SkinRound round;
        for (int i = 0; i < kTurns; ++i) expected.push_back(round.Run(i));
    });
    ASSERT_NE(expected[0], expected[1]);
    std::atomic<int> wrong{0};
    const int rounds = test::StressThreads(kThreads, [&](int thread, int number) {
        thread_local test::SkinRound round;
        const int turn = (number + thread) % kTurns;
        wrong += round.Run(turn) != expected[static_cast<size_t>(turn)];
    });
    EXPECT_EQ(wrong, 0) << "of " << rounds;
}

// The first calls of a process bind its late-bound functions; sixteen begin at once here.
TEST(SkinThreads, SixteenBindTheirFunctionsAtOnce) {
    std::atomic<bool> go{false};
    std::vector<std::vector<uint32_t>> pictures(kThreads);
    test::OnThreads(kThreads, [&](int thread) {
        while (!go && thread != kThreads - 1) std::this_thread::yield();
        go = true;
        test::MixedDrawing drawing;
        pictures[static_cast<size_t>(thread)] = drawing.Draw(1);
    });
    for (const auto& picture : pictures) EXPECT_EQ(picture, pictures[0]);
}

}  // namespace
}  // namespace vxgui
