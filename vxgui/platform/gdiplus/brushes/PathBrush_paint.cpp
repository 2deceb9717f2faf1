#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/brushes/Outline.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus/brushes/PathShape.h"
#include "vxgui/platform/gdiplus/brushes/Patterns.h"

namespace vxgui::gdiplus {
namespace {

// A row or column of copies of the brush's rectangle.
struct CopyRange {
    int first, last;
    int64_t Count() const { return int64_t{last} - first + 1; }
};

CopyRange CopiesAlong(REAL start, REAL length, REAL low, REAL high) {
    const auto index = [&](REAL at) { return DeviceInt(std::floor((at - start) / length)); };
    return {index(low), index(high)};
}

// From the brush's coordinates to those of a copy of it.
Affine CopyPlace(const GpRectF& rect, int column, int row, WrapMode wrap) {
    Affine place = Affine::Translation(static_cast<REAL>(column) * rect.Width,
                                       static_cast<REAL>(row) * rect.Height);
    if (FlipsX(wrap) && column % 2 != 0) {
        place = Affine{-1, 0, 0, 1, 2 * rect.X + rect.Width, 0} * place;
    }
    if (FlipsY(wrap) && row % 2 != 0) {
        place = Affine{1, 0, 0, -1, 0, 2 * rect.Y + rect.Height} * place;
    }
    return place;
}

// The copies that can be seen in an area; none of them is left out where they overlap it.
struct Copies {
    CopyRange columns, rows;

    Copies(const GpRectF& rect, const GpRectF& seen)
        : columns(CopiesAlong(rect.X, rect.Width, seen.X, seen.X + seen.Width)),
          rows(CopiesAlong(rect.Y, rect.Height, seen.Y, seen.Y + seen.Height)) {}

    // Copies smaller than a pixel are a plain colour to the eye.
    bool AreTooSmall(const GpRect& device) const {
        return columns.Count() * rows.Count() > int64_t{device.Width} * device.Height + 4;
    }
    template <class Visit>
    void ForEach(Visit visit) const {
        for (int row = rows.first; row <= rows.last; ++row) {
            for (int column = columns.first; column <= columns.last; ++column) visit(column, row);
        }
    }
};

}  // namespace

Pattern PathBrush::MakePattern(const PatternPlace& place) const {
    const Affine toDevice = transform * place.worldToDevice;
    const std::optional<Affine> toBrush = Inverse(toDevice);
    if (!toBrush || IsEmpty(place.device)) return ClearPattern();
    const Surface surface = MakeSurface(place.device.Width, place.device.Height);
    if (!surface) return nullptr;
    const Affine toSurface =
        Affine::Translation(static_cast<REAL>(-place.device.X), static_cast<REAL>(-place.device.Y));
    const PathShape shape(*this);
    if (Wrap() == WrapModeClamp || !(rect_.Width > 0 && rect_.Height > 0)) {
        shape.Paint(surface, toDevice * toSurface);
    } else {
        const Copies copies(rect_, BoxOf(ToFloat(place.device), *toBrush));
        if (copies.AreTooSmall(place.device)) return SolidPattern(surround.front());
        copies.ForEach([&](int column, int row) {
            shape.Paint(surface, CopyPlace(rect_, column, row, Wrap()) * toDevice * toSurface);
        });
    }
    return SurfacePattern(surface, place.worldToDevice * toSurface, CAIRO_EXTEND_PAD);
}

}  // namespace vxgui::gdiplus
