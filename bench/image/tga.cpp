#include "bench/Beside.h"
#include "bench/Roof.h"
#include "bench/image/TgaFile.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

auto Ours(bool packed) {
    return [=] {
        return [file = TgaFile(kSide, packed), surface = New<cAlphaDIBSection>()] {
            surface->CreateFromTGAPtr(file.data(), static_cast<int32_t>(file.size()));
        };
    };
}

auto Roof() {
    auto pixels = std::make_shared<Pixels>(kSide, kSide), others = pixels;
    others = std::make_shared<Pixels>(kSide, kSide);
    return [=] { StreamCopy(pixels->words.data(), others->words.data(), others->words.size()); };
}

const bool kAdded = [] {
    Beside("tga", "512", "ours", Ours(false));
    Beside("tga", "512", "roof", Roof);
    Beside("tga-packed", "512", "ours", Ours(true));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
