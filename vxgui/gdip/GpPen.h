#pragma once

#include "vxgui/gdip/GpObject.h"

namespace vxgui {

class GpBrush;
class GpMatrix;

/// What strokes are drawn with. Reading its handle makes a black pen of one pixel when there is
/// none.
class VXGUI_API GpPen : public GpOwner<GpPen, gdiplus::GpPen> {
public:
    static constexpr auto kDelete = flat::GdipDeletePen;
    static constexpr auto kClone = flat::GdipClonePen;

    gdiplus::GpPen* Handle();

    bool Create(gdiplus::ARGB Color, float Width = 1, gdiplus::Unit Unit = gdiplus::UnitPixel);
    bool CreateWithBrush(gdiplus::GpBrush* hGpBrush, float Width = 1,
                         gdiplus::Unit Unit = gdiplus::UnitPixel);

    bool SetWidth(float Width);
    bool GetWidth(float& Width);
    float Width() { return Asked<float>(flat::GdipGetPenWidth); }
    void Width(float value) { SetWidth(value); }
    gdiplus::Unit Unit();
    void Unit(gdiplus::Unit value);

    bool SetLineCap(gdiplus::LineCap StartCap, gdiplus::LineCap EndCap, gdiplus::DashCap DashCap);
    bool SetStartCap(gdiplus::LineCap StartCap);
    bool SetEndCap(gdiplus::LineCap EndCap);
    bool SetDashCap(gdiplus::DashCap DashCap);
    gdiplus::LineCap StartCap();
    void StartCap(gdiplus::LineCap value) { SetStartCap(value); }
    gdiplus::LineCap EndCap();
    void EndCap(gdiplus::LineCap value) { SetEndCap(value); }
    gdiplus::DashCap DashCap();
    void DashCap(gdiplus::DashCap value) { SetDashCap(value); }
    gdiplus::LineJoin LineJoin();
    void LineJoin(gdiplus::LineJoin value);
    float MiterLimit() { return Asked<float>(flat::GdipGetPenMiterLimit); }
    void MiterLimit(float value);
    gdiplus::PenAlignment Alignment();
    void Alignment(gdiplus::PenAlignment value);

    /// Reading it resets the pen's transform and answers an identity: that is meant. None as the
    /// value resets it too.
    Ref<GpMatrix> Transform();
    void Transform(const Ref<GpMatrix>& value);
    bool ResetTransform();
    bool MultiplyTransform(const Ref<GpMatrix>& Matrix,
                           gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool TranslateTransform(float dx, float dy,
                            gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool ScaleTransform(float sx, float sy,
                        gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool RotateTransform(float Angle, gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);

    gdiplus::ARGB Color() { return Asked<gdiplus::ARGB>(flat::GdipGetPenColor); }
    void Color(gdiplus::ARGB value);
    /// A brush of the caller's own, none on failure. Setting copies it.
    Ref<GpBrush> Brush();
    void Brush(const Ref<GpBrush>& value);
    gdiplus::PenType PenType();

    gdiplus::DashStyle DashStyle();
    void DashStyle(gdiplus::DashStyle value);
    float DashOffset() { return Asked<float>(flat::GdipGetPenDashOffset); }
    void DashOffset(float value);
    int32_t DashPatternCount() { return Asked<int32_t>(flat::GdipGetPenDashCount); }
    bool GetDashPattern(float* Dash, int32_t Count);
    bool SetDashPattern(const float* Dash, int32_t Count);
    int32_t CompoundArrayCount() { return Asked<int32_t>(flat::GdipGetPenCompoundCount); }
    bool GetCompoundArray(float* Compound, int32_t Count);
    bool SetCompoundArray(const float* Compound, int32_t Count);
};

}  // namespace vxgui
