#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Drawing targets: their state, and what is drawn on them. While a graphics' device context is
/// handed out, or its bitmap locked, everything but giving it back answers `ObjectBusy`.
namespace vxgui::gdiplus {

extern "C" {

/// A graphics over the pixels that a context has selected at the time of each drawing, within the
/// context's clip. 32-bit pixels count as premultiplied. `OutOfMemory` for what is no context.
VXPLATFORM_API GpStatus GdipCreateFromHDC(gdi::HDC hdc, GpGraphics** graphics);
/// A null window is the screen, for measuring; there is no other.
VXPLATFORM_API GpStatus GdipCreateFromHWND(HANDLE hwnd, GpGraphics** graphics);
VXPLATFORM_API GpStatus GdipCreateFromHWNDICM(HANDLE hwnd, GpGraphics** graphics);
/// `OutOfMemory` for a format that can't be drawn on: with a palette, grey, or with one bit of
/// alpha.
VXPLATFORM_API GpStatus GdipGetImageGraphicsContext(GpImage* image, GpGraphics** graphics);
VXPLATFORM_API GpStatus GdipDeleteGraphics(GpGraphics* graphics);
/// Hands out a device context whose drawing reaches the target, until `GdipReleaseDC`. Over a
/// bitmap, what draws without alpha becomes opaque.
VXPLATFORM_API GpStatus GdipGetDC(GpGraphics* graphics, gdi::HDC* hdc);
VXPLATFORM_API GpStatus GdipReleaseDC(GpGraphics* graphics, gdi::HDC hdc);
VXPLATFORM_API GpStatus GdipFlush(GpGraphics* graphics, FlushIntention intention);

/// Sets every pixel of the clip to a straight colour.
VXPLATFORM_API GpStatus GdipGraphicsClear(GpGraphics* graphics, ARGB color);
VXPLATFORM_API GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y,
                                          REAL width, REAL height);
VXPLATFORM_API GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y,
                                           INT width, INT height);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_GRAPHICS(X)  \
    X(GdipCreateFromHDC)           \
    X(GdipCreateFromHWND)          \
    X(GdipCreateFromHWNDICM)       \
    X(GdipDeleteGraphics)          \
    X(GdipFillRectangle)           \
    X(GdipFillRectangleI)          \
    X(GdipFlush)                   \
    X(GdipGetDC)                   \
    X(GdipGetImageGraphicsContext) \
    X(GdipGraphicsClear)           \
    X(GdipReleaseDC)
