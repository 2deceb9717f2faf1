#pragma once

#include <array>

#include "vxgui/platform/gdi/GatherRows.h"
#include "vxgui/platform/gdi/PixelTarget.h"
#include "vxgui/platform/gdi_mosaic.h"

namespace vxgui::gdi {

/// A part of a mosaic over its source.
class MosaicView {
public:
    /// False unless all entries lie inside the source, which has 32-bit pixels and stays, and all
    /// bands have the height of the first.
    bool Take(const PixelTarget& source, MosaicPart bands);

    size_t Width() const { return width_; }
    size_t Height() const { return bands_.empty() ? 0 : bands_[0].rows.size(); }
    /// Whether all columns show the same source rows: then `Rows`, which lie in `RowRange`.
    bool HasOneBand() const { return bands_.size() == 1; }
    std::span<const int32_t> Rows() const { return bands_.back().rows; }
    const TableRange& RowRange() const { return rows_; }

    /// Whether two rows show the same.
    bool SameRow(size_t y, size_t other) const;
    /// How many rows from y to before `end` show source rows one below the other.
    size_t RunFrom(size_t y, size_t end) const;
    /// Lays such a run out; `pitch` words lie between one row and the next.
    void Lay(size_t y, size_t count, uint32_t* words, size_t pitch) const;

private:
    const PixelTarget* source_ = nullptr;
    MosaicPart bands_;
    std::array<TableRange, kMostBands> columns_;
    TableRange rows_;
    size_t width_ = 0;
};

}  // namespace vxgui::gdi
