#include "vxgui/gdip/GpGraphics.h"

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

gdiplus::GpGraphics* GpGraphics::Replaced(gdiplus::Status status, gdiplus::GpGraphics*& made) {
    return Adopt(status, made) ? handle_ : nullptr;
}

gdiplus::GpGraphics* GpGraphics::FromHDC(gdi::HDC hDC) {
    const KeepAlive keep(this);
    gdiplus::GpGraphics* made = nullptr;
    return Replaced(flat::GdipCreateFromHDC(hDC, &made), made);
}

gdiplus::GpGraphics* GpGraphics::FromHWND(HANDLE hWnd, bool icm) {
    const KeepAlive keep(this);
    gdiplus::GpGraphics* made = nullptr;
    return Replaced(
        icm ? flat::GdipCreateFromHWNDICM(hWnd, &made) : flat::GdipCreateFromHWND(hWnd, &made),
        made);
}

gdiplus::GpGraphics* GpGraphics::FromImage(gdiplus::GpImage* hImage) {
    const KeepAlive keep(this);
    gdiplus::GpGraphics* made = nullptr;
    return Replaced(flat::GdipGetImageGraphicsContext(hImage, &made), made);
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

gdi::HDC GpGraphics::GetHDC() {
    gdi::HDC dc = nullptr;
    return Check(flat::GdipGetDC(handle_, &dc)) ? dc : nullptr;
}

bool GpGraphics::ReleaseHDC(gdi::HDC hDC) { return Check(flat::GdipReleaseDC(handle_, hDC)); }

uint32_t GpGraphics::Save() {
    uint32_t state = 0;
    return Check(flat::GdipSaveGraphics(handle_, &state)) ? state : 0;
}

bool GpGraphics::Restore(uint32_t gstate) {
    return Check(flat::GdipRestoreGraphics(handle_, gstate));
}

}  // namespace vxgui
