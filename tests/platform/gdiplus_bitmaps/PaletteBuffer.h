#pragma once

#include <algorithm>
#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// A palette's record with room for 256 colours.
class PaletteBuffer {
public:
    static constexpr INT kSize = 8 + 256 * 4;

    ColorPalette* Get() { return reinterpret_cast<ColorPalette*>(words_); }
    ARGB At(size_t index) const { return words_[2 + index]; }
    void Set(const std::vector<ARGB>& colors) {
        Get()->Flags = 0;
        Get()->Count = static_cast<UINT>(colors.size());
        std::ranges::copy(colors, words_ + 2);
    }

private:
    uint32_t words_[2 + 256] = {};
};

}  // namespace vxgui::gdiplus
