#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Drawing targets: what they stand for, their settings, their world and their clip. While a
/// graphics' device context is handed out, or its bitmap locked, everything but giving it back
/// answers `ObjectBusy`.
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
VXPLATFORM_API GpStatus GdipGetDpiX(GpGraphics* graphics, REAL* dpi);
VXPLATFORM_API GpStatus GdipGetDpiY(GpGraphics* graphics, REAL* dpi);

/// States nest: restoring one forgets those that were saved after it. A number that isn't that of
/// a saved state gives `InvalidParameter`.
VXPLATFORM_API GpStatus GdipSaveGraphics(GpGraphics* graphics, UINT* state);
VXPLATFORM_API GpStatus GdipRestoreGraphics(GpGraphics* graphics, UINT state);
/// Saves the state and starts a page of its own on top of the world, which shows `srcrect` (in
/// `unit`) in `dstrect`; the second form doesn't move or scale. The clip so far bounds what is
/// drawn until the end; the other settings are handed down.
VXPLATFORM_API GpStatus GdipBeginContainer(GpGraphics* graphics, const GpRectF* dstrect,
                                           const GpRectF* srcrect, Unit unit, UINT* state);
VXPLATFORM_API GpStatus GdipBeginContainerI(GpGraphics* graphics, const GpRect* dstrect,
                                            const GpRect* srcrect, Unit unit, UINT* state);
VXPLATFORM_API GpStatus GdipBeginContainer2(GpGraphics* graphics, UINT* state);
VXPLATFORM_API GpStatus GdipEndContainer(GpGraphics* graphics, UINT state);

/// Where hatch patterns begin, in pixels.
VXPLATFORM_API GpStatus GdipSetRenderingOrigin(GpGraphics* graphics, INT x, INT y);
VXPLATFORM_API GpStatus GdipGetRenderingOrigin(GpGraphics* graphics, INT* x, INT* y);
VXPLATFORM_API GpStatus GdipSetCompositingMode(GpGraphics* graphics, CompositingMode mode);
VXPLATFORM_API GpStatus GdipGetCompositingMode(GpGraphics* graphics, CompositingMode* mode);
VXPLATFORM_API GpStatus GdipSetCompositingQuality(GpGraphics* graphics, CompositingQuality quality);
VXPLATFORM_API GpStatus GdipGetCompositingQuality(GpGraphics* graphics,
                                                  CompositingQuality* quality);
/// Modes that name a quality are kept as what they stand for: no smoothing, or antialiasing.
VXPLATFORM_API GpStatus GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode);
VXPLATFORM_API GpStatus GdipGetSmoothingMode(GpGraphics* graphics, SmoothingMode* mode);
/// The same: bilinear, or bicubic of high quality.
VXPLATFORM_API GpStatus GdipSetInterpolationMode(GpGraphics* graphics, InterpolationMode mode);
VXPLATFORM_API GpStatus GdipGetInterpolationMode(GpGraphics* graphics, InterpolationMode* mode);
/// Half and high quality sample a pixel at its middle, the others at its upper left corner.
VXPLATFORM_API GpStatus GdipSetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode mode);
VXPLATFORM_API GpStatus GdipGetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode* mode);
VXPLATFORM_API GpStatus GdipSetTextRenderingHint(GpGraphics* graphics, TextRenderingHint hint);
VXPLATFORM_API GpStatus GdipGetTextRenderingHint(GpGraphics* graphics, TextRenderingHint* hint);
/// From 0 to 12.
VXPLATFORM_API GpStatus GdipSetTextContrast(GpGraphics* graphics, UINT contrast);
VXPLATFORM_API GpStatus GdipGetTextContrast(GpGraphics* graphics, UINT* contrast);

/// From the world to the page. One without an inverse gives `InvalidParameter`.
VXPLATFORM_API GpStatus GdipSetWorldTransform(GpGraphics* graphics, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipGetWorldTransform(GpGraphics* graphics, GpMatrix* matrix);
VXPLATFORM_API GpStatus GdipResetWorldTransform(GpGraphics* graphics);
VXPLATFORM_API GpStatus GdipMultiplyWorldTransform(GpGraphics* graphics, const GpMatrix* matrix,
                                                   MatrixOrder order);
VXPLATFORM_API GpStatus GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy,
                                                    MatrixOrder order);
VXPLATFORM_API GpStatus GdipScaleWorldTransform(GpGraphics* graphics, REAL sx, REAL sy,
                                                MatrixOrder order);
VXPLATFORM_API GpStatus GdipRotateWorldTransform(GpGraphics* graphics, REAL angle,
                                                 MatrixOrder order);
/// From the page to the device: units of any kind but the world, times a scale above 0. A display
/// unit is a pixel.
VXPLATFORM_API GpStatus GdipSetPageUnit(GpGraphics* graphics, Unit unit);
VXPLATFORM_API GpStatus GdipGetPageUnit(GpGraphics* graphics, Unit* unit);
VXPLATFORM_API GpStatus GdipSetPageScale(GpGraphics* graphics, REAL scale);
VXPLATFORM_API GpStatus GdipGetPageScale(GpGraphics* graphics, REAL* scale);
VXPLATFORM_API GpStatus GdipResetPageTransform(GpGraphics* graphics);

