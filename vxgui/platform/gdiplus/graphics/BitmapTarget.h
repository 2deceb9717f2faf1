#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/DrawingTarget.h"
#include "vxgui/platform/gdiplus/graphics/BitmapDc.h"
#include "vxgui/platform/gdiplus/graphics/ScratchArea.h"

namespace vxgui::gdiplus {

/// The pixels of a bitmap. Premultiplied 32-bit ones are drawn on where they stand.
class BitmapTarget final : public DrawingTarget {
public:
    explicit BitmapTarget(Ref<Bitmap> bitmap) : bitmap_(std::move(bitmap)) {}

    INT Width() const override { return static_cast<INT>(bitmap_->Width()); }
    INT Height() const override { return static_cast<INT>(bitmap_->Height()); }
    REAL DpiX() const override { return bitmap_->dpiX; }
    REAL DpiY() const override { return bitmap_->dpiY; }
    GpStatus Ready() const override { return bitmap_->IsLocked() ? ObjectBusy : Ok; }
    const void* Memory() const override { return bitmap_->Row(0); }
    WordRows Words() const override;
    cairo_surface_t* Begin(const GpRect& area) override;
    void End(const GpRect& area) override;
    void Store(const GpRect& area, ARGB color) override;
    gdi::HDC LendDc() override;
    void TakeBack(gdi::HDC dc) override;

private:
    cairo_surface_t* Cover();

    const Ref<Bitmap> bitmap_;
    ScratchArea scratch_;
    bool direct_ = false;
    WordRows covered_;
    Surface surface_;  // over `covered_`
    std::optional<BitmapDc> lent_;
};

}  // namespace vxgui::gdiplus
