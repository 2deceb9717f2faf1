#pragma once

#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// A brush of any kind. Creating operations answer whether they made one, and keep the brush that
/// there is when they didn't. Operations that name no kind work by the cached type: those of
/// textures and of both gradients do nothing on other brushes, which is no failure. Setters that
/// answer the flat status, or nothing, leave `Status` alone.
class VXGUI_API GpBrush : public GpOwner<GpBrush, gdiplus::GpBrush> {
public:
    static constexpr auto kDelete = flat::GdipDeleteBrush;
    static constexpr auto kClone = flat::GdipCloneBrush;

    gdiplus::GpBrush* Handle() const { return handle_; }
    /// The type is known at once.
    void SetHandle(gdiplus::GpBrush*& pHandle);
    void Dispose();
    /// One of `BrushType`, asked for when it isn't known; -1 without a brush, which is a failure.
    int32_t GetType();

    bool CreateSolidBrush(gdiplus::ARGB Color);
    /// Any other brush is replaced by a solid one.
    bool SetColor(gdiplus::ARGB Color);
    gdiplus::ARGB GetColor();

    bool CreateHatchBrush(gdiplus::HatchStyle Style, gdiplus::ARGB ForegroundColor,
                          gdiplus::ARGB BackgroundColor);
    gdiplus::HatchStyle GetHatchStyle();
    gdiplus::ARGB GetForegroundColor();
    gdiplus::ARGB GetBackgroundColor();

