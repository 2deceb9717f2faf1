#include "vxgui/platform/gdi/text/FontScale.h"

#include <algorithm>
#include <cstdlib>

namespace vxgui::gdi {
namespace {

int32_t CellHeight(const DesignMetrics& design, int32_t em) {
    return ScaledUnits(design, design.ascent, em) + ScaledUnits(design, design.descent, em);
}

}  // namespace

int32_t ScaledUnits(const DesignMetrics& design, int32_t units, int32_t em) {
    const int64_t doubled = 2 * int64_t{units} * em + design.unitsPerEm;
    const int64_t divisor = 2 * int64_t{design.unitsPerEm};
    // Down, for negative positions too.
    return static_cast<int32_t>(doubled >= 0 ? doubled / divisor
                                             : -((divisor - 1 - doubled) / divisor));
}

int32_t EmFromHeight(const DesignMetrics& design, int32_t height) {
    if (height < 0) return std::min(std::max(height, -kLargestEm) * -1, kLargestEm);
    const int64_t cell = height == 0 ? kDefaultCellHeight : height;
    const int64_t units = std::max(1, design.ascent + design.descent);
    // Ascent and descent are rounded each for itself, so the quotient may be one or two off.
    const int64_t about = cell * design.unitsPerEm / units + 2;
    auto em = static_cast<int32_t>(std::min<int64_t>(about, kLargestEm));
    while (em > 1 && CellHeight(design, em) > cell) --em;
    return em;
}

int32_t HorizontalEm(const DesignMetrics& design, int32_t em, int32_t width) {
    if (width == 0) return em * 64;
    const int64_t average = std::max(1, design.averageWidth);
    const int64_t wanted = std::abs(int64_t{width}) * 64 * design.unitsPerEm / average;
    return static_cast<int32_t>(std::clamp<int64_t>(wanted, 1, kLargestEm * 64));
}

}  // namespace vxgui::gdi
