#include "vxgui/platform/gdi/GatherRows.h"

#include <numeric>
#include <random>

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

constexpr size_t kRows = 3;
constexpr uint32_t kUntouched = 0xDEADBEEF;

/// Rows of words that all differ, the first one at an address that is aligned to nothing.
struct Source {
    Source(size_t width, bool upsideDown) : bytes(width * 4 * kRows + 1) {
        for (size_t i = 0; i < width * kRows; ++i) {
            const uint32_t word = static_cast<uint32_t>(i) * 0x9E3779B1u + 1;
            std::memcpy(&bytes[1 + i * 4], &word, 4);
        }
        const auto stride = static_cast<ptrdiff_t>(width * 4);
        rows = upsideDown ? SourceRows{&bytes[1] + (kRows - 1) * stride, -stride, kRows}
                          : SourceRows{&bytes[1], stride, kRows};
    }
    uint32_t At(int32_t column, size_t y) const {
        uint32_t word;
        std::memcpy(&word, rows.first + static_cast<ptrdiff_t>(y) * rows.stride + column * 4, 4);
        return word;
    }

    std::vector<uint8_t> bytes;
    SourceRows rows;
};

void ExpectGathered(const Source& source, const std::vector<int32_t>& columns) {
    const size_t pitch = columns.size() + 3;
    std::vector<uint32_t> words(pitch * kRows, kUntouched), expected = words;
    for (size_t y = 0; y < kRows; ++y)
        for (size_t i = 0; i < columns.size(); ++i)
            expected[y * pitch + i] = source.At(columns[i], y);
    GatherRows(source.rows, {columns, RangeOf(columns)}, words.data(), pitch);
    ASSERT_EQ(words, expected) << columns.size() << " in " << RangeOf(columns).Size();
}

// The widest range that is held in registers has 64 columns.
TEST(GatherRows, EachColumnOfEachRangeComesFromItsPlace) {
    constexpr int32_t kWidth = 80;
    for (const bool upsideDown : {false, true}) {
        const Source source(kWidth, upsideDown);
        for (int32_t size = 1; size <= 70; ++size) {
            for (const int32_t least : {0, 5, kWidth - size}) {
                std::vector<int32_t> columns(static_cast<size_t>(size));
                std::iota(columns.begin(), columns.end(), least);
                ExpectGathered(source, columns);
                std::ranges::reverse(columns);
                ExpectGathered(source, columns);
            }
        }
    }
}

TEST(GatherRows, AnyNumberOfColumnsInAnyOrderIsGathered) {
    constexpr int32_t kWidth = 200;
    const Source source(kWidth, false);
    std::mt19937 random(3);
    for (size_t count = 0; count <= 70; ++count) {
        for (const uint32_t range : {1u, 2u, 16u, 17u, 32u, 33u, 48u, 49u, 64u, 65u, 200u}) {
            const uint32_t least = random() % (kWidth - range + 1);
            std::vector<int32_t> columns(count);
            for (int32_t& column : columns) column = static_cast<int32_t>(least + random() % range);
            ExpectGathered(source, columns);
        }
    }
}

TEST(TableRange, HoldsTheLeastAndTheGreatestEntry) {
    std::mt19937 random(4);
    for (size_t count = 1; count <= 70; ++count) {
        for (size_t place = 0; place < count; ++place) {
            std::vector<int32_t> table(count);
            for (int32_t& entry : table) entry = static_cast<int32_t>(random() % 200) - 100;
            table[place] = 100;
            table[count - 1 - place] = place == count - 1 - place ? 100 : -101;
            const TableRange range = RangeOf(table);
            ASSERT_EQ(range.least, std::ranges::min(table));
            ASSERT_EQ(range.most, std::ranges::max(table));
        }
    }
    const TableRange widest = RangeOf(std::vector{INT32_MAX, INT32_MIN});
    EXPECT_EQ(widest.Size(), int64_t{1} << 32);
    EXPECT_FALSE(widest.Within(INT32_MAX));
}

TEST(TableRange, AnEmptyTableHasNothingOutside) {
    EXPECT_EQ(RangeOf({}).Size(), 0);
    EXPECT_TRUE(RangeOf({}).Within(0));
}

}  // namespace
}  // namespace vxgui::gdi
