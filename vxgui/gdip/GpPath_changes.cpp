#include <bit>

#include "vxgui/base/Rounding.h"
#include "vxgui/gdip/GpPath.h"

namespace vxgui {

using gdiplus::Status;

Status GpPath::Flatten(gdiplus::GpMatrix* hGpMatrix, float Flatness) {
    return flat::GdipFlattenPath(Handle(), hGpMatrix, Flatness);
}

Status GpPath::Outline(gdiplus::GpMatrix* hGpMatrix, float Flatness) {
    return flat::GdipWindingModeOutline(Handle(), hGpMatrix, Flatness);
}

Status GpPath::Widen(gdiplus::GpPen* hGpPen, gdiplus::GpMatrix* hGpMatrix, float Flatness) {
    return flat::GdipWidenPath(Handle(), hGpPen, hGpMatrix, Flatness);
}

Status GpPath::Warp(const gdiplus::GpPointF* Points, int32_t Count, float SrcX, float SrcY,
                    float SrcWidth, float SrcHeight, gdiplus::GpMatrix* hGpMatrix,
                    gdiplus::WarpMode WarpMode, float Flatness) {
    const std::vector<gdiplus::GpPointF> copy = CopyOf(Points, Count);
    if (copy.empty()) return gdiplus::Ok;
    return flat::GdipWarpPath(Handle(), hGpMatrix, copy.data(), Count, SrcX, SrcY, SrcWidth,
                              SrcHeight, WarpMode, Flatness);
}

Status GpPath::Warp2(float X, float Y, int32_t Count, float SrcX, float SrcY, float SrcWidth,
                     float SrcHeight, gdiplus::GpMatrix* hGpMatrix, gdiplus::WarpMode WarpMode,
                     float Flatness) {
    const auto matrix = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(hGpMatrix));
    const gdiplus::GpPointF arguments[] = {{X, Y},
                                           {std::bit_cast<float>(Count), SrcX},
                                           {SrcY, SrcWidth},
                                           {SrcHeight, std::bit_cast<float>(matrix)},
                                           {std::bit_cast<float>(WarpMode), Flatness}};
    if (Count > static_cast<int32_t>(std::size(arguments))) return gdiplus::InvalidParameter;
    return flat::GdipWarpPath(Handle(), hGpMatrix, arguments, Count, SrcX, SrcY, SrcWidth,
                              SrcHeight, WarpMode, Flatness);
}

Status GpPath::Transform(gdiplus::GpMatrix* hGpMatrix) {
    return flat::GdipTransformPath(Handle(), hGpMatrix);
}

Status GpPath::GetBounds(gdiplus::GpRectF& Bounds, gdiplus::GpMatrix* hGpMatrix,
                         gdiplus::GpPen* hGpPen) {
    Bounds = {};
    return flat::GdipGetPathWorldBounds(Handle(), &Bounds, hGpMatrix, hGpPen);
}

bool GpPath::GetBoundsI(gdiplus::GpRect& Bounds, gdiplus::GpMatrix* hGpMatrix,
                        gdiplus::GpPen* hGpPen) {
    Bounds = {};
    return Check(flat::GdipGetPathWorldBoundsI(Handle(), &Bounds, hGpMatrix, hGpPen));
}

bool GpPath::IsVisible(float X, float Y, gdiplus::GpGraphics* hGraphics) {
    BOOL result = 0;
    return Check(flat::GdipIsVisiblePathPoint(Handle(), X, Y, hGraphics, &result)) && result;
}

bool GpPath::IsVisibleI(int32_t X, int32_t Y, gdiplus::GpGraphics* hGraphics) {
    BOOL result = 0;
    return Check(flat::GdipIsVisiblePathPointI(Handle(), X, Y, hGraphics, &result)) && result;
}

bool GpPath::IsOutlineVisible(float X, float Y, gdiplus::GpPen* hGpPen,
                              gdiplus::GpGraphics* hGraphics) {
    return IsOutlineVisibleI(RoundHalfEven<int32_t>(X), RoundHalfEven<int32_t>(Y), hGpPen,
                             hGraphics);
}

bool GpPath::IsOutlineVisibleI(int32_t X, int32_t Y, gdiplus::GpPen* hGpPen,
                               gdiplus::GpGraphics* hGraphics) {
    BOOL result = 0;
    return Check(
               flat::GdipIsOutlineVisiblePathPointI(Handle(), X, Y, hGpPen, hGraphics, &result)) &&
           result;
}

}  // namespace vxgui
