#include "vxgui/platform/gdi_merge.h"

#include <optional>

#include "MergeTestSupport.h"

namespace vxgui::gdi {
namespace {

struct Axis {
    int start, extent, sourceStart, sourceExtent;

    /// The source coordinate that `at` shows, none outside the extent.
    std::optional<int> Source(int at) const {
        const int i = at - start, size = std::abs(sourceExtent);
        if (i < 0 || i >= extent) return {};
        const int j = extent == size ? i : ((2 * i + 1) * size - 1) / (2 * extent);
        return sourceExtent < 0 ? sourceStart - j : sourceStart + j;
    }
};

struct Geometry {
    Axis across, down;

    bool Merge(HDC to, HDC from, WordMerger& merger) const {
        return MergeBlt(to, across.start, down.start, across.extent, down.extent, from,
                        across.sourceStart, down.sourceStart, across.sourceExtent,
                        down.sourceExtent, merger);
    }
};

bool Inside(int value, int size) { return value >= 0 && value < size; }

bool Holds(const RECT& box, int x, int y) {
    return x >= box.left && x < box.right && y >= box.top && y < box.bottom;
}

/// The target's words after a merge; none where a pixel in the box around the clip has no source
/// pixel.
std::optional<std::vector<uint32_t>> Expected(const Canvas& target, const Canvas& source,
                                              const Geometry& g) {
    const PixelTarget to = target.View(), from = source.View();
    const GdiRef<DeviceContext> dc = FindContext(target.dc);
    std::vector<uint32_t> words = target.Words();
    for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x) {
            const auto column = g.across.Source(x), row = g.down.Source(y);
            if (!column || !row || !Holds(dc->DrawableBox(), x, y)) continue;
            if (!Inside(*column, from.width) || !Inside(*row, from.height)) return {};
            if (!dc->MayDrawAt(x, y)) continue;
            uint32_t& word = words[static_cast<size_t>(y * to.width + x)];
            word = Mixed(source.At(*column, *row), word);
        }
    }
    return words;
}

Axis RandomAxis(std::mt19937& random, int from, int to) {
    const auto pick = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    Axis axis{pick(-2, to), pick(1, to + 3), pick(0, 2), pick(1, from)};
    if (random() % 3 == 0) axis.extent = axis.sourceExtent;
    if (random() % 5 == 0) axis = {axis.start, axis.extent, from - 1, -axis.sourceExtent};
    if (random() % 4 == 0) axis = {0, to, 0, to};
    return axis;
}

TEST(MergeBlt, EachPixelIsMergedOnceWithTheOneItShows) {
    std::mt19937 random(3);
    int merged = 0;
    for (int round = 0; round < 3000; ++round) {
        const auto size = [&] { return 1 + static_cast<int>(random() % 12); };
        const auto signedSize = [&] { return random() % 2 ? size() : -size(); };
        const Canvas source(size(), signedSize()), target(size(), signedSize());
        source.Number(1000);
        target.Number(5);
        if (random() % 3 == 0) Clip(target.dc, random);
        const PixelTarget from = source.View(), to = target.View();
        const Geometry g{RandomAxis(random, from.width, to.width),
                         RandomAxis(random, from.height, to.height)};
        const std::vector<uint32_t> before = target.Words();
        const auto expected = Expected(target, source, g);
        Mixer mixer;
        ASSERT_EQ(g.Merge(target.dc, source.dc, mixer), expected.has_value()) << round;
        ASSERT_EQ(target.Words(), expected.value_or(before)) << round;
        merged += mixer.calls > 0;
    }
    EXPECT_GT(merged, 500);
}

TEST(MergeBlt, RowsThatLieBehindOneAnotherAreOneRun) {
    const Geometry whole{{0, 5, 0, 5}, {0, 4, 0, 4}};
    for (const int height : {4, -4}) {
        const Canvas source(5, height), target(5, height), other(5, -height);
        Mixer mixer;
        EXPECT_TRUE(whole.Merge(target.dc, source.dc, mixer));
        EXPECT_EQ(mixer.calls, 1);
        EXPECT_TRUE(whole.Merge(other.dc, source.dc, mixer));
        EXPECT_EQ(mixer.calls, 5);  // one of them runs upwards
    }
}

TEST(MergeBlt, OtherDepthsTheSameMemoryAndNoContextAreTheCallers) {
    const Canvas target(4, 4), shallow(4, 4, 24);
    const Geometry whole{{0, 4, 0, 4}, {0, 4, 0, 4}};
    Mixer mixer;
    EXPECT_FALSE(whole.Merge(target.dc, shallow.dc, mixer));
    EXPECT_FALSE(whole.Merge(shallow.dc, target.dc, mixer));
    EXPECT_FALSE(whole.Merge(target.dc, target.dc, mixer));
    EXPECT_FALSE(whole.Merge(target.dc, nullptr, mixer));
    EXPECT_FALSE(whole.Merge(nullptr, target.dc, mixer));
    EXPECT_EQ(mixer.calls, 0);
}

TEST(MergeBlt, NothingIsDoneForNoExtentNorOutsideTheTarget) {
    const Canvas target(4, 4), source(4, 4);
    Mixer mixer;
    EXPECT_TRUE((Geometry{{0, 0, 0, 4}, {0, 4, 0, 4}}.Merge(target.dc, source.dc, mixer)));
    EXPECT_TRUE((Geometry{{0, 4, 0, 4}, {0, -4, 0, 4}}.Merge(target.dc, source.dc, mixer)));
    EXPECT_TRUE((Geometry{{4, 4, 0, 4}, {0, 4, 0, 4}}.Merge(target.dc, source.dc, mixer)));
    // What shows no source at all would be merged with clear pixels.
    EXPECT_FALSE((Geometry{{0, 4, 0, 0}, {0, 4, 0, 4}}.Merge(target.dc, source.dc, mixer)));
    EXPECT_EQ(mixer.calls, 0);
}

}  // namespace
}  // namespace vxgui::gdi
