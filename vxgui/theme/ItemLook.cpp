#include "vxgui/theme/ItemLook.h"

#include <algorithm>

namespace vxgui {
namespace {

gdi::SIZE GlyphSize(ThemeItem& item) {
    const int32_t frames = std::max(item.GlyphFrames(), 1);
    int32_t left, top, right, bottom;
    item.GetGlyphMargin(left, top, right, bottom);
    const int32_t width = item.Glyph()->Width() / (item.GlyphFrameVert() ? 1 : frames);
    const int32_t height = item.Glyph()->Height() / (item.GlyphFrameVert() ? frames : 1);
    return {width + left + right, height + top + bottom};
}

}  // namespace

gdi::SIZE OwnSize(ThemeItem& item) {
    gdi::SIZE size{64, 24};
    if (item.Image()) {
        size = {item.ImageWidth(), item.ImageHeight()};
    } else if (item.Glyph()) {
        size = GlyphSize(item);
    }
    return {std::max(size.cx, 1), std::max(size.cy, 1)};
}

bool ShowsInState(ThemeItem& item, int32_t state) {
    const bool image = item.Image() && item.StateFrame(state) < item.FrameCount();
    return image || (item.Glyph() && item.GlyphStateFrame(state) < item.GlyphFrames());
}

}  // namespace vxgui
