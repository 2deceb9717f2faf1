#pragma once

#include <array>
#include <optional>

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

enum class BmpCompression : uint32_t {
    None = 0,
    Rle8 = 1,
    Rle4 = 2,
    BitFields = 3,
    AlphaBitFields = 6,
};

/// Where the colours of a 16-bit or 32-bit pixel stand; no alpha where its mask is 0.
struct BmpMasks {
    uint32_t red = 0;
    uint32_t green = 0;
    uint32_t blue = 0;
    uint32_t alpha = 0;
};

/// The two headers and the palette of a BMP file, checked: the depth and the compression fit
/// each other, and the pixels begin within the file.
struct BmpHeader {
    int32_t width = 0;
    int32_t height = 0;  ///< above 0
    bool topDown = false;
    uint16_t bits = 0;  ///< 1, 4, 8, 16, 24 or 32
    BmpCompression compression = BmpCompression::None;
    BmpMasks masks;
    std::array<uint32_t, 256> palette{};  ///< opaque; black where the file has no entry
    size_t paletteSize = 0;               ///< entries of the file
    size_t pixelOffset = 0;
    double dpiX = 0, dpiY = 0;  ///< 0 where the file doesn't say
};

/// Headers of 12 bytes (OS/2 1.x) and from 16 to 124 bytes (OS/2 2.x, versions 3 to 5).
std::optional<BmpHeader> ReadBmpHeader(Bytes bytes);

}  // namespace vxgui::codecs
