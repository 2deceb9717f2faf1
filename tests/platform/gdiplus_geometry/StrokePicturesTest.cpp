#include "tests/platform/gdiplus_geometry/StrokeSheet.h"

namespace vxgui::gdiplus {
namespace {

class StrokePictures : public GeometryTest {};

// Pictures for the eye, a row a setting.

const REAL kRow = 44;

/// A short line, an angle and a curve in a row.
void DrawRow(Sheet& sheet, const PenSettings& pen, int row) {
    const REAL y = kRow * static_cast<REAL>(row) + 22;
    sheet.Draw(pen, Points({{30, y}, {110, y}}));
    sheet.Draw(pen, Points({{150, y + 12}, {190, y - 12}, {230, y + 12}}));
    sheet.Draw(pen, Curve({270, y + 10}, {300, y - 40}, {320, y + 40}, {350, y - 10}));
}
/// A box, a triangle and a ring in a row.
void DrawFigures(Sheet& sheet, const PenSettings& pen, int row) {
    const REAL y = 70 * static_cast<REAL>(row) + 35;
    sheet.Draw(pen, Points({{25, y - 20}, {105, y - 20}, {105, y + 20}, {25, y + 20}}, true));
    sheet.Draw(pen, Points({{150, y + 20}, {190, y - 20}, {230, y + 20}}, true));
    PathPoints ring = Curve({350, y}, {350, y + 27}, {270, y + 27}, {270, y});
    for (const GpPointF& p : {GpPointF{270, y - 27}, GpPointF{350, y - 27}, GpPointF{350, y}}) {
        ring.Add(p, PathPointTypeBezier);
    }
    ring.types.back() |= PathPointTypeCloseSubpath;
    sheet.Draw(pen, ring);
}

TEST_F(StrokePictures, OfCapsAndAnchors) {
    const LineCap caps[] = {LineCapFlat,          LineCapSquare,       LineCapRound,
                            LineCapTriangle,      LineCapSquareAnchor, LineCapRoundAnchor,
                            LineCapDiamondAnchor, LineCapArrowAnchor};
    Sheet sheet(380, static_cast<int>(kRow) * 8);
    for (int i = 0; i < 8; ++i) {
        PenSettings pen = PenOf(9);
        pen.startCap = LineCapFlat;
        pen.endCap = caps[i];
        if (i > 3) pen.startCap = caps[i];
        DrawRow(sheet, pen, i);
    }
    test::ExpectGolden("gdiplus/stroke-caps", sheet.Picture(), 2);
}

TEST_F(StrokePictures, OfJoins) {
    const LineJoin joins[] = {LineJoinMiter, LineJoinBevel, LineJoinRound, LineJoinMiterClipped};
    Sheet sheet(380, 280);
    for (int i = 0; i < 4; ++i) {
        PenSettings pen = PenOf(14);
        pen.lineJoin = joins[i];
        pen.miterLimit = 2;
        DrawFigures(sheet, pen, i);
    }
    test::ExpectGolden("gdiplus/stroke-joins", sheet.Picture(), 2);
}

TEST_F(StrokePictures, OfDashes) {
    const std::vector<std::vector<REAL>> dashes = {
        {3, 1}, {1, 1}, {3, 1, 1, 1}, {3, 1, 1, 1, 1, 1}, {2, 0.5f, 0.5f}};
    Sheet sheet(380, static_cast<int>(kRow) * 8);
    for (int i = 0; i < 8; ++i) {
        PenSettings pen = PenOf(6);
        pen.dashes = dashes[static_cast<size_t>(i) % 5];
        pen.dashOffset = i == 4 ? 1.f : 0.f;
        pen.dashCap = i < 5 ? DashCapFlat : i == 6 ? DashCapTriangle : DashCapRound;
        if (i == 7) pen.endCap = LineCapArrowAnchor;
        DrawRow(sheet, pen, i);
    }
    test::ExpectGolden("gdiplus/stroke-dashes", sheet.Picture(), 2);
}

TEST_F(StrokePictures, OfCompounds) {
    Sheet sheet(380, 420);
    for (int i = 0; i < 4; ++i) {
        PenSettings pen = PenOf(15);
        pen.compound = {0, 0.2f, 0.4f, 0.6f, 0.8f, 1};
        if (i == 1) pen.lineJoin = LineJoinRound;
        if (i == 2) pen.lineJoin = LineJoinBevel;
        if (i == 3) pen.dashes = {2, 1};
        DrawFigures(sheet, pen, i);
    }
    PenSettings pen = PenOf(15);
    pen.compound = {0, 0.3f, 0.7f, 1};
    pen.startCap = LineCapRound;
    pen.endCap = LineCapTriangle;
    DrawRow(sheet, pen, 7);
    pen.startCap = LineCapSquare;
    pen.endCap = LineCapArrowAnchor;
    DrawRow(sheet, pen, 8);
    test::ExpectGolden("gdiplus/stroke-compounds", sheet.Picture(), 2);
}

TEST_F(StrokePictures, OfInsets) {
    Sheet sheet(380, 280);
    for (int i = 0; i < 4; ++i) {
        PenSettings pen = PenOf(8);
        pen.alignment = i == 0 ? PenAlignmentCenter : PenAlignmentInset;
        if (i == 2) pen.dashes = {2, 1};
        if (i == 3) pen.transform = {1, 0, 0, 2, 0, 0};
        DrawFigures(sheet, pen, i);
    }
    test::ExpectGolden("gdiplus/stroke-insets", sheet.Picture(), 2);
}

}  // namespace
}  // namespace vxgui::gdiplus
