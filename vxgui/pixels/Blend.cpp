#include "vxgui/pixels/Blend.h"

#include <algorithm>

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

using namespace lanes;

namespace {

VXGUI_MULTIVERSION(void, ConstantLoop,
                   (const ARGB* source, ARGB* target, size_t count, uint32_t alpha)) {
    const uint32_t rest = 256 - alpha;
    for (size_t i = 0; i < count; ++i) {
        const uint32_t s = Load(source[i]), t = Load(target[i]);
        const uint32_t blueRed = Per256(BlueRed(s) * alpha + BlueRed(t) * rest);
        const uint32_t greenAlpha = Per256(GreenAlpha(s) * alpha + GreenAlpha(t) * rest);
        Store(target[i], (Join(blueRed, greenAlpha) & kColor) | (t & kAlpha));
    }
}

VXGUI_MULTIVERSION(void, StraightLoop,
                   (const ARGB* source, ARGB* target, size_t count, uint32_t alpha)) {
    for (size_t i = 0; i < count; ++i) {
        const uint32_t s = Load(source[i]), t = Load(target[i]);
        const uint32_t weight = Alpha(s) * alpha / 256, rest = 256 - weight;
        Store(target[i], Join(Per256(BlueRed(s) * weight) + Per256(BlueRed(t) * rest),
                              Per256(GreenAlpha(s) * weight) + Per256(GreenAlpha(t) * rest)));
    }
}

VXGUI_MULTIVERSION(void, PremultipliedLoop, (const ARGB* source, ARGB* target, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const uint32_t s = Load(source[i]), t = Load(target[i]);
        const uint32_t rest = 256 - Alpha(s);
        Store(target[i], Join(Saturate(BlueRed(s) + Per256(BlueRed(t) * rest)),
                              Saturate(GreenAlpha(s) + Per256(GreenAlpha(t) * rest))));
    }
}

}  // namespace

void Blend(std::span<const ARGB> source, std::span<ARGB> target, int32_t alpha, bool hasAlpha) {
    if (alpha <= 0) return;
    const auto constant = static_cast<uint8_t>(std::min(alpha, 255));
    if (!hasAlpha) {
        BlendConstant(source, target, constant);
    } else if (constant != 255) {
        BlendStraight(source, target, constant);
    } else {
        BlendPremultiplied(source, target);
    }
}

void BlendConstant(std::span<const ARGB> source, std::span<ARGB> target, uint8_t alpha) {
    ConstantLoop(source.data(), target.data(), std::min(source.size(), target.size()), alpha);
}

void BlendStraight(std::span<const ARGB> source, std::span<ARGB> target, uint8_t alpha) {
    StraightLoop(source.data(), target.data(), std::min(source.size(), target.size()), alpha);
}

void BlendPremultiplied(std::span<const ARGB> source, std::span<ARGB> target) {
    PremultipliedLoop(source.data(), target.data(), std::min(source.size(), target.size()));
}

}  // namespace vxgui
