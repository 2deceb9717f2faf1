#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"

namespace vxgui::gdiplus {
namespace {

class PathFigures : public GeometryTest {
protected:
    PathFigures() { EXPECT_EQ(GdipCreatePath(FillModeAlternate, &path), Ok); }

    void AddLine(REAL x1, REAL y1, REAL x2, REAL y2) {
        EXPECT_EQ(GdipAddPathLine(path, x1, y1, x2, y2), Ok);
    }

    OwnedPath path;
};

TEST_F(PathFigures, AStartBreaksTheLine) {
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipStartPathFigure(path), Ok);
    AddLine(1, 0, 2, 0);
    ExpectTypes(path, {0, 1, 0, 1});
    EXPECT_EQ(GdipStartPathFigure(nullptr), InvalidParameter);
}

TEST_F(PathFigures, AClosedOneIsFollowedByANewOne) {
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipClosePathFigure(path), Ok);
    AddLine(1, 0, 2, 0);
    ExpectTypes(path, {0, 0x81, 0, 1});
    EXPECT_EQ(GdipClosePathFigure(nullptr), InvalidParameter);
}

TEST_F(PathFigures, OneThatHasNoPointsYetIsNotClosed) {
    EXPECT_EQ(GdipClosePathFigure(path), Ok);
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipStartPathFigure(path), Ok);
    EXPECT_EQ(GdipClosePathFigure(path), Ok);
    ExpectTypes(path, {0, 1});
}

TEST_F(PathFigures, AreAllClosedAtOnce) {
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipStartPathFigure(path), Ok);
    AddLine(1, 0, 2, 0);
    EXPECT_EQ(GdipClosePathFigures(path), Ok);
    AddLine(2, 0, 3, 0);
    ExpectTypes(path, {0, 0x81, 0, 0x81, 0, 1});
    EXPECT_EQ(GdipClosePathFigures(nullptr), InvalidParameter);
}

TEST_F(PathFigures, MarkersSitOnTheLastPoint) {
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    AddLine(1, 0, 2, 0);
    ExpectTypes(path, {0, 0x21, 1});
    EXPECT_EQ(GdipClearPathMarkers(path), Ok);
    ExpectTypes(path, {0, 1, 1});
    EXPECT_EQ(GdipSetPathMarker(nullptr), InvalidParameter);
    EXPECT_EQ(GdipClearPathMarkers(nullptr), InvalidParameter);
}

TEST_F(PathFigures, AreReversedFromTheLastPointOn) {
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipAddPathBezier(path, 1, 0, 2, 0, 3, 0, 4, 0), Ok);
    EXPECT_EQ(GdipAddPathRectangle(path, 10, 10, 1, 1), Ok);
    EXPECT_EQ(GdipReversePath(path), Ok);
    ExpectPoints(path,
                 {{10, 11}, {11, 11}, {11, 10}, {10, 10}, {4, 0}, {3, 0}, {2, 0}, {1, 0}, {0, 0}});
    ExpectTypes(path, {0, 1, 1, 0x81, 0, 3, 3, 3, 1});
    EXPECT_EQ(GdipReversePath(nullptr), InvalidParameter);
}

TEST_F(PathFigures, ReversedTwiceAreAsTheyWere) {
    EXPECT_EQ(GdipAddPathEllipse(path, 0, 0, 30, 10), Ok);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    AddLine(1, 0, 2, 7);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    const auto points = PointsOf(path);
    const auto types = TypesOf(path);
    EXPECT_EQ(GdipReversePath(path), Ok);
    EXPECT_NE(TypesOf(path), types);
    EXPECT_EQ(GdipReversePath(path), Ok);
    EXPECT_EQ(PointsOf(path), points);
    EXPECT_EQ(TypesOf(path), types);
}

