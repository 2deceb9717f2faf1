#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpMatrix.h"
#include "vxgui/gdip/GpPath.h"
#include "vxgui/gdip/GpPen.h"

namespace vxgui {
namespace {

using gdiplus::GpPoint;
using gdiplus::GpPointF;

class PathWrapper : public testing::Test {
protected:
    gdiplus::GpRectF Bounds() {
        gdiplus::GpRectF bounds{};
        EXPECT_EQ(path_->GetBounds(bounds), gdiplus::Ok);
        return bounds;
    }

    test::GdiplusSession session_;
    Ref<GpPath> path_ = New<GpPath>();
};

const GpPointF kPoints[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
const GpPoint kPointsI[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};

TEST_F(PathWrapper, IsEmptyAndAlternateWhenItsHandleIsRead) {
    EXPECT_NE(path_->Handle(), nullptr);
    EXPECT_EQ(path_->PointCount(), 0);
    EXPECT_EQ(path_->FillMode(), gdiplus::FillModeAlternate);
    path_->FillMode(gdiplus::FillModeWinding);
    EXPECT_EQ(path_->FillMode(), gdiplus::FillModeWinding);
    EXPECT_EQ(path_->Status, gdiplus::Ok);
}

TEST_F(PathWrapper, IsMadeOfPoints) {
    const uint8_t types[] = {0, 1, 1, 0x81};
    ASSERT_TRUE(path_->CreatePoints(kPoints, types, 4, gdiplus::FillModeWinding));
    EXPECT_EQ(path_->PointCount(), 4);
    EXPECT_EQ(path_->FillMode(), gdiplus::FillModeWinding);
    ASSERT_TRUE(path_->CreatePointsI(kPointsI, types, 3));
    EXPECT_EQ(path_->PointCount(), 3);
    EXPECT_FALSE(path_->CreatePoints(kPoints, types, 0));
    EXPECT_FALSE(path_->CreatePointsI(kPointsI, types, -1));
    EXPECT_EQ(path_->Status, gdiplus::Ok);
    const uint8_t bad[] = {0, 2, 1, 1};
    EXPECT_FALSE(path_->CreatePoints(kPoints, bad, 4));
    EXPECT_EQ(path_->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(path_->PointCount(), 3);
}

TEST_F(PathWrapper, GivesItsPoints) {
    EXPECT_EQ(path_->AddLine(1.25f, 2.75f, 3, 4), gdiplus::Ok);
    GpPointF points[2];
    GpPoint pointsI[2];
    uint8_t types[2];
    EXPECT_TRUE(path_->GetPointPoints(points, 2));
    EXPECT_TRUE(path_->GetPointPointsI(pointsI, 2));
    EXPECT_TRUE(path_->GetPointTypes(types, 2));
    EXPECT_EQ(points[0].Y, 2.75f);
    EXPECT_EQ(pointsI[0].Y, 3);
    EXPECT_EQ(types[1], 1);
    EXPECT_FALSE(path_->GetPointPoints(points, 1));
    EXPECT_EQ(path_->Status, gdiplus::InsufficientBuffer);
}

TEST_F(PathWrapper, GivesItsDataInOneRecord) {
    EXPECT_EQ(path_->PathData().Count, 0);
    EXPECT_EQ(path_->AddPie(0, 0, 20, 20, 0, 90), gdiplus::Ok);
    const gdiplus::GpPathData data = path_->PathData();
    ASSERT_EQ(data.Count, 5);
    EXPECT_EQ(data.Points[0].X, 10);
    EXPECT_EQ(data.Types[4], 0x83);
    EXPECT_EQ(path_->Status, gdiplus::Ok);
}

TEST_F(PathWrapper, BuildsFigures) {
    EXPECT_FALSE(path_->Reset() && path_->PointCount() != 0);
    EXPECT_EQ(path_->AddLine(0, 0, 1, 1), gdiplus::Ok);
    EXPECT_TRUE(path_->SetMarker());
    EXPECT_TRUE(path_->StartFigure());
    EXPECT_EQ(path_->AddLine(2, 2, 3, 3), gdiplus::Ok);
    EXPECT_TRUE(path_->CloseFigure());
    EXPECT_EQ(path_->PathData().Types[1], 0x21);
    EXPECT_EQ(path_->PathData().Types[3], 0x81);
    EXPECT_TRUE(path_->CloseAllFigures());
    EXPECT_TRUE(path_->ClearMarkers());
    EXPECT_EQ(path_->PathData().Types[1], 0x81);
    EXPECT_TRUE(path_->Reverse());
    GpPointF last{9, 9};
    EXPECT_TRUE(path_->GetLastPoint(last));
    EXPECT_EQ(last.X, 0);
    EXPECT_TRUE(path_->Reset());
    last = {9, 9};
    EXPECT_FALSE(path_->GetLastPoint(last));
    EXPECT_EQ(last.X, 0);
    EXPECT_EQ(path_->Status, gdiplus::InvalidParameter);
}

struct Shape {
    const char* name;
    gdiplus::Status (*add)(GpPath&);
    int32_t points;
};

const gdiplus::GpRectF kRects[] = {{0, 0, 1, 1}, {5, 5, 1, 1}};
const gdiplus::GpRect kRectsI[] = {{0, 0, 1, 1}, {5, 5, 1, 1}};
const Shape kShapes[] = {
    {"AddLine", [](GpPath& p) { return p.AddLine(0, 0, 1, 1); }, 2},
    {"AddLineI", [](GpPath& p) { return p.AddLineI(0, 0, 1, 1); }, 2},
    {"AddLines", [](GpPath& p) { return p.AddLines(kPoints, 3); }, 3},
    {"AddLinesI", [](GpPath& p) { return p.AddLinesI(kPointsI, 3); }, 3},
    {"AddArc", [](GpPath& p) { return p.AddArc(0, 0, 9, 9, 0, 180); }, 7},
    {"AddArcI", [](GpPath& p) { return p.AddArcI(0, 0, 9, 9, 0, 180); }, 7},
    {"AddBezier", [](GpPath& p) { return p.AddBezier(0, 0, 1, 1, 2, 2, 3, 3); }, 4},
    {"AddBezierI", [](GpPath& p) { return p.AddBezierI(0, 0, 1, 1, 2, 2, 3, 3); }, 4},
    {"AddBeziers", [](GpPath& p) { return p.AddBeziers(kPoints, 4); }, 4},
    {"AddBeziersI", [](GpPath& p) { return p.AddBeziersI(kPointsI, 4); }, 4},
    {"AddCurve", [](GpPath& p) { return p.AddCurve(kPoints, 4); }, 10},
    {"AddCurveI", [](GpPath& p) { return p.AddCurveI(kPointsI, 4); }, 10},
    {"AddCurve2", [](GpPath& p) { return p.AddCurve2(kPoints, 4, 1); }, 10},
    {"AddCurve2I", [](GpPath& p) { return p.AddCurve2I(kPointsI, 4, 1); }, 10},
    {"AddCurve3", [](GpPath& p) { return p.AddCurve3(kPoints, 4, 1, 2, 1); }, 7},
    {"AddCurve3I", [](GpPath& p) { return p.AddCurve3I(kPointsI, 4, 1, 2, 1); }, 7},
    {"AddClosedCurve", [](GpPath& p) { return p.AddClosedCurve(kPoints, 4); }, 13},
    {"AddClosedCurveI", [](GpPath& p) { return p.AddClosedCurveI(kPointsI, 4); }, 13},
    {"AddClosedCurve2", [](GpPath& p) { return p.AddClosedCurve2(kPoints, 4, 1); }, 13},
    {"AddClosedCurve2I", [](GpPath& p) { return p.AddClosedCurve2I(kPointsI, 4, 1); }, 13},
    {"AddRectangle", [](GpPath& p) { return p.AddRectangle(0, 0, 1, 1); }, 4},
    {"AddRectangleI", [](GpPath& p) { return p.AddRectangleI(0, 0, 1, 1); }, 4},
    {"AddRectangles", [](GpPath& p) { return p.AddRectangles(kRects, 2); }, 8},
    {"AddRectanglesI", [](GpPath& p) { return p.AddRectanglesI(kRectsI, 2); }, 8},
    {"AddEllipse", [](GpPath& p) { return p.AddEllipse(0, 0, 1, 1); }, 13},
    {"AddEllipseI", [](GpPath& p) { return p.AddEllipseI(0, 0, 1, 1); }, 13},
    {"AddPie", [](GpPath& p) { return p.AddPie(0, 0, 9, 9, 0, 90); }, 5},
    {"AddPieI", [](GpPath& p) { return p.AddPieI(0, 0, 9, 9, 0, 90); }, 5},
    {"AddPolygon", [](GpPath& p) { return p.AddPolygon(kPoints, 3); }, 3},
    {"AddPolygonI", [](GpPath& p) { return p.AddPolygonI(kPointsI, 3); }, 3},
};

TEST_F(PathWrapper, AddsAllShapes) {
    for (const Shape& shape : kShapes) {
        const Ref<GpPath> path = New<GpPath>();
        EXPECT_EQ(shape.add(*path), gdiplus::Ok) << shape.name;
        EXPECT_EQ(path->PointCount(), shape.points) << shape.name;
        EXPECT_EQ(path_->AddPath(path->Handle(), false), gdiplus::Ok);
    }
    EXPECT_EQ(path_->AddPath(nullptr, false), gdiplus::InvalidParameter);
}

TEST_F(PathWrapper, GeometryAnswersTheStatusAndDoesNotKeepIt) {
    EXPECT_EQ(path_->AddPolygon(kPoints, 2), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->AddBeziersI(kPointsI, 3), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->Widen(nullptr), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->Warp(kPoints, 4, 0, 0, 0, 0), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->Status, gdiplus::Ok);
}

TEST_F(PathWrapper, ArraysWithoutItemsCallNothing) {
    EXPECT_EQ(path_->AddLines(kPoints, 0), gdiplus::Ok);
    EXPECT_EQ(path_->AddPolygonI(kPointsI, -1), gdiplus::Ok);
    EXPECT_EQ(path_->AddRectangles(nullptr, 2), gdiplus::Ok);
    EXPECT_EQ(path_->Warp(kPoints, 0, 0, 0, 0, 0), gdiplus::Ok);
    EXPECT_EQ(path_->PointCount(), 0);
}

/// The default of a flatness is a quarter: leaving it out gives the points of 0.25 and not those
/// of another value.
template <class Change>
void ExpectDefaultFlatness(Change change) {
    const auto count = [&](auto... flatness) {
        const Ref<GpPath> path = New<GpPath>();
        EXPECT_EQ(path->AddEllipse(0, 0, 200, 100), gdiplus::Ok);
        EXPECT_EQ(change(*path, flatness...), gdiplus::Ok);
        return path->PointCount();
    };
    EXPECT_EQ(count(), count(0.25f));
    EXPECT_NE(count(), count(0.05f));
    EXPECT_NE(count(), count(2.f));
}

TEST_F(PathWrapper, FlattenTakesAQuarterByDefault) {
    ExpectDefaultFlatness(
        [](GpPath& path, auto... flatness) { return path.Flatten(nullptr, flatness...); });
}

TEST_F(PathWrapper, OutlineTakesAQuarterByDefault) {
    ExpectDefaultFlatness(
        [](GpPath& path, auto... flatness) { return path.Outline(nullptr, flatness...); });
}

TEST_F(PathWrapper, WidenTakesAQuarterByDefault) {
    const Ref<GpPen> pen = New<GpPen>();
    ASSERT_TRUE(pen->Create(0, 10));
    ExpectDefaultFlatness([&](GpPath& path, auto... flatness) {
        return path.Widen(pen->Handle(), nullptr, flatness...);
    });
}

TEST_F(PathWrapper, WarpTakesAQuarterByDefault) {
    ExpectDefaultFlatness([](GpPath& path, auto... flatness) {
        return path.Warp(kPoints, 3, 0, 0, 10, 10, nullptr, gdiplus::WarpModePerspective,
                         flatness...);
    });
}

TEST_F(PathWrapper, WarpsToItsPoints) {
    const GpPointF corners[] = {{100, 0}, {200, 0}, {100, 50}};
    EXPECT_EQ(path_->AddRectangle(0, 0, 10, 10), gdiplus::Ok);
    EXPECT_EQ(path_->Warp(corners, 3, 0, 0, 10, 10), gdiplus::Ok);
    EXPECT_EQ(Bounds().X, 100);
    EXPECT_EQ(Bounds().Width, 100);
    EXPECT_EQ(Bounds().Height, 50);
}

TEST_F(PathWrapper, Warp2ReadsItsCornersFromItsArguments) {
    EXPECT_EQ(path_->AddRectangle(0, 0, 10, 10), gdiplus::Ok);
    // (7, 8), (the bits of 3, 0), (0, 10): the count's bits are all but 0.
    EXPECT_EQ(path_->Warp2(7, 8, 3, 0, 0, 10, 10), gdiplus::Ok);
    GpPointF points[4];
    ASSERT_TRUE(path_->GetPointPoints(points, 4));
    EXPECT_EQ(points[0].X, 7);
    EXPECT_EQ(points[0].Y, 8);
    EXPECT_NEAR(points[1].X, 0, 1e-5);
    EXPECT_NEAR(points[1].Y, 0, 1e-5);
    EXPECT_NEAR(points[3].X, 0, 1e-5);
    EXPECT_NEAR(points[3].Y, 10, 1e-5);
    EXPECT_EQ(path_->Warp2(7, 8, 1, 0, 0, 10, 10), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->Warp2(7, 8, 6, 0, 0, 10, 10), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->Warp2(7, 8, 1 << 30, 0, 0, 10, 10), gdiplus::InvalidParameter);
}

TEST_F(PathWrapper, TransformsAndMeasures) {
    const Ref<GpMatrix> matrix = New<GpMatrix>();
    ASSERT_TRUE(matrix->CreateF(2, 0, 0, 2, 1, 0));
    EXPECT_EQ(path_->AddRectangle(0, 0, 10, 10), gdiplus::Ok);
    EXPECT_EQ(path_->Transform(matrix->Handle()), gdiplus::Ok);
    EXPECT_EQ(Bounds().X, 1);
    EXPECT_EQ(Bounds().Width, 20);
    gdiplus::GpRect bounds{9, 9, 9, 9};
    EXPECT_TRUE(path_->GetBoundsI(bounds, matrix->Handle()));
    EXPECT_EQ(bounds.X, 3);
    EXPECT_EQ(bounds.Width, 40);
}

TEST_F(PathWrapper, TellsWhatIsVisible) {
    EXPECT_EQ(path_->AddRectangle(0, 0, 10, 10), gdiplus::Ok);
    EXPECT_TRUE(path_->IsVisible(9.9f, 5));
    EXPECT_FALSE(path_->IsVisible(10, 5));
    EXPECT_TRUE(path_->IsVisibleI(5, 5));
    const Ref<GpPen> pen = New<GpPen>();
    ASSERT_TRUE(pen->Create(0, 2));
    EXPECT_TRUE(path_->IsOutlineVisibleI(10, 5, pen->Handle()));
    EXPECT_FALSE(path_->IsOutlineVisibleI(5, 5, pen->Handle()));
    EXPECT_FALSE(path_->IsOutlineVisibleI(5, 5, nullptr));
    EXPECT_EQ(path_->Status, gdiplus::InvalidParameter);
}

TEST_F(PathWrapper, OutlinesAreHitAtTheNearestIntegers) {
    EXPECT_EQ(path_->AddLine(10, 0, 10, 20), gdiplus::Ok);
    const Ref<GpPen> pen = New<GpPen>();
    ASSERT_TRUE(pen->Create(0, 0.5f));
    EXPECT_TRUE(path_->IsOutlineVisible(9.6f, 10, pen->Handle()));
    EXPECT_TRUE(path_->IsOutlineVisible(10.5f, 10, pen->Handle()));  // halves go to even
    EXPECT_FALSE(path_->IsOutlineVisible(9.4f, 10, pen->Handle()));
}

TEST_F(PathWrapper, ACloneIsItsOwn) {
    EXPECT_EQ(path_->AddLine(0, 0, 1, 1), gdiplus::Ok);
    const Ref<GpPath> clone = path_->Clone();
    ASSERT_TRUE(clone);
    EXPECT_TRUE(path_->Reset());
    EXPECT_EQ(clone->PointCount(), 2);
    path_->Dispose();
    EXPECT_EQ(path_->PointCount(), 0);
}

}  // namespace
}  // namespace vxgui
