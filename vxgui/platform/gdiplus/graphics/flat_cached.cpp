#include "vxgui/platform/gdiplus/graphics/CachedBitmap.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_drawing.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipCreateCachedBitmap(GpBitmap* bitmap, GpGraphics* graphics,
                                GpCachedBitmap** cachedBitmap) {
    return FlatCreate(cachedBitmap, [&] {
        return DrawWith<Bitmap>(graphics, bitmap, [&](Graphics&, Bitmap& found) -> GpStatus {
            if (found.IsLocked()) return ObjectBusy;
            Ref<CachedBitmap> made = CachedBitmap::Make(found);
            return made ? HandOut(cachedBitmap, std::move(made)) : OutOfMemory;
        });
    });
}

GpStatus GdipDeleteCachedBitmap(GpCachedBitmap* cachedBitmap) {
    return FlatOn<CachedBitmap>(cachedBitmap, [&](CachedBitmap&) {
        return RetireObject(cachedBitmap) ? Ok : InvalidParameter;
    });
}

GpStatus GdipDrawCachedBitmap(GpGraphics* graphics, GpCachedBitmap* cachedBitmap, INT x, INT y) {
    return DrawWith<CachedBitmap>(
        graphics, cachedBitmap,
        [&](Graphics& found, CachedBitmap& cached) { return cached.Draw(found, x, y); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
