#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/FlatObject.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Points with the published type byte of each; both lists are of one length.
struct PathPoints {
    std::vector<GpPointF> points;
    std::vector<BYTE> types;  ///< of `PathPointType`
};

/// What a path handle names.
class Path final : public FlatObject {
public:
    explicit Path(FillMode mode) : fillMode(mode) {}

    FillMode fillMode;
    PathPoints data;
    bool newFigure = true;  ///< the next point that is added starts a figure
};

}  // namespace vxgui::gdiplus
