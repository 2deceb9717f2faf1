#pragma once

#include <span>

#include "vxgui/platform/gdiplus/bitmap/Palette.h"

namespace vxgui::gdiplus {

/// Reads pixels of a row in any published format, from column `x` on, as straight 32-bit ones.
/// What has no alpha is opaque. `palette` counts for indexed formats.
void ReadPixels(PixelFormat format, const uint8_t* row, size_t x, std::span<ARGB> to,
                const Palette& palette);

/// The reverse. Formats without alpha keep the colours and drop the alpha; fewer bits keep the
/// upper ones; `matcher` finds the indexes of indexed formats, which need it.
void WritePixels(PixelFormat format, uint8_t* row, size_t x, std::span<const ARGB> from,
                 PaletteMatcher* matcher);

/// The indexes of a row with 1, 4 or 8 bits each; the first is in the highest bits of its byte.
void ReadIndexes(int bits, const uint8_t* row, size_t x, std::span<uint8_t> to);
void WriteIndexes(int bits, uint8_t* row, size_t x, std::span<const uint8_t> from);

}  // namespace vxgui::gdiplus
