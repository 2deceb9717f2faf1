#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/graphics/BitmapTarget.h"
#include "vxgui/platform/gdiplus/graphics/DcTarget.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_graphics.h"

namespace vxgui::gdiplus {
namespace {

GpStatus OverContext(gdi::GdiRef<gdi::DeviceContext> context, GpGraphics** graphics) {
    if (!context) return OutOfMemory;  // as published for a context that isn't one
    return HandOut(graphics, New<Graphics>(std::make_unique<DcTarget>(std::move(context))));
}

bool IsDrawable(PixelFormat format) {
    return !IsIndexed(format) && format != PixelFormat16bppGrayScale &&
           format != PixelFormat16bppARGB1555;
}

GpStatus OverBitmap(Bitmap& bitmap, GpGraphics** graphics) {
    if (bitmap.IsLocked()) return ObjectBusy;
    if (!IsDrawable(bitmap.Format())) return OutOfMemory;
    auto target = std::make_unique<BitmapTarget>(Ref<Bitmap>(&bitmap));
    return HandOut(graphics, New<Graphics>(std::move(target)));
}

// A window's pixels belong to its window system, and there is none; the whole screen is a memory
// context, for measuring.
GpStatus OverWindow(HANDLE window, GpGraphics** graphics) {
    if (window) return NotImplemented;
    const gdi::HDC screen = gdi::GetDC(nullptr);
    const GpStatus status = OverContext(gdi::FindContext(screen), graphics);
    gdi::ReleaseDC(nullptr, screen);
    return status;
}

}  // namespace

extern "C" {

GpStatus GdipCreateFromHDC(gdi::HDC hdc, GpGraphics** graphics) {
    return FlatCreate(graphics, [&] { return OverContext(gdi::FindContext(hdc), graphics); });
}

GpStatus GdipCreateFromHWND(HANDLE hwnd, GpGraphics** graphics) {
    return FlatCreate(graphics, [&] { return OverWindow(hwnd, graphics); });
}

GpStatus GdipCreateFromHWNDICM(HANDLE hwnd, GpGraphics** graphics) {
    return GdipCreateFromHWND(hwnd, graphics);
}

GpStatus GdipGetImageGraphicsContext(GpImage* image, GpGraphics** graphics) {
    return FlatCreate(graphics, [&] {
        return FlatOn<Bitmap>(image, [&](Bitmap& bitmap) { return OverBitmap(bitmap, graphics); });
    });
}

GpStatus GdipDeleteGraphics(GpGraphics* graphics) {
    return FlatOn<Graphics>(graphics, [&](Graphics& found) {
        if (found.lentDc) return ObjectBusy;
        return RetireObject(graphics) ? Ok : InvalidParameter;
    });
}

GpStatus GdipGetDC(GpGraphics* graphics, gdi::HDC* hdc) {
    if (!hdc) return InvalidParameter;
    *hdc = nullptr;
    return OnGraphics(graphics, [&](Graphics& found) {
        *hdc = found.lentDc = found.Target().LendDc();
        return *hdc ? Ok : OutOfMemory;
    });
}

GpStatus GdipReleaseDC(GpGraphics* graphics, gdi::HDC hdc) {
    return FlatOn<Graphics>(graphics, [&](Graphics& found) {
        if (!hdc || hdc != found.lentDc) return InvalidParameter;
        found.Target().TakeBack(std::exchange(found.lentDc, nullptr));
        return Ok;
    });
}

// Nothing waits: what a call draws is there when it returns.
GpStatus GdipFlush(GpGraphics* graphics, FlushIntention) {
    return OnGraphics(graphics, [](Graphics&) { return Ok; });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
