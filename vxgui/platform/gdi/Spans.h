#pragma once

#include <algorithm>

#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi {

/// Pixels that are worked on at a time; their words stay in the nearest cache.
constexpr int32_t kSpan = 256;

/// Calls `paint(x, y, count)` for runs of at most `kSpan` pixels that make up what may be drawn
/// on of `area`.
template <class Paint>
void ForEachSpan(const DeviceContext& dc, const RECT& area, Paint&& paint) {
    ForEachClipRect(dc, area, [&](const RECT& part) {
        for (int32_t y = part.top; y < part.bottom; ++y) {
            for (int32_t x = part.left; x < part.right; x += kSpan) {
                paint(x, y, std::min(kSpan, part.right - x));
            }
        }
    });
}

}  // namespace vxgui::gdi
