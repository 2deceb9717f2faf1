#pragma once

#include <array>
#include <functional>
#include <memory>

#include "vxgui/platform/gdiplus/bitmap/Palette.h"

namespace vxgui::gdiplus {

/// What dithering aims at.
struct DitherTarget {
    std::function<ARGB(ARGB)> snap;  ///< the colour that a colour would be stored as
    int step = 51;                   ///< how far stored intensities lie apart
};

/// Turns rows of pixels, from the top down, into colours that can be stored, such that their
/// neighbourhood keeps its mean. Alpha stays; clear pixels have no part in it.
class Ditherer {
public:
    virtual ~Ditherer() = default;
    virtual void Apply(INT y, std::span<ARGB> row) = 0;
};

std::unique_ptr<Ditherer> MakeDitherer(DitherType type, DitherTarget target);

}  // namespace vxgui::gdiplus
