#include "vxgui/platform/gdi/KnownPixels.h"
#include "vxgui/platform/gdi/WordRuns.h"
#include "vxgui/platform/gdi_merge.h"

namespace vxgui::gdi {
namespace {

bool SameArea(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

auto Merges(WordMerger& merger) {
    return [&merger](const uint32_t* source, uint32_t* target, int32_t count) {
        const kernel::KnownMemory readable(source, size_t(count) * sizeof *source);
        const kernel::KnownMemory writable(target, size_t(count) * sizeof *target);
        merger.Merge(source, target, count);
    };
}

}  // namespace

bool MergeBlt(HDC handle, int x, int y, int width, int height, HDC sourceHandle, int sourceX,
              int sourceY, int sourceWidth, int sourceHeight, WordMerger& merger) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const GdiRef<DeviceContext> from = FindContext(sourceHandle);
    if (!dc || !from || sourceWidth == 0 || sourceHeight == 0) return false;
    if (width < 1 || height < 1) return true;
    const PixelTarget source = from->Target(), target = dc->Target();
    if (width == sourceWidth && height == sourceHeight) {
        if (const auto rows = WholeWordRows(*dc, source, {x, y, width, height, sourceX, sourceY})) {
            const kernel::KnownMemory readable = KnownPixels(source),
                                      writable = KnownPixels(target);
            rows->ForEachRun([&merger](const uint32_t* from, uint32_t* to, int32_t count) {
                merger.Merge(from, to, count);
            });
            return true;
        }
    }
    if (source.depth != 32 || target.depth != 32 || ShareMemory(source, target)) return false;

    BlitGeometry geometry{{x, width, sourceX, sourceWidth}, {y, height, sourceY, sourceHeight}};
    geometry.CutToTarget(*dc);
    if (geometry.Empty()) return true;
    const RECT area = geometry.Area();
    geometry.CutToSource(source);
    if (geometry.Empty() || !SameArea(geometry.Area(), area)) return false;
    BlitReader reader(source, geometry);
    return reader.Prepare(target) && ForEachWordRun(*dc, reader, area, Merges(merger));
}

}  // namespace vxgui::gdi
