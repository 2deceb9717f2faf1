#include "vxgui/platform/gdiplus/graphics/ImageAxis.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "vxgui/platform/gdiplus/DeviceBox.h"

namespace vxgui::gdiplus {
namespace {

// Edges of parts come from single precision: this near to a pixel's edge they lie on it.
constexpr double kNear = 1e-4;

}  // namespace

bool ImageAxis::Copies() const {
    return Step() == 1 && source0 - target0 == std::nearbyint(source0 - target0);
}

void ImageAxis::PutSourceInOrder() {
    if (source1 >= source0) return;
    std::swap(source0, source1);
    std::swap(target0, target1);
}

void ImageAxis::CutToImage() {
    const double scale = 1 / Step();
    if (source0 < 0) {
        target0 -= source0 * scale;
        source0 = 0;
    }
    if (source1 > size) {
        target1 -= (source1 - size) * scale;
        source1 = size;
    }
}

EdgeRule::EdgeRule(const ImageAxis& axis, std::optional<WrapMode> wrap, bool vertical)
    : size_(axis.size),
      low_(DeviceInt(std::floor(axis.source0 + kNear))),
      high_(DeviceInt(std::ceil(axis.source1 - kNear))),
      wraps_(wrap && (low_ <= 0 || high_ >= size_)) {
    high_ = std::max(high_, low_ + 1);
    if (!wraps_) {
        low_ = std::clamp(low_, 0, size_ - 1);
        high_ = std::clamp(high_, low_ + 1, size_);
        return;
    }
    clamps_ = *wrap == WrapModeClamp;
    flips_ =
        *wrap == WrapModeTileFlipXY || *wrap == (vertical ? WrapModeTileFlipY : WrapModeTileFlipX);
}

INT EdgeRule::Wrapped(INT index) const {
    if (index >= 0 && index < size_) return index;
    if (clamps_) return -1;
    const INT period = flips_ ? 2 * size_ : size_;
    const INT at = (index % period + period) % period;
    return at < size_ ? at : period - 1 - at;
}

INT EdgeRule::Resolve(INT index) const {
    if (index < low_ && (low_ > 0 || !wraps_)) index = low_;
    if (index >= high_ && (high_ < size_ || !wraps_)) index = high_ - 1;
    return wraps_ ? Wrapped(index) : index;
}

}  // namespace vxgui::gdiplus
