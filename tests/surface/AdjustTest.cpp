#include <tuple>

#include "tests/surface/HlsReference.h"
#include "tests/surface/SurfaceSupport.h"
#include "vxgui/colour/ColorAdjust_HSL.h"

namespace vxgui::test {
namespace {

using Previews = std::vector<std::tuple<int32_t, int32_t>>;

/// Remembers the events of a surface, and cancels at one of them.
class PreviewLog {
public:
    explicit PreviewLog(const Ref<cAlphaDIBSection>& surface, size_t cancelAt = 0)
        : subscription_(surface->PreviewAdjust.Subscribe(
              [this, cancelAt](int32_t x, int32_t y, bool& cancel) {
                  previews.emplace_back(x, y);
                  if (previews.size() == cancelAt) cancel = true;
              })) {}

    Previews previews;

private:
    Subscription subscription_;
};

/// Inverts colours, and counts.
class Inverter : public IColorAdjust {
public:
    void TransColor(ARGB& s, ARGB& d) override {
        ++calls;
        d.Blue = static_cast<uint8_t>(255 - s.Blue);
        if (onCall) onCall();
    }
    int calls = 0;
    std::function<void()> onCall;
};

TEST(AdjustTransaction, BeginKeepsThePixelsAndResetBringsThemBack) {
    const auto surface = MakeCountedSurface(4, 3);
    const auto before = MemoryOf(surface);
    surface->BeginAdjustColor();
    surface->RandomiseBits();
    surface->ResetAdjustColor();
    EXPECT_EQ(MemoryOf(surface), before);
    surface->RandomiseBits();
    surface->ResetAdjustColor();  // the transaction is still open
    EXPECT_EQ(MemoryOf(surface), before);
}

TEST(AdjustTransaction, ASecondBeginReplacesTheSnapshot) {
    const auto surface = MakeCountedSurface(4, 3);
    surface->BeginAdjustColor();
    surface->RandomiseBits();
    const auto second = MemoryOf(surface);
    surface->BeginAdjustColor();
    surface->MaskFromColor(0);
    surface->RollbackAdjustColor();
    EXPECT_EQ(MemoryOf(surface), second);
}

TEST(AdjustTransaction, CommitKeepsThePixelsAndCloses) {
    const auto surface = MakeCountedSurface(4, 3);
    surface->BeginAdjustColor();
    surface->RandomiseBits();
    const auto after = MemoryOf(surface);
    surface->CommitAdjustColor();
    surface->ResetAdjustColor();
    EXPECT_EQ(MemoryOf(surface), after);
}

TEST(AdjustTransaction, RollbackWithoutATransactionLeavesThePicture) {
    const auto surface = MakeCountedSurface(4, 3);
    const auto before = MemoryOf(surface);
    surface->RollbackAdjustColor();
    EXPECT_EQ(MemoryOf(surface), before);
}

TEST(AdjustTransaction, CreatingAnewClosesIt) {
    const auto surface = MakeCountedSurface(4, 3);
    surface->BeginAdjustColor();
    ASSERT_TRUE(surface->Create(4, 3));
    surface->ResetAdjustColor();
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(12));
}

TEST(AdjustTransaction, AnEmptySurfaceMakesAllOfThemNothing) {
    const auto surface = New<cAlphaDIBSection>();
    const PreviewLog log(surface);
    const auto inverter = New<Inverter>();
    surface->BeginAdjustColor();
    surface->ResetAdjustColor();
    surface->AdjustColor(inverter);
    surface->AdjustHLS(10, 10, 10, true, 1);
    surface->AdjustHLS(10, 10, 10, false, 2);
    surface->AdjustRGB(1, 1, 1);
    surface->RollbackAdjustColor();
    surface->CommitAdjustColor();
    EXPECT_EQ(inverter->calls, 0);
    EXPECT_TRUE(log.previews.empty());
}

TEST(AdjustColor, WithoutATransactionItLeavesThePictureAndRaisesNothing) {
    const auto surface = MakeCountedSurface(4, 3);
    const auto before = MemoryOf(surface);
    const PreviewLog log(surface);
    surface->AdjustColor(New<Inverter>());
    EXPECT_EQ(MemoryOf(surface), before);
    EXPECT_TRUE(log.previews.empty());
}

TEST(AdjustColor, EachRunStartsFromTheSnapshotAndWritesWhatTheTransformSets) {
    const auto surface = MakeCountedSurface(4, 3);
    surface->BeginAdjustColor();
    FillMemory(surface, [](int) { return Pixel(0, 7, 8, 9); });
    surface->AdjustColor(New<Inverter>());
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(MemoryOf(surface)[static_cast<size_t>(i)],
                  Pixel(static_cast<uint8_t>(254 - i), 7, 8, 9));
    }
}

