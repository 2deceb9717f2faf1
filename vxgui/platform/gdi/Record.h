#pragma once

#include <cstring>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// What `GetObjectA` does for a record of fixed size: its size for a null buffer, 0 for a buffer
/// that is too small.
template <class T>
int CopyRecord(const T& record, int size, void* buffer) {
    constexpr int kSize = sizeof(T);
    if (!buffer) return kSize;
    if (size < kSize) return 0;
    std::memcpy(buffer, &record, sizeof(T));
    return kSize;
}

/// A COLORREF as 0x00RRGGBB, and back.
constexpr uint32_t SwapRedAndBlue(uint32_t color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

}  // namespace vxgui::gdi
