#pragma once

#include "vxgui/platform/gdi/text/LinePlace.h"

namespace vxgui::gdi {

/// A rectangle beside a line, seen from the pen; bottom lies below top.
struct LineSpan {
    int64_t left, right, top, bottom;
};

/// Fills one, turned as the line is: a background or an underline. `color` is 0x00RRGGBB.
void PaintSpan(const LinePlace& place, PenPoint pen, const LineSpan& span, uint32_t color);

}  // namespace vxgui::gdi
