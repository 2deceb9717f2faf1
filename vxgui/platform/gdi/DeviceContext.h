#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "vxgui/platform/gdi/Bitmap.h"
#include "vxgui/platform/gdi/Brush.h"
#include "vxgui/platform/gdi/Font.h"
#include "vxgui/platform/gdi/Pen.h"
#include "vxgui/platform/gdi/PixelRegion.h"

namespace vxgui::gdi {

class DcPath;

/// What `SaveDC` keeps that is no more than numbers.
struct DcValues {
    COLORREF textColor = 0x000000;
    COLORREF backColor = 0xFFFFFF;
    int backMode = OPAQUE;
    UINT textAlign = 0;
    int characterExtra = 0;
    int breakExtra = 0;
    int breakCount = 0;
    int stretchMode = BLACKONWHITE;
    POINT brushOrigin = {0, 0};
    POINT position = {0, 0};
    int arcDirection = 1;  ///< 1 anticlockwise, 2 clockwise
    int polyFillMode = ALTERNATE;
    DWORD layout = 0;
};

/// All that `SaveDC` keeps.
struct DcState : DcValues {
    Selection<Bitmap> bitmap;
    Selection<Brush> brush;
    Selection<Pen> pen;
    Selection<Font> font;
    /// In device coordinates; none for no clipping but the bitmap's own edges.
    std::optional<PixelRegion> clip;
    /// The path bracket, open or ended; none when there is no path.
    std::shared_ptr<DcPath> path;
};

/// A device context: a memory context, or one over a host's pixels.
class DeviceContext final : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::DeviceContext;

    /// A memory context with the stock objects: one that was dropped before, where the thread keeps
    /// one.
    static std::unique_ptr<DeviceContext> Fresh();
    /// A context that draws on `pixels` alone and takes no other bitmap.
    explicit DeviceContext(GdiRef<Bitmap> pixels);
    ~DeviceContext() override;

    bool IsHost() const { return host_; }
    /// The pixels that the context draws on.
    PixelTarget Target() const {
        PixelTarget target = state.bitmap->Target();
        if (state.bitmap->Shape().shared) target.top = ownPixel_;
        return target;
    }
    /// The box around all that may be drawn on.
    RECT DrawableBox() const;
    /// Whether a pixel lies inside the target and the clip.
    bool MayDrawAt(int32_t x, int32_t y) const;

    DcState state;
    std::vector<DcState> saved;

protected:
    void Drop() override;

private:
    DeviceContext();
    void Reset();

    const bool host_;
    // The pixel of the stock bitmap, which is one object for all contexts.
    alignas(4) mutable uint8_t ownPixel_[4] = {};
};

/// The context that `dc` names; null for a wrong handle.
GdiRef<DeviceContext> FindContext(HDC dc);

/// Calls `paint(const RECT&)` for each part of `area` that may be drawn on: inside the target
/// and the clip. The parts don't overlap and come in bands from the top.
template <class Paint>
void ForEachClipRect(const DeviceContext& dc, const RECT& area, Paint&& paint) {
    const RECT inside = Intersection(area, dc.Target().Bounds());
    if (IsEmpty(inside)) return;
    if (!dc.state.clip) {
        paint(inside);
        return;
    }
    for (const pixman_box32_t& box : dc.state.clip->BoxesInRows(inside.top, inside.bottom)) {
        const RECT part = Intersection(inside, RectOf(box));
        if (!IsEmpty(part)) paint(part);
    }
}

}  // namespace vxgui::gdi