TEST(AdjustColor, TheRectangleCountsFromTheTopAndIsForcedIn) {
    const auto surface = MakeSurface(4, 3);
    surface->BeginAdjustColor();
    const auto inverter = New<Inverter>();
    surface->AdjustColor(inverter, 1, 0, 2, 0);
    EXPECT_EQ(inverter->calls, 2);
    EXPECT_EQ(surface->GetPixel(1, 0), 255);
    EXPECT_EQ(surface->GetPixel(2, 0), 255);
    EXPECT_EQ(surface->GetPixel(1, 1), 0);
    surface->AdjustColor(inverter, -9, 2, 99, 99);
    EXPECT_EQ(inverter->calls, 6);
    EXPECT_EQ(surface->GetPixel(3, 2), 255);
    surface->AdjustColor(inverter, 3, 0, 2, -1);
    EXPECT_EQ(inverter->calls, 6);
}

TEST(AdjustColor, TheEventIsRaisedOnceAtTheEnd) {
    const auto surface = MakeSurface(10, 6);
    surface->BeginAdjustColor();
    const PreviewLog log(surface, 1);
    surface->AdjustColor(New<Inverter>());
    surface->AdjustColor(New<Inverter>(), 0, 1, 3, 4);
    surface->AdjustColor(New<Inverter>(), 5, 5, 4, 2);
    EXPECT_EQ(log.previews, (Previews{{3, 1}, {1, 2}, {2, 4}}));
}

TEST(AdjustColor, ATransformMayDoAnythingToTheSurface) {
    auto surface = MakeCountedSurface(4, 3);
    surface->BeginAdjustColor();
    const auto inverter = New<Inverter>();
    inverter->onCall = [&] {
        if (inverter->calls == 2) surface->CommitAdjustColor();
        if (inverter->calls == 6) surface->Create(2, 1);
        if (inverter->calls == 7) surface = nullptr;
    };
    surface->AdjustColor(inverter);
    EXPECT_FALSE(surface);
    const auto other = MakeCountedSurface(1, 1);
    EXPECT_NO_THROW(other->AdjustColor(nullptr));
    other->BeginAdjustColor();
    EXPECT_THROW(other->AdjustColor(nullptr), Error);
}

TEST(AdjustColor, TheHslTransformRunsOverASurface) {
    const auto surface = MakeSurface(2, 2, Pixel(0, 0, 255, 40));
    surface->BeginAdjustColor();
    const auto transform = New<ColorAdjust_HSL>();
    transform->hue(2);
    surface->AdjustColor(transform);
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(4, Pixel(0, 255, 0, 40)));
}

TEST(AdjustHls, NothingAskedForChangesNothing) {
    std::mt19937 random(1);
    const auto surface = MakeRandomSurface(9, 7, random);
    const auto before = MemoryOf(surface);
    surface->AdjustHLS(0, 0, 0, false);
    surface->AdjustHLS(0, 0.4F, 0, false);
    surface->AdjustHLS(360, 0, 0, false);
    EXPECT_EQ(MemoryOf(surface), before);
}

