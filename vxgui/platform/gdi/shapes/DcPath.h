#pragma once

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/shapes/Path.h"

namespace vxgui::gdi {

/// The path of a context, from `BeginPath` until a call uses it up.
class DcPath {
public:
    bool IsOpen() const { return open_; }
    void End() { open_ = false; }
    const Path& Shape() const { return shape_; }

    /// The next line starts a figure, at the position that the context has then.
    void StartFigure() { startsFigure_ = true; }
    /// Goes on from the path's last point, which after an arc lies between the pixels, or starts
    /// a figure at `position`.
    void LineFrom(POINT position, std::span<const PathPoint> points);
    /// Adds a figure that nothing before or after it joins.
    void AddFigure(std::span<const PathPoint> points);

private:
    Path shape_;
    bool open_ = true;
    bool startsFigure_ = true;
};

/// The open path that drawing calls add to; null when there is none and they draw. A path that
/// `SaveDC` shares is copied first.
DcPath* OpenPath(DeviceContext& dc);

}  // namespace vxgui::gdi
