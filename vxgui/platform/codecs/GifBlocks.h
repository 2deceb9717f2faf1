#pragma once

#include <optional>

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

/// What the blocks of a GIF say, of which no pixel is unpacked.
struct GifBlocks {
    std::vector<uint32_t> delays;   ///< of each picture, in hundredths of a second
    std::optional<uint16_t> loops;  ///< 0 for ever
    std::vector<uint8_t> comment;
    std::vector<uint8_t> globalPalette;  ///< red, green and blue of each entry
    uint8_t background = 0;
    std::optional<uint8_t> transparent;  ///< of the first picture that has one
};

/// Reads up to the first damage.
GifBlocks ReadGifBlocks(Bytes bytes);

}  // namespace vxgui::codecs
