#pragma once

#include <array>
#include <span>
#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The colours of an indexed bitmap.
struct Palette {
    UINT flags = 0;  ///< of `PaletteFlags`
    std::vector<ARGB> entries;

    /// The colour of an index; opaque black for one past the end.
    ARGB At(size_t index) const { return index < entries.size() ? entries[index] : 0xFF000000; }
};

/// What a new indexed bitmap starts with: black and white, the 16 colours of the system, or these
/// with a gap of 24 clear entries and the cube of 6 x 6 x 6 behind.
Palette DefaultPalette(PixelFormat format);
/// `count` shades from black to white.
Palette GrayPalette(size_t count);
/// The flags that fit the colours.
UINT PaletteFlagsOf(std::span<const ARGB> entries);

/// Finds the palette's nearest colour, by the sum of the squared distances of all four channels;
/// the first of several equals.
class PaletteMatcher {
public:
    explicit PaletteMatcher(std::span<const ARGB> entries) : entries_(entries) {}

    uint8_t Nearest(ARGB color);

private:
    struct Known {
        ARGB color = 0;
        uint8_t index = 0;
        bool valid = false;
    };

    uint8_t Search(ARGB color) const;

    std::span<const ARGB> entries_;
    std::array<Known, 1024> known_{};
};

}  // namespace vxgui::gdiplus
