#pragma once

#include "vxgui/platform/gdiplus/Affine.h"
#include "vxgui/platform/gdiplus/text/StringLayout.h"

namespace vxgui::gdiplus {

/// Takes the figures of a shape, one after another.
class FigureSink {
public:
    virtual ~FigureSink() = default;
    virtual void Move(GpPointF to) = 0;
    virtual void Line(GpPointF to) = 0;
    virtual void Curve(GpPointF control1, GpPointF control2, GpPointF to) = 0;
    virtual void Close() = 0;
};

/// Gives the glyphs and bars of a layout as figures, moved by `place`.
void DrawFigures(const StringLayout& layout, const Affine& place, FigureSink& sink);

}  // namespace vxgui::gdiplus
