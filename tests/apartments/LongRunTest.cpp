#include <gtest/gtest.h>

#include <cstdio>

#include "tests/apartments/Apartments.h"
#include "tests/apartments/MixedDrawing.h"
#include "tests/apartments/SkinRound.h"
#include "tests/support/MemoryUse.h"
#include "tests/support/Sanitizers.h"

namespace vxgui {
namespace {

using Clock = std::chrono::steady_clock;

/// What one tenth of a run left behind: its rounds and the most memory that stood between two.
struct Tenth {
    int rounds = 0;
    size_t heap = 0, resident = 0;
};

/// Everything that a host makes of a skin, made anew and dropped.
void LoadDrawAndDrop(int number) {
    test::SkinRound().Run(number % 6);
    test::MixedDrawing drawing;
    for (int i = 0; i < 10; ++i) drawing.Draw(i);
}

Tenth RunFor(Clock::duration time, int& number) {
    Tenth tenth;
    const auto end = Clock::now() + time;
    do {
        LoadDrawAndDrop(number++);
        tenth.heap = std::max(tenth.heap, test::HeapInUse());
        tenth.resident = std::max(tenth.resident, test::ResidentMemory());
        ++tenth.rounds;
    } while (Clock::now() < end || tenth.rounds < 6);
    std::printf("%4d rounds, heap %zu KiB, resident %zu KiB\n", tenth.rounds, tenth.heap / 1024,
                tenth.resident / 1024);
    std::fflush(stdout);
    return tenth;
}

// The first tenth fills what is kept: glyphs, shaped texts, fonts, blocks of pixels.
TEST(LongRun, LoadsDrawsAndDropsWithFlatMemory) {
    if (test::kSanitized) GTEST_SKIP() << "a sanitizer keeps the blocks that were given back";
    const Clock::duration time = Clock::duration(test::StressTime()) / 10;
    int number = 0;
    RunFor(time, number);
    const Tenth second = RunFor(time, number);
    Tenth last;
    for (int i = 0; i < 8; ++i) last = RunFor(time, number);
    constexpr size_t kSlack = 256 * 1024;
    EXPECT_LE(last.heap, second.heap + kSlack);
    EXPECT_LE(last.resident, second.resident + 4 * kSlack);
}

}  // namespace
}  // namespace vxgui
