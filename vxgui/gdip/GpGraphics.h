#pragma once

#include "vxgui/base/String.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

class GpBrush;
class GpCachedBitmap;
class GpFont;
class GpImage;
class GpMatrix;
class GpBitmap;
class GpPen;
class GpStringFormat;

/// A drawing target over a device context, the screen or an image. Operations answer whether they
/// succeeded, and keep a failure in `Status`.
class VXGUI_API GpGraphics : public GpOwner<GpGraphics, gdiplus::GpGraphics> {
public:
    static constexpr auto kDelete = flat::GdipDeleteGraphics;

    gdiplus::GpGraphics* Handle() const { return handle_; }

    /// These answer the new handle. On failure they answer null, and the object keeps what it had.
    gdiplus::GpGraphics* FromHDC(gdi::HDC hDC);
    gdiplus::GpGraphics* FromHWND(HANDLE hWnd, bool icm = false);
    gdiplus::GpGraphics* FromImage(gdiplus::GpImage* hImage);
    /// Over the screen's context, which is given back at once while the graphics stays.
    gdiplus::GpGraphics* FromScreen();

    bool Clear(gdiplus::ARGB Color = 0);
    bool Flush(gdiplus::FlushIntention Intention = gdiplus::FlushIntentionFlush);
    /// Null on failure. Nothing can be drawn until it is given back.
    gdi::HDC GetHDC();
    bool ReleaseHDC(gdi::HDC hDC);
    /// The number of the state, 0 on failure.
    uint32_t Save();
    bool Restore(uint32_t gstate);

    bool SetRenderingOrigin(int32_t X, int32_t Y);
    bool GetRenderingOrigin(int32_t& X, int32_t& Y);
    gdiplus::CompositingMode CompositingMode();
    void CompositingMode(gdiplus::CompositingMode value);
    gdiplus::CompositingQuality CompositingQuality();
    void CompositingQuality(gdiplus::CompositingQuality value);
    gdiplus::SmoothingMode SmoothingMode();
    void SmoothingMode(gdiplus::SmoothingMode value);
    gdiplus::InterpolationMode InterpolationMode();
    void InterpolationMode(gdiplus::InterpolationMode value);
    gdiplus::PixelOffsetMode PixelOffsetMode();
    void PixelOffsetMode(gdiplus::PixelOffsetMode value);
    gdiplus::TextRenderingHint TextRenderingHint();
    void TextRenderingHint(gdiplus::TextRenderingHint value);
    uint32_t TextContrast();
    void TextContrast(uint32_t value);
    gdiplus::Unit PageUnit();
    void PageUnit(gdiplus::Unit value);
    float PageScale();
    void PageScale(float value);

