#pragma once

#include <algorithm>
#include <functional>

#include "vxgui/platform/gdi/Dib.h"
#include "vxgui/platform/known_memory.h"

namespace vxgui::gdi {

/// Says of the memory of a picture that it is there: who looks whether it is need not ask the
/// system.
inline kernel::KnownMemory KnownPixels(const PixelTarget& view) {
    const auto [first, last] =
        std::minmax({view.Row(0), view.Row(view.height - 1)}, std::less<const uint8_t*>());
    return {first, static_cast<size_t>(last - first + RowBytes(view.width, view.depth, 1))};
}

}  // namespace vxgui::gdi
