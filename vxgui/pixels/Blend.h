#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

/// The three blend formulas of the compositor. Each blends `source` over `target` in place, as
/// far as both reach. Every division truncates, and it is by 256 and not by 255: themes and text
/// depend on these results bit for bit.
namespace vxgui {

/// Picks the formula: nothing for an alpha of 0 or less; one weight for all pixels without an
/// alpha channel; the premultiplied formula at an alpha of 255 or more; else the straight one.
VXPLATFORM_API void Blend(std::span<const ARGB> source, std::span<ARGB> target, int32_t alpha,
                          bool hasAlpha);

/// Colours: (s * alpha + t * (256 - alpha)) / 256, one division of the sum. The alpha byte of
/// the target stays. At 255 white over black gives 254: that is meant.
VXPLATFORM_API void BlendConstant(std::span<const ARGB> source, std::span<ARGB> target,
                                  uint8_t alpha);

/// The source as straight, its alpha scaled: with a = s.Alpha * alpha / 256 each of the four
/// bytes becomes s * a / 256 + t * (256 - a) / 256, two divisions.
VXPLATFORM_API void BlendStraight(std::span<const ARGB> source, std::span<ARGB> target,
                                  uint8_t alpha);

/// The source as premultiplied: each of the four bytes becomes
/// min(255, s + t * (256 - s.Alpha) / 256), so that an opaque pixel replaces the target exactly
/// and a clear one adds its colour bytes.
VXPLATFORM_API void BlendPremultiplied(std::span<const ARGB> source, std::span<ARGB> target);

}  // namespace vxgui