    bool ResetTransform();
    bool TranslateTransform(float dx, float dy,
                            gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool ScaleTransform(float sx, float sy,
                        gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool RotateTransform(float Angle, gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    /// Without a matrix it fails with `InvalidParameter`, without a flat call.
    bool MultiplyTransform(const Ref<GpMatrix>& Matrix,
                           gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool SetTransform(const Ref<GpMatrix>& Matrix);
    /// The flat function gets no matrix to fill, so that this always fails with
    /// `InvalidParameter`: that is meant. Where GDI+ isn't there, it gives an empty `Matrix`.
    bool GetTransform(Ref<GpMatrix>& Matrix);

    bool ResetClip();
    bool GetClipBoundsRectF(gdiplus::GpRectF* Rect);
    bool GetClipBoundsRectL(gdiplus::GpRect* Rect);

    bool DrawLine(gdiplus::GpPen* hPen, float X1, float Y1, float X2, float Y2);
    bool DrawLineI(gdiplus::GpPen* hPen, int32_t X1, int32_t Y1, int32_t X2, int32_t Y2);
    /// Arrays are copied first; a count of 0 or less draws nothing and answers false.
    bool DrawLines(gdiplus::GpPen* hPen, const gdiplus::GpPointF* Points, int32_t Count);
    bool DrawLinesI(gdiplus::GpPen* hPen, const gdiplus::GpPoint* Points, int32_t Count);
    bool DrawRectangle(gdiplus::GpPen* hPen, float X, float Y, float Width, float Height);
    bool DrawRectangleI(gdiplus::GpPen* hPen, int32_t X, int32_t Y, int32_t Width, int32_t Height);
    bool DrawRectangles(gdiplus::GpPen* hPen, const gdiplus::GpRectF* Rects, int32_t Count);
    bool DrawRectanglesI(gdiplus::GpPen* hPen, const gdiplus::GpRect* Rects, int32_t Count);
    bool DrawPath(gdiplus::GpPen* hPen, gdiplus::GpPath* hPath);
    bool FillRectangle(gdiplus::GpBrush* hBrush, float X, float Y, float Width, float Height);
    bool FillRectangleI(gdiplus::GpBrush* hBrush, int32_t X, int32_t Y, int32_t Width,
                        int32_t Height);
    bool FillPath(gdiplus::GpBrush* hBrush, gdiplus::GpPath* hPath);

    /// A source size of -1 is the image's, a target size of -1 the source's. Raises for no image.
    bool DrawImage(const Ref<GpImage>& Image, int32_t dstX = 0, int32_t dstY = 0, int32_t dstW = -1,
                   int32_t dstH = -1, int32_t SrcX = 0, int32_t SrcY = 0, int32_t SrcW = -1,
                   int32_t SrcH = -1, gdiplus::Unit SrcU = gdiplus::UnitPixel,
                   gdiplus::GpImageAttributes* ImageAttributes = nullptr,
                   gdiplus::DrawImageAbort CallbackProc = nullptr, void* CallbackData = nullptr);
    /// The same for a handle.
    bool DrawBitmap(gdiplus::GpBitmap* hGpImageBitmap, int32_t dstX = 0, int32_t dstY = 0,
                    int32_t dstW = -1, int32_t dstH = -1, int32_t SrcX = 0, int32_t SrcY = 0,
                    int32_t SrcW = -1, int32_t SrcH = -1, gdiplus::Unit SrcU = gdiplus::UnitPixel,
                    gdiplus::GpImageAttributes* ImageAttributes = nullptr,
                    gdiplus::DrawImageAbort CallbackProc = nullptr, void* CallbackData = nullptr);
    /// Answers the flat status, and doesn't keep it.
    gdiplus::Status DrawImageFX(gdiplus::GpImage* hGpImage, gdiplus::GpRectF* lpRectF,
                                gdiplus::GpMatrix* hGpMatrix, gdiplus::CGpEffect* hGpEffect,
                                gdiplus::GpImageAttributes* hGpImageAttributes,
                                gdiplus::Unit srcUnit = gdiplus::UnitPixel);
    /// None on failure.
    Ref<GpCachedBitmap> CachedBitmap(const Ref<GpBitmap>& BITMAP);
    bool DrawCachedBitmap(const Ref<GpCachedBitmap>& cb, int32_t X, int32_t Y);

    // Text.
    bool MeasureString(const String& sText, gdiplus::GpRectF* lpRectFBoundingBox,
                       int32_t Length = -1, gdiplus::GpFont* hGpFont = nullptr,
                       gdiplus::GpStringFormat* hGpStringFormat = nullptr,
                       const gdiplus::GpRectF* lpRectFLayout = nullptr,
                       int32_t* CodePointsFitted = nullptr, int32_t* LinesFilled = nullptr);
    bool DrawString(const String& sText, int32_t Left = 0, int32_t Top = 0, int32_t Width = 0,
                    int32_t Height = 0, int32_t Length = -1,
                    gdiplus::GpStringFormat* hGpStringFormat = nullptr,
                    gdiplus::GpBrush* hGpBrush = nullptr, gdiplus::GpFont* hGpFont = nullptr);
    bool DrawOutLineText(const String& Text, const Ref<GpFont>& Font,
                         const Ref<GpStringFormat>& Format, const Ref<GpPen>& OutLinePen,
                         const Ref<GpBrush>& TextBrush, int32_t Left, int32_t Top, int32_t Width,
                         int32_t Height);

private:
    /// Calls `draw(handle, pen, items, count)` with a copy of the caller's array.
    template <class Item, class Draw>
    bool DrawItems(gdiplus::GpPen* pen, const Item* items, int32_t count, const Draw& draw);
};

}  // namespace vxgui
