#pragma once

#include <cstdint>
#include <cstdlib>
#include <span>

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// The pixel memory of a bitmap that shows it, as DIB sections do; empty for any other.
inline std::span<uint8_t> BitmapMemory(gdi::HBITMAP bitmap) {
    gdi::BITMAP record{};
    if (!gdi::GetObjectA(bitmap, gdi::kBitmapRecordSize, &record) || !record.bmBits) return {};
    return {static_cast<uint8_t*>(record.bmBits),
            static_cast<size_t>(record.bmWidthBytes) *
                static_cast<size_t>(std::abs(int64_t{record.bmHeight}))};
}

}  // namespace vxgui
