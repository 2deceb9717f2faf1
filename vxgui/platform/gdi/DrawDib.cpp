#include <new>

#include "vxgui/platform/gdi/Dib.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/RopBlit.h"
#include "vxgui/platform/gdi/WordRows.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

// An open drawer keeps nothing: pictures are drawn straight from their memory.
class DibDrawer final : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::DibDrawer;
    DibDrawer() : GdiObject(kKind) {}
};

constexpr int kNatural = -1;

const void* BitsBehind(const BITMAPINFOHEADER& header) {
    return reinterpret_cast<const uint8_t*>(&header) + DibColorOffset(header) +
           sizeof(RGBQUAD) * static_cast<size_t>(DibColorCount(header));
}

int OrNatural(int extent, int natural) { return extent == kNatural ? natural : extent; }

}  // namespace

HDRAWDIB DrawDibOpen() try {
    const GdiRef<DibDrawer> drawer = Enter(std::make_unique<DibDrawer>());
    return drawer ? drawer->Handle() : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

BOOL DrawDibClose(HDRAWDIB handle) {
    const GdiRef<DibDrawer> drawer = Find<DibDrawer>(handle);
    return drawer && HandleTable::Retire(*drawer);
}

BOOL DrawDibDraw(HDRAWDIB handle, HDC target, int x, int y, int width, int height,
                 const BITMAPINFOHEADER* header, const void* bits, int sourceX, int sourceY,
                 int sourceWidth, int sourceHeight, UINT) {
    const GdiRef<DeviceContext> dc = FindContext(target);
    DibForm form;
    if (!Find<DibDrawer>(handle) || !dc) return 0;
    if (!ReadDib(reinterpret_cast<const BITMAPINFO*>(header), DIB_RGB_COLORS, &form)) return 0;
    const int fromWidth = OrNatural(sourceWidth, form.width);
    const int fromHeight = OrNatural(sourceHeight, form.height);
    const int toWidth = OrNatural(width, fromWidth), toHeight = OrNatural(height, fromHeight);
    const PixelTarget source = form.View(bits ? bits : BitsBehind(*header), form.height);
    if (toWidth == fromWidth && toHeight == fromHeight &&
        CopyWholeWordRows(*dc, source, {x, y, toWidth, toHeight, sourceX, sourceY})) {
        return 1;
    }
    return RopBlit(*dc, {source, MonoColorsOf(*dc, nullptr)},
                   {{x, toWidth, sourceX, fromWidth}, {y, toHeight, sourceY, fromHeight}},
                   Rop3(SRCCOPY), *dc->state.brush);
}

}  // namespace vxgui::gdi
