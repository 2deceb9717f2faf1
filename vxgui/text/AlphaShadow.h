#pragma once

#include "vxgui/pixels/ARGB.h"
#include "vxgui/pixels/Coverage.h"

/// The builders that turn a text's shape on a scratch surface into a coloured alpha image.
/// Failures in the two shadow builders are reported to the user and don't raise.
namespace vxgui {

/// Separable box blur to a coloured alpha image, in place. The bytes of `Colour` go to the pixel in
/// their own order: a COLORREF laid over it shows with red and blue exchanged, which is meant.
void MakeAlphaShadowXP(void* Bits, int32_t W, int32_t H, int32_t ShadowX, int32_t ShadowY,
                       const uint8_t (&Colour)[4]);

/// Forward box coverage to a coloured alpha image, in place. `Colour` is an ARGB value; an alpha of
/// 0 becomes 192.
void MakeAlphaShadow2(void* Bits, int32_t W, int32_t H, int32_t ShadowX, int32_t ShadowY,
                      int32_t Colour);

/// Byte 0 of each pixel. Nothing for sides below 1 and for memory that can't be read.
void MaskFromBits(Coverage& Mask, const void* Bits, int32_t W, int32_t H);

/// A coloured alpha image from a mask; where it is 0 the pixels stay.
void PaintFromMask(const Coverage& Mask, void* Bits, int32_t W, int32_t H, int32_t Colour);

}  // namespace vxgui
