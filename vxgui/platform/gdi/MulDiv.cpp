#include <cstdlib>

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

int MulDiv(int value, int numerator, int denominator) {
    if (denominator == 0) return -1;
    const int64_t product = int64_t{value} * numerator;
    const int64_t divisor = std::abs(int64_t{denominator});
    const int64_t size = (std::abs(product) + divisor / 2) / divisor;
    // The size alone is looked at, so that the lowest 32-bit number counts as an overflow too.
    if (size > INT32_MAX) return -1;
    return static_cast<int>((product < 0) != (denominator < 0) ? -size : size);
}

}  // namespace vxgui::gdi