TEST(AdjustHls, WorksOnThePixelsAsTheyAreWithinARectangleFromTheTop) {
    std::mt19937 random(2);
    const auto surface = MakeRandomSurface(9, 7, random);
    const auto before = MemoryOf(surface);
    surface->AdjustHLS(50, 10, 20, false, 0, 2, 1, 5, 3);
    reference::HlsPixel rule({50, 10, 20, false});
    for (int i = 0; i < 63; ++i) {
        const int x = i % 9;
        const int y = 6 - i / 9;
        const bool inside = x >= 2 && x <= 5 && y >= 1 && y <= 3;
        const ARGB old = before[static_cast<size_t>(i)];
        EXPECT_EQ(MemoryOf(surface)[static_cast<size_t>(i)], inside ? rule.Adjust(old) : old);
    }
}

TEST(AdjustHls, TwoCallsCompoundUnlessResetBetween) {
    std::mt19937 random(3);
    const auto surface = MakeRandomSurface(5, 5, random);
    surface->BeginAdjustColor();
    surface->AdjustHLS(0, 20, 0, false);
    const auto once = MemoryOf(surface);
    surface->AdjustHLS(0, 20, 0, false);
    EXPECT_NE(MemoryOf(surface), once);
    surface->ResetAdjustColor();
    surface->AdjustHLS(0, 20, 0, false);
    EXPECT_EQ(MemoryOf(surface), once);
}

TEST(AdjustHls, AStartBelowItsEndRunsOverNothing) {
    const auto surface = MakeSurface(4, 4, Pixel(9, 9, 9, 9));
    const PreviewLog log(surface);
    surface->AdjustHLS(0, 50, 0, false, 2, 0, 3, -1, 1);
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(16, Pixel(9, 9, 9, 9)));
    EXPECT_TRUE(log.previews.empty());
    surface->AdjustHLS(0, 50, 0, false, 1, 0, 3, -1, 1);
    EXPECT_EQ(log.previews, (Previews{{1, 3}}));
}

TEST(AdjustHls, EventsComeAfterEachRowOrAtTheEnd) {
    const auto surface = MakeSurface(10, 4);
    const PreviewLog log(surface);
    surface->AdjustHLS(0, 5, 0, false, 2, 0, 1);
    EXPECT_EQ(log.previews, (Previews{{3, 3}, {3, 2}, {3, 1}}));
    surface->AdjustHLS(0, 5, 0, false, 1, 0, 0, 6, 2);
    EXPECT_EQ(log.previews.back(), (std::tuple{2, 2}));
    EXPECT_EQ(log.previews.size(), 4u);
    surface->AdjustHLS(0, 5, 0, false, 0);
    surface->AdjustHLS(0, 5, 0, false, 3);
    EXPECT_EQ(log.previews.size(), 4u);
}

TEST(AdjustHls, CancelInTheFirstEventLeavesExactlyOneRowChanged) {
    const auto surface = MakeSurface(3, 4);
    const PreviewLog log(surface, 1);
    surface->AdjustHLS(0, 100, 0, false, 2);
    EXPECT_EQ(log.previews.size(), 1u);
    for (int y = 0; y < 4; ++y) EXPECT_EQ(surface->GetPixel(0, y), y == 0 ? 0xFFFFFF : 0) << y;
}

TEST(AdjustHls, AListenerMayGiveTheSurfaceOtherPixelsOrLetItGo) {
    auto surface = MakeSurface(6, 6);
    int calls = 0;
    const Subscription subscription =
        surface->PreviewAdjust.Subscribe([&](int32_t, int32_t, bool&) {
            ++calls;
            if (calls == 2) surface->Create(2, 2);
            if (calls == 3) surface->ClearUp();
            if (calls == 4) surface = nullptr;
        });
    surface->AdjustHLS(0, 100, 0, false, 2);
    EXPECT_EQ(calls, 6);
    EXPECT_FALSE(surface);
}

uint8_t Shifted(uint8_t channel, float value) {
    const auto surface = MakeSurface(1, 1, Pixel(1, 2, channel, 99));
    surface->AdjustRGB(value, 0, 0);
    EXPECT_EQ(MemoryOf(surface)[0].Blue, 1);
    EXPECT_EQ(MemoryOf(surface)[0].Green, 2);
    EXPECT_EQ(MemoryOf(surface)[0].Alpha, 99);
    return MemoryOf(surface)[0].Red;
}

