#include "vxgui/gdip/GpCachedBitmap.h"

#include "vxgui/base/Require.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

bool GpCachedBitmap::Create(const Ref<GpBitmap>& BITMAP, const Ref<GpGraphics>& graphics) {
    constexpr const char* kSource = "GpCachedBitmap.Create";
    return Make(flat::GdipCreateCachedBitmap, Require(BITMAP, kSource).Handle(),
                Require(graphics, kSource).Handle());
}

bool GpCachedBitmap::DrawCachedBitmap(const Ref<GpGraphics>& g, int32_t X, int32_t Y) {
    const KeepAlive keep(this);
    GpGraphics& target = Require(g, "GpCachedBitmap.DrawCachedBitmap");
    return Check(flat::GdipDrawCachedBitmap(target.Handle(), handle_, X, Y));
}

}  // namespace vxgui
