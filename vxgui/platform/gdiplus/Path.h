#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/Affine.h"
#include "vxgui/platform/gdiplus/FlatObject.h"

namespace vxgui::gdiplus {

/// Points with the published type byte of each; both lists are of one length.
struct PathPoints {
    std::vector<GpPointF> points;
    std::vector<BYTE> types;  ///< of `PathPointType`

    size_t Count() const { return points.size(); }
    bool IsEmpty() const { return points.empty(); }
    /// `PathPointTypeStart`, `...Line` or `...Bezier` of a point.
    BYTE Kind(size_t index) const { return types[index] & PathPointTypePathTypeMask; }
    bool Closes(size_t index) const { return (types[index] & PathPointTypeCloseSubpath) != 0; }
    bool EndsClosed() const { return !IsEmpty() && Closes(Count() - 1); }
    /// When memory runs out the lists stay of one length.
    void Add(GpPointF point, int type) {
        types.push_back(static_cast<BYTE>(type));
        try {
            points.push_back(point);
        } catch (...) {
            types.pop_back();
            throw;
        }
    }
    void Transform(const Affine& matrix) {
        for (GpPointF& point : points) point = matrix.Apply(point);
    }
};

/// True when the path begins with a start, has no unknown kinds and its Bezier points come in
/// threes.
bool IsWellFormed(const PathPoints& path);

/// The smallest box around all points, those that steer curves included.
GpRectF BoundsOfPoints(const std::vector<GpPointF>& points);

/// What a path handle names.
class Path final : public FlatObject {
public:
    explicit Path(FillMode mode) : fillMode(mode) {}
    Ref<Path> Clone() const;

    FillMode fillMode;
    PathPoints data;
    bool newFigure = true;  ///< the next point that is added starts a figure
};

}  // namespace vxgui::gdiplus
