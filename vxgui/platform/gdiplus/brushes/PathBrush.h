#pragma once

#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/brushes/Blend.h"
#include "vxgui/platform/gdiplus/brushes/WrappedBrush.h"

namespace vxgui::gdiplus {

/// A brush that shades from the edge of a path to its centre.
class PathBrush final : public WrappedBrush {
public:
    PathBrush(PathPoints path, FillMode fillMode, WrapMode wrap);
    PathBrush(const PathBrush&) = default;

    BrushType Type() const override { return BrushTypePathGradient; }
    Ref<Brush> Clone() const override { return New<PathBrush>(*this); }
    Pattern MakePattern(const PatternPlace& place) const override;

    const PathPoints& Points() const { return path_; }
    /// Replaces the path, and with it the rectangle.
    void Points(PathPoints path, FillMode fillMode);
    FillMode Filling() const { return fillMode_; }
    const GpRectF& Rect() const { return rect_; }

    GpPointF center;
    ARGB centerColor = 0xFF000000;
    std::vector<ARGB> surround{0xFFFFFFFF};  ///< of the points; the last counts for the rest
    GpPointF focusScales{0, 0};
    Blend blend;

private:
    PathPoints path_;
    FillMode fillMode_;
    GpRectF rect_;
};

}  // namespace vxgui::gdiplus