TEST(AdjustRgb, AHalfTakesZeroToTheMiddleAndFullToFull) {
    EXPECT_EQ(Shifted(0, 0.5F), 128);
    EXPECT_EQ(Shifted(255, 0.5F), 255);
    EXPECT_EQ(Shifted(100, 0.5F), 178);
}

// The base rounds 127.5 up to 128, so that a channel loses 127.
TEST(AdjustRgb, ANegativeHalfTakesAConstantOff) {
    EXPECT_EQ(Shifted(255, -0.5F), 128);
    EXPECT_EQ(Shifted(200, -0.5F), 73);
    EXPECT_EQ(Shifted(127, -0.5F), 0);
    EXPECT_EQ(Shifted(10, -0.5F), 0);
}

TEST(AdjustRgb, EveryChannelValueFollowsTheRule) {
    for (const float value : {0.0F, 0.1F, 1.0F, 1.5F, -0.1F, -1.0F, -2.0F}) {
        for (int c = 0; c < 256; ++c) {
            double expected = c;
            if (value > 0) {
                const double factor = static_cast<float>(1.0 - value);
                expected = std::nearbyint(factor * c + std::nearbyint(value * 255.0));
            } else if (value < 0) {
                expected = std::nearbyint(value * 255.0 + 255) - (c ^ 255);
            }
            EXPECT_EQ(Shifted(static_cast<uint8_t>(c), value), std::clamp(expected, 0.0, 255.0));
        }
    }
}

TEST(AdjustRgb, EachChannelHasItsOwnShift) {
    const auto surface = MakeSurface(1, 1, Pixel(100, 100, 100, 100));
    surface->AdjustRGB(1, 0, -1);
    EXPECT_EQ(MemoryOf(surface)[0], Pixel(0, 100, 255, 100));
}

/// The elements of a 4 by 3 surface that a call has changed.
std::vector<int> Touched(int32_t xStart, int32_t yStart, int32_t xEnd, int32_t yEnd) {
    const auto surface = MakeSurface(4, 3);
    surface->AdjustRGB(0, 0, 1, xStart, yStart, xEnd, yEnd);
    std::vector<int> touched;
    for (int i = 0; i < 12; ++i) {
        if (MemoryOf(surface)[static_cast<size_t>(i)].Blue) touched.push_back(i);
    }
    return touched;
}

TEST(AdjustRgb, TheEndOfARowIsAnOffsetInBytesAndRowsAreThoseOfTheMemory) {
    using Elements = std::vector<int>;
    EXPECT_EQ(Touched(0, 0, -1, -1).size(), 12u);
    EXPECT_EQ(Touched(1, 0, 8, 0), (Elements{1, 2}));
    EXPECT_EQ(Touched(1, 0, 7, 0), (Elements{1}));
    EXPECT_EQ(Touched(2, 1, 3, 1), Elements{});
    EXPECT_EQ(Touched(0, 2, 0, -1), (Elements{8}));
    EXPECT_EQ(Touched(0, 2, -1, 1), Elements{});
    EXPECT_EQ(Touched(0, 1, 16, 1), (Elements{4, 5, 6, 7, 8}));  // into the next row
    EXPECT_EQ(Touched(-2, 1, -5, 1), (Elements{2}));
}

TEST(AdjustRgb, WhatLiesOutsideTheSurfaceIsNotTouched) {
    EXPECT_EQ(Touched(-100, 0, 100000, 0).size(), 12u);
    EXPECT_EQ(Touched(0, 2, 1000, 2), (std::vector<int>{8, 9, 10, 11}));
    EXPECT_EQ(Touched(0, -5, -1, 50).size(), 12u);
    EXPECT_TRUE(Touched(0, 3, -1, 100).empty());
    EXPECT_EQ(Touched(0, INT32_MIN, -1, INT32_MAX).size(), 12u);
    EXPECT_TRUE(Touched(INT32_MAX, 0, INT32_MIN, 0).empty());
}

TEST(AdjustRgb, ValuesThatAreNoNumbersAreSafe) {
    Shifted(100, std::nanf(""));
    Shifted(0, HUGE_VALF);
    Shifted(100, -HUGE_VALF);
}

}  // namespace
}  // namespace vxgui::test
