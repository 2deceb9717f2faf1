#include "vxgui/platform/gdiplus/graphics/CachedBitmap.h"

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/graphics/Blit.h"

namespace vxgui::gdiplus {
namespace {

bool OnlyMoves(const Affine& a) { return a.m11 == 1 && a.m12 == 0 && a.m21 == 0 && a.m22 == 1; }

}  // namespace

Ref<CachedBitmap> CachedBitmap::Make(const Bitmap& bitmap) {
    Ref<CachedBitmap> made = New<CachedBitmap>();
    Canvas& canvas = made->canvas_;
    canvas.width = static_cast<INT>(bitmap.Width());
    canvas.height = static_cast<INT>(bitmap.Height());
    const auto width = static_cast<size_t>(canvas.width);
    canvas.pixels.resize(width * bitmap.Height());
    for (INT y = 0; y < canvas.height; ++y) {
        bitmap.ReadPremultiplied(
            0, y, std::span(canvas.pixels).subspan(static_cast<size_t>(y) * width, width));
    }
    return made;
}

GpStatus CachedBitmap::Draw(Graphics& graphics, INT x, INT y) {
    const Affine world = graphics.WorldToDevice();
    if (!OnlyMoves(world)) return WrongState;
    const GpPoint at = RoundPoint(world.Apply({static_cast<REAL>(x), static_cast<REAL>(y)}));
    return Blit(graphics, canvas_.Words(), {at.X, at.Y, canvas_.width, canvas_.height}, at);
}

}  // namespace vxgui::gdiplus
