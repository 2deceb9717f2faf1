#include "vxgui/platform/gdi_mosaic.h"

#include <cstdlib>
#include <numeric>

#include "MergeTestSupport.h"
#include "vxgui/platform/gdi/BlitAxis.h"

namespace vxgui::gdi {
namespace {

/// A band that owns its tables.
struct Tables {
    std::vector<int32_t> columns, rows;
    operator MosaicBand() const { return {columns, rows}; }
};

/// Parts that own theirs.
struct Layout {
    std::vector<std::vector<Tables>> parts;

    bool Merge(HDC dc, int x, int y, HDC source, WordMerger& merger) const {
        std::vector<std::vector<MosaicBand>> bands;
        for (const auto& part : parts) bands.emplace_back(part.begin(), part.end());
        const std::vector<MosaicPart> views(bands.begin(), bands.end());
        return MergeMosaic(dc, x, y, {source, views}, merger);
    }
};

/// Each pixel on its own.
std::vector<uint32_t> Expected(const Canvas& target, const Canvas& source, int x, int y,
                               const Layout& layout) {
    const GdiRef<DeviceContext> dc = FindContext(target.dc);
    const int32_t width = target.View().width;
    std::vector<uint32_t> words = target.Words();
    for (const auto& part : layout.parts) {
        int32_t left = x;
        for (const Tables& band : part) {
            for (size_t i = 0; i < band.columns.size() * band.rows.size(); ++i) {
                const size_t row = i / band.columns.size(), column = i % band.columns.size();
                const auto toX = left + static_cast<int32_t>(column);
                const auto toY = y + static_cast<int32_t>(row);
                if (!dc->MayDrawAt(toX, toY)) continue;
                uint32_t& word = words[static_cast<size_t>(toY * width + toX)];
                word = Mixed(source.At(band.columns[column], band.rows[row]), word);
            }
            left += static_cast<int32_t>(band.columns.size());
        }
        y += part.empty() ? 0 : static_cast<int32_t>(part[0].rows.size());
    }
    return words;
}

/// `size` times what the tables are as long as otherwise.
Layout RandomLayout(std::mt19937& random, const PixelTarget& source, size_t size = 1) {
    const auto table = [&](size_t size, int32_t limit) {
        std::vector<int32_t> entries(size);
        for (int32_t& entry : entries)
            entry = static_cast<int32_t>(random() % static_cast<uint32_t>(limit));
        // Neighbours that show the same are what a stretched picture has.
        if (random() % 2) std::ranges::sort(entries);
        return entries;
    };
    Layout layout;
    layout.parts.resize(random() % 4);
    for (auto& part : layout.parts) {
        const size_t height = random() % (9 * size);
        for (size_t bands = random() % 4; bands > 0; --bands)
            part.push_back(
                {table(random() % (7 * size), source.width), table(height, source.height)});
    }
    return layout;
}

TEST(MergeMosaic, EachPixelIsMergedOnceWithTheOneItsTablesName) {
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        const auto size = [&] { return 1 + static_cast<int>(random() % 12); };
        const Canvas source(size(), random() % 2 ? size() : -size());
        const Canvas target(size(), random() % 2 ? size() : -size());
        source.Number(1000);
        target.Number(5);
        if (random() % 3 == 0) Clip(target.dc, random);
        const Layout layout = RandomLayout(random, source.View());
        const int x = static_cast<int>(random() % 16) - 8, y = static_cast<int>(random() % 16) - 8;
        const std::vector<uint32_t> expected = Expected(target, source, x, y, layout);
        Mixer mixer;
        ASSERT_TRUE(layout.Merge(target.dc, x, y, source.dc, mixer)) << round;
        ASSERT_EQ(target.Words(), expected) << round;
    }
}

// Sources of more columns than registers hold and of more rows than are kept, and parts that take
// many steps to be laid out.
TEST(MergeMosaic, LargePartsAreMergedLikeSmallOnes) {
    std::mt19937 random(6);
    for (const auto& [width, height] :
         {std::pair{30, 30}, {64, 40}, {65, 256}, {90, 300}, {2000, 40}}) {
        const Canvas source(width, height), target(180, 180);
        source.Number(1000);
        for (int round = 0; round < 20; ++round) {
            target.Number(5);
            if (round % 3 == 0) Clip(target.dc, random);
            const Layout layout = RandomLayout(random, source.View(), round % 2 ? 8 : 300);
            const std::vector<uint32_t> expected = Expected(target, source, -7, -9, layout);
            Mixer mixer;
            ASSERT_TRUE(layout.Merge(target.dc, -7, -9, source.dc, mixer));
            ASSERT_EQ(target.Words(), expected) << width << " x " << height << ", " << round;
            SelectClipRgn(target.dc, nullptr);
        }
    }
}

TEST(MergeMosaic, MorePartsOrBandsThanAFrameHasAreTheCallers) {
    const Canvas source(4, 3), target(9, 9);
    const Tables band{{0, 3}, {0, 2}};
    Mixer mixer;
    EXPECT_FALSE((Layout{{{band, band, band, band}}}.Merge(target.dc, 0, 0, source.dc, mixer)));
    EXPECT_FALSE(
        (Layout{{{band}, {band}, {band}, {band}}}.Merge(target.dc, 0, 0, source.dc, mixer)));
    EXPECT_EQ(mixer.calls, 0);
}

TEST(MergeMosaic, WhatOnePartLacksLeavesAllAlone) {
    const Canvas source(4, 3), target(9, 9);
    const Tables whole{{0, 3}, {0, 2}};
    for (const Tables& wrong :
         {Tables{{0, 4}, {0, 2}}, Tables{{0, -1}, {0, 2}}, Tables{{0, 3}, {0, 3}},
          Tables{{0, 3}, {-1, 2}}, Tables{{0, 3}, {0}}, Tables{{0, 3}, {0, 1, 2}}}) {
        Mixer mixer;
        EXPECT_FALSE((Layout{{{whole}, {whole, wrong}}}.Merge(target.dc, 0, 0, source.dc, mixer)));
        EXPECT_EQ(mixer.calls, 0);
    }
}

TEST(MergeMosaic, OtherDepthsTheSameMemoryAndNoContextAreTheCallers) {
    const Canvas target(4, 4), shallow(4, 4, 24);
    const Layout layout{{{{{0, 1}, {0, 1}}}}};
    Mixer mixer;
    EXPECT_FALSE(layout.Merge(target.dc, 0, 0, shallow.dc, mixer));
    EXPECT_FALSE(layout.Merge(shallow.dc, 0, 0, target.dc, mixer));
    EXPECT_FALSE(layout.Merge(target.dc, 0, 0, target.dc, mixer));
    EXPECT_FALSE(layout.Merge(target.dc, 0, 0, nullptr, mixer));
    EXPECT_FALSE(layout.Merge(nullptr, 0, 0, target.dc, mixer));
    EXPECT_EQ(mixer.calls, 0);
}

TEST(MergeMosaic, WhatLiesBeyondAllCoordinatesIsNotDrawn) {
    const Canvas target(4, 4), source(4, 4);
    target.Number(5);
    const std::vector<uint32_t> before = target.Words();
    const Layout layout{{{{{0, 1}, {0, 1}}}, {{{0, 1}, {0, 1}}}}};
    Mixer mixer;
    for (const int edge : {INT32_MAX, INT32_MAX - 1, INT32_MIN}) {
        EXPECT_TRUE(layout.Merge(target.dc, edge, 0, source.dc, mixer));
        EXPECT_TRUE(layout.Merge(target.dc, 0, edge, source.dc, mixer));
    }
    EXPECT_EQ(target.Words(), before);
}

TEST(TabulateStretch, ShowsWhatABlitOfTheSameSizesShows) {
    const Canvas source(9, 1);
    source.Number(1);
    for (int32_t size = 1; size <= 9; ++size) {
        for (int32_t extent = 1; extent <= 30; ++extent) {
            const Canvas target(extent, 1);
            StretchBlt(target.dc, 0, 0, extent, 1, source.dc, 9 - size, 0, size, 1, SRCCOPY);
            std::vector<int32_t> table(static_cast<size_t>(extent));
            TabulateStretch(9 - size, size, table);
            for (int32_t i = 0; i < extent; ++i)
                ASSERT_EQ(source.At(table[static_cast<size_t>(i)], 0), target.At(i, 0))
                    << size << " to " << extent;
        }
    }
}

void ExpectAxis(int32_t start, int32_t size, int32_t extent) {
    std::vector<int32_t> table(static_cast<size_t>(extent)), expected = table;
    TabulateStretch(start, size, table);
    BlitAxis(0, extent, start, size).Tabulate(expected.data());
    ASSERT_EQ(table, expected) << size << " to " << extent;
}

// VXGUI_LONG_RUNS=1 tries all that are divided in single precision, which takes half a minute.
TEST(TabulateStretch, DividesLikeABlitUpToItsGreatestSizes) {
    const bool all = std::getenv("VXGUI_LONG_RUNS") != nullptr;
    std::mt19937 random(7);
    const auto pick = [&] { return 1 + static_cast<int32_t>(random() % 2100); };
    const int32_t most = all ? 2049 : 100;
    for (int32_t size = 1; size <= most; ++size)
        for (int32_t extent = 1; extent <= most; ++extent) ExpectAxis(3, size, extent);
    for (int round = 0; round < 5000; ++round) ExpectAxis(pick() - 1000, pick(), pick());
    for (const int32_t size : {2046, 2047, 2048, 2049, 40000})
        for (const int32_t extent : {2046, 2047, 2048, 2049, 40000}) ExpectAxis(0, size, extent);
}

}  // namespace
}  // namespace vxgui::gdi
