#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

COLORREF GetPixel(HDC handle, int x, int y) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc || !dc->MayDrawAt(x, y)) return CLR_INVALID;
    const PixelTarget target = dc->Target();
    uint32_t word = 0;
    LoadRow(target, x, y, 1, &word);
    return SwapRedAndBlue(ColorOf(target, word, MonoColors{}));
}

COLORREF SetPixel(HDC handle, int x, int y, COLORREF color) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc || !dc->MayDrawAt(x, y)) return CLR_INVALID;
    const PixelTarget target = dc->Target();
    const uint32_t word = ColorMatcher(target).Word(SwapRedAndBlue(color));
    StoreRow(target, x, y, 1, &word);
    return SwapRedAndBlue(ColorOf(target, word, MonoColors{}));
}

}  // namespace vxgui::gdi
