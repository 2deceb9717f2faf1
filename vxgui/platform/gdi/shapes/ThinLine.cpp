#include "vxgui/platform/gdi/shapes/ThinLine.h"

#include <cstdlib>
#include <utility>

namespace vxgui::gdi {

ThinLine::ThinLine(POINT from, POINT to) : startU_(from.x), startV_(from.y) {
    int64_t u = int64_t{to.x} - from.x;
    int64_t v = int64_t{to.y} - from.y;
    flat_ = std::abs(u) >= std::abs(v);
    if (!flat_) {
        std::swap(u, v);
        std::swap(startU_, startV_);
    }
    countU_ = std::abs(u);
    countV_ = std::abs(v);
    signU_ = u < 0 ? -1 : 1;
    signV_ = v < 0 ? -1 : 1;
}

}  // namespace vxgui::gdi
