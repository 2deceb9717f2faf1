#include "vxgui/gdip/GpCachedBitmap.h"

#include "vxgui/base/Error.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {
namespace {

void Need(bool object, const char* source) {
    if (!object) throw Error(ErrorNumber::ObjectNotSet, source, "Object not set");
}

}  // namespace

bool GpCachedBitmap::Create(const Ref<GpBitmap>& BITMAP, const Ref<GpGraphics>& graphics) {
    const KeepAlive keep(this);
    Need(BITMAP && graphics, "GpCachedBitmap.Create");
    gdiplus::GpCachedBitmap* cached = nullptr;
    return Adopt(flat::GdipCreateCachedBitmap(BITMAP->Handle(), graphics->Handle(), &cached),
                 cached);
}

bool GpCachedBitmap::DrawCachedBitmap(const Ref<GpGraphics>& g, int32_t X, int32_t Y) {
    const KeepAlive keep(this);
    Need(g != nullptr, "GpCachedBitmap.DrawCachedBitmap");
    return Check(flat::GdipDrawCachedBitmap(g->Handle(), handle_, X, Y));
}

}  // namespace vxgui
