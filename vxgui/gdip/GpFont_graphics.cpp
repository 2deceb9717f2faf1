#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

bool GpFont::SetWeightWithGraphics(int32_t Weight, const Ref<GpGraphics>& g) {
    const KeepAlive keep(this);
    if (!g) return SetWeight(Weight, nullptr);
    const gdi::HDC dc = g->GetHDC();
    if (!dc) return false;
    const bool done = Reweigh(g->Handle(), Weight, dc);
    g->ReleaseHDC(dc);
    return done;
}

bool GpFont::GetLogFontWith(gdi::LOGFONTA* lpLogFont, const Ref<GpGraphics>& g) {
    if (!g) return GetLogFontOf(lpLogFont, nullptr);
    return Check(flat::GdipGetLogFontA(handle_, g->Handle(), lpLogFont));
}

}  // namespace vxgui
