#include "vxgui/platform/gdi/BlitAxis.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

int64_t StepOf(int64_t extent) { return extent < 0 ? -1 : 1; }

}  // namespace

BlitAxis::BlitAxis(int64_t start, int64_t extent, int64_t sourceStart, int64_t sourceExtent)
    : start_(start),
      extent_(extent * StepOf(extent)),
      step_(StepOf(extent)),
      sourceStart_(sourceStart),
      sourceExtent_(sourceExtent * StepOf(sourceExtent)),
      sourceStep_(StepOf(sourceExtent)),
      low_(step_ > 0 ? start : start - extent_ + 1),
      high_(low_ + extent_) {
    if (sourceExtent_ == 0) high_ = low_;
}

int64_t BlitAxis::Source(int64_t at) const {
    const int64_t i = (at - start_) * step_;
    const int64_t j =
        extent_ == sourceExtent_ ? i : ((2 * i + 1) * sourceExtent_ - 1) / (2 * extent_);
    return sourceStart_ + j * sourceStep_;
}

// The quotient of `Source` without its division: from one to the next the dividend grows by the
// same. A mirrored axis is filled from its end.
void BlitAxis::Tabulate(int32_t* sources) const {
    const int64_t count = high_ - low_, divisor = 2 * extent_, growth = 2 * sourceExtent_;
    const int64_t first = ((step_ > 0 ? low_ : high_ - 1) - start_) * step_;
    const int64_t dividend = (2 * first + 1) * sourceExtent_ - 1;
    int64_t quotient = dividend / divisor, rest = dividend % divisor;
    int32_t* place = step_ > 0 ? sources : sources + count - 1;
    for (int64_t i = 0; i < count; ++i, place += step_) {
        *place = static_cast<int32_t>(sourceStart_ + quotient * sourceStep_);
        quotient += growth / divisor;
        rest += growth % divisor;
        if (rest >= divisor) {
            rest -= divisor;
            ++quotient;
        }
    }
}

void BlitAxis::Cut(int64_t low, int64_t high) {
    low_ = std::max(low_, low);
    high_ = std::max(low_, std::min(high_, high));
}

// The first coordinate of [low, high) for which `before` doesn't hold; it holds up to some point
// and not after it.
template <class Before>
int64_t BlitAxis::FirstNot(Before before) const {
    int64_t low = low_;
    int64_t high = high_;
    while (low < high) {
        const int64_t middle = low + (high - low) / 2;
        if (before(Source(middle))) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

void BlitAxis::CutToSource(int64_t size) {
    if (Plain()) {
        const int64_t shift = start_ - sourceStart_;
        return Cut(shift, size + shift);
    }
    if (step_ == sourceStep_) {
        low_ = FirstNot([](int64_t source) { return source < 0; });
        high_ = FirstNot([size](int64_t source) { return source < size; });
    } else {
        low_ = FirstNot([size](int64_t source) { return source >= size; });
        high_ = FirstNot([](int64_t source) { return source >= 0; });
    }
}

int64_t BlitAxis::SourceLow() const { return std::min(Source(low_), Source(high_ - 1)); }

int64_t BlitAxis::SourceHigh() const { return std::max(Source(low_), Source(high_ - 1)) + 1; }

}  // namespace vxgui::gdi
