#pragma once

#include <cairo.h>

#include <functional>
#include <memory>
#include <vector>

#include "vxgui/platform/gdiplus/Brush.h"
#include "vxgui/platform/gdiplus/Clip.h"
#include "vxgui/platform/gdiplus/DrawingTarget.h"

namespace vxgui::gdiplus {

/// The settings that `GdipSaveGraphics` keeps.
struct GraphicsState {
    Affine world;
    Unit pageUnit = UnitDisplay;
    REAL pageScale = 1;
    Affine container;  ///< from the page's pixels to the target's; a shift or more in a container
    CompositingMode compositingMode = CompositingModeSourceOver;
    CompositingQuality compositingQuality = CompositingQualityDefault;
    SmoothingMode smoothingMode = SmoothingModeNone;
    InterpolationMode interpolationMode = InterpolationModeBilinear;
    PixelOffsetMode pixelOffsetMode = PixelOffsetModeDefault;
    TextRenderingHint textRenderingHint = TextRenderingHintSystemDefault;
    UINT textContrast = 4;
    GpPoint renderingOrigin{0, 0};
    Clip clip;
    Clip outerClip;  ///< of the containers around
};

/// What a graphics handle names.
class Graphics final : public FlatObject {
public:
    explicit Graphics(std::unique_ptr<DrawingTarget> target) : target_(std::move(target)) {}

    using Draw = std::function<void(cairo_t*)>;
    /// Runs `draw` on a context whose user space is the world (page unit and scale included), with
    /// the clip, the operator of the compositing mode and the antialiasing of the smoothing mode
    /// set. What would be drawn more than a pixel outside `bounds`, a box in world coordinates, is
    /// lost. Pixel (0, 0) covers the square from (0, 0) to (1, 1) of the device.
    GpStatus Paint(const GpRectF& bounds, const Draw& draw);
    /// The same in device pixels: user space is the device, and the world does not count. Nothing
    /// is drawn outside `bounds`.
    GpStatus PaintDevice(const GpRect& bounds, const Draw& draw);
    /// With any user space, for what paints no pixel outside of `area` by itself; `area` must be
    /// `Drawable`. It is spared a clip.
    GpStatus PaintExactly(const GpRect& area, const Affine& user, const Draw& draw);
    /// Makes a brush the source of a context whose user space is the world. `device` is the box of
    /// pixels that will be painted.
    void SetSource(cairo_t* cairo, const Brush& brush, const GpRect& device) const;

    Affine PageToDevice() const;
    Affine WorldToDevice() const;
    /// The pixels that a box in world coordinates touches, one more on each side.
    GpRect DeviceBox(const GpRectF& world) const;
    /// The part of `device` that the target, its clip and the graphics' own clip leave.
    GpRect Drawable(const GpRect& device) const;
    /// How far the middles of pixels lie from where shapes are sampled: by default a pixel is
    /// sampled at its upper left corner, so that shapes move by half a pixel.
    double ShapeOffset() const;
    /// Moves the user space of a context of `Paint` by that much, for shapes. Set the source first:
    /// paints are given in the world, and don't move.
    void MoveToSamples(cairo_t* cairo) const;
    bool Antialiases() const;
    /// What is drawn takes the place of the pixels and isn't blended with them.
    bool Replaces() const { return state.compositingMode == CompositingModeSourceCopy; }
    /// Whether all of what is `Drawable` may be drawn on.
    bool ClipsToBox() const;

    DrawingTarget& Target() const { return *target_; }
    /// Why nothing may be done with the graphics now, or Ok.
    GpStatus Ready() const;

    /// Numbers of saved states are never 0.
    UINT Save();
    bool Restore(UINT id);

    GraphicsState state;
    /// The device context that is handed out; nothing may be drawn meanwhile.
    gdi::HDC lentDc = nullptr;

private:
    struct Saved {
        UINT id;
        GraphicsState state;
    };

    struct ContextRelease {
        void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    };

    void ClipToPixels(cairo_t* cairo, const GpRect& area) const;
    void Prepare(cairo_t* cairo, const Affine& user) const;
    GpStatus PaintArea(const GpRect& device, const Affine& user, const Draw& draw);
    cairo_t* ContextOn(cairo_surface_t* surface);

    std::unique_ptr<DrawingTarget> target_;
    std::vector<Saved> saved_;
    UINT lastId_ = 0;
    std::unique_ptr<cairo_t, ContextRelease> context_;  // kept while its surface stays
};

}  // namespace vxgui::gdiplus
