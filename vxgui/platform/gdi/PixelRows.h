#pragma once

#include "vxgui/platform/gdi/PixelTarget.h"

namespace vxgui::gdi {

// A pixel's word is its value as it stands in memory: 0xAARRGGBB, 0x00RRGGBB, a colour's number,
// or a bit. Rows may lie at any address: a picture in a file's memory is aligned to nothing.

/// Reads `count` pixels from (x, y) rightwards. All must lie inside.
void LoadRow(const PixelTarget& from, int32_t x, int32_t y, int32_t count, uint32_t* words);
/// Reads the `count` pixels of row y that stand at `columns`. All must lie inside.
void LoadColumns(const PixelTarget& from, const int32_t* columns, int32_t y, int32_t count,
                 uint32_t* words);
/// Writes `count` pixels from (x, y) rightwards. All must lie inside.
void StoreRow(const PixelTarget& to, int32_t x, int32_t y, int32_t count, const uint32_t* words);

}  // namespace vxgui::gdi
