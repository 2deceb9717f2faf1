#include "vxgui/platform/gdi/TableRange.h"

#include <algorithm>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui::gdi {
namespace {

VXGUI_MULTIVERSION(TableRange, Range, (const int32_t* entries, size_t count)) {
    int32_t least = INT32_MAX, most = INT32_MIN;
    for (size_t i = 0; i < count; ++i) {
        least = std::min(least, entries[i]);
        most = std::max(most, entries[i]);
    }
    return {least, most};
}

}  // namespace

TableRange RangeOf(std::span<const int32_t> table) {
    return table.empty() ? TableRange() : Range(table.data(), table.size());
}

}  // namespace vxgui::gdi
