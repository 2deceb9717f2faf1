#include <algorithm>
#include <cstdlib>
#include <new>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/OutOfMemory.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

std::atomic<int> screenDpi{96};

HDC EnterContext(std::unique_ptr<DeviceContext> context) {
    const GdiRef<DeviceContext> entered = Enter(std::move(context));
    return entered ? static_cast<HDC>(entered->Handle()) : nullptr;
}

// Pixels are aligned words, and rows don't overlap.
bool RowsHold(const HostPixels& pixels) {
    constexpr ptrdiff_t kWord = 4;
    if (!pixels.bits || pixels.width <= 0 || pixels.height <= 0) return false;
    if (reinterpret_cast<uintptr_t>(pixels.bits) % kWord != 0) return false;
    if (pixels.stride % kWord != 0 || pixels.stride == PTRDIFF_MIN) return false;
    return pixels.height == 1 || std::abs(pixels.stride) >= pixels.width * kWord;
}

}  // namespace

HDC CreateHostDC(const HostPixels& pixels) try {
    if (!RowsHold(pixels)) return nullptr;
    BitmapShape shape;
    shape.width = pixels.width;
    shape.height = pixels.height;
    shape.stride = pixels.stride;
    shape.bottomUp = pixels.bottomUp;
    auto bitmap =
        std::make_unique<Bitmap>(shape, PixelBlock{static_cast<uint8_t*>(pixels.bits), 0, false});
    bitmap->MakePermanent();
    GdiRef<Bitmap> entered = Enter(std::move(bitmap));
    if (!entered) return nullptr;
    const GdiRef<Bitmap> kept = entered;
    const HDC dc = OrOutOfMemory(
        HDC(), [&] { return EnterContext(std::make_unique<DeviceContext>(std::move(entered))); });
    if (!dc) kept->Delete();  // nobody else knows it
    return dc;
} catch (const std::bad_alloc&) {
    return nullptr;
}

HDC CreateCompatibleDC(HDC dc) try {
    if (dc && !FindContext(dc)) return nullptr;
    return EnterContext(DeviceContext::Fresh());
} catch (const std::bad_alloc&) {
    return nullptr;
}

BOOL DeleteDC(HDC dc) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    // A host's bitmap goes with its context.
    if (context->IsHost()) context->state.bitmap->Delete();
    return HandleTable::Retire(*context);
}

void SetScreenDpi(int dpi) {
    if (dpi > 0) screenDpi = dpi;
}

int ScreenDpi() { return screenDpi; }

int GetDeviceCaps(HDC dc, int index) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    const PixelTarget target = context->Target();
    switch (index) {
        case LOGPIXELSX:
        case LOGPIXELSY:
            return ScreenDpi();
        case HORZRES:
            return target.width;
        case VERTRES:
            return target.height;
        case BITSPIXEL:
            return target.depth;
        case PLANES:
            return 1;
        default:
            return 0;
    }
}

}  // namespace vxgui::gdi
