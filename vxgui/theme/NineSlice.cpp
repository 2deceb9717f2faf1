#include "vxgui/theme/NineSlice.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"

namespace vxgui {
namespace {

// The space between two starts.
Span Between(int32_t start, int32_t end) { return {start, WrapSub(end, start)}; }

int32_t End(Span span) { return WrapAdd(span.start, span.size); }

Span NearTarget(Span target, Span frame, int32_t margin) {
    // A margin above the frame counts as the frame, even where the target is smaller still.
    return {target.start, margin > frame.size ? frame.size : std::min(margin, target.size)};
}

Span FarEnd(Span whole, int32_t margin) {
    const int32_t size = std::min(margin, whole.size);
    return {WrapSub(End(whole), size), size};
}

void CutFarEnd(Band& band) { band.source.size = std::min(band.source.size, band.target.size); }

void CutNearEnd(Band& band) {
    if (band.source.size <= band.target.size) return;
    band.source.start = WrapAdd(band.source.start, WrapSub(band.source.size, band.target.size));
    band.source.size = band.target.size;
}

}  // namespace

SlicedAxis SliceAxis(Span target, Span frame, int32_t nearMargin, int32_t farMargin) {
    SlicedAxis axis;
    axis.near = {NearTarget(target, frame, nearMargin), {frame.start, nearMargin}};
    axis.far = {FarEnd(target, farMargin), FarEnd(frame, farMargin)};
    axis.middle = {Between(End(axis.near.target), axis.far.target.start),
                   Between(End(axis.near.source), axis.far.source.start)};
    CutFarEnd(axis.near);
    CutFarEnd(axis.middle);
    CutNearEnd(axis.far);
    for (Band* band : {&axis.near, &axis.middle, &axis.far}) {
        band->source.size = std::max(band->source.size, 1);
    }
    return axis;
}

}  // namespace vxgui
