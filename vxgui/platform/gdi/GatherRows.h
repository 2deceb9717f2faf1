#pragma once

#include "vxgui/platform/gdi/TableRange.h"

namespace vxgui::gdi {

/// Rows of 32-bit words, which may begin at any address.
struct SourceRows {
    const uint8_t* first;
    ptrdiff_t stride;  ///< bytes from one row to the next
    size_t count;
};

/// Columns of a source, in the order in which they are shown, and the range that they lie in.
struct ColumnTable {
    std::span<const int32_t> columns;
    TableRange range;
};

/// `words[y * pitch + i]` becomes word `columns[i]` of row y.
void GatherRows(const SourceRows& rows, const ColumnTable& table, uint32_t* words, size_t pitch);

}  // namespace vxgui::gdi
