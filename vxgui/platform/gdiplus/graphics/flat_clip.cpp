#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/Region.h"
#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/Clips.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_graphics.h"

namespace vxgui::gdiplus {
namespace {

/// Combines the clip with what `make(graphics)` answers.
template <class Make>
GpStatus Combine(GpGraphics* graphics, CombineMode mode, Make make) {
    if (mode < CombineModeReplace || mode > CombineModeComplement) return InvalidParameter;
    return SetOfGraphics(graphics,
                         [&](Graphics& found) { found.state.clip.Combine(make(found), mode); });
}

bool Covers(const GpRect& box, const gdi::PixelRegion* clip) {
    return !clip || clip->Overlaps(ToRECT(box));
}

// Whether a pixel of a box in device coordinates can be drawn on.
bool IsVisible(const Graphics& graphics, const GpRect& device) {
    const GpRect box = graphics.Drawable(device);
    return !IsEmpty(box) && Covers(box, graphics.Target().Clip()) &&
           Covers(box, graphics.state.clip.Pixels()) &&
           Covers(box, graphics.state.outerClip.Pixels());
}

GpRect Rounded(const GpRectF& r) {
    return {RoundCoordinate(r.X), RoundCoordinate(r.Y), RoundCoordinate(r.Width),
            RoundCoordinate(r.Height)};
}

}  // namespace

extern "C" {

GpStatus GdipSetClipRect(GpGraphics* graphics, REAL x, REAL y, REAL width, REAL height,
                         CombineMode mode) {
    return Combine(graphics, mode, [&](Graphics& found) {
        return ClipOfRect(found, {x, y, width, height});
    });
}

GpStatus GdipSetClipRectI(GpGraphics* graphics, INT x, INT y, INT width, INT height,
                          CombineMode mode) {
    const GpRectF rect = ToFloat(GpRect{x, y, width, height});
    return GdipSetClipRect(graphics, rect.X, rect.Y, rect.Width, rect.Height, mode);
}

GpStatus GdipSetClipPath(GpGraphics* graphics, GpPath* path, CombineMode mode) {
    return FlatOn<Path>(path, [&](Path& shape) {
        return Combine(graphics, mode, [&](Graphics& found) {
            return ClipOfPath(found, shape.data, shape.fillMode);
        });
    });
}

GpStatus GdipSetClipGraphics(GpGraphics* graphics, GpGraphics* srcgraphics, CombineMode mode) {
    return OnGraphics(srcgraphics, [&](Graphics& source) {
        return Combine(graphics, mode, [&](Graphics&) { return source.state.clip; });
    });
}

GpStatus GdipSetClipHrgn(GpGraphics* graphics, gdi::HRGN region, CombineMode mode) {
    return Flat([&] {
        const gdi::GdiRef<gdi::Region> found = gdi::Find<gdi::Region>(region);
        if (!found) return InvalidParameter;
        const GpRectF box = ToFloat(FromRECT(found->shape.Bounds()));
        return Combine(graphics, mode, [&](Graphics&) { return Clip(found->shape, box); });
    });
}

GpStatus GdipResetClip(GpGraphics* graphics) {
    return SetOfGraphics(graphics, [](Graphics& found) { found.state.clip = {}; });
}

GpStatus GdipTranslateClip(GpGraphics* graphics, REAL dx, REAL dy) {
    return SetOfGraphics(graphics, [&](Graphics& found) {
        const GpPointF move = found.WorldToDevice().ApplyToVector({dx, dy});
        found.state.clip.Shift(move.X, move.Y);
    });
}

GpStatus GdipTranslateClipI(GpGraphics* graphics, INT dx, INT dy) {
    return GdipTranslateClip(graphics, static_cast<REAL>(dx), static_cast<REAL>(dy));
}

GpStatus GdipGetClipBounds(GpGraphics* graphics, GpRectF* rect) {
    return GetOfGraphics(graphics, rect, ClipBounds);
}

GpStatus GdipGetClipBoundsI(GpGraphics* graphics, GpRect* rect) {
    return GetOfGraphics(graphics, rect,
                         [](Graphics& found) { return Rounded(ClipBounds(found)); });
}

GpStatus GdipGetVisibleClipBounds(GpGraphics* graphics, GpRectF* rect) {
    return GetOfGraphics(graphics, rect, VisibleBounds);
}

GpStatus GdipGetVisibleClipBoundsI(GpGraphics* graphics, GpRect* rect) {
    return GetOfGraphics(graphics, rect,
                         [](Graphics& found) { return Rounded(VisibleBounds(found)); });
}

GpStatus GdipIsClipEmpty(GpGraphics* graphics, BOOL* result) {
    return GetOfGraphics(graphics, result,
                         [](Graphics& found) { return found.state.clip.IsEmpty(); });
}

GpStatus GdipIsVisibleClipEmpty(GpGraphics* graphics, BOOL* result) {
    return GetOfGraphics(graphics, result, [](Graphics& found) {
        return !IsVisible(found, {0, 0, found.Target().Width(), found.Target().Height()});
    });
}

GpStatus GdipIsVisiblePoint(GpGraphics* graphics, REAL x, REAL y, BOOL* result) {
    return GetOfGraphics(graphics, result, [&](Graphics& found) {
        const GpPointF point = found.WorldToDevice().Apply({x, y});
        return IsVisible(found,
                         {DeviceInt(std::floor(point.X)), DeviceInt(std::floor(point.Y)), 1, 1});
    });
}

GpStatus GdipIsVisiblePointI(GpGraphics* graphics, INT x, INT y, BOOL* result) {
    return GdipIsVisiblePoint(graphics, static_cast<REAL>(x), static_cast<REAL>(y), result);
}

GpStatus GdipIsVisibleRect(GpGraphics* graphics, REAL x, REAL y, REAL width, REAL height,
                           BOOL* result) {
    return GetOfGraphics(graphics, result, [&](Graphics& found) {
        return IsVisible(found, PixelsAround(BoxOf({x, y, width, height}, found.WorldToDevice())));
    });
}

GpStatus GdipIsVisibleRectI(GpGraphics* graphics, INT x, INT y, INT width, INT height,
                            BOOL* result) {
    const GpRectF rect = ToFloat(GpRect{x, y, width, height});
    return GdipIsVisibleRect(graphics, rect.X, rect.Y, rect.Width, rect.Height, result);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
