#include "vxgui/platform/gdi/GatherWords.h"

#include <algorithm>
#include <random>

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

constexpr uint32_t kUntouched = 0xDEADBEEF;

uint32_t WordAt(int32_t column) { return static_cast<uint32_t>(column) * 0x9E3779B1u + 1; }

/// A row of no more words than the columns need, at an address that is aligned to nothing.
std::vector<uint8_t> RowFor(const std::vector<int32_t>& columns) {
    const int32_t width = columns.empty() ? 0 : std::ranges::max(columns) + 1;
    std::vector<uint8_t> row(1 + static_cast<size_t>(width) * 4);
    for (int32_t i = 0; i < width; ++i) {
        const uint32_t word = WordAt(i);
        std::memcpy(&row[1 + static_cast<size_t>(i) * 4], &word, 4);
    }
    return row;
}

void ExpectGathered(const std::vector<int32_t>& columns) {
    const std::vector<uint8_t> row = RowFor(columns);
    std::vector<uint32_t> words(columns.size() + 1, kUntouched), expected;
    for (const int32_t column : columns) expected.push_back(WordAt(column));
    expected.push_back(kUntouched);
    GatherWords(row.data() + 1, columns.data(), columns.size(), words.data());
    ASSERT_EQ(words, expected) << columns.size();
}

std::vector<int32_t> Scaled(size_t count, size_t to, size_t from, int32_t first) {
    std::vector<int32_t> columns;
    for (size_t i = 0; i < count; ++i)
        columns.push_back(first + static_cast<int32_t>(i * from / to));
    return columns;
}

TEST(GatherWords, EveryScaleForwardsAndMirrored) {
    for (size_t count = 0; count <= 100; ++count) {
        for (size_t from = 1; from <= 40; ++from) {
            std::vector<int32_t> columns = Scaled(count, 16, from, 3);
            ExpectGathered(columns);
            std::ranges::reverse(columns);
            ExpectGathered(columns);
        }
    }
}

// Between its ends a step may leave what lies between their columns.
TEST(GatherWords, OneStrayColumnInAnyPlace) {
    for (size_t place = 0; place < 48; ++place) {
        for (const int32_t stray : {0, 9, 11, 12, 30, 41, 42, 43, 90}) {
            std::vector<int32_t> columns = Scaled(48, 3, 2, 11);
            columns[place] = stray;
            ExpectGathered(columns);
        }
    }
}

TEST(GatherWords, AnyColumnsInAnyOrder) {
    std::mt19937 random(5);
    for (const uint32_t range : {1u, 2u, 16u, 17u, 32u, 33u, 34u, 500u}) {
        for (int round = 0; round < 200; ++round) {
            std::vector<int32_t> columns(random() % 70);
            for (int32_t& column : columns) column = static_cast<int32_t>(7 + random() % range);
            ExpectGathered(columns);
        }
    }
}

}  // namespace
}  // namespace vxgui::gdi
