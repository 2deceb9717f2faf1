#pragma once

#include "vxgui/platform/gdi_mosaic.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

/// Whether many calls of the surface's `AlphaPaintPicture` or `TransPaintPicture` whose targets
/// don't overlap may be one of what follows: the library's own blend is in use, and nothing stands
/// in for the surface.
bool MayPaintMosaics(const cAlphaDIBSection& surface);

/// The same pixels as those calls leave, in one pass. False, with nothing painted, where it can't
/// be done so: see `gdi::MergeMosaic`.
bool AlphaPaintMosaic(const cAlphaDIBSection& surface, gdi::HDC dc, int32_t x, int32_t y,
                      std::span<const gdi::MosaicPart> parts, uint8_t alpha, bool hasAlpha);
/// The same with a colour key. False also before the first picture with one was painted.
bool TransPaintMosaic(const cAlphaDIBSection& surface, gdi::HDC dc, int32_t x, int32_t y,
                      std::span<const gdi::MosaicPart> parts, int32_t key);

}  // namespace vxgui
