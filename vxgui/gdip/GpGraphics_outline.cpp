#include "vxgui/base/Require.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpPath.h"
#include "vxgui/gdip/GpPen.h"
#include "vxgui/gdip/GpStringFormat.h"

namespace vxgui {

// Both modes stay at their defaults afterwards, and the fill is already done with them: that is
// meant.
bool GpGraphics::DrawOutLineText(const String& Text, const Ref<GpFont>& Font,
                                 const Ref<GpStringFormat>& Format, const Ref<GpPen>& OutLinePen,
                                 const Ref<GpBrush>& TextBrush, int32_t Left, int32_t Top,
                                 int32_t Width, int32_t Height) {
    constexpr const char* kSource = "GpGraphics.DrawOutLineText";
    const KeepAlive keep(this);
    flat::GdipSetSmoothingMode(handle_, gdiplus::SmoothingModeAntiAlias);
    flat::GdipSetInterpolationMode(handle_, gdiplus::InterpolationModeHighQualityBicubic);
    const Ref<GpPath> path = New<GpPath>();
    path->Create(gdiplus::FillModeAlternate);
    path->AddStringWithFontI(Text, Font, Require(Format, kSource).Handle(), Left, Top, Width,
                             Height);
    Require(OutLinePen, kSource).LineJoin(gdiplus::LineJoinRound);
    const bool stroked = Check(flat::GdipDrawPath(handle_, OutLinePen->Handle(), path->Handle()));
    flat::GdipSetSmoothingMode(handle_, gdiplus::SmoothingModeDefault);
    flat::GdipSetInterpolationMode(handle_, gdiplus::InterpolationModeDefault);
    const bool filled =
        Check(flat::GdipFillPath(handle_, Require(TextBrush, kSource).Handle(), path->Handle()));
    return stroked && filled;
}

}  // namespace vxgui
