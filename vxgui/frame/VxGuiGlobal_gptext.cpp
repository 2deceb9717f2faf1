#include "vxgui/base/OutOfMemory.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/text/GpShadowText.h"
#include "vxgui/text/OutlineText.h"

namespace vxgui {

int32_t VxGuiGlobal::DrawOutLineText(const Ref<GpGraphics>& graphics, const String& Text, int32_t X,
                                     int32_t Y, const Ref<GpFont>& Font,
                                     const Ref<GpBrush>& TextBrush, const Ref<GpPen>& OutLinePen,
                                     const Ref<GpStringFormat>& StringFormat) try {
    vxgui::DrawOutLineText(graphics, Text, X, Y, Font, TextBrush, OutLinePen, StringFormat);
    return 0;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("VxGuiGlobal.DrawOutLineText");
}

int32_t VxGuiGlobal::GpDrawShadowText(const Ref<GpGraphics>& graphics, const String& Text,
                                      const gdiplus::GpRectF& pRect,
                                      const Ref<GpColor>& ShadowColor, int32_t ShadowX,
                                      int32_t ShadowY, int32_t ixOffset, int32_t iyOffset,
                                      const Ref<GpFont>& Font,
                                      const Ref<GpStringFormat>& StringFormat,
                                      const Ref<GpBrush>& TextBrush) try {
    vxgui::GpDrawShadowText(graphics, {Text, pRect, ShadowColor, ShadowX, ShadowY, ixOffset,
                                       iyOffset, Font, StringFormat, TextBrush});
    return 0;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("VxGuiGlobal.GpDrawShadowText");
}

}  // namespace vxgui
