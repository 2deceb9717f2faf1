#include "bench/Beside.h"
#include "bench/image/Surfaces.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 1024;

// The picture is given anew each time, as adjusting again and again would make it plain.
auto Ours(float hue, float luminance, float saturation, bool colourize) {
    return [=] {
        const Ref<cAlphaDIBSection> surface = SurfaceOf(kSide, kSide);
        surface->BeginAdjustColor();
        return [=] {
            surface->ResetAdjustColor();
            surface->AdjustHLS(hue, luminance, saturation, colourize);
        };
    };
}

const bool kAdded = [] {
    Beside("hls-all", "1024", "ours", Ours(40, 15, 30, false));
    Beside("hls-saturation", "1024", "ours", Ours(0, 0, 30, false));
    Beside("hls-luminance", "1024", "ours", Ours(0, 15, 0, false));
    Beside("hls-colourize", "1024", "ours", Ours(40, 15, 30, true));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
