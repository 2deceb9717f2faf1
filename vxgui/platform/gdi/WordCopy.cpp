#include "vxgui/platform/gdi/WordCopy.h"

#include <cstring>

#include "vxgui/platform/gdi/BlitReader.h"
#include "vxgui/platform/gdi/WordRuns.h"
#include "vxgui/platform/gdi/WordStream.h"

namespace vxgui::gdi {
namespace {

// Whole rows from one 32-bit bitmap to another; a row that is repeated is found once.
void CopyScaledWords(const PixelTarget& target, const BlitReader& reader, const RECT& part) {
    const int32_t count = part.right - part.left;
    for (int32_t y = part.top; y < part.bottom; ++y) {
        uint32_t* row = target.Row32(y) + part.left;
        if (y > part.top && reader.SameRow(y, y - 1)) {
            std::memcpy(row, target.Row32(y - 1) + part.left, static_cast<size_t>(count) * 4);
        } else {
            reader.Read(part.left, y, count, row);
        }
    }
}

// The same past the caches, by way of one row that stays in them. False for want of memory.
bool StreamScaledWords(const PixelTarget& target, const BlitReader& reader, const RECT& part) {
    const int32_t count = part.right - part.left;
    ScratchBlock scratch;
    auto* const row = scratch.Take<uint32_t>(static_cast<size_t>(count));
    if (!row) return false;
    WordStream stream;
    for (int32_t y = part.top; y < part.bottom; ++y) {
        if (y == part.top || !reader.SameRow(y, y - 1)) reader.Read(part.left, y, count, row);
        stream.Write(row, target.Row32(y) + part.left, static_cast<size_t>(count));
    }
    return true;
}

bool IsStreamed(const RECT& part) {
    const auto rows = static_cast<size_t>(part.bottom - part.top);
    return static_cast<size_t>(part.right - part.left) * rows * 4 >= WordStream::kWorthwhile;
}

void CopyParts(const DeviceContext& dc, const BlitReader& reader, const RECT& area) {
    const PixelTarget target = dc.Target();
    ForEachClipRect(dc, area, [&](const RECT& part) {
        if (!reader.Plain()) {
            if (IsStreamed(part) && StreamScaledWords(target, reader, part)) return;
            return CopyScaledWords(target, reader, part);
        }
        ForEachPlainRun(target, reader, part, [](const uint32_t* s, uint32_t* t, int32_t count) {
            std::memcpy(t, s, static_cast<size_t>(count) * 4);
        });
    });
}

// A plain copy within one bitmap, as in scrolling: rows in the order that reads each before it
// is written. False when the clip has more than one part, whose order would matter too.
bool MoveWords(const DeviceContext& dc, const PixelTarget& source, const BlitGeometry& geometry) {
    const PixelTarget target = dc.Target();
    if (!SamePixels(source, target) || !geometry.Plain()) return false;
    if (dc.state.clip && dc.state.clip->Boxes().size() > 1) return false;
    const RECT area = geometry.Area();
    const auto bytes = static_cast<size_t>(area.right - area.left) * 4;
    const auto left = geometry.across.Source(area.left);
    const bool upwards = geometry.down.Source(area.top) < area.top;
    for (int32_t i = 0; i < area.bottom - area.top; ++i) {
        const int32_t y = upwards ? area.bottom - 1 - i : area.top + i;
        std::memmove(target.Row32(y) + area.left,
                     source.Row32(static_cast<int32_t>(geometry.down.Source(y))) + left, bytes);
    }
    return true;
}

}  // namespace

bool CopyWords(const DeviceContext& dc, const PixelTarget& source, const BlitGeometry& geometry) {
    if (MoveWords(dc, source, geometry)) return true;
    BlitReader reader(source, geometry);
    if (!reader.Prepare(dc.Target())) return false;
    CopyParts(dc, reader, geometry.Area());
    return true;
}

}  // namespace vxgui::gdi
