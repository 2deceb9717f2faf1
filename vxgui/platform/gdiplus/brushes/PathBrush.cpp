#include "vxgui/platform/gdiplus/brushes/PathBrush.h"

#include "vxgui/platform/gdiplus/brushes/Outline.h"

namespace vxgui::gdiplus {

PathBrush::PathBrush(PathPoints path, FillMode fillMode, WrapMode wrap) : WrappedBrush(wrap) {
    Points(std::move(path), fillMode);
    center = CentroidOf(path_);
}

void PathBrush::Points(PathPoints path, FillMode fillMode) {
    path_ = std::move(path);
    fillMode_ = fillMode;
    rect_ = BoundsOfPoints(path_.points);
}

}  // namespace vxgui::gdiplus
