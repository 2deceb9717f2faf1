#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

/// One image of an icon or cursor file, of which nothing but the headers has been read. The first
/// image's size decides which; of several of that size it is the one of most colours.
struct IconEntry {
    bool cursor = false;
    uint16_t hotX = 0;
    uint16_t hotY = 0;
    std::unique_ptr<ImageDecoder> colours;  ///< keeps the fourth byte of 32-bit pixels
    std::vector<uint8_t> bitmapFile;        ///< what `colours` reads, unless that is a PNG
    Bytes mask;                             ///< rows of bits padded to 4 bytes, the bottom one
                                            ///< first; empty where the image has none
    bool storesAlpha = false;               ///< the colours have an alpha of their own

    /// Whether what is below shows through. `y` counts from the top.
    bool Masked(int32_t x, int32_t y) const;
};

/// Null for what is no icon or cursor, for a damaged one, and over the limits. The bytes must
/// outlive the entry.
std::unique_ptr<IconEntry> OpenIcon(Bytes bytes);

/// Icons alone; cursors, whose first bytes some TGA files share, alone.
bool IsIcon(Bytes bytes);
bool IsCursor(Bytes bytes);

}  // namespace vxgui::codecs