    // Line gradients.
    bool CreateLineBrush(
        gdiplus::ARGB Color1, gdiplus::ARGB Color2, float Left, float Top, float Width,
        float Height,
        gdiplus::LinearGradientMode GradientMode = gdiplus::LinearGradientModeVertical,
        gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    bool CreateLineBrushF(const gdiplus::GpPointF& Point1, const gdiplus::GpPointF& Point2,
                          gdiplus::ARGB Color1, gdiplus::ARGB Color2,
                          gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    bool CreateLineBrushI(const gdiplus::GpPoint& Point1, const gdiplus::GpPoint& Point2,
                          gdiplus::ARGB Color1, gdiplus::ARGB Color2,
                          gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    bool CreateLineBrushRectF(
        const gdiplus::GpRectF& Rect, gdiplus::ARGB Color1, gdiplus::ARGB Color2,
        gdiplus::LinearGradientMode GradientMode = gdiplus::LinearGradientModeHorizontal,
        gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    bool CreateLineBrushRectI(
        const gdiplus::GpRect& Rect, gdiplus::ARGB Color1, gdiplus::ARGB Color2,
        gdiplus::LinearGradientMode GradientMode = gdiplus::LinearGradientModeHorizontal,
        gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    bool CreateLineBrushRectWithAngleI(const gdiplus::GpRect& Rect, gdiplus::ARGB Color1,
                                       gdiplus::ARGB Color2, float Angle,
                                       bool isAngleScalable = false,
                                       gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    bool CreateLineBrushRectWithAngleF(const gdiplus::GpRectF& Rect, gdiplus::ARGB Color1,
                                       gdiplus::ARGB Color2, float Angle,
                                       bool isAngleScalable = false,
                                       gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    gdiplus::Status SetLinearColors(gdiplus::ARGB Color1, gdiplus::ARGB Color2);
    /// Two colours.
    gdiplus::Status GetLinearColors(gdiplus::ARGB* Colors);

    // Both gradients.
    gdiplus::Status GetRectangle(gdiplus::GpRectF* Rect);
    gdiplus::Status GetRectangleI(gdiplus::GpRect* Rect);
    gdiplus::Status SetGammaCorrection(bool useGammaCorrection);
    bool GetGammaCorrection();
    int32_t GetBlendCount();
    gdiplus::Status GetBlend(float* Blend, float* Positions, int32_t Count);
    gdiplus::Status SetBlend(const float* Blend, const float* Positions, int32_t Count);
    int32_t GetInterpolationColorCount();
    gdiplus::Status GetInterpolationColors(gdiplus::ARGB* Colors, float* Positions, int32_t Count);
    /// False for a count of 0 or less, and nothing is called.
    bool SetInterpolationColors(const gdiplus::ARGB* Colors, const float* Positions, int32_t Count);
    gdiplus::Status SetBlendBellShape(float Focus, float sScale = 1.0f);
    gdiplus::Status SetBlendTriangularShape(float Focus, float sScale = 1.0f);

    // Textures and both gradients.
    gdiplus::WrapMode GetWrapMode();
    gdiplus::Status SetWrapMode(gdiplus::WrapMode WrapMode);
    gdiplus::Status GetTransform(gdiplus::GpMatrix* hGpMatrix);
    gdiplus::Status SetTransform(gdiplus::GpMatrix* hGpMatrix);
    gdiplus::Status ResetTransform();
    gdiplus::Status MultiplyTransform(gdiplus::GpMatrix* hGpMatrix,
                                      gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    gdiplus::Status TranslateTransform(float dX, float dY,
                                       gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    gdiplus::Status ScaleTransform(float sX, float sY,
                                   gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    gdiplus::Status RotateTransform(float Angle,
                                    gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);

    // Path gradients. False for a count of 0 or less, and nothing is called.
    bool CreatePathBrush(const gdiplus::GpPointF* Points, int32_t Count,
                         gdiplus::WrapMode Mode = gdiplus::WrapModeClamp);
    bool CreatePathBrushI(const gdiplus::GpPoint* Points, int32_t Count,
                          gdiplus::WrapMode Mode = gdiplus::WrapModeClamp);
    bool CreatePathBrushFromPath(gdiplus::GpPath* hGpPath);
    gdiplus::ARGB CenterColor();
    void CenterColor(gdiplus::ARGB value);
    /// `Count` is the room before and the number of colours behind.
    gdiplus::Status GetSurroundColors(gdiplus::ARGB* Colors, int32_t& Count);
    bool SetSurroundColors(const gdiplus::ARGB* Colors, int32_t Count);
    /// A copy of the path, which the caller owns; null on failure.
    gdiplus::GpPath* Path();
    void Path(gdiplus::GpPath* value);
    gdiplus::GpPointF CenterPoint();
    void CenterPoint(const gdiplus::GpPointF& value);
    gdiplus::GpPoint CenterPointI();
    void CenterPointI(const gdiplus::GpPoint& value);
    int32_t PointCount();
    int32_t SurroundColorCount();
    gdiplus::Status GetFocusScales(float* xScale, float* yScale);
    gdiplus::Status SetFocusScales(float xScale, float yScale);

    bool CreateTextureBrush(gdiplus::GpImage* hImage,
                            gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile);
    /// With attributes the whole rectangle goes with them; else without a rectangle the whole
    /// image is used. The type isn't known until `GetType` is asked: operations by type do nothing
    /// before, which is meant.
    bool CreateTextureBrushI(gdiplus::GpImage* hImage, int32_t dstX = 0, int32_t dstY = 0,
                             int32_t dstW = 0, int32_t dstH = 0,
                             gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile,
                             gdiplus::GpImageAttributes* ImageAttributes = nullptr);
    bool CreateTextureBrushF(gdiplus::GpImage* hImage, float dstX = 0, float dstY = 0,
                             float dstW = 0, float dstH = 0,
                             gdiplus::WrapMode WrapMode = gdiplus::WrapModeTile,
                             gdiplus::GpImageAttributes* ImageAttributes = nullptr);
    /// The texture as a new image, which the caller owns; null on failure.
    gdiplus::GpImage* GetImage();

private:
    static constexpr int32_t kUnknown = -1;

    // Calls one of three flat functions, or two, by the cached type.
    template <class Texture, class Line, class Path, class... Args>
    gdiplus::Status ByKind(const Texture& texture, const Line& line, const Path& path,
                           Args... args) {
        if (mType == gdiplus::BrushTypeTextureFill) return texture(handle_, args...);
        return ByGradient(line, path, args...);
    }
    template <class Line, class Path, class... Args>
    gdiplus::Status ByGradient(const Line& line, const Path& path, Args... args) {
        if (mType == gdiplus::BrushTypeLinearGradient) return line(handle_, args...);
        if (mType == gdiplus::BrushTypePathGradient) return path(handle_, args...);
        return gdiplus::Ok;
    }
    template <class Create, class... Args>
    bool MakeTexture(const Create& create, Args... args);

    int32_t mType = kUnknown;
};

}  // namespace vxgui
