#include <cmath>

#include "tests/platform/gdiplus_geometry/StrokeSheet.h"

namespace vxgui::gdiplus {
namespace {

class Strokes : public GeometryTest {};

double AreaOf(const PenSettings& pen, const PathPoints& path, const StrokePlace& place = {}) {
    Sheet sheet(200, 200);
    sheet.Draw(pen, path, place);
    return sheet.Area();
}

const PathPoints kLine = Points({{50, 100}, {150, 100}});

TEST_F(Strokes, CapsHaveTheirAreas) {
    const struct {
        LineCap cap;
        double area;  ///< of a cap beyond the line, for a line 10 wide
    } caps[] = {{LineCapFlat, 0},
                {LineCapSquare, 50},
                {LineCapRound, std::acos(-1) * 12.5},
                {LineCapTriangle, 25},
                {LineCapNoAnchor, 0}};
    for (const auto& [cap, area] : caps) {
        PenSettings pen = PenOf(10);
        pen.endCap = cap;
        EXPECT_NEAR(AreaOf(pen, kLine), 1000 + area, 2) << cap;
        pen.startCap = cap;
        EXPECT_NEAR(AreaOf(pen, kLine), 1000 + 2 * area, 4) << cap;
    }
}

TEST_F(Strokes, AnchorsAreTwiceAsWideAsTheLine) {
    const struct {
        LineCap cap;
        GpRectF box;  ///< of the anchor at (150, 100), for a line 10 wide
    } anchors[] = {{LineCapSquareAnchor, {143, 93, 14, 14}},
                   {LineCapRoundAnchor, {140, 90, 20, 20}},
                   {LineCapDiamondAnchor, {140, 90, 20, 20}},
                   {LineCapArrowAnchor, {133, 90, 17, 20}}};
    for (const auto& [cap, box] : anchors) {
        PenSettings pen = PenOf(10);
        pen.endCap = cap;
        REAL left = 1000, top = 1000, right = 0, bottom = 0;
        for (const Polygon& polygon : StrokePolygons(pen, kLine, {}, 0.01f)) {
            for (const Vec p : polygon) {
                if (std::abs(p.y - 100) > 5.001) left = std::min<REAL>(left, p.x);
                right = std::max<REAL>(right, p.x);
                top = std::min<REAL>(top, p.y);
                bottom = std::max<REAL>(bottom, p.y);
            }
        }
        EXPECT_NEAR(right, box.X + box.Width, 0.5) << cap;
        EXPECT_NEAR(top, box.Y, 0.5) << cap;
        EXPECT_NEAR(bottom, box.Y + box.Height, 0.5) << cap;
        if (cap != LineCapDiamondAnchor && cap != LineCapRoundAnchor) {
            EXPECT_NEAR(left, box.X, 0.5) << cap;
        }
    }
}

TEST_F(Strokes, AnArrowEndsAtTheTipOfItsLine) {
    PenSettings pen = PenOf(10);
    pen.endCap = LineCapArrowAnchor;
    const double length = 10 * std::sqrt(3);
    EXPECT_NEAR(AreaOf(pen, kLine), (100 - length) * 10 + length * 10, 3);
    pen.startCap = LineCapArrowAnchor;
    EXPECT_NEAR(AreaOf(pen, Points({{50, 100}, {60, 100}})), length * 20, 120);
}

TEST_F(Strokes, JoinsHaveTheirAreas) {
    // A right angle of two sides of 50, 10 wide: they overlap in a quarter of the join's square.
    const PathPoints angle = Points({{50, 50}, {100, 50}, {100, 100}});
    const double sides = 1000 - 25;
    const struct {
        LineJoin join;
        double area;
    } joins[] = {{LineJoinMiter, 25},
                 {LineJoinMiterClipped, 25},
                 {LineJoinBevel, 12.5},
                 {LineJoinRound, std::acos(-1) * 25 / 4}};
    for (const auto& [join, area] : joins) {
        PenSettings pen = PenOf(10);
        pen.lineJoin = join;
        EXPECT_NEAR(AreaOf(pen, angle), sides + area, 1.5) << join;
        pen.endCap = LineCapTriangle;  // by polygons, where cairo drew the others
        EXPECT_NEAR(AreaOf(pen, angle), sides + area + 25, 2.5) << join;
    }
}

TEST_F(Strokes, AMiterBeyondItsLimitIsCutOrBevelled) {
    const PathPoints sharp = Points({{20, 90}, {120, 100}, {20, 110}});
    PenSettings pen = PenOf(10);
    pen.lineJoin = LineJoinMiter;
    Sheet full(220, 200), cut(220, 200), bevelled(220, 200);
    pen.miterLimit = 30;
    full.Draw(pen, sharp);
    pen.miterLimit = 4;
    cut.Draw(pen, sharp);
    pen.lineJoin = LineJoinMiterClipped;
    bevelled.Draw(pen, sharp);
    EXPECT_TRUE(full.IsBlack(165, 100));  // the tip is 50 away
    EXPECT_TRUE(cut.IsBlack(138, 100));   // cut at 4 * 10 / 2
    EXPECT_FALSE(cut.IsBlack(142, 100));
    EXPECT_FALSE(bevelled.IsBlack(123, 100));
    EXPECT_TRUE(bevelled.IsBlack(119, 100));
}

TEST_F(Strokes, PolygonsCoverWhatCairoCovers) {
    const PathPoints wave = Curve({20, 100}, {80, -20}, {120, 220}, {180, 100});
    for (const LineCap cap : {LineCapFlat, LineCapRound, LineCapSquare}) {
        PenSettings pen = PenOf(16);
        pen.startCap = pen.endCap = cap;
        const double drawn = AreaOf(pen, wave);
        pen.compound = {0, 1};  // the same stroke, which cairo has no word for
        EXPECT_NEAR(AreaOf(pen, wave), drawn, drawn * 0.003) << cap;
    }
}

TEST_F(Strokes, DashesAreInPenWidths) {
    PenSettings pen = PenOf(10);
    pen.dashes = {3, 1};
    EXPECT_NEAR(AreaOf(pen, kLine), 800, 1);  // 30 10 30 10 20
    pen.dashOffset = 1;
    EXPECT_NEAR(AreaOf(pen, kLine), 800, 1);  // 20 10 30 10 30
    pen.dashOffset = -1;
    EXPECT_NEAR(AreaOf(pen, kLine), 700, 1);  // gap 10, 30 10 30 10 10
    pen.startCap = LineCapTriangle;           // by polygons
    EXPECT_NEAR(AreaOf(pen, kLine), 700, 1);
    pen.dashOffset = 1;
    EXPECT_NEAR(AreaOf(pen, kLine), 825, 1);
}

TEST_F(Strokes, CapsOfDashesLieWithinThem) {
    PenSettings pen = PenOf(10);
    pen.dashes = {1, 1};
    pen.dashCap = DashCapRound;
    Sheet sheet(200, 200);
    sheet.Draw(pen, kLine);
    EXPECT_TRUE(sheet.IsBlack(75, 100));
    EXPECT_FALSE(sheet.IsBlack(65, 100));
    EXPECT_FALSE(sheet.IsBlack(81, 100));
    EXPECT_FALSE(sheet.IsBlack(71, 96));  // a disc, not a square
    pen.dashes = {3, 1};
    pen.dashCap = DashCapTriangle;
    EXPECT_NEAR(AreaOf(pen, kLine), 800 - 4 * 25, 2);  // but for the line's own start and end
}

TEST_F(Strokes, DashesOfAClosedFigureJoinAtItsStart) {
    const PathPoints box = Points({{50, 50}, {90, 50}, {90, 90}, {50, 90}}, true);
    PenSettings pen = PenOf(10);
    pen.dashes = {3, 1};
    pen.dashOffset = 1.5f;
    pen.compound = {0, 1};
    Sheet sheet(200, 200);
    sheet.Draw(pen, box);
    EXPECT_TRUE(sheet.IsBlack(46, 46));  // the corner is mitered
}

TEST_F(Strokes, CountlessDashesAreASolidLine) {
    PenSettings pen = PenOf(10);
    pen.dashes = {1e-6f, 1e-6f};
    pen.compound = {0, 1};
    EXPECT_NEAR(AreaOf(pen, kLine), 1000, 1);
}

TEST_F(Strokes, ALongDashOffsetCountsByWhatItIsInThePattern) {
    PenSettings pen = PenOf(10);
    pen.dashes = {3, 1};
    for (const bool plain : {true, false}) {
        if (!plain) pen.compound = {0, 1};
        pen.dashOffset = -1 - 4 * 1e5f;
        EXPECT_NEAR(AreaOf(pen, kLine), 700, 1);
        pen.dashOffset = 1e30f;
        EXPECT_GT(AreaOf(pen, kLine), 690);
        pen.dashOffset = INFINITY;
        EXPECT_NEAR(AreaOf(pen, kLine), 1000, 1);
    }
}

TEST_F(Strokes, CompoundLinesLeaveTheirGaps) {
    PenSettings pen = PenOf(20);
    pen.compound = {0, 0.25f, 0.75f, 1};
    Sheet sheet(200, 200);
    sheet.Draw(pen, kLine);
    EXPECT_NEAR(sheet.Area(), 1000, 1);
    EXPECT_TRUE(sheet.IsBlack(100, 92));
    EXPECT_FALSE(sheet.IsBlack(100, 100));
    EXPECT_TRUE(sheet.IsBlack(100, 107));
    pen.compound = {0, 0.25f};  // the left of the line lies above
    Sheet left(200, 200);
    left.Draw(pen, kLine);
    EXPECT_TRUE(left.IsBlack(100, 92));
    EXPECT_FALSE(left.IsBlack(100, 107));
}

TEST_F(Strokes, CompoundCornersAreMitered) {
    const PathPoints box = Points({{50, 50}, {150, 50}, {150, 150}, {50, 150}}, true);
    PenSettings pen = PenOf(20);
    pen.compound = {0, 0.25f, 0.75f, 1};
    // Two frames, the outer 120 and 5 wide, the inner 90 and 5 wide.
    EXPECT_NEAR(AreaOf(pen, box), 120 * 120 - 110 * 110 + 90 * 90 - 80 * 80, 3);
}

TEST_F(Strokes, InsetStrokesLieWithinTheirFigure) {
    const PathPoints box = Points({{50, 50}, {150, 50}, {150, 150}, {50, 150}}, true);
    PenSettings pen = PenOf(20);
    pen.alignment = PenAlignmentInset;
    Sheet sheet(200, 200);
    sheet.Draw(pen, box);
    EXPECT_NEAR(sheet.Area(), 100 * 100 - 60 * 60, 3);
    EXPECT_FALSE(sheet.IsBlack(49, 100));
    EXPECT_TRUE(sheet.IsBlack(69, 100));
    EXPECT_FALSE(sheet.IsBlack(71, 100));
}

TEST_F(Strokes, InsetLeavesOpenLinesInTheMiddle) {
    PenSettings pen = PenOf(10);
    pen.alignment = PenAlignmentInset;
    Sheet sheet(200, 200);
    sheet.Draw(pen, kLine);
    EXPECT_NEAR(sheet.Area(), 1000, 1);
    EXPECT_TRUE(sheet.IsBlack(100, 96));
    EXPECT_TRUE(sheet.IsBlack(100, 103));
}

TEST_F(Strokes, UnitsOfLengthDoNotScaleWithTheWorld) {
    const PathPoints line = Points({{10, 10}, {30, 10}});
    StrokePlace place;
    place.worldToDevice = {4, 0, 0, 4, 0, 0};
    PenSettings pen = PenOf(2);
    EXPECT_NEAR(AreaOf(pen, line, place), 80 * 8, 1);
    const struct {
        Unit unit;
        double pixels;
    } units[] = {{UnitPixel, 1},  {UnitDisplay, 1},     {UnitPoint, 2},
                 {UnitInch, 144}, {UnitDocument, 0.48}, {UnitMillimeter, 144 / 25.4}};
    place.dpi = 144;
    for (const auto& [unit, pixels] : units) {
        pen.unit = unit;
        pen.width = static_cast<REAL>(12 / pixels);
        EXPECT_NEAR(AreaOf(pen, line, place), 80 * 12, 2) << unit;
    }
}

TEST_F(Strokes, NoPenIsThinnerThanAPixel) {
    for (const Unit unit : {UnitWorld, UnitPixel, UnitDocument}) {
        PenSettings pen = PenOf(0);
        pen.unit = unit;
        EXPECT_NEAR(AreaOf(pen, kLine), 100, 1);
        StrokePlace place;
        place.worldToDevice = {0.5f, 0, 0, 0.5f, 0, 0};
        pen.width = 0.1f;
        EXPECT_NEAR(AreaOf(pen, kLine, place), 50, 1);
    }
}

TEST_F(Strokes, ATransformShapesTheNib) {
    PenSettings pen = PenOf(4);
    pen.transform = {1, 0, 0, 5, 70, 70};  // a shift has no effect
    EXPECT_NEAR(AreaOf(pen, kLine), 100 * 20, 1);
    EXPECT_NEAR(AreaOf(pen, Points({{100, 50}, {100, 150}})), 100 * 4, 1);
    pen.endCap = LineCapTriangle;
    EXPECT_NEAR(AreaOf(pen, kLine), 100 * 20 + 20, 1.5);
    pen.transform = {0, 0, 0, 0, 0, 0};
    EXPECT_EQ(AreaOf(pen, kLine), 0);
}

TEST_F(Strokes, ADotHasTheCapsOfItsPen) {
    const PathPoints dot = Points({{100, 100}, {100, 100}});
    PenSettings pen = PenOf(20);
    EXPECT_EQ(AreaOf(pen, dot), 0);
    pen.startCap = pen.endCap = LineCapTriangle;
    EXPECT_NEAR(AreaOf(pen, dot), 200, 2);
    pen.startCap = pen.endCap = LineCapRound;
    EXPECT_NEAR(AreaOf(pen, dot), std::acos(-1) * 100, 2);
}

TEST_F(Strokes, OddPathsDoNoHarm) {
    const REAL nan = std::nanf("");
    PenSettings pen = PenOf(5);
    pen.endCap = LineCapArrowAnchor;
    pen.compound = {0, 0.5f};
    pen.alignment = PenAlignmentInset;
    Sheet sheet(50, 50);
    sheet.Draw(pen, {});
    sheet.Draw(pen, Points({{nan, 1}, {2, nan}, {3, 3}}, true));
    sheet.Draw(pen, Points({{1e30f, 1}, {-1e30f, 5}, {3, 3}}, true));
    sheet.Draw(pen, Points({{5, 5}}, true));
    sheet.Draw(pen, Points({{5, 5}, {25, 5}, {5, 5}}, true));
    sheet.Draw(pen, Points({{5, 5}, {25, 5}, {5, 5}, {25, 5}}));
    for (const REAL flatness : {nan, -1.f, 0.f, 1e30f}) {
        pen.startCap = LineCapRound;
        EXPECT_FALSE(StrokePolygons(pen, kLine, {}, flatness).empty());
    }
}

TEST_F(Strokes, StayWithinTheirBounds) {
    const PathPoints zigzag = Points({{60, 60}, {140, 70}, {60, 80}, {140, 140}});
    std::vector<PenSettings> pens(9, PenOf(8));
    pens[1].startCap = pens[1].endCap = LineCapSquare;
    pens[2].startCap = pens[2].endCap = LineCapDiamondAnchor;
    pens[3].startCap = pens[3].endCap = LineCapArrowAnchor;
    pens[4].lineJoin = LineJoinRound;
    pens[5].miterLimit = 3;
    pens[6].transform = {1, 1, 0, 3, 0, 0};
    pens[7].startCap = LineCapSquareAnchor;
    pens[7].lineJoin = LineJoinBevel;
    pens[8].unit = UnitMillimeter;
    StrokePlace place;
    place.worldToDevice = {1, 0.25f, 0, 1, 0, -10};
    for (const PenSettings& pen : pens) {
        const GpRectF box = StrokeBounds(pen, zigzag, place);
        for (const Polygon& polygon : StrokePolygons(pen, zigzag, place, 0.1f)) {
            for (const Vec p : polygon) {
                EXPECT_GE(p.x, box.X - 0.01);
                EXPECT_GE(p.y, box.Y - 0.01);
                EXPECT_LE(p.x, box.X + box.Width + 0.01);
                EXPECT_LE(p.y, box.Y + box.Height + 0.01);
            }
        }
    }
}

}  // namespace
}  // namespace vxgui::gdiplus
