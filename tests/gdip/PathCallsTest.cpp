#include "tests/gdip/WrapperCalls.h"
#include "vxgui/gdip/GpPath.h"

namespace vxgui {
namespace {

using test::Handle;

class PathCalls : public WrapperCalls<GpPath> {
protected:
    const gdiplus::GpPointF points_[2] = {{1.5f, 2}, {3, 4}};
    const gdiplus::GpPoint pointsI_[2] = {{1, 2}, {3, 4}};
    gdiplus::GpMatrix* const matrix_ = Handle<gdiplus::GpMatrix>(2);
    gdiplus::GpPen* const pen_ = Handle<gdiplus::GpPen>(3);
    gdiplus::GpGraphics* const graphics_ = Handle<gdiplus::GpGraphics>(4);
};

TEST_F(PathCalls, MakeAnAlternatePathWhereThereIsNone) {
    EXPECT_EQ(object_->Handle(), Handle<gdiplus::GpPath>(9));
    EXPECT_EQ(spy_.Taken(), "GdipCreatePath(0, out)");
}

TEST_F(PathCalls, OfCreation) {
    const uint8_t types[] = {7, 1};
    Are("GdipCreatePath(0, out); GdipDeletePath(#1)", [](GpPath& p) { return p.Create(); });
    Are("GdipCreatePath(1, out); GdipDeletePath(#1)",
        [](GpPath& p) { return p.Create(gdiplus::FillModeWinding); });
    Are("GdipCreatePath2({1.5 2}, {7}, 2, 0, out); GdipDeletePath(#1)",
        [&](GpPath& p) { return p.CreatePoints(points_, types, 2); });
    Are("GdipCreatePath2I({1 2}, {7}, 2, 1, out); GdipDeletePath(#1)",
        [&](GpPath& p) { return p.CreatePointsI(pointsI_, types, 2, gdiplus::FillModeWinding); });
    Are("GdipCreatePath2({1.5 2}, 0, 2, 0, out); GdipDeletePath(#1)",
        [&](GpPath& p) { return p.CreatePoints(points_, nullptr, 2); });
    Are("GdipClonePath(#1, out)", [](GpPath& p) { return p.Clone(); });
    Are("GdipResetPath(#1)", [](GpPath& p) { return p.Reset(); });
}

TEST_F(PathCalls, OfWhatThePathHolds) {
    uint8_t types[2];
    gdiplus::GpPointF points[] = {{1.5f, 2}, {}};
    gdiplus::GpPoint pointsI[] = {{1, 2}, {}};
    Are("GdipGetPointCount(#1, out)", [](GpPath& p) { return p.PointCount(); });
    Are("GdipGetPathTypes(#1, out, 2)", [&](GpPath& p) { return p.GetPointTypes(types, 2); });
    Are("GdipGetPathPoints(#1, {1.5 2}, 2)",
        [&](GpPath& p) { return p.GetPointPoints(points, 2); });
    Are("GdipGetPathPointsI(#1, {1 2}, 2)",
        [&](GpPath& p) { return p.GetPointPointsI(pointsI, 2); });
    Are("GdipGetPathFillMode(#1, out)", [](GpPath& p) { return p.FillMode(); });
    Are("GdipSetPathFillMode(#1, 1)", [](GpPath& p) { p.FillMode(gdiplus::FillModeWinding); });
    Are("GdipGetPathLastPoint(#1, {0 0})", [](GpPath& p) {
        gdiplus::GpPointF last{5, 5};
        return p.GetLastPoint(last);
    });
}

TEST_F(PathCalls, GetAllDataAtOnce) {
    Renew();
    spy_.Store(4);
    EXPECT_EQ(object_->PathData().Count, 4);
    EXPECT_EQ(spy_.Taken(), "GdipGetPointCount(#1, out); GdipGetPathData(#1, out)");
    spy_.Answer(gdiplus::WrongState);
    EXPECT_EQ(object_->PathData().Count, 0);
    EXPECT_EQ(object_->Status, gdiplus::WrongState);
}

TEST_F(PathCalls, OfFigures) {
    Are("GdipStartPathFigure(#1)", [](GpPath& p) { return p.StartFigure(); });
    Are("GdipClosePathFigure(#1)", [](GpPath& p) { return p.CloseFigure(); });
    Are("GdipClosePathFigures(#1)", [](GpPath& p) { return p.CloseAllFigures(); });
    Are("GdipSetPathMarker(#1)", [](GpPath& p) { return p.SetMarker(); });
    Are("GdipClearPathMarkers(#1)", [](GpPath& p) { return p.ClearMarkers(); });
    Are("GdipReversePath(#1)", [](GpPath& p) { return p.Reverse(); });
}

TEST_F(PathCalls, OfLinesAndCurves) {
    Are("GdipAddPathLine(#1, 1, 2, 3, 4.5)", [](GpPath& p) { return p.AddLine(1, 2, 3, 4.5f); });
    Are("GdipAddPathLine2(#1, {1.5 2}, 2)", [&](GpPath& p) { return p.AddLines(points_, 2); });
    Are("GdipAddPathArc(#1, 1, 2, 3, 4, 5, 6.5)",
        [](GpPath& p) { return p.AddArc(1, 2, 3, 4, 5, 6.5f); });
    Are("GdipAddPathBezier(#1, 1, 2, 3, 4, 5, 6, 7, 8.5)",
        [](GpPath& p) { return p.AddBezier(1, 2, 3, 4, 5, 6, 7, 8.5f); });
    Are("GdipAddPathBeziers(#1, {1.5 2}, 2)", [&](GpPath& p) { return p.AddBeziers(points_, 2); });
    Are("GdipAddPathCurve(#1, {1.5 2}, 2)", [&](GpPath& p) { return p.AddCurve(points_, 2); });
    Are("GdipAddPathCurve2(#1, {1.5 2}, 2, 0.5)",
        [&](GpPath& p) { return p.AddCurve2(points_, 2, 0.5f); });
    Are("GdipAddPathCurve3(#1, {1.5 2}, 2, 3, 4, 0.5)",
        [&](GpPath& p) { return p.AddCurve3(points_, 2, 3, 4, 0.5f); });
    Are("GdipAddPathLineI(#1, 1, 2, 3, 4)", [](GpPath& p) { return p.AddLineI(1, 2, 3, 4); });
    Are("GdipAddPathLine2I(#1, {1 2}, 2)", [&](GpPath& p) { return p.AddLinesI(pointsI_, 2); });
    Are("GdipAddPathArcI(#1, 1, 2, 3, 4, 5, 6.5)",
        [](GpPath& p) { return p.AddArcI(1, 2, 3, 4, 5, 6.5f); });
    Are("GdipAddPathBezierI(#1, 1, 2, 3, 4, 5, 6, 7, 8)",
        [](GpPath& p) { return p.AddBezierI(1, 2, 3, 4, 5, 6, 7, 8); });
    Are("GdipAddPathBeziersI(#1, {1 2}, 2)", [&](GpPath& p) { return p.AddBeziersI(pointsI_, 2); });
    Are("GdipAddPathCurveI(#1, {1 2}, 2)", [&](GpPath& p) { return p.AddCurveI(pointsI_, 2); });
    Are("GdipAddPathCurve2I(#1, {1 2}, 2, 0.5)",
        [&](GpPath& p) { return p.AddCurve2I(pointsI_, 2, 0.5f); });
    Are("GdipAddPathCurve3I(#1, {1 2}, 2, 3, 4, 0.5)",
        [&](GpPath& p) { return p.AddCurve3I(pointsI_, 2, 3, 4, 0.5f); });
}

TEST_F(PathCalls, OfClosedFigures) {
    const gdiplus::GpRectF rects[] = {{1, 2, 3, 4.5f}, {}};
    const gdiplus::GpRect rectsI[] = {{1, 2, 3, 4}, {}};
    Are("GdipAddPathClosedCurve(#1, {1.5 2}, 2)",
        [&](GpPath& p) { return p.AddClosedCurve(points_, 2); });
    Are("GdipAddPathClosedCurve2(#1, {1.5 2}, 2, 0.5)",
        [&](GpPath& p) { return p.AddClosedCurve2(points_, 2, 0.5f); });
    Are("GdipAddPathRectangle(#1, 1, 2, 3, 4.5)",
        [](GpPath& p) { return p.AddRectangle(1, 2, 3, 4.5f); });
    Are("GdipAddPathRectangles(#1, {1 2 3 4.5}, 2)",
        [&](GpPath& p) { return p.AddRectangles(rects, 2); });
    Are("GdipAddPathEllipse(#1, 1, 2, 3, 4.5)",
        [](GpPath& p) { return p.AddEllipse(1, 2, 3, 4.5f); });
    Are("GdipAddPathPie(#1, 1, 2, 3, 4, 5, 6.5)",
        [](GpPath& p) { return p.AddPie(1, 2, 3, 4, 5, 6.5f); });
    Are("GdipAddPathPolygon(#1, {1.5 2}, 2)", [&](GpPath& p) { return p.AddPolygon(points_, 2); });
    Are("GdipAddPathClosedCurveI(#1, {1 2}, 2)",
        [&](GpPath& p) { return p.AddClosedCurveI(pointsI_, 2); });
    Are("GdipAddPathClosedCurve2I(#1, {1 2}, 2, 0.5)",
        [&](GpPath& p) { return p.AddClosedCurve2I(pointsI_, 2, 0.5f); });
    Are("GdipAddPathRectangleI(#1, 1, 2, 3, 4)",
        [](GpPath& p) { return p.AddRectangleI(1, 2, 3, 4); });
    Are("GdipAddPathRectanglesI(#1, {1 2 3 4}, 2)",
        [&](GpPath& p) { return p.AddRectanglesI(rectsI, 2); });
    Are("GdipAddPathEllipseI(#1, 1, 2, 3, 4)", [](GpPath& p) { return p.AddEllipseI(1, 2, 3, 4); });
    Are("GdipAddPathPieI(#1, 1, 2, 3, 4, 5, 6.5)",
        [](GpPath& p) { return p.AddPieI(1, 2, 3, 4, 5, 6.5f); });
    Are("GdipAddPathPolygonI(#1, {1 2}, 2)", [&](GpPath& p) { return p.AddPolygonI(pointsI_, 2); });
}

TEST_F(PathCalls, OfOtherPathsAndTexts) {
    const auto other = Handle<gdiplus::GpPath>(5);
    const auto family = Handle<gdiplus::GpFontFamily>(6);
    const auto format = Handle<gdiplus::GpStringFormat>(7);
    Are("GdipAddPathPath(#1, #5, 0)", [&](GpPath& p) { return p.AddPath(other, false); });
    Are("GdipAddPathPath(#1, #5, 1)", [&](GpPath& p) { return p.AddPath(other, true); });
    Are("GdipAddPathString(#1, 'ab', 1, #6, 2, 10.5, {1 2 3 4.5}, #7)", [&](GpPath& p) {
        return p.AddString("ab", 1, family, 2, 10.5f, {1, 2, 3, 4.5f}, format);
    });
    Are("GdipAddPathStringI(#1, 'ab', 1, #6, 2, 10.5, {1 2 3 4}, 0)", [&](GpPath& p) {
        return p.AddStringI("ab", 1, family, 2, 10.5f, {1, 2, 3, 4});
    });
}

TEST_F(PathCalls, OfChangesOfTheWhole) {
    constexpr auto kBilinear = gdiplus::WarpModeBilinear;
    Are("GdipFlattenPath(#1, 0, 0.25)", [](GpPath& p) { return p.Flatten(); });
    Are("GdipFlattenPath(#1, #2, 0.5)", [&](GpPath& p) { return p.Flatten(matrix_, 0.5f); });
    Are("GdipWindingModeOutline(#1, 0, 0.25)", [](GpPath& p) { return p.Outline(); });
    Are("GdipWindingModeOutline(#1, #2, 0.5)", [&](GpPath& p) { return p.Outline(matrix_, 0.5f); });
    Are("GdipWidenPath(#1, #3, 0, 0.25)", [&](GpPath& p) { return p.Widen(pen_); });
    Are("GdipWidenPath(#1, #3, #2, 0.5)", [&](GpPath& p) { return p.Widen(pen_, matrix_, 0.5f); });
    Are("GdipWarpPath(#1, 0, {1.5 2}, 2, 3, 4, 5, 6, 0, 0.25)",
        [&](GpPath& p) { return p.Warp(points_, 2, 3, 4, 5, 6); });
    Are("GdipWarpPath(#1, #2, {1.5 2}, 2, 3, 4, 5, 6, 1, 0.5)",
        [&](GpPath& p) { return p.Warp(points_, 2, 3, 4, 5, 6, matrix_, kBilinear, 0.5f); });
    Are("GdipWarpPath(#1, 0, {1.5 2}, 2, 3, 4, 5, 6, 0, 0.25)",
        [](GpPath& p) { return p.Warp2(1.5f, 2, 2, 3, 4, 5, 6); });
    Are("GdipWarpPath(#1, #2, {1.5 2}, 2, 3, 4, 5, 6, 1, 0.5)",
        [&](GpPath& p) { return p.Warp2(1.5f, 2, 2, 3, 4, 5, 6, matrix_, kBilinear, 0.5f); });
    Are("GdipTransformPath(#1, #2)", [&](GpPath& p) { return p.Transform(matrix_); });
}

TEST_F(PathCalls, OfMeasuring) {
    gdiplus::GpRectF bounds{5, 5, 5, 5};
    gdiplus::GpRect boundsI{5, 5, 5, 5};
    Are("GdipGetPathWorldBounds(#1, {0 0 0 0}, 0, 0)",
        [&](GpPath& p) { return p.GetBounds(bounds); });
    Are("GdipGetPathWorldBounds(#1, {0 0 0 0}, #2, #3)",
        [&](GpPath& p) { return p.GetBounds(bounds, matrix_, pen_); });
    Are("GdipGetPathWorldBoundsI(#1, {0 0 0 0}, 0, 0)",
        [&](GpPath& p) { return p.GetBoundsI(boundsI); });
    Are("GdipGetPathWorldBoundsI(#1, {0 0 0 0}, #2, #3)",
        [&](GpPath& p) { return p.GetBoundsI(boundsI, matrix_, pen_); });
}

TEST_F(PathCalls, OfHits) {
    Are("GdipIsVisiblePathPoint(#1, 1.5, 2, 0, out)",
        [](GpPath& p) { return p.IsVisible(1.5f, 2); });
    Are("GdipIsVisiblePathPoint(#1, 1.5, 2, #4, out)",
        [&](GpPath& p) { return p.IsVisible(1.5f, 2, graphics_); });
    Are("GdipIsVisiblePathPointI(#1, 1, 2, #4, out)",
        [&](GpPath& p) { return p.IsVisibleI(1, 2, graphics_); });
    Are("GdipIsOutlineVisiblePathPointI(#1, 1, 2, #3, #4, out)",
        [&](GpPath& p) { return p.IsOutlineVisibleI(1, 2, pen_, graphics_); });
    Are("GdipIsOutlineVisiblePathPointI(#1, 2, -2, #3, 0, out)",
        [&](GpPath& p) { return p.IsOutlineVisible(1.5f, -2.5f, pen_); });
    Are("GdipIsOutlineVisiblePathPointI(#1, 4, -3, #3, #4, out)",
        [&](GpPath& p) { return p.IsOutlineVisible(3.5f, -2.6f, pen_, graphics_); });
    Renew();
    spy_.Store(0);
    EXPECT_FALSE(object_->IsVisible(1, 2));
    EXPECT_FALSE(object_->IsVisibleI(1, 2));
    EXPECT_FALSE(object_->IsOutlineVisibleI(1, 2, pen_));
}

}  // namespace
}  // namespace vxgui
