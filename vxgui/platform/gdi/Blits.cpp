#include "vxgui/platform/gdi/RopBlit.h"
#include "vxgui/platform/gdi/WordRows.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

constexpr int kLastStretchMode = HALFTONE;

BOOL Fill(const DeviceContext& dc, int x, int y, int width, int height, const Rop3& rop) {
    RopFill(dc, RectFromExtents(x, y, width, height), rop, *dc.state.brush);
    return 1;
}

BOOL Copy(const DeviceContext& dc, const DeviceContext& source, const BlitGeometry& geometry,
          const Rop3& rop) {
    const BlitSource pixels{source.Target(), MonoColorsOf(dc, &source)};
    return RopBlit(dc, pixels, geometry, rop, *dc.state.brush);
}

}  // namespace

BOOL StretchBlt(HDC handle, int x, int y, int width, int height, HDC source, int sourceX,
                int sourceY, int sourceWidth, int sourceHeight, DWORD operation) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc) return 0;
    const Rop3 rop(operation);
    if (!rop.UsesSource()) return Fill(*dc, x, y, width, height, rop);
    const GdiRef<DeviceContext> from = FindContext(source);
    if (!from) return 0;
    if (operation == SRCCOPY && width == sourceWidth && height == sourceHeight &&
        CopyWholeWordRows(*dc, from->Target(), {x, y, width, height, sourceX, sourceY})) {
        return 1;
    }
    return Copy(*dc, *from, {{x, width, sourceX, sourceWidth}, {y, height, sourceY, sourceHeight}},
                rop);
}

BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
            DWORD operation) {
    return StretchBlt(dc, x, y, width, height, source, sourceX, sourceY, width, height, operation);
}

BOOL PatBlt(HDC handle, int x, int y, int width, int height, DWORD operation) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const Rop3 rop(operation);
    // An operation that needs a source has none here.
    if (!dc || rop.UsesSource()) return 0;
    return Fill(*dc, x, y, width, height, rop);
}

int SetStretchBltMode(HDC handle, int mode) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc || mode < BLACKONWHITE || mode > kLastStretchMode) return 0;
    return std::exchange(dc->state.stretchMode, mode);
}

int GetStretchBltMode(HDC handle) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    return dc ? dc->state.stretchMode : 0;
}

}  // namespace vxgui::gdi
