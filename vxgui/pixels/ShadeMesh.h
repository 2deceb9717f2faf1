#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/Shade.h"

namespace vxgui {

/// A corner of a triangle that shades from an edge to a depth.
struct MeshCorner {
    float x, y;
    float depth;   ///< 0 at the edge, 1 at the deepest
    float weight;  ///< of the edge's colours: they mix in perspective, by `share` / `weight`
    float share;   ///< of the edge's second colour, times `weight`
};

struct MeshTriangle {
    MeshCorner corners[3];
    Shade first, second;  ///< colours along the edge
    /// The side between the first two corners is the rim: pixels up to one and a half beyond it,
    /// whose middles lie outside, take the colours of the edge, since the shape covers a part of
    /// them.
    bool hasRim;
};

/// What a depth does to a colour of the edge.
class DepthShading {
public:
    virtual ~DepthShading() = default;
    /// A premultiplied pixel. `depth` is from 0 to 1.
    virtual uint32_t At(float depth, const Shade& edge) const = 0;
};

/// A picture into which triangles are painted in any order: of those that cover a pixel, the one
/// in which it lies least deep counts.
class VXPLATFORM_API ShadeMesh {
public:
    ShadeMesh(int32_t width, int32_t height);

    void Paint(const MeshTriangle& triangle, const DepthShading& shading);
    const uint32_t* Row(int32_t y) const { return &pixels_[Index(0, y)]; }

private:
    size_t Index(int32_t x, int32_t y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x);
    }
    struct Painter;
    void PaintRow(int32_t row, const Painter& painter);
    void Set(size_t at, float depth, const Shade& edge, const DepthShading& shading);

    int32_t width_, height_;
    std::vector<float> order_;  ///< what a pixel has: the depth, and beyond 1 how far outside
    std::vector<uint32_t> pixels_;
};

}  // namespace vxgui
