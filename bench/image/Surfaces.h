#pragma once

#include <cstring>

#include "bench/Pixels.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::bench {

/// A surface of the pixels of `StraightPicture`.
inline Ref<cAlphaDIBSection> SurfaceOf(int width, int height) {
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->Create(width, height);
    const std::vector<uint32_t> words = StraightPicture(width, height, false);
    std::memcpy(surface->DIBSectionBitsPtr(), words.data(), words.size() * sizeof words[0]);
    return surface;
}

}  // namespace vxgui::bench
