#pragma once

#include "vxgui/base/String.h"
#include "vxgui/gdip/GpObject.h"

namespace vxgui {

class GpFont;

/// Figures of lines and curves. Reading its handle makes an empty path when there is none. What
/// changes the geometry answers the flat status and leaves `Status` alone. Points and rectangles
/// are copied first; a count of 0 or less calls nothing and answers 0.
class VXGUI_API GpPath : public GpOwner<GpPath, gdiplus::GpPath> {
public:
    static constexpr auto kDelete = flat::GdipDeletePath;
    static constexpr auto kClone = flat::GdipClonePath;

    gdiplus::GpPath* Handle();

    bool Create(gdiplus::FillMode FillMode = gdiplus::FillModeAlternate);
    bool CreatePoints(const gdiplus::GpPointF* Points, const uint8_t* Types, int32_t Count,
                      gdiplus::FillMode FillMode = gdiplus::FillModeAlternate);
    bool CreatePointsI(const gdiplus::GpPoint* Points, const uint8_t* Types, int32_t Count,
                       gdiplus::FillMode FillMode = gdiplus::FillModeAlternate);
    bool Reset();

    int32_t PointCount();
    bool GetPointTypes(uint8_t* Types, int32_t Count);
    bool GetPointPoints(gdiplus::GpPointF* Points, int32_t Count);
    bool GetPointPointsI(gdiplus::GpPoint* Points, int32_t Count);
    gdiplus::FillMode FillMode();
    void FillMode(gdiplus::FillMode value);
    /// The arrays are this object's, until they are asked for again.
    gdiplus::GpPathData PathData();

    bool StartFigure();
    bool CloseFigure();
    bool CloseAllFigures();
    bool SetMarker();
    bool ClearMarkers();
    bool Reverse();
    bool GetLastPoint(gdiplus::GpPointF& LastPoint);

    // Lines and curves.
    gdiplus::Status AddLine(float X1, float Y1, float X2, float Y2);
    gdiplus::Status AddLines(const gdiplus::GpPointF* Points, int32_t Count);
    gdiplus::Status AddArc(float X, float Y, float Width, float Height, float StartAngle,
                           float SweepAngle);
    gdiplus::Status AddBezier(float X1, float Y1, float X2, float Y2, float X3, float Y3, float X4,
                              float Y4);
    gdiplus::Status AddBeziers(const gdiplus::GpPointF* Points, int32_t Count);
    gdiplus::Status AddCurve(const gdiplus::GpPointF* Points, int32_t Count);
    gdiplus::Status AddCurve2(const gdiplus::GpPointF* Points, int32_t Count, float Tension);
    gdiplus::Status AddCurve3(const gdiplus::GpPointF* Points, int32_t Count, int32_t Offset,
                              int32_t NumberOfSegments, float Tension);
    gdiplus::Status AddLineI(int32_t X1, int32_t Y1, int32_t X2, int32_t Y2);
    gdiplus::Status AddLinesI(const gdiplus::GpPoint* Points, int32_t Count);
    gdiplus::Status AddArcI(int32_t X, int32_t Y, int32_t Width, int32_t Height, float StartAngle,
                            float SweepAngle);
    gdiplus::Status AddBezierI(int32_t X1, int32_t Y1, int32_t X2, int32_t Y2, int32_t X3,
                               int32_t Y3, int32_t X4, int32_t Y4);
    gdiplus::Status AddBeziersI(const gdiplus::GpPoint* Points, int32_t Count);
    gdiplus::Status AddCurveI(const gdiplus::GpPoint* Points, int32_t Count);
    gdiplus::Status AddCurve2I(const gdiplus::GpPoint* Points, int32_t Count, float Tension);
    gdiplus::Status AddCurve3I(const gdiplus::GpPoint* Points, int32_t Count, int32_t Offset,
                               int32_t NumberOfSegments, float Tension);

    // Closed figures, and all of another path.
    gdiplus::Status AddClosedCurve(const gdiplus::GpPointF* Points, int32_t Count);
    gdiplus::Status AddClosedCurve2(const gdiplus::GpPointF* Points, int32_t Count, float Tension);
    gdiplus::Status AddRectangle(float X, float Y, float Width, float Height);
    gdiplus::Status AddRectangles(const gdiplus::GpRectF* Rects, int32_t Count);
    gdiplus::Status AddEllipse(float X, float Y, float Width, float Height);
    gdiplus::Status AddPie(float X, float Y, float Width, float Height, float StartAngle,
                           float SweepAngle);
    gdiplus::Status AddPolygon(const gdiplus::GpPointF* Points, int32_t Count);
    gdiplus::Status AddPath(gdiplus::GpPath* hGpPath, bool bConnect);
    gdiplus::Status AddClosedCurveI(const gdiplus::GpPoint* Points, int32_t Count);
    gdiplus::Status AddClosedCurve2I(const gdiplus::GpPoint* Points, int32_t Count, float Tension);
    gdiplus::Status AddRectangleI(int32_t X, int32_t Y, int32_t Width, int32_t Height);
    gdiplus::Status AddRectanglesI(const gdiplus::GpRect* Rects, int32_t Count);
    gdiplus::Status AddEllipseI(int32_t X, int32_t Y, int32_t Width, int32_t Height);
    gdiplus::Status AddPieI(int32_t X, int32_t Y, int32_t Width, int32_t Height, float StartAngle,
                            float SweepAngle);
    gdiplus::Status AddPolygonI(const gdiplus::GpPoint* Points, int32_t Count);