TEST_F(PathFigures, MarkersStayBetweenTheirPointsWhenReversed) {
    const GpPointF points[] = {{0, 0}, {1, 0}, {2, 0}, {3, 0}};
    EXPECT_EQ(GdipAddPathLine2(path, points, 2), Ok);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    EXPECT_EQ(GdipAddPathLine2(path, points + 2, 2), Ok);
    EXPECT_EQ(GdipSetPathMarker(path), Ok);
    ExpectTypes(path, {0, 0x21, 1, 0x21});
    EXPECT_EQ(GdipReversePath(path), Ok);
    ExpectTypes(path, {0, 0x21, 1, 0x21});
    ExpectPoints(path, {{3, 0}, {2, 0}, {1, 0}, {0, 0}});
}

TEST_F(PathFigures, TheLastPointIsWhereTheNextLineStarts) {
    GpPointF last{7, 7};
    EXPECT_EQ(GdipGetPathLastPoint(path, &last), InvalidParameter);
    AddLine(0, 0, 1, 2);
    EXPECT_EQ(GdipGetPathLastPoint(path, &last), Ok);
    EXPECT_EQ(last, (GpPointF{1, 2}));
    EXPECT_EQ(GdipGetPathLastPoint(path, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathLastPoint(nullptr, &last), InvalidParameter);
}

TEST_F(PathFigures, OfAnotherPathAreConnected) {
    AddLine(0, 0, 1, 0);
    const OwnedPath other = NewPath();
    EXPECT_EQ(GdipAddPathLine(other, 5, 5, 6, 6), Ok);
    EXPECT_EQ(GdipAddPathPath(path, other, 1), Ok);
    ExpectPoints(path, {{0, 0}, {1, 0}, {5, 5}, {6, 6}});
    ExpectTypes(path, {0, 1, 1, 1});
    EXPECT_EQ(GdipAddPathPath(path, nullptr, 1), InvalidParameter);
    EXPECT_EQ(GdipAddPathPath(nullptr, other, 1), InvalidParameter);
}

TEST_F(PathFigures, OfAnotherPathStayApartWithoutConnect) {
    AddLine(0, 0, 1, 0);
    const OwnedPath other = NewPath();
    EXPECT_EQ(GdipAddPathLine(other, 5, 5, 6, 6), Ok);
    EXPECT_EQ(GdipAddPathPath(path, other, 0), Ok);
    ExpectTypes(path, {0, 1, 0, 1});
    AddLine(7, 7, 8, 8);
    ExpectTypes(path, {0, 1, 0, 1, 1, 1});
}

TEST_F(PathFigures, ThatAreClosedAreNeverConnected) {
    AddLine(0, 0, 1, 0);
    const OwnedPath box = NewPath();
    EXPECT_EQ(GdipAddPathRectangle(box, 0, 0, 1, 1), Ok);
    EXPECT_EQ(GdipAddPathPath(path, box, 1), Ok);
    ExpectTypes(path, {0, 1, 0, 1, 1, 0x81});
    const OwnedPath line = NewPath();
    EXPECT_EQ(GdipAddPathLine(line, 5, 5, 6, 6), Ok);
    EXPECT_EQ(GdipAddPathPath(path, line, 1), Ok);
    ExpectTypes(path, {0, 1, 0, 1, 1, 0x81, 0, 1});
}

TEST_F(PathFigures, OfThePathItselfMayBeAdded) {
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipAddPathPath(path, path, 0), Ok);
    ExpectPoints(path, {{0, 0}, {1, 0}, {0, 0}, {1, 0}});
    ExpectTypes(path, {0, 1, 0, 1});
}

TEST_F(PathFigures, OfAnEmptyPathAddNothing) {
    AddLine(0, 0, 1, 0);
    EXPECT_EQ(GdipAddPathPath(path, NewPath(), 1), Ok);
    AddLine(1, 0, 2, 0);
    ExpectTypes(path, {0, 1, 1});
}

}  // namespace
}  // namespace vxgui::gdiplus
