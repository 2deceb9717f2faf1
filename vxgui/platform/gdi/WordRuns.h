#pragma once

#include "vxgui/platform/gdi/BlitReader.h"
#include "vxgui/platform/gdi/ScratchBlock.h"
#include "vxgui/platform/gdi/WordRows.h"

namespace vxgui::gdi {

/// Calls `run(source, target, count)` for the words that a blit shows in `part` whose columns are
/// neither scaled nor mirrored.
template <class Run>
void ForEachPlainRun(const PixelTarget& target, const BlitReader& reader, const RECT& part,
                     Run&& run) {
    const int32_t width = part.right - part.left;
    const auto rows = [&](int32_t y, int32_t height) {
        const WordRows words{reader.Address(part.left, y),
                             reader.Stride(),
                             target.Row(y) + ptrdiff_t{part.left} * 4,
                             target.stride,
                             width,
                             height};
        words.ForEachRun(run);
    };
    if (reader.PlainRows()) return rows(part.top, part.bottom - part.top);
    for (int32_t y = part.top; y < part.bottom; ++y) rows(y, 1);
}

/// The same for a blit with scaled or mirrored columns: each source row is laid out once in `row`,
/// which has room for the part's width.
template <class Run>
void ForEachScaledRow(const PixelTarget& target, const BlitReader& reader, const RECT& part,
                      uint32_t* row, Run&& run) {
    const int32_t width = part.right - part.left;
    for (int32_t y = part.top; y < part.bottom; ++y) {
        if (y == part.top || !reader.SameRow(y, y - 1)) reader.Read(part.left, y, width, row);
        run(row, target.Row32(y) + part.left, width);
    }
}

/// Calls `run(source, target, count)` for all words of `area` that a blit from one 32-bit bitmap to
/// another shows and the clip lets through: `run` changes the target's in place. `reader` is ready.
/// False, and nothing done, when memory runs out.
template <class Run>
bool ForEachWordRun(const DeviceContext& dc, const BlitReader& reader, const RECT& area,
                    Run&& run) {
    ScratchBlock scratch;
    uint32_t* row = nullptr;
    if (!reader.Plain()) {
        row = scratch.Take<uint32_t>(static_cast<size_t>(area.right - area.left));
        if (!row) return false;
    }
    const PixelTarget target = dc.Target();
    ForEachClipRect(dc, area, [&](const RECT& part) {
        if (row) {
            ForEachScaledRow(target, reader, part, row, run);
        } else {
            ForEachPlainRun(target, reader, part, run);
        }
    });
    return true;
}

}  // namespace vxgui::gdi
