#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/Region.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

// Puts the object in its place of the context and answers the handle that stood there.
template <class T>
HGDIOBJ Exchange(Selection<T>& place, GdiRef<GdiObject>& object) {
    const HGDIOBJ before = place.Handle();
    place = Selection<T>(GdiRef<T>::Adopt(static_cast<T*>(object.Detach())));
    return before;
}

HGDIOBJ SelectBitmap(DeviceContext& context, GdiRef<GdiObject>& object) {
    if (context.IsHost()) return nullptr;
    if (!static_cast<Bitmap*>(object.get())->Claim(&context)) return nullptr;
    return Exchange(context.state.bitmap, object);
}

// A region is copied, and the answer is what kind of region the clip is now.
HGDIOBJ SelectRegion(DeviceContext& context, const GdiRef<GdiObject>& object) {
    const PixelRegion& shape = static_cast<const Region*>(object.get())->shape;
    context.state.clip = shape;
    const size_t boxes = shape.Boxes().size();
    const intptr_t kind = boxes == 0 ? NULLREGION : boxes == 1 ? SIMPLEREGION : COMPLEXREGION;
    return reinterpret_cast<HGDIOBJ>(kind);
}

}  // namespace

HGDIOBJ SelectObject(HDC dc, HGDIOBJ handle) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    GdiRef<GdiObject> object = FindAny(handle);
    if (!context || !object) return nullptr;
    switch (object->Kind()) {
        case GdiKind::Bitmap:
            return SelectBitmap(*context, object);
        case GdiKind::Brush:
            return Exchange(context->state.brush, object);
        case GdiKind::Pen:
            return Exchange(context->state.pen, object);
        case GdiKind::Font:
            return Exchange(context->state.font, object);
        case GdiKind::Region:
            return SelectRegion(*context, object);
        default:
            return nullptr;
    }
}

HGDIOBJ GetCurrentObject(HDC dc, UINT kind) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return nullptr;
    switch (kind) {
        case OBJ_PEN:
            return context->state.pen.Handle();
        case OBJ_BRUSH:
            return context->state.brush.Handle();
        case OBJ_FONT:
            return context->state.font.Handle();
        case OBJ_BITMAP:
            return context->state.bitmap.Handle();
        default:
            return nullptr;
    }
}

BOOL DeleteObject(HGDIOBJ handle) {
    const GdiRef<GdiObject> object = FindAny(handle);
    if (!object) return 0;
    switch (object->Kind()) {
        case GdiKind::DeviceContext:
            return DeleteDC(static_cast<HDC>(handle));
        case GdiKind::Icon:
        case GdiKind::DibDrawer:
            // These have calls of their own to end them.
            return 0;
        default:
            if (!object->Permanent()) object->Delete();
            return 1;
    }
}

int GetObjectA(HGDIOBJ handle, int size, void* buffer) {
    const GdiRef<GdiObject> object = FindAny(handle);
    return object ? object->Record(size, buffer) : 0;
}

BOOL GdiFlush() { return 1; }

}  // namespace vxgui::gdi
