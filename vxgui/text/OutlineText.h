#pragma once

#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"

namespace vxgui {

class GpBrush;
class GpFont;
class GpGraphics;
class GpPen;
class GpStringFormat;

/// Draws text as filled outlines over a stroke of them, at a point. What is none is taken from the
/// graphics' context. The graphics keeps the modes that this sets. Raises for no graphics.
void DrawOutLineText(const Ref<GpGraphics>& graphics, const String& Text, int32_t X, int32_t Y,
                     Ref<GpFont> Font, Ref<GpBrush> TextBrush, Ref<GpPen> OutLinePen,
                     Ref<GpStringFormat> StringFormat);

}  // namespace vxgui
