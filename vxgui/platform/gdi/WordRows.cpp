#include "vxgui/platform/gdi/WordRows.h"

#include <cstring>

#include "vxgui/platform/gdi/BlitReader.h"

namespace vxgui::gdi {
namespace {

/// `size` positions from `start` on lie in [0, room).
bool Inside(int32_t start, int32_t size, int32_t room) {
    return start >= 0 && size >= 1 && size <= room - start;
}

}  // namespace

std::optional<WordRows> WholeWordRows(const DeviceContext& dc, const PixelTarget& source,
                                      const PlainArea& area) {
    const PixelTarget target = dc.Target();
    const auto& [x, y, width, height, sourceX, sourceY] = area;
    if (source.depth != 32 || target.depth != 32 || dc.state.clip) return std::nullopt;
    if (!Inside(x, width, target.width) || !Inside(y, height, target.height) ||
        !Inside(sourceX, width, source.width) || !Inside(sourceY, height, source.height) ||
        ShareMemory(source, target)) {
        return std::nullopt;
    }
    return WordRows{source.Row(sourceY) + ptrdiff_t{sourceX} * 4,
                    source.stride,
                    target.Row(y) + ptrdiff_t{x} * 4,
                    target.stride,
                    width,
                    height};
}

bool CopyWholeWordRows(const DeviceContext& dc, const PixelTarget& source, const PlainArea& area) {
    const auto rows = WholeWordRows(dc, source, area);
    if (!rows) return false;
    rows->ForEachRun([](const uint32_t* from, uint32_t* to, int32_t count) {
        std::memcpy(to, from, static_cast<size_t>(count) * 4);
    });
    return true;
}

}  // namespace vxgui::gdi
