#include "vxgui/platform/gdi/ArgbBlit.h"
#include "vxgui/platform/gdi/PixelMix.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

// BLENDFUNCTION: op, flags, constant alpha and format, from the lowest byte. Op and flags have
// one value each, 0: source over, no flags.
struct Blend {
    uint32_t constant;
    bool perPixel;
    bool served;
};

Blend BlendOf(DWORD packed) {
    const DWORD format = packed >> 24;
    return {packed >> 16 & 0xFF, format == 1, (packed & 0xFFFF) == 0 && format <= 1};
}

template <uint32_t (*Mix)(uint32_t, uint32_t, uint32_t)>
bool BlendWith(const DeviceContext& dc, const DeviceContext& from, const BlitGeometry& geometry,
               uint32_t constant) {
    return ArgbBlit(dc, from.Target(), MonoColorsOf(dc, &from), geometry,
                    [constant](const uint32_t* source, uint32_t* destination, int32_t count) {
                        for (int32_t i = 0; i < count; ++i) {
                            destination[i] = Mix(source[i], destination[i], constant);
                        }
                    });
}

bool Inside(const PixelTarget& source, int x, int y, int width, int height) {
    return x >= 0 && y >= 0 && width <= source.width - x && height <= source.height - y;
}

}  // namespace

BOOL AlphaBlend(HDC handle, int x, int y, int width, int height, HDC sourceHandle, int sourceX,
                int sourceY, int sourceWidth, int sourceHeight, DWORD packed) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const GdiRef<DeviceContext> from = FindContext(sourceHandle);
    const Blend blend = BlendOf(packed);
    if (!dc || !from || !blend.served) return 0;
    if (width < 0 || height < 0 || sourceWidth < 0 || sourceHeight < 0) return 0;
    const PixelTarget source = from->Target();
    if (!Inside(source, sourceX, sourceY, sourceWidth, sourceHeight)) return 0;
    if (blend.perPixel && source.depth != 32) return 0;
    const RECT sourceRect = RectFromExtents(sourceX, sourceY, sourceWidth, sourceHeight);
    const RECT rect = RectFromExtents(x, y, width, height);
    if (SamePixels(source, dc->Target()) && !IsEmpty(Intersection(sourceRect, rect))) return 0;

    const BlitGeometry geometry{{x, width, sourceX, sourceWidth},
                                {y, height, sourceY, sourceHeight}};
    const auto run = blend.perPixel ? BlendWith<ScaledSourceOver> : BlendWith<MixByConstant>;
    return run(*dc, *from, geometry, blend.constant);
}

}  // namespace vxgui::gdi
