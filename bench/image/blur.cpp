#include "bench/Beside.h"
#include "bench/Roof.h"
#include "bench/image/Surfaces.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

auto Ours(int radius) {
    return [=] {
        const Ref<cAlphaDIBSection> surface = SurfaceOf(kSide, kSide);
        return [=] { surface->GaussianBlur(radius, radius); };
    };
}

// The colours of a black shadow are 0.
auto OursBlack(int radius) {
    return [=] {
        const Ref<cAlphaDIBSection> surface = SurfaceOf(kSide, kSide);
        auto* const words = static_cast<uint32_t*>(surface->DIBSectionBitsPtr());
        std::for_each(words, words + kSide * kSide, [](uint32_t& word) { word &= 0xFF000000; });
        return [=] { surface->GaussianBlur(radius, radius); };
    };
}

// Each direction reads and writes the picture.
auto Roof() {
    auto pixels = std::make_shared<Pixels>(kSide, kSide);
    auto others = std::make_shared<Pixels>(kSide, kSide);
    return [=] {
        StreamCopy(pixels->words.data(), others->words.data(), others->words.size());
        StreamCopy(others->words.data(), pixels->words.data(), others->words.size());
    };
}

const bool kAdded = [] {
    for (const int radius : {2, 4, 16, 64}) {
        const std::string name = std::to_string(radius);
        Beside("blur", name, "ours", Ours(radius));
        Beside("blur", name, "roof", Roof);
        Beside("blur-black", name, "ours", OursBlack(radius));
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
