#include <cstring>

#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/OutOfMemory.h"
#include "vxgui/platform/gdi/shapes/RegionHandles.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {

HRGN EnterRegion(PixelRegion region) {
    return OrOutOfMemory(HRGN(), [&] {
        const GdiRef<Region> entered = Enter(std::make_unique<Region>(std::move(region)));
        return entered ? static_cast<HRGN>(entered->Handle()) : nullptr;
    });
}

GdiRef<Region> FindRegion(HRGN region) { return Find<Region>(region); }

HRGN CreateRectRgn(int left, int top, int right, int bottom) {
    return EnterRegion(PixelRegion(RECT{left, top, right, bottom}));
}

HRGN CreateRectRgnIndirect(const RECT* rect) {
    return rect ? EnterRegion(PixelRegion(*rect)) : nullptr;
}

BOOL SetRectRgn(HRGN region, int left, int top, int right, int bottom) {
    const GdiRef<Region> found = FindRegion(region);
    if (!found) return 0;
    found->shape = PixelRegion(RECT{left, top, right, bottom});
    return 1;
}

int CombineRgn(HRGN target, HRGN a, HRGN b, int mode) {
    const GdiRef<Region> result = FindRegion(target);
    const GdiRef<Region> first = FindRegion(a);
    const GdiRef<Region> second = mode == RGN_COPY ? first : FindRegion(b);
    if (!result || !first || !second) return ERROR;
    return OrOutOfMemory(ERROR, [&] {
        const bool done = result->shape.Combine(first->shape, second->shape, mode);
        return done ? result->shape.Kind() : ERROR;
    });
}

BOOL EqualRgn(HRGN a, HRGN b) {
    const GdiRef<Region> first = FindRegion(a);
    const GdiRef<Region> second = FindRegion(b);
    return first && second && first->shape == second->shape;
}

int OffsetRgn(HRGN region, int dx, int dy) {
    const GdiRef<Region> found = FindRegion(region);
    return found && found->shape.Offset(dx, dy) ? found->shape.Kind() : ERROR;
}

int GetRgnBox(HRGN region, RECT* box) {
    const GdiRef<Region> found = FindRegion(region);
    if (!found || !box) return ERROR;
    *box = found->shape.Bounds();
    return found->shape.Kind();
}

BOOL PtInRegion(HRGN region, int x, int y) {
    const GdiRef<Region> found = FindRegion(region);
    return found && found->shape.Contains(x, y);
}

BOOL RectInRegion(HRGN region, const RECT* rect) {
    const GdiRef<Region> found = FindRegion(region);
    return found && rect && found->shape.Overlaps(*rect);
}

DWORD GetRegionData(HRGN region, DWORD size, void* data) {
    constexpr DWORD kRectangles = 1;  // the only kind of record that is published
    const GdiRef<Region> found = FindRegion(region);
    if (!found) return 0;
    const auto boxes = found->shape.Boxes();
    RGNDATAHEADER header{sizeof(header), kRectangles, static_cast<DWORD>(boxes.size()),
                         static_cast<DWORD>(boxes.size_bytes()), found->shape.Bounds()};
    const DWORD needed = header.dwSize + header.nRgnSize;
    if (!data) return needed;
    if (size < needed) return 0;
    static_assert(sizeof(RECT) == sizeof(pixman_box32_t));
    std::memcpy(data, &header, sizeof(header));
    if (!boxes.empty()) {
        std::memcpy(static_cast<char*>(data) + sizeof(header), boxes.data(), boxes.size_bytes());
    }
    return needed;
}

}  // namespace vxgui::gdi
