#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "fuzz/drawing/ExactCalls.h"

namespace vxgui::fuzz {
namespace {

// The bytes of a seed, the same everywhere: the generator's numbers are part of the language.
class SeededBytes {
public:
    explicit SeededBytes(uint32_t seed) : random_(seed) {}

    Input Next() {
        for (uint8_t& byte : bytes_) byte = static_cast<uint8_t>(random_() >> 24);
        return bytes_;
    }

private:
    std::mt19937 random_;
    uint8_t bytes_[24];
};

uint32_t ChecksumAfter(int calls) {
    ExactCalls drawing;
    SeededBytes bytes(2026);
    for (int i = 0; i < calls; ++i) {
        ByteReader reader(bytes.Next());
        drawing.Next(reader);
    }
    return drawing.Checksum();
}

TEST(RandomCalls, GiveTheSamePixelsInEveryBuild) {
    EXPECT_EQ(ChecksumAfter(0), 500679665u);
    EXPECT_EQ(ChecksumAfter(1000), 8434933u);
    EXPECT_EQ(ChecksumAfter(100000), 2688130911u);
}

TEST(RandomCalls, TenMillionGiveTheSamePixelsInEveryBuild) {
    if (!std::getenv("VXGUI_LONG_RUNS"))
        GTEST_SKIP() << "takes a minute; run it with VXGUI_LONG_RUNS=1";
    EXPECT_EQ(ChecksumAfter(10000000), 4121314190u);
}

}  // namespace
}  // namespace vxgui::fuzz
