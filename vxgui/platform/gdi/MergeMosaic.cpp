#include <algorithm>
#include <array>

#include "vxgui/platform/gdi/BlitReader.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/KnownPixels.h"
#include "vxgui/platform/gdi/LaidRows.h"
#include "vxgui/platform/gdi/ScratchBlock.h"

namespace vxgui::gdi {
namespace {

/// The parts of a mosaic, one below the other.
class MosaicViews {
public:
    /// False when a part isn't whole, or when there are too many.
    bool Take(const PixelTarget& source, std::span<const MosaicPart> parts) {
        if (parts.size() > kMostBands) return false;
        for (const MosaicPart& part : parts)
            if (!views_[count_++].Take(source, part)) return false;
        return true;
    }
    std::span<const MosaicView> All() const { return std::span(views_).first(count_); }

private:
    std::array<MosaicView, kMostBands> views_;
    size_t count_ = 0;
};

/// The memory that the largest of the parts needs.
size_t WordsFor(const MosaicViews& views) {
    size_t most = 1;
    for (const MosaicView& view : views.All()) most = std::max(most, LaidRows(view).Words());
    return most;
}

/// Merges what may be drawn on of a part whose first pixel goes to (x, y).
void MergePart(const DeviceContext& dc, int32_t x, int32_t y, const MosaicView& view,
               uint32_t* words, WordMerger& merger) {
    LaidRows rows(view);
    rows.Use(words);
    const PixelTarget target = dc.Target();
    const RECT area =
        RectFromExtents(x, y, static_cast<int>(view.Width()), static_cast<int>(view.Height()));
    const auto rowAt = [y](int32_t at) { return static_cast<size_t>(int64_t{at} - y); };
    ForEachClipRect(dc, area, [&](const RECT& part) {
        const auto step = static_cast<int32_t>(rows.AtOnce());
        for (int32_t top = part.top; top < part.bottom; top += step) {
            const int32_t bottom = std::min(top + step, part.bottom);
            rows.Ready(rowAt(top), rowAt(bottom));
            for (int32_t at = top; at < bottom; ++at) {
                merger.Merge(rows.At(rowAt(at)) + (int64_t{part.left} - x),
                             target.Row32(at) + part.left, part.right - part.left);
            }
        }
    });
}

}  // namespace

bool MergeMosaic(HDC handle, int x, int y, const Mosaic& mosaic, WordMerger& merger) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const GdiRef<DeviceContext> from = FindContext(mosaic.source);
    if (!dc || !from) return false;
    const PixelTarget source = from->Target(), target = dc->Target();
    if (source.depth != 32 || target.depth != 32 || ShareMemory(source, target)) return false;
    MosaicViews views;
    if (!views.Take(source, mosaic.parts)) return false;
    ScratchBlock block;
    const size_t count = WordsFor(views);
    auto* const words = block.Take<uint32_t>(count);
    if (!words) return false;
    const kernel::KnownMemory readable(words, count * sizeof *words);
    const kernel::KnownMemory writable = KnownPixels(target);
    int64_t top = y;
    for (const MosaicView& view : views.All()) {
        if (top <= INT32_MAX) MergePart(*dc, x, static_cast<int32_t>(top), view, words, merger);
        top += static_cast<int64_t>(view.Height());
    }
    return true;
}

}  // namespace vxgui::gdi
