#include "vxgui/platform/gdiplus/brushes/LineBrush.h"

#include <algorithm>
#include <cmath>

#include "vxgui/pixels/Ramp.h"
#include "vxgui/platform/gdiplus/brushes/Patterns.h"

namespace vxgui::gdiplus {
namespace {

// Two colours a pixel, so that steps of presets stay where they are; more for light, which changes
// fast where it is dark.
size_t RampSize(double lengthInPixels, ShadeScale scale) {
    const double density = scale == ShadeScale::Light ? 8 : 2;
    return static_cast<size_t>(std::clamp(lengthInPixels * density, 128 * density, 8192.0));
}

// The places along the gradient of a row's pixels.
struct Places {
    double start, alongX, alongY;

    Places(const Affine& deviceToUnit, const GpRect& device)
        : alongX(deviceToUnit.m11), alongY(deviceToUnit.m21) {
        start = alongX * (device.X + 0.5) + alongY * (device.Y + 0.5) + deviceToUnit.dx;
    }
};

}  // namespace

std::vector<uint32_t> LineBrush::Ramp(size_t size) const {
    const Shade first = ShadeOf(colors[0], blend.Scale()),
                second = ShadeOf(colors[1], blend.Scale());
    std::vector<uint32_t> ramp(size);
    for (size_t i = 0; i < size; ++i) {
        const REAL place = (static_cast<REAL>(i) + 0.5f) / static_cast<REAL>(size);
        const Shade shade = blend.presets.values.empty() ? Mix(first, second, blend.FactorAt(place))
                                                         : blend.PresetAt(place);
        ramp[i] = PixelOf(shade, blend.Scale());
    }
    return ramp;
}

Pattern LineBrush::MakePattern(const PatternPlace& place) const {
    const std::optional<Affine> deviceToUnit =
        Inverse(line.fromUnit * transform * place.worldToDevice);
    if (!deviceToUnit || place.device.Width <= 0 || place.device.Height <= 0) return ClearPattern();
    const Places places(*deviceToUnit, place.device);
    // Where nothing changes along an axis, one pixel there stands for all.
    const Surface surface = MakeSurface(places.alongX == 0 ? 1 : place.device.Width,
                                        places.alongY == 0 ? 1 : place.device.Height);
    if (!surface) return nullptr;
    const std::vector<uint32_t> ramp =
        Ramp(RampSize(1 / std::hypot(places.alongX, places.alongY), blend.Scale()));
    const INT width = cairo_image_surface_get_width(surface.get());
    const INT height = cairo_image_surface_get_height(surface.get());
    for (INT y = 0; y < height; ++y) {
        FillRamp({RowOf(surface, y), static_cast<size_t>(width)}, ramp,
                 places.start + places.alongY * y, places.alongX, FlipsX(Wrap()));
    }
    cairo_surface_mark_dirty(surface.get());
    const Affine toSurface =
        place.worldToDevice *
        Affine::Translation(static_cast<REAL>(-place.device.X), static_cast<REAL>(-place.device.Y));
    return SurfacePattern(surface, toSurface, CAIRO_EXTEND_REPEAT);
}

}  // namespace vxgui::gdiplus
