#include "vxgui/platform/gdi/PixelRows.h"

#include <cstring>

#include "vxgui/platform/gdi/GatherWords.h"

namespace vxgui::gdi {
namespace {

uint32_t Load32(const uint8_t* row, int32_t x) {
    uint32_t word;
    std::memcpy(&word, row + ptrdiff_t{x} * 4, 4);
    return word;
}

uint32_t Load24(const uint8_t* row, int32_t x) {
    const uint8_t* p = row + ptrdiff_t{x} * 3;
    return static_cast<uint32_t>(p[0] | p[1] << 8 | p[2] << 16);
}

void Store24(uint8_t* row, int32_t x, uint32_t word) {
    uint8_t* p = row + ptrdiff_t{x} * 3;
    p[0] = static_cast<uint8_t>(word);
    p[1] = static_cast<uint8_t>(word >> 8);
    p[2] = static_cast<uint8_t>(word >> 16);
}

uint32_t Load1(const uint8_t* row, int32_t x) { return row[x >> 3] >> (7 - (x & 7)) & 1u; }

void Store1(uint8_t* row, int32_t x, uint32_t word) {
    const auto mask = static_cast<uint8_t>(0x80 >> (x & 7));
    uint8_t& byte = row[x >> 3];
    byte = static_cast<uint8_t>((word & 1) != 0 ? byte | mask : byte & ~mask);
}

// `at(i)` is the column of the i-th pixel.
template <class At>
void Load(const PixelTarget& from, int32_t y, int32_t count, uint32_t* words, At at) {
    const uint8_t* row = from.Row(y);
    switch (from.depth) {
        case 32:
            for (int32_t i = 0; i < count; ++i) words[i] = Load32(row, at(i));
            break;
        case 24:
            for (int32_t i = 0; i < count; ++i) words[i] = Load24(row, at(i));
            break;
        case 8:
            for (int32_t i = 0; i < count; ++i) words[i] = row[at(i)];
            break;
        default:
            for (int32_t i = 0; i < count; ++i) words[i] = Load1(row, at(i));
    }
}

}  // namespace

void LoadRow(const PixelTarget& from, int32_t x, int32_t y, int32_t count, uint32_t* words) {
    Load(from, y, count, words, [x](int32_t i) { return x + i; });
}

void LoadColumns(const PixelTarget& from, const int32_t* columns, int32_t y, int32_t count,
                 uint32_t* words) {
    if (from.depth == 32) {
        return GatherWords(from.Row(y), columns, static_cast<size_t>(count), words);
    }
    Load(from, y, count, words, [columns](int32_t i) { return columns[i]; });
}

void StoreRow(const PixelTarget& to, int32_t x, int32_t y, int32_t count, const uint32_t* words) {
    uint8_t* row = to.Row(y);
    switch (to.depth) {
        case 32:
            std::memcpy(row + ptrdiff_t{x} * 4, words, static_cast<size_t>(count) * 4);
            break;
        case 24:
            for (int32_t i = 0; i < count; ++i) Store24(row, x + i, words[i]);
            break;
        case 8:
            for (int32_t i = 0; i < count; ++i) row[x + i] = static_cast<uint8_t>(words[i]);
            break;
        default:
            for (int32_t i = 0; i < count; ++i) Store1(row, x + i, words[i]);
    }
}

}  // namespace vxgui::gdi
