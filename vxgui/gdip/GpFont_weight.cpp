#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/MeasuringContext.h"

namespace vxgui {

bool GpFont::Reweigh(gdiplus::GpGraphics* graphics, int32_t weight, gdi::HDC dc) {
    gdi::LOGFONTA record{};
    if (!Check(flat::GdipGetLogFontA(handle_, graphics, &record))) return false;
    record.lfWeight = weight;
    gdiplus::GpFont* made = nullptr;
    return Adopt(flat::GdipCreateFontFromLogfontA(dc, &record, &made), made);
}

bool GpFont::SetWeight(int32_t Weight, gdi::HDC hDC) {
    const KeepAlive keep(this);
    const MeasuringContext context(hDC);
    const ContextGraphics graphics(context.Dc());
    return Check(graphics.Status()) && Reweigh(graphics.Handle(), Weight, context.Dc());
}

bool GpFont::GetLogFontOf(gdi::LOGFONTA* lpLogFont, gdi::HDC hDC) {
    const MeasuringContext context(hDC);
    const ContextGraphics graphics(context.Dc());
    return Check(graphics.Status()) &&
           Check(flat::GdipGetLogFontA(handle_, graphics.Handle(), lpLogFont));
}

}  // namespace vxgui
