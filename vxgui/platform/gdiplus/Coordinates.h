#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The nearest integer, halves upwards, as the interface rounds coordinates; at most what fits.
inline INT RoundCoordinate(double value) {
    if (std::isnan(value)) return 0;
    return static_cast<INT>(std::clamp(std::floor(value + 0.5), -2147483648.0, 2147483647.0));
}
inline GpPoint RoundPoint(GpPointF p) { return {RoundCoordinate(p.X), RoundCoordinate(p.Y)}; }

inline GpRect RoundRect(const GpRectF& r) {
    return {RoundCoordinate(r.X), RoundCoordinate(r.Y), RoundCoordinate(r.Width),
            RoundCoordinate(r.Height)};
}

inline GpPointF ToFloat(const GpPoint& p) {
    return {static_cast<REAL>(p.X), static_cast<REAL>(p.Y)};
}
inline GpPointF ToFloat(const GpPointF& p) { return p; }
inline GpRectF ToFloat(const GpRectF& r) { return r; }
inline GpRectF ToFloat(const GpRect& r) {
    return {static_cast<REAL>(r.X), static_cast<REAL>(r.Y), static_cast<REAL>(r.Width),
            static_cast<REAL>(r.Height)};
}
/// A copy of a caller's array as floats; empty for null and for counts below 1.
template <class T>
auto ToFloats(const T* items, INT count) {
    std::vector<decltype(ToFloat(*items))> result;
    if (!items || count < 1) return result;
    result.reserve(static_cast<size_t>(count));
    std::transform(items, items + count, std::back_inserter(result),
                   [](const T& item) { return ToFloat(item); });
    return result;
}

}  // namespace vxgui::gdiplus
