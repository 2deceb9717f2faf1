#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

/// Transparency by a colour key. A pixel matches by its 24 colour bits; alpha plays no part.
namespace vxgui {

/// The colour bits of a pixel of the colour `color`, which has red in its lowest byte, or the
/// reverse: red and blue change places, and the top byte is dropped.
constexpr uint32_t SwapRedBlue(uint32_t color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

/// Copies each pixel that does not match to the same place in `target`. `key` has red lowest.
VXPLATFORM_API void MergeByKey(std::span<const ARGB> source, std::span<ARGB> target, uint32_t key);

/// Sets the alpha of pixels that match, and of all others unless `otherAlpha` is empty; the
/// colour bytes stay. `key` has red lowest.
VXPLATFORM_API void SetAlphaByKey(std::span<ARGB> pixels, uint32_t key, uint8_t matchAlpha,
                                  std::optional<uint8_t> otherAlpha);

/// Pixels that match `color` become 0, all others opaque black. `color` is in pixel form, blue
/// lowest, and its top byte is dropped.
VXPLATFORM_API void MaskByColor(std::span<ARGB> pixels, uint32_t color);

}  // namespace vxgui
