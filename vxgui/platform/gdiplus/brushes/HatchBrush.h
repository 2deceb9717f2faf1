#pragma once

#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

/// A pattern of 8 by 8 device pixels, whatever the world does.
class HatchBrush final : public Brush {
public:
    HatchBrush(HatchStyle style, ARGB foreground, ARGB background)
        : style(style), foreground(foreground), background(background) {}

    BrushType Type() const override { return BrushTypeHatchFill; }
    Ref<Brush> Clone() const override { return New<HatchBrush>(style, foreground, background); }
    Pattern MakePattern(const PatternPlace& place) const override;

    const HatchStyle style;
    const ARGB foreground, background;  ///< with straight alpha
};

}  // namespace vxgui::gdiplus
