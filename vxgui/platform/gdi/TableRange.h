#pragma once

#include <cstdint>
#include <span>

namespace vxgui::gdi {

/// The least and the greatest entry of a table of source pixels; 0 and -1 for an empty table.
struct TableRange {
    int32_t least = 0, most = -1;

    int64_t Size() const { return int64_t{most} - least + 1; }
    /// Whether all entries lie in [0, size).
    bool Within(int32_t size) const { return least >= 0 && most < size; }
};

TableRange RangeOf(std::span<const int32_t> table);

}  // namespace vxgui::gdi
