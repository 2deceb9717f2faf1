#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/OutOfMemory.h"
#include "vxgui/platform/gdi/shapes/RegionHandles.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

// Without a clip all of the target is clipped to, but the intersection with it is left out: the
// region then stays whole when a larger bitmap is selected.
int CombineClip(DeviceContext& dc, const PixelRegion& region, int mode) {
    std::optional<PixelRegion>& clip = dc.state.clip;
    if (!clip && mode == RGN_AND) mode = RGN_COPY;
    PixelRegion result;
    const PixelRegion before = clip ? *clip : PixelRegion(dc.Target().Bounds());
    const bool copies = mode == RGN_COPY;
    if (!result.Combine(copies ? region : before, region, mode)) return ERROR;
    clip = std::move(result);
    return clip->Kind();
}

int CombineClipRect(HDC dc, const RECT& rect, int mode) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return ERROR;
    return OrOutOfMemory(ERROR, [&] { return CombineClip(*context, PixelRegion(rect), mode); });
}

}  // namespace

int SelectClipRgn(HDC dc, HRGN region) { return ExtSelectClipRgn(dc, region, RGN_COPY); }

int ExtSelectClipRgn(HDC dc, HRGN region, int mode) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return ERROR;
    if (!region && mode == RGN_COPY) {
        context->state.clip.reset();
        return SIMPLEREGION;
    }
    const GdiRef<Region> found = FindRegion(region);
    if (!found) return ERROR;
    return OrOutOfMemory(ERROR, [&] { return CombineClip(*context, found->shape, mode); });
}

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom) {
    return CombineClipRect(dc, {left, top, right, bottom}, RGN_AND);
}

int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom) {
    return CombineClipRect(dc, {left, top, right, bottom}, RGN_DIFF);
}

int GetClipBox(HDC dc, RECT* box) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || !box) return ERROR;
    return OrOutOfMemory(ERROR, [&] {
        PixelRegion visible(context->Target().Bounds());
        if (context->state.clip) visible.Combine(visible, *context->state.clip, RGN_AND);
        *box = visible.Bounds();
        return visible.Kind();
    });
}

int GetClipRgn(HDC dc, HRGN region) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    const GdiRef<Region> found = FindRegion(region);
    if (!context || !found) return -1;
    if (!context->state.clip) return 0;
    return OrOutOfMemory(-1, [&] {
        found->shape = *context->state.clip;
        return 1;
    });
}

}  // namespace vxgui::gdi
