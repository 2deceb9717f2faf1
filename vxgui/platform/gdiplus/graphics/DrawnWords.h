#pragma once

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/Graphics.h"

namespace vxgui::gdiplus {

/// The pixels of `area` that a graphics may draw on, when they aren't all of it.
gdi::PixelRegion ClipWithin(const Graphics& graphics, const GpRect& area);

/// Calls `draw(box)` for each box of pixels that the clip leaves of `area`, which is `Drawable`.
template <class Draw>
void ForEachDrawable(const Graphics& graphics, const GpRect& area, Draw draw) {
    if (graphics.ClipsToBox()) return draw(area);
    const gdi::PixelRegion region = ClipWithin(graphics, area);
    for (const pixman_box32_t& box : region.Boxes()) draw(FromRECT(gdi::RectOf(box)));
}

/// Draws within `area`, which is `Drawable`, on the words of the target, without the drawing
/// library and what it costs before the first pixel: calls `draw(words, x, y, count)` for runs of
/// them. False, and nothing done, where the target has none.
template <class Draw>
bool DrawOnWords(const Graphics& graphics, const GpRect& area, Draw draw) {
    const WordRows words = graphics.Target().Words();
    if (!words) return false;
    ForEachDrawable(graphics, area, [&](const GpRect& box) {
        for (INT y = box.Y; y < box.Y + box.Height; ++y) {
            draw(words.At(box.X, y), box.X, y, static_cast<size_t>(box.Width));
        }
    });
    return true;
}

}  // namespace vxgui::gdiplus
