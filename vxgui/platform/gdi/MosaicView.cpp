#include "vxgui/platform/gdi/MosaicView.h"

#include <algorithm>

namespace vxgui::gdi {

bool MosaicView::Take(const PixelTarget& source, MosaicPart bands) {
    if (bands.size() > kMostBands) return false;
    source_ = &source;
    bands_ = bands;
    for (size_t i = 0; i < bands.size(); ++i) {
        columns_[i] = RangeOf(bands[i].columns);
        rows_ = RangeOf(bands[i].rows);
        if (!columns_[i].Within(source.width) || !rows_.Within(source.height) ||
            bands[i].rows.size() != Height()) {
            return false;
        }
        width_ += bands[i].columns.size();
    }
    return width_ <= INT32_MAX && Height() <= INT32_MAX;
}

bool MosaicView::SameRow(size_t y, size_t other) const {
    return std::ranges::all_of(
        bands_, [=](const MosaicBand& band) { return band.rows[y] == band.rows[other]; });
}

size_t MosaicView::RunFrom(size_t y, size_t end) const {
    size_t count = end - y;
    for (const MosaicBand& band : bands_) {
        const int32_t* const rows = &band.rows[y];
        size_t run = 1;
        while (run < count && rows[run] == rows[run - 1] + 1) ++run;
        count = run;
    }
    return count;
}

void MosaicView::Lay(size_t y, size_t count, uint32_t* words, size_t pitch) const {
    for (size_t i = 0; i < bands_.size(); ++i) {
        const auto& [columns, rows] = bands_[i];
        GatherRows({source_->Row(rows[y]), source_->stride, count}, {columns, columns_[i]}, words,
                   pitch);
        words += columns.size();
    }
}

}  // namespace vxgui::gdi
