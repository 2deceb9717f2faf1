#include "tools/view/recolour/RecolourBmp.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::view {
namespace {

constexpr size_t kFileHeader = 14;
constexpr uint32_t kCoreHeader = 12, kInfoHeader = 40;
constexpr uint32_t kRgb = 0, kRle8 = 1, kRle4 = 2, kBitFields = 3;

/// Rows of colours in a file: blue, green, red, and a fourth byte where there are four.
struct Colours {
    size_t at;
    size_t count;  ///< of a row
    size_t size;   ///< of a colour, in bytes
    size_t rows = 1;
    size_t stride = 0;
};

/// The fields of the header that tell where the colours are.
struct Header {
    size_t pixels;
    uint32_t size;
    int64_t width, height;
    uint32_t bits;
    uint32_t compression = kRgb;
    uint32_t used = 0;
};

uint16_t Word(const ByteArray& file, size_t at) { return LoadLittle<uint16_t>(&file[at]); }
uint32_t Long(const ByteArray& file, size_t at) { return LoadLittle<uint32_t>(&file[at]); }

std::optional<Header> HeaderOf(const ByteArray& file) {
    if (file.size() < kFileHeader + kCoreHeader || file[0] != 'B' || file[1] != 'M') return {};
    const size_t pixels = Long(file, 10);
    const uint32_t size = Long(file, kFileHeader);
    if (size == kCoreHeader)
        return Header{pixels, size, Word(file, 18), Word(file, 20), Word(file, 24)};
    if (size < kInfoHeader || file.size() < kFileHeader + kInfoHeader) return {};
    return Header{pixels,
                  size,
                  static_cast<int32_t>(Long(file, 18)),
                  std::abs(int64_t{static_cast<int32_t>(Long(file, 22))}),
                  Word(file, 28),
                  Long(file, 30),
                  Long(file, 46)};
}

Colours PaletteOf(const ByteArray& file, const Header& header) {
    const size_t size = header.size == kCoreHeader ? 3 : 4;
    const size_t at = kFileHeader + header.size;
    const size_t end = std::min(header.pixels, file.size());
    const size_t room = end > at ? (end - at) / size : 0;
    const size_t said = header.used ? header.used : size_t{1} << header.bits;
    return {at, std::min(said, room), size};
}

// Whether the masks behind the header are those of blue, green, red in bytes.
bool HasPlainMasks(const ByteArray& file) {
    constexpr size_t kMasks = kFileHeader + kInfoHeader;
    return file.size() >= kMasks + 12 && Long(file, kMasks) == 0xFF0000 &&
           Long(file, kMasks + 4) == 0xFF00 && Long(file, kMasks + 8) == 0xFF;
}

std::optional<Colours> ColoursOf(const ByteArray& file) {
    const std::optional<Header> header = HeaderOf(file);
    if (!header) return {};
    const uint32_t form = header->compression;
    if (header->bits <= 8) {
        if (form != kRgb && form != kRle8 && form != kRle4) return {};
        return PaletteOf(file, *header);
    }
    const bool plain =
        form == kRgb || (form == kBitFields && header->bits == 32 && HasPlainMasks(file));
    if (!plain || (header->bits != 24 && header->bits != 32)) return {};
    if (header->width < 1 || header->pixels > file.size()) return {};
    const size_t width = static_cast<size_t>(header->width), size = header->bits / 8;
    const size_t stride = (width * size + 3) / 4 * 4;
    const size_t rows = (file.size() - header->pixels) / stride;
    return Colours{header->pixels, width, size, std::min(rows, static_cast<size_t>(header->height)),
                   stride};
}

void RecolourRow(uint8_t* row, const Colours& colours, const Recolour& how,
                 const KeyColours& keys) {
    std::vector<ARGB> pixels(colours.count);
    for (size_t i = 0; i < pixels.size(); ++i) {
        const uint8_t* from = row + i * colours.size;
        pixels[i] = {from[0], from[1], from[2], 255};
    }
    RecolourPixels(pixels, how, keys);
    for (size_t i = 0; i < pixels.size(); ++i) {
        uint8_t* to = row + i * colours.size;
        to[0] = pixels[i].Blue, to[1] = pixels[i].Green, to[2] = pixels[i].Red;
    }
}

}  // namespace

bool RecolourBmp(ByteArray& file, const Recolour& how, const KeyColours& keys) {
    const std::optional<Colours> colours = ColoursOf(file);
    if (!colours) return false;
    for (size_t row = 0; row < colours->rows; ++row)
        RecolourRow(file.data() + colours->at + row * colours->stride, *colours, how, keys);
    return true;
}

}  // namespace vxgui::view
