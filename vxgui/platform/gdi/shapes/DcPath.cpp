#include "vxgui/platform/gdi/shapes/DcPath.h"

namespace vxgui::gdi {

void DcPath::LineFrom(POINT position, std::span<const PathPoint> points) {
    if (startsFigure_) {
        shape_.MoveTo({static_cast<double>(position.x), static_cast<double>(position.y)});
    }
    startsFigure_ = false;
    shape_.Append(points);
}

void DcPath::AddFigure(std::span<const PathPoint> points) {
    shape_.MoveTo(points.front());
    shape_.Append(points.subspan(1));
    startsFigure_ = true;
}

DcPath* OpenPath(DeviceContext& dc) {
    std::shared_ptr<DcPath>& path = dc.state.path;
    if (!path || !path->IsOpen()) return nullptr;
    if (path.use_count() > 1) path = std::make_shared<DcPath>(*path);
    return path.get();
}

}  // namespace vxgui::gdi
