#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {

/// A premultiplied stand-in for a part of a picture of another form. Only pixels that drawing
/// changes are written back, so that the others stay exactly as they were.
class ScratchArea {
public:
    /// `load(x, y, pixels)` reads a run of premultiplied pixels. The surface has the picture's
    /// coordinates; null when memory is out.
    template <class Load>
    cairo_surface_t* Open(const GpRect& area, Load load) {
        Reserve(area);
        for (INT y = 0; y < area.Height; ++y) load(area.X, area.Y + y, Row(pixels_, y));
        before_ = pixels_;
        return Cover();
    }
    /// `store(x, y, pixels)` writes a run of pixels, all of which have changed.
    template <class Store>
    void Close(Store store) {
        cairo_surface_flush(surface_.get());
        for (INT y = 0; y < area_.Height; ++y) {
            ForEachChange(y, [&](size_t from, size_t to) {
                store(area_.X + static_cast<INT>(from), area_.Y + y,
                      std::span<const ARGB>(Row(pixels_, y)).subspan(from, to - from));
            });
        }
        surface_.reset();
    }

private:
    void Reserve(const GpRect& area);
    cairo_surface_t* Cover();
    std::span<ARGB> Row(std::vector<ARGB>& pixels, INT y) const {
        const auto width = static_cast<size_t>(area_.Width);
        return std::span(pixels).subspan(static_cast<size_t>(y) * width, width);
    }
    template <class Visit>
    void ForEachChange(INT y, Visit visit) {
        const std::span<const ARGB> now = Row(pixels_, y), then = Row(before_, y);
        for (size_t i = 0; i < now.size();) {
            if (now[i] == then[i]) {
                ++i;
                continue;
            }
            const size_t from = i;
            while (i < now.size() && now[i] != then[i]) ++i;
            visit(from, i);
        }
    }

    GpRect area_{};
    std::vector<ARGB> pixels_, before_;
    Surface surface_;
};

}  // namespace vxgui::gdiplus
