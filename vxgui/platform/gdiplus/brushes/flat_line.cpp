#include <algorithm>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/LineBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipSetLineColors(GpBrush* brush, ARGB color1, ARGB color2) {
    return FlatSet<LineBrush>(brush, [&](LineBrush& found) {
        found.colors[0] = color1;
        found.colors[1] = color2;
    });
}

GpStatus GdipGetLineColors(GpBrush* brush, ARGB* colors) {
    if (!colors) return InvalidParameter;
    return FlatSet<LineBrush>(brush,
                              [&](LineBrush& found) { std::ranges::copy(found.colors, colors); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
