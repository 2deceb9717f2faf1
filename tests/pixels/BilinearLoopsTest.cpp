#include "vxgui/pixels/BilinearLoops.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace vxgui::bilinear {
namespace {

uint8_t Mean(const Weights& weights, int a, int b) {
    const float first = weights.first * static_cast<float>(a);
    const float second = weights.second * static_cast<float>(b);
    return static_cast<uint8_t>(std::nearbyint(first + second));
}

/// Whole numbers and halves, thirds, what pictures of round sizes have, and the least places.
std::vector<Weights> SomeWeights() {
    std::vector<Weights> weights;
    for (const float second :
         {0.0F, 0.5F, 0.25F, 0.75F, 1 / 3.0F, 2 / 3.0F, 0.005F, 0.555F, 0.7033F, 0.998047F,
          511 / 200.0F - 2, 0x1p-15F, 0x1p-24F, 1 - 0x1p-24F}) {
        weights.push_back({1 - second, second});
    }
    return weights;
}

// Every two channels there are, in each of the places of a pixel.
TEST(MixRows, FollowsTheMeanOfEveryTwoChannels) {
    for (const Weights& rows : SomeWeights()) {
        std::vector<ARGB> upper, lower, mixed(65536);
        const auto byte = [](int i) { return static_cast<uint8_t>(i & 255); };
        for (int i = 0; i < 65536; ++i) {
            upper.push_back({byte(i), byte(i + 1), byte(i >> 8), byte(255 - i)});
            lower.push_back({byte(i >> 8), byte(i >> 8), byte(i), byte(i >> 8)});
        }
        MixRows(upper.data(), lower.data(), rows, mixed.data(), mixed.size());
        for (size_t i = 0; i < mixed.size(); ++i) {
            const ARGB &a = upper[i], &b = lower[i];
            ASSERT_EQ(mixed[i], (ARGB{Mean(rows, a.Blue, b.Blue), Mean(rows, a.Green, b.Green),
                                      Mean(rows, a.Red, b.Red), Mean(rows, a.Alpha, b.Alpha)}))
                << i << " by " << rows.second;
        }
    }
}

uint64_t PairOf(const ARGB& pixel, const ARGB& next) {
    return static_cast<uint32_t>(ValueFromARGB(pixel)) |
           uint64_t{static_cast<uint32_t>(ValueFromARGB(next))} << 32;
}

/// Three means of bytes that lie three apart; the alpha is that of `target`.
ARGB Mixed(uint64_t pair, const Weights& weights, ARGB target) {
    const auto mean = [&](int at) {
        return Mean(weights, pair >> at & 255, pair >> (at + 24) & 255);
    };
    return {mean(0), mean(8), mean(16), target.Alpha};
}

TEST(MixPairs, FollowsTheMeanOfEveryTwoChannels) {
    for (const Weights& weights : SomeWeights()) {
        std::vector<uint64_t> pairs;
        for (uint64_t i = 0; i < 65536; ++i) {
            const uint64_t a = i & 255, b = i >> 8;
            pairs.push_back(a | a << 8 | a << 16 | b << 24 | b << 32 | b << 40 | (a ^ b) << 48);
        }
        const std::vector<float> first(65536, weights.first), second(65536, weights.second);
        std::vector<ARGB> target;
        for (uint32_t i = 0; i < 65536; ++i) {
            target.push_back(ARGBFromValue(static_cast<int32_t>(i * 65537)));
        }
        const std::vector<ARGB> before = target;
        MixPairs(pairs.data(), {first.data(), second.data()}, target.data(), target.size());
        for (size_t i = 0; i < target.size(); ++i) {
            ASSERT_EQ(target[i], Mixed(pairs[i], weights, before[i]))
                << i << " by " << weights.second;
        }
    }
}

class MixPairsOfRows : public testing::Test {
protected:
    explicit MixPairsOfRows(size_t count = 4000) : count(count) {
        const auto pixel = [&] { return ARGBFromValue(static_cast<int32_t>(random())); };
        for (size_t i = 0; i < count; ++i) {
            upper.push_back(PairOf(pixel(), pixel()));
            lower.push_back(PairOf(pixel(), pixel()));
            const float weight = static_cast<float>(random() % 200) / 200;
            first.push_back(1 - weight);
            second.push_back(weight);
            target.push_back(pixel());
        }
    }

    uint64_t RowsMixed(size_t i, const Weights& rows) const {
        uint64_t mixed = 0;
        for (int at = 0; at < 64; at += 8) {
            mixed |= uint64_t{Mean(rows, upper[i] >> at & 255, lower[i] >> at & 255)} << at;
        }
        return mixed;
    }

    std::mt19937 random{1};
    const size_t count;
    std::vector<uint64_t> upper, lower;
    std::vector<float> first, second;
    std::vector<ARGB> target;
};

TEST_F(MixPairsOfRows, MixesTheRoundedMeansOfRows) {
    const std::vector<ARGB> before = target;
    for (const Weights& rows : SomeWeights()) {
        target = before;
        bilinear::MixPairsOfRows(upper.data(), lower.data(), rows, {first.data(), second.data()},
                                 target.data(), count);
        for (size_t i = 0; i < count; ++i) {
            ASSERT_EQ(target[i], Mixed(RowsMixed(i, rows), {first[i], second[i]}, before[i]))
                << i << " by " << rows.second;
        }
    }
}

TEST_F(MixPairsOfRows, AndPairsAlikeStopAtTheirCount) {
    const std::vector<ARGB> before = target;
    const Weights rows{0.25F, 0.75F};
    for (size_t some = 0; some < 50; ++some) {
        for (const bool both : {false, true}) {
            target = before;
            const Columns columns{first.data(), second.data()};
            if (both) {
                bilinear::MixPairsOfRows(upper.data(), lower.data(), rows, columns, target.data(),
                                         some);
            } else {
                MixPairs(upper.data(), columns, target.data(), some);
            }
            for (size_t i = 0; i < 60; ++i) {
                const uint64_t pair = both ? RowsMixed(i, rows) : upper[i];
                ASSERT_EQ(target[i],
                          i < some ? Mixed(pair, {first[i], second[i]}, before[i]) : before[i])
                    << i << " of " << some;
            }
        }
    }
}

}  // namespace
}  // namespace vxgui::bilinear
