#pragma once

#include "vxgui/frame/modGdiplus.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// A caller's device context, or one of its own where there is none.
class MeasuringContext {
public:
    explicit MeasuringContext(gdi::HDC dc)
        : own_(dc ? nullptr : gdi::CreateCompatibleDC(nullptr)), dc_(dc ? dc : own_) {}
    ~MeasuringContext() {
        if (own_) gdi::DeleteDC(own_);
    }
    MeasuringContext(const MeasuringContext&) = delete;
    MeasuringContext& operator=(const MeasuringContext&) = delete;

    gdi::HDC Dc() const { return dc_; }

private:
    const gdi::HDC own_;
    const gdi::HDC dc_;
};

/// A flat graphics over a device context, for the length of a scope; null when it can't be.
class ContextGraphics {
public:
    explicit ContextGraphics(gdi::HDC dc) { status_ = flat::GdipCreateFromHDC(dc, &graphics_); }
    ~ContextGraphics() {
        if (graphics_) flat::GdipDeleteGraphics(graphics_);
    }
    ContextGraphics(const ContextGraphics&) = delete;
    ContextGraphics& operator=(const ContextGraphics&) = delete;

    gdiplus::GpGraphics* Handle() const { return graphics_; }
    gdiplus::Status Status() const { return status_; }

private:
    gdiplus::GpGraphics* graphics_ = nullptr;
    gdiplus::Status status_;
};

}  // namespace vxgui
