#pragma once

#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui {

class GpBrush;
class GpColor;
class GpFont;
class GpGraphics;
class GpStringFormat;

/// What `GpDrawShadowText` takes besides the graphics; objects may be none.
struct GpShadowTextArguments {
    String Text;
    gdiplus::GpRectF pRect{};
    Ref<GpColor> ShadowColor;
    int32_t ShadowX = 4;
    int32_t ShadowY = 5;
    int32_t ixOffset = 2;
    int32_t iyOffset = 2;
    Ref<GpFont> Font;
    Ref<GpStringFormat> StringFormat;
    Ref<GpBrush> TextBrush;
};

/// Draws text over a soft shadow that is made on a bitmap. A failure is shown to the user and ends
/// the drawing.
void GpDrawShadowText(const Ref<GpGraphics>& graphics, const GpShadowTextArguments& a);

}  // namespace vxgui
