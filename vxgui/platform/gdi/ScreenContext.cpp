#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {

// There is no screen: a memory context has its resolution and its fonts, and that is what those
// who ask for the screen want to know.
HDC GetDC(HANDLE) { return CreateCompatibleDC(nullptr); }
int ReleaseDC(HANDLE, HDC dc) { return DeleteDC(dc); }

DWORD GetLayout(HDC dc) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    return context ? context->state.layout : GDI_ERROR;
}

DWORD SetLayout(HDC dc, DWORD layout) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    return context ? std::exchange(context->state.layout, layout) : GDI_ERROR;
}

}  // namespace vxgui::gdi
