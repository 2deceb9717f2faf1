#pragma once

#include <algorithm>

#include "fuzz/Fuzz.h"
#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::fuzz {

/// Decodes the frames of a picture of that format, the first few; other input is left alone.
inline void DecodeAs(codecs::ImageFormat format, Input input) {
    const auto first = codecs::OpenImage(input);
    if (!first || first->Header().format != format) return;
    const int frames = std::min(codecs::FrameCount(input), 4);
    for (int frame = 0; frame < frames; ++frame)
        codecs::DecodeImage(codecs::OpenFrame(input, frame));
}

}  // namespace vxgui::fuzz
