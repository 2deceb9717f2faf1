#include "vxgui/pixels/HlsPixels.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui::hls {

namespace {

VXGUI_MULTIVERSION(void, MoveApart, (Pairs & pairs, const Stretch& stretch, size_t count)) {
    const double factor = stretch.factor, rest = stretch.rest;
    for (size_t i = 0; i < count; ++i) {
        const int32_t max = pairs.max[i], min = pairs.min[i], room = 255 - max;
        const int32_t coloured = Bits(max > min), low = Bits(room > min);
        const int32_t most = Round(max + (((min & low) | (room & ~low)) & coloured) * factor);
        const int32_t scaled = Round((min & coloured) * rest) | (min & ~coloured);
        const int32_t moved = Round(min - ((255 - most) & coloured) * factor);
        pairs.max[i] = most;
        pairs.min[i] = (scaled & low) | (moved & ~low);
    }
}

VXGUI_MULTIVERSION(void, MoveTogether, (Pairs & pairs, const Stretch& stretch, size_t count)) {
    const double half = stretch.half;
    for (size_t i = 0; i < count; ++i) {
        const int32_t max = pairs.max[i], min = pairs.min[i];
        const double step = (max - min) * half;
        pairs.max[i] = Round(max + step);
        pairs.min[i] = Round(min - step);
    }
}

}  // namespace

void Change(Pairs& pairs, const Stretch& stretch, size_t count) {
    if (stretch.sign > 0) MoveApart(pairs, stretch, count);
    if (stretch.sign < 0) MoveTogether(pairs, stretch, count);
}

}  // namespace vxgui::hls
