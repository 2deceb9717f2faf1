#include "vxgui/pixels/PixelPairs.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tests/support/GuardedPixels.h"

namespace vxgui {
namespace {

/// A row between two pages that can't be touched, as far as its length lets it.
class GuardedRow {
public:
    GuardedRow(size_t length, test::GuardedPixels::Guard guard)
        : memory_(guard), pixels(reinterpret_cast<ARGB*>(memory_.Take(length * 4, false))) {
        for (size_t i = 0; i < length; ++i)
            pixels[i] = ARGBFromValue(static_cast<int32_t>(i * 77777));
    }
    ~GuardedRow() { memory_.GiveBack(reinterpret_cast<uint8_t*>(pixels)); }

private:
    test::GuardedPixels memory_;

public:
    ARGB* const pixels;
};

void ExpectPairs(const GuardedRow& row, const ScratchVector<uint32_t>& indices, size_t length) {
    const PixelPairs pairs(indices, length);
    ASSERT_EQ(pairs.Count(), indices.size());
    std::vector<uint64_t> taken(indices.size() + 1, 99);
    pairs.Take(row.pixels, taken.data());
    for (size_t i = 0; i < indices.size(); ++i) {
        uint64_t expected;
        std::memcpy(&expected, row.pixels + indices[i], sizeof expected);
        ASSERT_EQ(taken[i], expected) << i << " of " << indices.size() << " in " << length;
    }
    EXPECT_EQ(taken.back(), 99u);
}

TEST(PixelPairs, AreThoseOfTheRowAtEveryStepAndReadNothingBesideIt) {
    using Guard = test::GuardedPixels::Guard;
    for (const Guard guard : {Guard::Behind, Guard::InFront}) {
        for (const size_t length : {2u, 3u, 31u, 32u, 33u, 40u, 100u, 257u}) {
            const GuardedRow row(length, guard);
            for (const double step : {0.0, 0.1, 0.5, 1.0, 1.7, 2.0, 2.2, 3.9, 4.1, 4.4, 11.0}) {
                ScratchVector<uint32_t> indices;
                for (double place = 0; place < static_cast<double>(length - 1); place += step) {
                    indices.push_back(static_cast<uint32_t>(place));
                    ExpectPairs(row, indices, length);
                    if (indices.size() > 2 * length) break;
                }
            }
        }
    }
}

TEST(PixelPairs, MayLieAtTheEndOfARowTogether) {
    for (const size_t length : {2u, 32u, 47u, 48u, 100u}) {
        const GuardedRow row(length, test::GuardedPixels::Guard::Behind);
        const auto last = static_cast<uint32_t>(length - 2);
        for (size_t count = 1; count < 20; ++count) {
            ExpectPairs(row, ScratchVector<uint32_t>(count, last), length);
        }
    }
}

TEST(PixelPairs, MayJumpAnyHow) {
    const GuardedRow row(1000, test::GuardedPixels::Guard::Behind);
    ExpectPairs(row, {0, 0, 0, 1, 5, 29, 30, 31, 32, 500, 501, 502, 503, 504, 505, 506, 507}, 1000);
    ExpectPairs(row, {0, 1, 2, 3, 4, 5, 6, 7, 990, 991, 992, 993, 994, 995, 996, 997, 998}, 1000);
}

}  // namespace
}  // namespace vxgui