    // Text, as outlines. A length of -1 means up to the end.
    gdiplus::Status AddString(const String& Text, int32_t Length,
                              gdiplus::GpFontFamily* hGpFontFamily, int32_t Style, float emSize,
                              const gdiplus::GpRectF& LayoutRect,
                              gdiplus::GpStringFormat* hGpStringFormat = nullptr);
    gdiplus::Status AddStringI(const String& Text, int32_t Length,
                               gdiplus::GpFontFamily* hGpFontFamily, int32_t Style, float emSize,
                               const gdiplus::GpRect& LayoutRect,
                               gdiplus::GpStringFormat* hGpStringFormat = nullptr);
    /// In a font's family and style, at the size that gives the font's height. Raises for no font.
    bool AddStringWithFont(const String& Text, const Ref<GpFont>& Font,
                           gdiplus::GpStringFormat* hGpStringFormat, float Left, float Top,
                           float Width, float Height);
    bool AddStringWithFontI(const String& Text, const Ref<GpFont>& Font,
                            gdiplus::GpStringFormat* hGpStringFormat, int32_t Left, int32_t Top,
                            int32_t Width, int32_t Height);

    // Changes of the whole. The matrix may be null.
    gdiplus::Status Flatten(gdiplus::GpMatrix* hGpMatrix = nullptr, float Flatness = 0.25f);
    gdiplus::Status Outline(gdiplus::GpMatrix* hGpMatrix = nullptr, float Flatness = 0.25f);
    gdiplus::Status Widen(gdiplus::GpPen* hGpPen, gdiplus::GpMatrix* hGpMatrix = nullptr,
                          float Flatness = 0.25f);
    gdiplus::Status Warp(const gdiplus::GpPointF* Points, int32_t Count, float SrcX, float SrcY,
                         float SrcWidth, float SrcHeight, gdiplus::GpMatrix* hGpMatrix = nullptr,
                         gdiplus::WarpMode WarpMode = gdiplus::WarpModePerspective,
                         float Flatness = 0.25f);
    /// The corners are read from the arguments as they lie behind each other, 32 bits each, from X
    /// on: that is meant, though only the first is a point of the caller's.
    gdiplus::Status Warp2(float X, float Y, int32_t Count, float SrcX, float SrcY, float SrcWidth,
                          float SrcHeight, gdiplus::GpMatrix* hGpMatrix = nullptr,
                          gdiplus::WarpMode WarpMode = gdiplus::WarpModePerspective,
                          float Flatness = 0.25f);
    gdiplus::Status Transform(gdiplus::GpMatrix* hGpMatrix);

    gdiplus::Status GetBounds(gdiplus::GpRectF& Bounds, gdiplus::GpMatrix* hGpMatrix = nullptr,
                              gdiplus::GpPen* hGpPen = nullptr);
    bool GetBoundsI(gdiplus::GpRect& Bounds, gdiplus::GpMatrix* hGpMatrix = nullptr,
                    gdiplus::GpPen* hGpPen = nullptr);
    bool IsVisible(float X, float Y, gdiplus::GpGraphics* hGraphics = nullptr);
    bool IsVisibleI(int32_t X, int32_t Y, gdiplus::GpGraphics* hGraphics = nullptr);
    /// At the nearest point of integers.
    bool IsOutlineVisible(float X, float Y, gdiplus::GpPen* hGpPen,
                          gdiplus::GpGraphics* hGraphics = nullptr);
    bool IsOutlineVisibleI(int32_t X, int32_t Y, gdiplus::GpPen* hGpPen,
                           gdiplus::GpGraphics* hGraphics = nullptr);

private:
    template <class Item, class Call, class... Args>
    gdiplus::Status WithItems(const Item* items, int32_t count, const Call& call, Args... args) {
        const std::vector<Item> copy = CopyOf(items, count);
        return copy.empty() ? gdiplus::Ok : call(Handle(), copy.data(), count, args...);
    }
    template <class Rect, class Call>
    bool AddWithFont(const String& text, const Ref<GpFont>& font, gdiplus::GpStringFormat* format,
                     const Rect& rect, const Call& call);
    template <class Point, class Call>
    bool CreateFrom(const Point* points, const uint8_t* types, int32_t count,
                    gdiplus::FillMode mode, const Call& call);

    std::vector<gdiplus::GpPointF> mPoints;  ///< of `PathData`, as the next
    std::vector<uint8_t> mTypes;
};

}  // namespace vxgui
