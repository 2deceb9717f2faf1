#pragma once

#include <cstdint>

#include "vxgui/platform/gdi_types.h"

/// The software compositor that stands in where the platform's own blits aren't wanted. The
/// drawing of the whole library depends on its integer arithmetic bit for bit.
namespace vxgui {

/// Blends the pixels that begin within `count` bytes of `src` over those of `dst`: one that the
/// count cuts is taken whole. A constant alpha of 0 or less does nothing, one over 255 counts as
/// 255. Three formulas, each with its own rounding: without `hasAlpha`, by the constant alone, and
/// the target keeps its alpha; with it and a constant under 255, `src` is straight; with it and
/// 255, `src` is premultiplied. The last two don't meet at the border, as their sources are of
/// different kinds.
void AlphaDibBits(const void* src, void* dst, int32_t count, int32_t alpha, bool hasAlpha);

/// Straight to premultiplied pixels: (c * (a + 1)) / 256, truncated. `count` is in bytes; only
/// whole pixels are taken.
void PreMultiplyBits(void* bits, int32_t count);

/// Blends a rectangle of one context over one of another by `AlphaDibBits`. Sizes below 1 draw
/// nothing; a source of another size is stretched without averaging.
void Vx_AlphaBlend(gdi::HDC hdcDst, int32_t x, int32_t y, int32_t w, int32_t h, gdi::HDC hdcSrc,
                   int32_t sx, int32_t sy, int32_t sw, int32_t sh, uint8_t alpha, bool hasAlpha);

/// The same, but copies the pixels whose colour isn't the key, a COLORREF.
void Vex_TransparentBlt(gdi::HDC hdcDst, int32_t x, int32_t y, int32_t w, int32_t h,
                        gdi::HDC hdcSrc, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                        int32_t key);

/// The platform's blend function in 32 bits: operation and flags 0, the constant alpha, and
/// format 1 (premultiplied) or 0.
constexpr DWORD PackBlendFunction(uint8_t constantAlpha, bool hasAlpha) {
    return constantAlpha * 0x10000u + (hasAlpha ? 0x1000000u : 0u);
}

}  // namespace vxgui
