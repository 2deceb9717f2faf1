#pragma once

#include <algorithm>

#include "vxgui/platform/gdi/text/PenTurn.h"
#include "vxgui/platform/gdi/text/TextLine.h"

namespace vxgui::gdi {

/// What the parts of a line are painted with: into a context, inside `clip` and its own clip, by a
/// font that may be turned.
struct LinePlace {
    LinePlace(const DeviceContext& dc, const TextSetup& text, const RECT& within)
        : context(dc),
          setup(text),
          target(dc.Target()),
          clip(Intersection(within, target.Bounds())),
          font(*text.font),
          turn(font.Angle()) {}

    const DeviceContext& context;
    const TextSetup& setup;
    const PixelTarget target;
    const RECT clip;
    const RealizedFont& font;
    const PenTurn turn;
};

/// A rectangle of places that may lie beyond what a rectangle holds.
inline RECT HeldRect(int64_t left, int64_t top, int64_t right, int64_t bottom) {
    const auto held = [](int64_t value) {
        return static_cast<LONG>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
    };
    return {held(left), held(top), held(right), held(bottom)};
}

}  // namespace vxgui::gdi