/// Shapes are placed by the world as it is now; later changes don't move the clip.
VXPLATFORM_API GpStatus GdipSetClipRect(GpGraphics* graphics, REAL x, REAL y, REAL width,
                                        REAL height, CombineMode mode);
VXPLATFORM_API GpStatus GdipSetClipRectI(GpGraphics* graphics, INT x, INT y, INT width, INT height,
                                         CombineMode mode);
VXPLATFORM_API GpStatus GdipSetClipPath(GpGraphics* graphics, GpPath* path, CombineMode mode);
VXPLATFORM_API GpStatus GdipSetClipGraphics(GpGraphics* graphics, GpGraphics* srcgraphics,
                                            CombineMode mode);
/// The region is in pixels.
VXPLATFORM_API GpStatus GdipSetClipHrgn(GpGraphics* graphics, gdi::HRGN region, CombineMode mode);
VXPLATFORM_API GpStatus GdipResetClip(GpGraphics* graphics);
VXPLATFORM_API GpStatus GdipTranslateClip(GpGraphics* graphics, REAL dx, REAL dy);
VXPLATFORM_API GpStatus GdipTranslateClipI(GpGraphics* graphics, INT dx, INT dy);
/// In world coordinates. Without a clip the box is that of the infinite region: from -4194304,
/// 8388608 wide and high, whatever the world. The visible forms also count the target's edges and
/// its own clip.
VXPLATFORM_API GpStatus GdipGetClipBounds(GpGraphics* graphics, GpRectF* rect);
VXPLATFORM_API GpStatus GdipGetClipBoundsI(GpGraphics* graphics, GpRect* rect);
VXPLATFORM_API GpStatus GdipGetVisibleClipBounds(GpGraphics* graphics, GpRectF* rect);
VXPLATFORM_API GpStatus GdipGetVisibleClipBoundsI(GpGraphics* graphics, GpRect* rect);
VXPLATFORM_API GpStatus GdipIsClipEmpty(GpGraphics* graphics, BOOL* result);
VXPLATFORM_API GpStatus GdipIsVisibleClipEmpty(GpGraphics* graphics, BOOL* result);
VXPLATFORM_API GpStatus GdipIsVisiblePoint(GpGraphics* graphics, REAL x, REAL y, BOOL* result);
VXPLATFORM_API GpStatus GdipIsVisiblePointI(GpGraphics* graphics, INT x, INT y, BOOL* result);
VXPLATFORM_API GpStatus GdipIsVisibleRect(GpGraphics* graphics, REAL x, REAL y, REAL width,
                                          REAL height, BOOL* result);
VXPLATFORM_API GpStatus GdipIsVisibleRectI(GpGraphics* graphics, INT x, INT y, INT width,
                                           INT height, BOOL* result);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_GRAPHICS(X) \
    X(GdipBeginContainer) \
    X(GdipBeginContainer2) \
    X(GdipBeginContainerI) \
    X(GdipCreateFromHDC) \
    X(GdipCreateFromHWND) \
    X(GdipCreateFromHWNDICM) \
    X(GdipDeleteGraphics) \
    X(GdipEndContainer) \
    X(GdipFlush) \
    X(GdipGetClipBounds) \
    X(GdipGetClipBoundsI) \
    X(GdipGetCompositingMode) \
    X(GdipGetCompositingQuality) \
    X(GdipGetDC) \
    X(GdipGetDpiX) \
    X(GdipGetDpiY) \
    X(GdipGetImageGraphicsContext) \
    X(GdipGetInterpolationMode) \
    X(GdipGetPageScale) \
    X(GdipGetPageUnit) \
    X(GdipGetPixelOffsetMode) \
    X(GdipGetRenderingOrigin) \
    X(GdipGetSmoothingMode) \
    X(GdipGetTextContrast) \
    X(GdipGetTextRenderingHint) \
    X(GdipGetVisibleClipBounds) \
    X(GdipGetVisibleClipBoundsI) \
    X(GdipGetWorldTransform) \
    X(GdipIsClipEmpty) \
    X(GdipIsVisibleClipEmpty) \
    X(GdipIsVisiblePoint) \
    X(GdipIsVisiblePointI) \
    X(GdipIsVisibleRect) \
    X(GdipIsVisibleRectI) \
    X(GdipMultiplyWorldTransform) \
    X(GdipReleaseDC) \
    X(GdipResetClip) \
    X(GdipResetPageTransform) \
    X(GdipResetWorldTransform) \
    X(GdipRestoreGraphics) \
    X(GdipRotateWorldTransform) \
    X(GdipSaveGraphics) \
    X(GdipScaleWorldTransform) \
    X(GdipSetClipGraphics) \
    X(GdipSetClipHrgn) \
    X(GdipSetClipPath) \
    X(GdipSetClipRect) \
    X(GdipSetClipRectI) \
    X(GdipSetCompositingMode) \
    X(GdipSetCompositingQuality) \
    X(GdipSetInterpolationMode) \
    X(GdipSetPageScale) \
    X(GdipSetPageUnit) \
    X(GdipSetPixelOffsetMode) \
    X(GdipSetRenderingOrigin) \
    X(GdipSetSmoothingMode) \
    X(GdipSetTextContrast) \
    X(GdipSetTextRenderingHint) \
    X(GdipSetWorldTransform) \
    X(GdipTranslateClip) \
    X(GdipTranslateClipI) \
    X(GdipTranslateWorldTransform)
