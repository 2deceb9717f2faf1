#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

/// Coloured shadows made of the shape that a text left on an empty picture. Both work in place on
/// `width` * `height` pixels and take any pixel that isn't 0 as covered, so that the smooth edges
/// of letters weigh as much as their insides.
namespace vxgui {

/// Blurs the coverage by two running boxes of `boxX` and `boxY` pixels (1 at least) and colours it.
/// A pixel comes out as the mean of those right of and below it; the last `boxX` columns are not
/// blurred along the row, and the last `boxY` rows keep the raw numbers of the first pass.
VXPLATFORM_API void BoxShadow(std::span<ARGB> pixels, int32_t width, int32_t height, int32_t boxX,
                              int32_t boxY, ARGB color);

/// Each pixel gets the share of covered ones in the box that begins at it. The box is cut at the
/// edges, but the share is always of the whole box, so that the shadow fades there.
VXPLATFORM_API void ForwardShadow(std::span<ARGB> pixels, int32_t width, int32_t height,
                                  int32_t boxX, int32_t boxY, ARGB color);

}  // namespace vxgui
