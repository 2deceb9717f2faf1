#include "vxgui/platform/gdi/ArgbBlit.h"
#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

BOOL TransparentBlt(HDC handle, int x, int y, int width, int height, HDC sourceHandle, int sourceX,
                    int sourceY, int sourceWidth, int sourceHeight, UINT key) {
    constexpr uint32_t kColorBits = 0x00FFFFFF;
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const GdiRef<DeviceContext> from = FindContext(sourceHandle);
    if (!dc || !from) return 0;
    if (width < 0 || height < 0 || sourceWidth < 0 || sourceHeight < 0) return 0;
    const uint32_t clear = SwapRedAndBlue(key);
    const BlitGeometry geometry{{x, width, sourceX, sourceWidth},
                                {y, height, sourceY, sourceHeight}};
    return ArgbBlit(*dc, from->Target(), MonoColorsOf(*dc, from.get()), geometry,
                    [&](const uint32_t* s, uint32_t* d, int32_t count) {
                        for (int32_t i = 0; i < count; ++i) {
                            if ((s[i] & kColorBits) != clear) d[i] = s[i];
                        }
                    });
}

}  // namespace vxgui::gdi
