#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/LineBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {
namespace {

struct Ends {
    ARGB first, second;
    WrapMode wrap;
};

GpStatus Create(const std::optional<GradientLine>& line, const Ends& ends, GpStatus withoutLine,
                GpBrush** result) {
    if (!LineBrush::Takes(ends.wrap)) return InvalidParameter;
    if (!line) return withoutLine;
    return HandOut(result, New<LineBrush>(*line, ends.first, ends.second, ends.wrap));
}

template <class Point>
GpStatus CreateBetween(const Point* from, const Point* to, const Ends& ends, GpBrush** result) {
    return FlatCreate(result, [&] {
        if (!from || !to) return InvalidParameter;
        return Create(LineBetween(ToFloat(*from), ToFloat(*to)), ends, OutOfMemory, result);
    });
}

template <class Rect>
GpStatus CreateInRect(const Rect* rect, REAL angle, bool scalable, const Ends& ends,
                      GpBrush** result) {
    return FlatCreate(result, [&] {
        if (!rect) return InvalidParameter;
        return Create(LineInRect(ToFloat(*rect), angle, scalable), ends, InvalidParameter, result);
    });
}

// The diagonals run from corner to corner: they stretch with the rectangle.
template <class Rect>
GpStatus CreateByMode(const Rect* rect, LinearGradientMode mode, const Ends& ends,
                      GpBrush** result) {
    constexpr REAL kAngles[] = {0, 90, 45, 135};
    if (mode < LinearGradientModeHorizontal || mode > LinearGradientModeBackwardDiagonal) {
        if (result) *result = nullptr;
        return InvalidParameter;
    }
    return CreateInRect(rect, kAngles[mode], true, ends, result);
}

}  // namespace

extern "C" {

GpStatus GdipCreateLineBrush(const GpPointF* point1, const GpPointF* point2, ARGB color1,
                             ARGB color2, WrapMode wrapMode, GpBrush** lineGradient) {
    return CreateBetween(point1, point2, {color1, color2, wrapMode}, lineGradient);
}

GpStatus GdipCreateLineBrushI(const GpPoint* point1, const GpPoint* point2, ARGB color1,
                              ARGB color2, WrapMode wrapMode, GpBrush** lineGradient) {
    return CreateBetween(point1, point2, {color1, color2, wrapMode}, lineGradient);
}

GpStatus GdipCreateLineBrushFromRect(const GpRectF* rect, ARGB color1, ARGB color2,
                                     LinearGradientMode mode, WrapMode wrapMode,
                                     GpBrush** lineGradient) {
    return CreateByMode(rect, mode, {color1, color2, wrapMode}, lineGradient);
}

GpStatus GdipCreateLineBrushFromRectI(const GpRect* rect, ARGB color1, ARGB color2,
                                      LinearGradientMode mode, WrapMode wrapMode,
                                      GpBrush** lineGradient) {
    return CreateByMode(rect, mode, {color1, color2, wrapMode}, lineGradient);
}

GpStatus GdipCreateLineBrushFromRectWithAngle(const GpRectF* rect, ARGB color1, ARGB color2,
                                              REAL angle, BOOL isAngleScalable, WrapMode wrapMode,
                                              GpBrush** lineGradient) {
    return CreateInRect(rect, angle, isAngleScalable != 0, {color1, color2, wrapMode},
                        lineGradient);
}

GpStatus GdipCreateLineBrushFromRectWithAngleI(const GpRect* rect, ARGB color1, ARGB color2,
                                               REAL angle, BOOL isAngleScalable, WrapMode wrapMode,
                                               GpBrush** lineGradient) {
    return CreateInRect(rect, angle, isAngleScalable != 0, {color1, color2, wrapMode},
                        lineGradient);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
