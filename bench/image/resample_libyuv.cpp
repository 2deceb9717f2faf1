#include <libyuv.h>

#include <memory>

#include "bench/Beside.h"
#include "bench/Pixels.h"

namespace vxgui::bench {
namespace {

constexpr int kSide = 512;

auto Libyuvs(int width, int height) {
    return [=] {
        auto source = std::make_shared<Pixels>(kSide, kSide);
        source->Set(StraightPicture(kSide, kSide, false));
        auto target = std::make_shared<Pixels>(width, height);
        return [=] {
            libyuv::ARGBScale(source->Bytes(), source->Stride(), kSide, kSide, target->Bytes(),
                              target->Stride(), width, height, libyuv::kFilterBilinear);
        };
    };
}

const bool kAdded = [] {
    for (const auto& [width, height] : {std::pair{1024, 1024}, std::pair{300, 200}}) {
        const std::string name = std::to_string(width) + "x" + std::to_string(height);
        Beside("resample", name, "libyuv", Libyuvs(width, height));
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
