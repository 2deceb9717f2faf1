#pragma once

#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

class SolidBrush final : public Brush {
public:
    explicit SolidBrush(ARGB color) : color(color) {}

    BrushType Type() const override { return BrushTypeSolidColor; }
    Ref<Brush> Clone() const override { return New<SolidBrush>(color); }
    Pattern MakePattern(const PatternPlace& place) const override;
    bool IsSolid(ARGB* result) const override;

    ARGB color;  ///< with straight alpha
};

}  // namespace vxgui::gdiplus
