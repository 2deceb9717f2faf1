#pragma once

#include <cairo.h>

#include <functional>
#include <memory>
#include <vector>

#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

/// The settings that `GdipSaveGraphics` keeps.
struct GraphicsState {
    Affine world;
    Unit pageUnit = UnitDisplay;
    REAL pageScale = 1;
    CompositingMode compositingMode = CompositingModeSourceOver;
    CompositingQuality compositingQuality = CompositingQualityDefault;
    SmoothingMode smoothingMode = SmoothingModeNone;
    InterpolationMode interpolationMode = InterpolationModeBilinear;
    PixelOffsetMode pixelOffsetMode = PixelOffsetModeNone;
    TextRenderingHint textRenderingHint = TextRenderingHintSystemDefault;
    UINT textContrast = 4;
    GpPoint renderingOrigin{0, 0};
};

/// The pixels that a graphics draws on.
class DrawingTarget {
public:
    virtual ~DrawingTarget() = default;
    virtual INT Width() const = 0;
    virtual INT Height() const = 0;
    virtual REAL DpiX() const { return 96; }
    virtual REAL DpiY() const { return 96; }
    /// A premultiplied 32-bit surface over the whole target, which shows its pixels within `area`;
    /// what is drawn there reaches the target at `End`. Null when memory is out.
    virtual cairo_surface_t* Begin(const GpRect& area) = 0;
    virtual void End(const GpRect& area) = 0;
};

/// What a graphics handle names.
class Graphics final : public FlatObject {
public:
    explicit Graphics(std::unique_ptr<DrawingTarget> target) : target_(std::move(target)) {}

    using Draw = std::function<void(cairo_t*)>;
    /// Runs `draw` on a context whose user space is the world (page unit and scale included), with
    /// the clip, the operator of the compositing mode and the antialiasing of the smoothing mode
    /// set. Nothing outside `bounds`, a box in world coordinates, may be drawn.
    GpStatus Paint(const GpRectF& bounds, const Draw& draw);
    /// The same in device pixels: user space is the device, and the world does not count.
    GpStatus PaintDevice(const GpRect& bounds, const Draw& draw);
    /// Fills the current path of a context of `Paint` with a brush.
    void Fill(cairo_t* cairo, const Brush& brush, const GpRect& device);

    Affine PageToDevice() const;
    Affine WorldToDevice() const;
    DrawingTarget& Target() const { return *target_; }

    GraphicsState state;

private:
    std::unique_ptr<DrawingTarget> target_;
};

}  // namespace vxgui::gdiplus
