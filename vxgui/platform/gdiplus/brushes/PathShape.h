#pragma once

#include "vxgui/pixels/ShadeMesh.h"
#include "vxgui/platform/gdiplus/brushes/Outline.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {

/// A path gradient ready to be painted at several places.
class PathShape final : private DepthShading {
public:
    explicit PathShape(const PathBrush& brush);

    /// Adds the shape to a surface; what it covers of a pixel adds up with what others did.
    void Paint(const Surface& surface, const Affine& toSurface) const;

private:
    uint32_t At(float depth, const Shade& edge) const override;

    GpPointF Inner(GpPointF point) const;
    void PaintEdge(ShadeMesh& mesh, const Affine& toMesh, const OutlineCorner& a,
                   const OutlineCorner& b) const;

    const PathBrush& brush_;
    std::vector<OutlineFigure> figures_;
    Shade center_;
    std::vector<float> factors_;     ///< by depth, for a blend
    std::vector<uint32_t> presets_;  ///< by depth, when there are any
};

}  // namespace vxgui::gdiplus
