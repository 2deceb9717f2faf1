#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

using gdiplus::ARGB;
using gdiplus::GpPoint;
using gdiplus::GpPointF;
using gdiplus::GpRect;
using gdiplus::GpRectF;

bool GpBrush::CreateLineBrush(ARGB Color1, ARGB Color2, float Left, float Top, float Width,
                              float Height, gdiplus::LinearGradientMode GradientMode,
                              gdiplus::WrapMode WrapMode) {
    return CreateLineBrushRectF({Left, Top, Width, Height}, Color1, Color2, GradientMode, WrapMode);
}

bool GpBrush::CreateLineBrushF(const GpPointF& Point1, const GpPointF& Point2, ARGB Color1,
                               ARGB Color2, gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateLineBrush, &Point1, &Point2, Color1, Color2, WrapMode);
}

bool GpBrush::CreateLineBrushI(const GpPoint& Point1, const GpPoint& Point2, ARGB Color1,
                               ARGB Color2, gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateLineBrushI, &Point1, &Point2, Color1, Color2, WrapMode);
}

bool GpBrush::CreateLineBrushRectF(const GpRectF& Rect, ARGB Color1, ARGB Color2,
                                   gdiplus::LinearGradientMode GradientMode,
                                   gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateLineBrushFromRect, &Rect, Color1, Color2, GradientMode, WrapMode);
}

bool GpBrush::CreateLineBrushRectI(const GpRect& Rect, ARGB Color1, ARGB Color2,
                                   gdiplus::LinearGradientMode GradientMode,
                                   gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateLineBrushFromRectI, &Rect, Color1, Color2, GradientMode, WrapMode);
}

bool GpBrush::CreateLineBrushRectWithAngleI(const GpRect& Rect, ARGB Color1, ARGB Color2,
                                            float Angle, bool isAngleScalable,
                                            gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateLineBrushFromRectWithAngleI, &Rect, Color1, Color2, Angle,
                BOOL{isAngleScalable}, WrapMode);
}

bool GpBrush::CreateLineBrushRectWithAngleF(const GpRectF& Rect, ARGB Color1, ARGB Color2,
                                            float Angle, bool isAngleScalable,
                                            gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateLineBrushFromRectWithAngle, &Rect, Color1, Color2, Angle,
                BOOL{isAngleScalable}, WrapMode);
}

gdiplus::Status GpBrush::SetLinearColors(ARGB Color1, ARGB Color2) {
    return flat::GdipSetLineColors(handle_, Color1, Color2);
}

gdiplus::Status GpBrush::GetLinearColors(ARGB* Colors) {
    return flat::GdipGetLineColors(handle_, Colors);
}

}  // namespace vxgui
