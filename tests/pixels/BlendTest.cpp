#include "vxgui/pixels/Blend.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/pixels/Reference.h"

namespace vxgui {
namespace {

/// All pairs of a source and a target byte, in each colour channel in another order, with alphas
/// that the test sets.
class AllPairs {
public:
    AllPairs() : source(65536), target(65536), expected(65536) {}

    /// The alphas of pixel i are those of `sourceAlpha(i)` and `targetAlpha(i)`.
    template <class SourceAlpha, class TargetAlpha>
    void Fill(SourceAlpha sourceAlpha, TargetAlpha targetAlpha) {
        for (uint32_t i = 0; i < source.size(); ++i) {
            const uint8_t s = i & 255, t = i >> 8;
            source[i] = {s, t, static_cast<uint8_t>(~s), static_cast<uint8_t>(sourceAlpha(i))};
            target[i] = {t, s, static_cast<uint8_t>(~t), static_cast<uint8_t>(targetAlpha(i))};
        }
    }
    template <class Formula>
    void Expect(Formula formula) {
        for (size_t i = 0; i < source.size(); ++i) expected[i] = formula(source[i], target[i]);
    }

    std::vector<ARGB> source, target, expected;
};

auto LowByte() {
    return [](uint32_t i) { return i & 255; };
}
auto HighByte() {
    return [](uint32_t i) { return i >> 8; };
}
auto Always(int alpha) {
    return [alpha](uint32_t) { return alpha; };
}

TEST(BlendConstant, AgreesWithTheFormulaForEverySourceTargetAndAlpha) {
    AllPairs pairs;
    for (int alpha = 0; alpha < 256; ++alpha) {
        pairs.Fill(LowByte(), HighByte());
        pairs.Expect([&](ARGB s, ARGB t) { return reference::Constant(s, t, alpha); });
        BlendConstant(pairs.source, pairs.target, static_cast<uint8_t>(alpha));
        ASSERT_EQ(pairs.target, pairs.expected) << "alpha " << alpha;
    }
}

// Under an opaque source the constant alpha alone makes the weight, and takes each value that a
// weight can have.
TEST(BlendStraight, AgreesWithTheFormulaForEverySourceTargetAndWeight) {
    AllPairs pairs;
    for (int alpha = 0; alpha < 256; ++alpha) {
        pairs.Fill(Always(255), HighByte());
        pairs.Expect([&](ARGB s, ARGB t) { return reference::Straight(s, t, alpha); });
        BlendStraight(pairs.source, pairs.target, static_cast<uint8_t>(alpha));
        ASSERT_EQ(pairs.target, pairs.expected) << "alpha " << alpha;
    }
}

TEST(BlendStraight, AgreesWithTheFormulaForEveryPairOfAlphasAndConstant) {
    AllPairs pairs;
    for (int alpha = 0; alpha < 256; ++alpha) {
        pairs.Fill(LowByte(), HighByte());
        pairs.Expect([&](ARGB s, ARGB t) { return reference::Straight(s, t, alpha); });
        BlendStraight(pairs.source, pairs.target, static_cast<uint8_t>(alpha));
        ASSERT_EQ(pairs.target, pairs.expected) << "alpha " << alpha;
    }
}

TEST(BlendPremultiplied, AgreesWithTheFormulaForEverySourceTargetAndAlpha) {
    AllPairs pairs;
    for (int alpha = 0; alpha < 256; ++alpha) {
        pairs.Fill(Always(alpha), LowByte());
        pairs.Expect(reference::Premultiplied);
        BlendPremultiplied(pairs.source, pairs.target);
        ASSERT_EQ(pairs.target, pairs.expected) << "source alpha " << alpha;
    }
}

ARGB Blended(ARGB source, ARGB target, int32_t alpha, bool hasAlpha) {
    Blend({&source, 1}, {&target, 1}, alpha, hasAlpha);
    return target;
}

TEST(Blend, AlphaOfZeroOrLessLeavesTheTarget) {
    const ARGB source{1, 2, 3, 255}, target{9, 8, 7, 6};
    EXPECT_EQ(Blended(source, target, 0, true), target);
    EXPECT_EQ(Blended(source, target, -1, true), target);
    EXPECT_EQ(Blended(source, target, 0, false), target);
    EXPECT_EQ(Blended(source, target, -256, false), target);
}

TEST(Blend, AlphaAbove255Counts255) {
    const ARGB source{200, 100, 50, 128}, target{100, 90, 80, 70};
    EXPECT_EQ(Blended(source, target, 256, true), Blended(source, target, 255, true));
    EXPECT_EQ(Blended(source, target, 100000, false), Blended(source, target, 255, false));
}

TEST(Blend, WhiteOverBlackWithoutAlphaGives254) {
    EXPECT_EQ(Blended({255, 255, 255, 255}, {0, 0, 0, 77}, 255, false), (ARGB{254, 254, 254, 77}));
}

TEST(Blend, FullConstantAlphaTakesTheSourceAsPremultiplied) {
    EXPECT_EQ(Blended({200, 0, 0, 128}, {100, 0, 0, 0}, 255, true).Blue, 250);
}

TEST(Blend, LowerConstantAlphaTakesTheSourceAsStraight) {
    EXPECT_EQ(Blended({200, 0, 0, 128}, {100, 0, 0, 0}, 128, true).Blue, 125);
}

TEST(Blend, PremultipliedSaturates) {
    EXPECT_EQ(Blended({200, 255, 1, 0}, {100, 255, 1, 255}, 255, true), (ARGB{255, 255, 2, 255}));
}

TEST(Blend, ClearPixelStillAddsItsColours) {
    EXPECT_EQ(Blended({10, 20, 30, 0}, {1, 2, 3, 4}, 255, true), (ARGB{11, 22, 33, 4}));
}

TEST(Blend, StopsAtTheShorterOfTheTwo) {
    const std::vector<ARGB> source(3, ARGB{9, 9, 9, 255});
    std::vector<ARGB> target(5);
    BlendPremultiplied(source, target);
    EXPECT_EQ(target[2], source[0]);
    EXPECT_EQ(target[3], ARGB{});
    BlendConstant(source, std::span(target).first(0), 255);
    EXPECT_EQ(target[0], source[0]);
}

/// Every length and alignment around the widths of vectors, with neighbours that must stay.
template <class Operation, class Formula>
void ExpectAtEveryLength(Operation operation, Formula formula) {
    constexpr size_t kMargin = 4;
    for (size_t length = 0; length < 70; ++length) {
        std::vector<ARGB> source, target, expected;
        for (uint32_t i = 0; i < length + 2 * kMargin; ++i) {
            source.push_back(ARGBFromValue(static_cast<int32_t>(i * 2654435761u + length)));
            target.push_back(ARGBFromValue(static_cast<int32_t>(i * 2246822519u - length)));
        }
        expected = target;
        for (size_t i = kMargin; i < kMargin + length; ++i) {
            expected[i] = formula(source[i], target[i]);
        }
        operation(std::span<const ARGB>(source).subspan(kMargin, length),
                  std::span(target).subspan(kMargin, length));
        ASSERT_EQ(target, expected) << "length " << length;
    }
}

TEST(Blend, AllLengthsAndNothingBesides) {
    ExpectAtEveryLength([](auto s, auto t) { Blend(s, t, 100, false); },
                        [](ARGB s, ARGB t) { return reference::Constant(s, t, 100); });
    ExpectAtEveryLength([](auto s, auto t) { Blend(s, t, 100, true); },
                        [](ARGB s, ARGB t) { return reference::Straight(s, t, 100); });
    ExpectAtEveryLength([](auto s, auto t) { Blend(s, t, 255, true); }, reference::Premultiplied);
}

/// Clear, opaque and mixed stretches, with one stray pixel at each place of a block in turn.
std::vector<ARGB> RunsWithAStrayPixel(uint32_t stray, ARGB pixel) {
    std::vector<ARGB> source;
    for (uint32_t i = 0; i < 1500; ++i) {
        const uint32_t stretch = i / 300;
        ARGB own = ARGBFromValue(static_cast<int32_t>(i * 2654435761u));
        if (stretch == 0 || stretch == 3) own = {};
        if (stretch == 1 || stretch == 4) own.Alpha = 255;
        source.push_back(i % 300 == 100 + stray ? pixel : own);
    }
    return source;
}

TEST(BlendPremultiplied, RunsOfClearAndOpaquePixelsHideNoStrayOne) {
    const ARGB strays[] = {{0, 0, 0, 1}, {1, 0, 0, 0}, {9, 8, 7, 254}, {1, 2, 3, 255}, {}};
    for (uint32_t place = 0; place < 70; ++place) {
        for (const ARGB stray : strays) {
            const std::vector<ARGB> source = RunsWithAStrayPixel(place, stray);
            std::vector<ARGB> target, expected;
            for (uint32_t i = 0; i < source.size(); ++i) {
                target.push_back(ARGBFromValue(static_cast<int32_t>(i * 2246822519u)));
                expected.push_back(reference::Premultiplied(source[i], target[i]));
            }
            BlendPremultiplied(source, target);
            ASSERT_EQ(target, expected) << "place " << place << ", stray " << int{stray.Alpha};
        }
    }
}

TEST(Blend, RowsThatBeginAtAnyByte) {
    std::vector<uint8_t> bytes(4 * 200 + 8), others(bytes.size());
    for (size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<uint8_t>(i * 7 + i / 3);
        others[i] = static_cast<uint8_t>(i * 13);
    }
    for (size_t start = 0; start < 4; ++start) {
        const std::span source(reinterpret_cast<const ARGB*>(&bytes[start]), 100);
        std::vector<uint8_t> changed = others;
        const std::span target(reinterpret_cast<ARGB*>(&changed[start]), 100);
        std::vector<ARGB> expected;
        for (size_t i = 0; i < 100; ++i) {
            expected.push_back(reference::Straight(source[i], target[i], 77));
        }
        BlendStraight(source, target, 77);
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(), target.begin())) << start;
    }
}

TEST(Blend, SurfaceOverItself) {
    std::vector<ARGB> pixels, expected;
    for (uint32_t i = 0; i < 1000; ++i) {
        pixels.push_back(ARGBFromValue(static_cast<int32_t>(i * 2654435761u)));
        expected.push_back(reference::Premultiplied(pixels[i], pixels[i]));
    }
    BlendPremultiplied(pixels, pixels);
    EXPECT_EQ(pixels, expected);
}

}  // namespace
}  // namespace vxgui
