#include "vxgui/platform/gdiplus/graphics/DrawnWords.h"

namespace vxgui::gdiplus {

gdi::PixelRegion ClipWithin(const Graphics& graphics, const GpRect& area) {
    gdi::PixelRegion region(ToRECT(area));
    for (const gdi::PixelRegion* clip : {graphics.Target().Clip(), graphics.state.clip.Pixels(),
                                         graphics.state.outerClip.Pixels()}) {
        if (clip) region.Combine(region, *clip, gdi::RGN_AND);
    }
    return region;
}

}  // namespace vxgui::gdiplus
