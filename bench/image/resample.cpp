#include "vxgui/pixels/Resample.h"
#include "bench/Beside.h"
#include "bench/image/Surfaces.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

auto Ours(int width, int height) {
    return [=] {
        auto source = std::make_shared<std::vector<ARGB>>(kSide * kSide);
        const std::vector<uint32_t> words = StraightPicture(kSide, kSide, false);
        std::memcpy(static_cast<void*>(source->data()), words.data(), words.size() * 4);
        auto target = std::make_shared<std::vector<ARGB>>(static_cast<size_t>(width * height));
        return [=] { ResampleBilinear(*source, kSide, *target, width); };
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
