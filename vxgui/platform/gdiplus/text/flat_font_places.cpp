#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/text/FontPlace.h"
#include "vxgui/platform/gdiplus_fonts.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipGetFontHeight(const GpFont* font, const GpGraphics* graphics, REAL* height) {
    return FlatOn<Graphics>(graphics, [&](Graphics& surface) {
        return FlatGet<Font>(font, height, [&](Font& found) {
            return static_cast<REAL>(found.LineHeight(EmInWorld(found, surface)));
        });
    });
}

GpStatus GdipGetLogFontA(GpFont* font, GpGraphics* graphics, gdi::LOGFONTA* logfontA) {
    return FlatOn<Graphics>(graphics, [&](Graphics& surface) {
        return FlatGet<Font>(font, logfontA,
                             [&](Font& found) { return LogFontOf(found, surface); });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
