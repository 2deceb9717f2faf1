#pragma once

#include "vxgui/platform/gdi/text/LinePainter.h"

namespace vxgui::gdi {

struct TextPoint {
    int64_t x, y;
};

/// `point` or, where the context's text alignment says so, the context's position.
TextPoint PlaceOf(const DeviceContext& context, TextPoint point);

/// Paints a line inside `clip`. Where text begins at the context's position, that moves behind it.
void PaintAt(DeviceContext& context, const TextSetup& setup, const RECT& clip, const TextLine& line,
             TextPoint at);

}  // namespace vxgui::gdi
