#include "bench/Beside.h"
#include "bench/Roof.h"
#include "bench/theme/Frame.h"

namespace vxgui::bench {
namespace {

auto Ours(Size size, bool tiled) {
    return [=] {
        auto target = std::make_shared<HostTarget>(kTarget.width, kTarget.height);
        const Ref<ThemeItem> item = PerPixelItem(tiled);
        return [=] {
            item->DrawBackground(target->dc, kLeft, kTop, size.width, size.height, -1, -1);
        };
    };
}

// Each pixel of the rectangle mixed with another, as if the frame had its size.
auto Roof(Size size) {
    return [=] {
        auto target = std::make_shared<Pixels>(kTarget.width, kTarget.height);
        auto source = std::make_shared<Pixels>(kTarget.width, kTarget.height);
        return [=] {
            for (int y = 0; y < size.height; ++y) {
                const auto at = static_cast<size_t>((y + kTop) * kTarget.width + kLeft);
                StreamMix(&target->words[at], &source->words[at],
                          static_cast<size_t>(size.width));
            }
        };
    };
}

const bool kAdded = [] {
    for (const Size size : kSizes) {
        for (const bool tiled : {false, true}) {
            const char* const work = tiled ? "background-tiled" : "background-stretched";
            Beside(work, size.Name(), "ours", Ours(size, tiled));
            Beside(work, size.Name(), "roof", Roof(size));
        }
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
