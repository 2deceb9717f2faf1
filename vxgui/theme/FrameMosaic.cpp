#include "vxgui/theme/FrameMosaic.h"

#include "vxgui/theme/TileSteps.h"

namespace vxgui {
namespace {

const Band* const* BandsIn(const SlicedAxis& axis, const Band* (&bands)[3]) {
    bands[0] = &axis.near;
    bands[1] = &axis.middle;
    bands[2] = &axis.far;
    return bands;
}

int64_t SizeOf(const SlicedAxis& axis) {
    return int64_t{axis.near.target.size} + axis.middle.target.size + axis.far.target.size;
}

bool IsInside(Span source, int32_t size) {
    return source.start >= 0 && int64_t{source.start} + source.size <= size;
}

// Each band begins where the one before it ends; sums that wrapped don't count as that.
bool FitsAlong(const SlicedAxis& axis, int32_t sourceSize) {
    const Band* bands[3];
    int64_t at = axis.near.target.start;
    for (int i = 0; i < 3; ++i) {
        const auto& [target, source, pitch] = *BandsIn(axis, bands)[i];
        if (target.size < 0 || target.start != at) return false;
        if (target.size > 0 && !IsInside(source, sourceSize)) return false;
        at += target.size;
    }
    return SizeOf(axis) <= FrameMosaic::kMost && at <= INT32_MAX;
}

}  // namespace

bool FrameMosaic::Fits(const SlicedAxis& x, const SlicedAxis& y, int32_t width, int32_t height) {
    return FitsAlong(x, width) && FitsAlong(y, height) && SizeOf(x) > 0 && SizeOf(y) > 0;
}

FrameMosaic::Tables::Tables(const SlicedAxis& axis, bool stretched, bool tiled) {
    if (stretched) Fill(axis, false);
    if (tiled) Fill(axis, true);
}

void FrameMosaic::Tables::Fill(const SlicedAxis& axis, bool tiled) {
    const int32_t start = axis.near.target.start;
    const auto fill = [&](Span target, Span source) {
        if (target.size <= 0) return;
        gdi::TabulateStretch(source.start, source.size,
                             std::span(entries_[tiled])
                                 .subspan(static_cast<size_t>(target.start - start),
                                          static_cast<size_t>(target.size)));
    };
    ForEachStep(axis.near, false, fill);
    ForEachStep(axis.middle, tiled, fill);
    ForEachStep(axis.far, false, fill);
}

FrameMosaic::FrameMosaic(const SlicedAxis& x, const SlicedAxis& y, const FrameTiling& tiling)
    : columns_(x, !tiling.top || !tiling.bottom || !tiling.across,
               tiling.top || tiling.bottom || tiling.across),
      rows_(y, !tiling.left || !tiling.right || !tiling.down,
            tiling.left || tiling.right || tiling.down) {
    std::array<Rows, 3> runs;
    const size_t count = RunsOf(y, tiling, &runs);
    for (; count_ < count; ++count_) {
        parts_[count_] = PartOf(runs[count_], x, tiling, &bands_[count_]);
    }
}

size_t FrameMosaic::RunsOf(const SlicedAxis& y, const FrameTiling& tiling,
                           std::array<Rows, 3>* runs) {
    const bool tiled[3] = {tiling.top, tiling.across, tiling.bottom};
    const Band* bands[3];
    size_t count = 0;
    int32_t at = 0;
    for (int i = 0; i < 3; ++i) {
        const int32_t size = BandsIn(y, bands)[i]->target.size;
        if (size > 0 && count > 0 && (*runs)[count - 1].tiled == tiled[i]) {
            (*runs)[count - 1].size += size;
        } else if (size > 0) {
            (*runs)[count++] = {at, size, tiled[i]};
        }
        at += size;
    }
    return count;
}

// Bands beside each other that show the same rows are one.
gdi::MosaicPart FrameMosaic::PartOf(const Rows& run, const SlicedAxis& x, const FrameTiling& tiling,
                                    Bands* bands) const {
    const bool tiled[3] = {tiling.left, tiling.down, tiling.right};
    const Band* along[3];
    size_t count = 0;
    int32_t at = 0, first = 0;
    for (int i = 0; i < 3; ++i) {
        const int32_t size = BandsIn(x, along)[i]->target.size;
        const std::span<const int32_t> rows = rows_.Of(tiled[i], run.start, run.size);
        const bool same = count > 0 && (*bands)[count - 1].rows.data() == rows.data();
        if (size > 0) {
            if (!same) first = at, ++count;
            (*bands)[count - 1] = {columns_.Of(run.tiled, first, at + size - first), rows};
        }
        at += size;
    }
    return std::span(*bands).first(count);
}

}  // namespace vxgui
