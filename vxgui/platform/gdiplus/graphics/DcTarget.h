#pragma once

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdiplus/DrawingTarget.h"
#include "vxgui/platform/gdiplus/graphics/ScratchArea.h"

namespace vxgui::gdiplus {

/// The pixels of the bitmap that a device context has selected when something is drawn. 32-bit
/// pixels are drawn on where they stand, as premultiplied ones.
class DcTarget final : public DrawingTarget {
public:
    explicit DcTarget(gdi::GdiRef<gdi::DeviceContext> context) : context_(std::move(context)) {}

    INT Width() const override { return context_->Target().width; }
    INT Height() const override { return context_->Target().height; }
    REAL DpiX() const override;
    REAL DpiY() const override { return DpiX(); }
    const gdi::PixelRegion* Clip() const override;
    const void* Memory() const override { return context_->Target().top; }
    WordRows Words() const override;
    cairo_surface_t* Begin(const GpRect& area) override;
    void End(const GpRect& area) override;
    void Store(const GpRect& area, ARGB color) override;
    gdi::HDC LendDc() override { return static_cast<gdi::HDC>(context_->Handle()); }
    void TakeBack(gdi::HDC) override {}

private:
    cairo_surface_t* Cover(const WordRows& words);
    void StoreColors(const gdi::PixelTarget& target, INT x, INT y, std::span<const ARGB> colors);

    const gdi::GdiRef<gdi::DeviceContext> context_;
    WordRows covered_;
    Surface surface_;  // over `covered_`
    ScratchArea scratch_;
};

}  // namespace vxgui::gdiplus
