#include "vxgui/gdip/GpGraphics.h"

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

gdiplus::GpGraphics* GpGraphics::FromHDC(gdi::HDC hDC) {
    return MakeHandle(flat::GdipCreateFromHDC, hDC);
}

gdiplus::GpGraphics* GpGraphics::FromHWND(HANDLE hWnd, bool icm) {
    return icm ? MakeHandle(flat::GdipCreateFromHWNDICM, hWnd)
               : MakeHandle(flat::GdipCreateFromHWND, hWnd);
}

gdiplus::GpGraphics* GpGraphics::FromImage(gdiplus::GpImage* hImage) {
    return MakeHandle(flat::GdipGetImageGraphicsContext, hImage);
}

gdiplus::GpGraphics* GpGraphics::FromScreen() {
    const KeepAlive keep(this);
    const gdi::HDC screen = gdi::GetDC(nullptr);
    gdiplus::GpGraphics* const made = FromHDC(screen);
    gdi::ReleaseDC(nullptr, screen);
    return made;
}

bool GpGraphics::Clear(gdiplus::ARGB Color) {
    return Check(flat::GdipGraphicsClear(handle_, Color));
}

bool GpGraphics::Flush(gdiplus::FlushIntention Intention) {
    return Check(flat::GdipFlush(handle_, Intention));
}

gdi::HDC GpGraphics::GetHDC() { return Asked<gdi::HDC>(flat::GdipGetDC); }

bool GpGraphics::ReleaseHDC(gdi::HDC hDC) { return Check(flat::GdipReleaseDC(handle_, hDC)); }

uint32_t GpGraphics::Save() { return Asked<uint32_t>(flat::GdipSaveGraphics); }

bool GpGraphics::Restore(uint32_t gstate) {
    return Check(flat::GdipRestoreGraphics(handle_, gstate));
}

}  // namespace vxgui
