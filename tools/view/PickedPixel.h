#pragma once

#include <cstdint>
#include <string>

#include "tools/view/ShownItem.h"

namespace vxgui::view {

/// What the colour picker tells of one pixel.
struct PickedPixel {
    gdi::POINT at;    ///< from the item's left top corner
    uint32_t shown;   ///< 0xAARRGGBB on the screen, ground and all
    bool onItem;      ///< whether the item is there at all
    uint32_t itself;  ///< the item's own, with straight alpha

    std::string Place() const;
    /// "#RRGGBB" as it is on the screen.
    std::string Hex() const;
    /// The item's own bytes as they lie in memory, blue first; empty beside the item.
    std::string Bgra() const;
};

}  // namespace vxgui::view
