#pragma once

#include <optional>

#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/theme/ScaledAxis.h"

namespace vxgui {

/// A strip as an item uses it.
struct StripUse {
    Ref<cAlphaDIBSection> strip;
    int32_t frames;  ///< 1 too for a strip that isn't cut
    bool vertical;
    bool keyed;  ///< the transparent colour counts
};

/// A new strip of the same frames, each as the two axes say. `base` is the size of a frame that
/// they speak of; the strip's own may be another. A colour key becomes premultiplied alpha, so
/// that it doesn't run into its surroundings. Raises when there isn't the memory; none for a strip
/// without pixels.
VXGUI_LOCAL Ref<cAlphaDIBSection> ScaleStrip(const StripUse& use, gdi::SIZE base,
                                             const ScaledAxis& x, const ScaledAxis& y);

}  // namespace vxgui
