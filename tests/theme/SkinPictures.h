#pragma once

#include <array>
#include <string>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::test {

/// Blue, green, red, alpha.
using PixelBytes = std::array<uint8_t, 4>;

/// A TGA of 12 x 4 pixels of one colour, 32 bits.
inline std::string TgaBytes(const PixelBytes& pixel) {
    const uint8_t header[18] = {0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 12, 0, 4, 0, 32, 8};
    std::string bytes(reinterpret_cast<const char*>(header), sizeof header);
    for (int i = 0; i < 48; ++i) bytes.append(pixel.begin(), pixel.end());
    return bytes;
}

/// A BMP of 12 x 4 pixels, 32 bits: the left half magenta, the right half of one colour.
inline std::string BmpBytes(const PixelBytes& pixel) {
    std::string bytes(54, '\0');
    auto* header = reinterpret_cast<uint8_t*>(bytes.data());
    StoreLittle<uint16_t>(header, 0x4D42);
    StoreLittle<uint32_t>(header + 2, 54 + 192);
    StoreLittle<uint32_t>(header + 10, 54);
    StoreLittle<uint32_t>(header + 14, 40);
    StoreLittle<uint32_t>(header + 18, 12);
    StoreLittle<uint32_t>(header + 22, 4);
    StoreLittle<uint16_t>(header + 26, 1);
    StoreLittle<uint16_t>(header + 28, 32);
    StoreLittle<uint32_t>(header + 34, 192);
    const std::string magenta("\xFF\x00\xFF\xFF", 4);
    for (int i = 0; i < 48; ++i)
        i % 12 < 6 ? bytes += magenta : bytes.append(pixel.begin(), pixel.end());
    return bytes;
}

}  // namespace vxgui::test
