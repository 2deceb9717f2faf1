#include <cstdlib>
#include <new>

#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/Pen.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {

HPEN CreatePen(int style, int width, COLORREF color) try {
    if (style < 0 || style > static_cast<int>(PS_INSIDEFRAME) || width == INT32_MIN) return nullptr;
    const int pixels = std::abs(width);
    const bool broken = style >= static_cast<int>(PS_DASH) && style < static_cast<int>(PS_NULL);
    // As published: only a line of one pixel can be broken, a wider one comes out solid.
    const UINT drawn = broken && pixels > 1 ? PS_SOLID : static_cast<UINT>(style);
    const GdiRef<Pen> pen = Enter(std::make_unique<Pen>(LOGPEN{drawn, {pixels, 0}, color}));
    return pen ? static_cast<HPEN>(pen->Handle()) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

}  // namespace vxgui::gdi
