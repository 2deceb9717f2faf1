#include "vxgui/pixels/Resample.h"
#include "bench/Beside.h"
#include "bench/image/Surfaces.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

std::span<ARGB> ColorsOf(Pixels& pixels) {
    return {reinterpret_cast<ARGB*>(pixels.words.data()), pixels.words.size()};
}

auto Ours(int width, int height) {
    return [=] {
        auto source = std::make_shared<Pixels>(kSide, kSide);
        source->Set(StraightPicture(kSide, kSide, false));
        auto target = std::make_shared<Pixels>(width, height);
        return [=] { ResampleBilinear(ColorsOf(*source), kSide, ColorsOf(*target), width); };
    };
}

// With the surface that it makes.
auto OursNew(int width, int height) {
    return [=] {
        const Ref<cAlphaDIBSection> surface = SurfaceOf(kSide, kSide);
        return [=] { surface->Resample(height, width); };
    };
}

const bool kAdded = [] {
    for (const auto& [width, height] : {std::pair{1024, 1024}, std::pair{300, 200}}) {
        const std::string name = std::to_string(width) + "x" + std::to_string(height);
        Beside("resample", name, "ours", Ours(width, height));
        Beside("resample-new", name, "ours", OursNew(width, height));
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
