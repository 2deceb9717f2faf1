#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"

namespace vxgui::gdiplus {
namespace {

using testing::ElementsAre;

class PathObjects : public GeometryTest {};

const GpPointF kPoints[] = {{1, 2}, {3.5f, 4.4f}, {5, 6}, {7, 8}, {9, 10}};
const BYTE kTypes[] = {0, 1, 3, 3, 0x83};

OwnedPath Sample() {
    OwnedPath path;
    EXPECT_EQ(GdipCreatePath2(kPoints, kTypes, 5, FillModeWinding, &path), Ok);
    return path;
}

TEST_F(PathObjects, BeginEmpty) {
    OwnedPath path;
    ASSERT_EQ(GdipCreatePath(FillModeWinding, &path), Ok);
    EXPECT_EQ(CountOf(path), 0);
    FillMode mode = FillModeAlternate;
    EXPECT_EQ(GdipGetPathFillMode(path, &mode), Ok);
    EXPECT_EQ(mode, FillModeWinding);
}

TEST_F(PathObjects, AreMadeOfPointsAndTypes) {
    const OwnedPath path = Sample();
    ExpectPoints(path, {kPoints, kPoints + 5}, 0);
    ExpectTypes(path, {0, 1, 3, 3, 0x83});
}

TEST_F(PathObjects, AreMadeOfIntegerPointsToo) {
    const GpPoint points[] = {{1, 2}, {-3, 4}};
    const BYTE types[] = {0, 1};
    OwnedPath path;
    ASSERT_EQ(GdipCreatePath2I(points, types, 2, FillModeAlternate, &path), Ok);
    ExpectPoints(path, {{1, 2}, {-3, 4}}, 0);
    EXPECT_EQ(GdipCreatePath2I(nullptr, types, 2, FillModeAlternate, &path), InvalidParameter);
}

TEST_F(PathObjects, TheFirstPointIsAlwaysAStart) {
    const BYTE types[] = {1, 1};
    OwnedPath path;
    ASSERT_EQ(GdipCreatePath2(kPoints, types, 2, FillModeAlternate, &path), Ok);
    ExpectTypes(path, {0, 1});
}

TEST_F(PathObjects, RefuseTypesThatMakeNoPath) {
    const std::vector<std::vector<BYTE>> bad = {
        {0, 3, 3, 1},     // a curve of two points
        {0, 1, 3, 3},     // that ends within a curve
        {0, 3, 0x83, 3},  // that closes within a curve
        {0, 2, 1, 1},     // of no kind
        {0, 0x81, 1, 1},  // that goes on behind its end
    };
    for (const auto& types : bad) {
        OwnedPath path;
        EXPECT_EQ(GdipCreatePath2(kPoints, types.data(), 4, FillModeAlternate, &path),
                  InvalidParameter);
        EXPECT_EQ(path, nullptr);
    }
}

TEST_F(PathObjects, RefuseWrongArguments) {
    OwnedPath path;
    EXPECT_EQ(GdipCreatePath(static_cast<FillMode>(2), &path), InvalidParameter);
    EXPECT_EQ(GdipCreatePath(FillModeAlternate, nullptr), InvalidParameter);
    EXPECT_EQ(GdipCreatePath2(nullptr, kTypes, 5, FillModeAlternate, &path), InvalidParameter);
    EXPECT_EQ(GdipCreatePath2(kPoints, nullptr, 5, FillModeAlternate, &path), InvalidParameter);
    EXPECT_EQ(GdipCreatePath2(kPoints, kTypes, 0, FillModeAlternate, &path), InvalidParameter);
    EXPECT_EQ(GdipCreatePath2(kPoints, kTypes, 5, FillModeAlternate, nullptr), InvalidParameter);
}

TEST_F(PathObjects, ACloneIsItsOwn) {
    const OwnedPath path = Sample();
    OwnedPath clone;
    ASSERT_EQ(GdipClonePath(path, &clone), Ok);
    ASSERT_EQ(GdipResetPath(path), Ok);
    ExpectPoints(clone, {kPoints, kPoints + 5}, 0);
    FillMode mode = FillModeAlternate;
    EXPECT_EQ(GdipGetPathFillMode(clone, &mode), Ok);
    EXPECT_EQ(mode, FillModeWinding);
    EXPECT_EQ(GdipClonePath(nullptr, &clone), InvalidParameter);
}

TEST_F(PathObjects, AResetEmptiesAndAlternates) {
    const OwnedPath path = Sample();
    ASSERT_EQ(GdipResetPath(path), Ok);
    EXPECT_EQ(CountOf(path), 0);
    FillMode mode = FillModeWinding;
    EXPECT_EQ(GdipGetPathFillMode(path, &mode), Ok);
    EXPECT_EQ(mode, FillModeAlternate);
    EXPECT_EQ(GdipResetPath(nullptr), InvalidParameter);
}

TEST_F(PathObjects, AreDeletedOnce) {
    GpPath* path = nullptr;
    ASSERT_EQ(GdipCreatePath(FillModeAlternate, &path), Ok);
    EXPECT_EQ(GdipDeletePath(path), Ok);
    EXPECT_EQ(GdipDeletePath(path), InvalidParameter);
    INT count = 0;
    EXPECT_EQ(GdipGetPointCount(path, &count), InvalidParameter);
}

TEST_F(PathObjects, FillModeIsKept) {
    const OwnedPath path = NewPath();
    FillMode mode = FillModeAlternate;
    EXPECT_EQ(GdipSetPathFillMode(path, FillModeWinding), Ok);
    EXPECT_EQ(GdipGetPathFillMode(path, &mode), Ok);
    EXPECT_EQ(mode, FillModeWinding);
    EXPECT_EQ(GdipSetPathFillMode(path, static_cast<FillMode>(-1)), InvalidParameter);
    EXPECT_EQ(GdipSetPathFillMode(nullptr, FillModeWinding), InvalidParameter);
    EXPECT_EQ(GdipGetPathFillMode(path, nullptr), InvalidParameter);
}

TEST_F(PathObjects, IntegerPointsAreRoundedWithHalvesUpwards) {
    const OwnedPath path = NewPath();
    EXPECT_EQ(GdipAddPathLine(path, 0.5f, 1.4f, -0.5f, -1.6f), Ok);
    GpPoint points[2];
    EXPECT_EQ(GdipGetPathPointsI(path, points, 2), Ok);
    EXPECT_THAT(points, ElementsAre(GpPoint{1, 1}, GpPoint{0, -2}));
    EXPECT_EQ(GdipGetPathPointsI(path, points, 1), InsufficientBuffer);
    EXPECT_EQ(GdipGetPathPointsI(path, nullptr, 2), InvalidParameter);
}

TEST_F(PathObjects, ListsNeedRoom) {
    const OwnedPath path = Sample();
    GpPointF points[5];
    BYTE types[5];
    EXPECT_EQ(GdipGetPathPoints(path, points, 4), InsufficientBuffer);
    EXPECT_EQ(GdipGetPathPoints(path, points, 0), InvalidParameter);
    EXPECT_EQ(GdipGetPathPoints(path, nullptr, 5), InvalidParameter);
    EXPECT_EQ(GdipGetPathTypes(path, types, 4), InsufficientBuffer);
    EXPECT_EQ(GdipGetPathTypes(path, types, 0), InvalidParameter);
    EXPECT_EQ(GdipGetPathTypes(path, nullptr, 5), InvalidParameter);
    EXPECT_EQ(GdipGetPointCount(path, nullptr), InvalidParameter);
}

TEST_F(PathObjects, GiveTheirDataInOneCall) {
    const OwnedPath path = Sample();
    GpPointF points[8];
    BYTE types[8];
    GpPathData data{8, points, types};
    ASSERT_EQ(GdipGetPathData(path, &data), Ok);
    EXPECT_EQ(data.Count, 5);
    EXPECT_EQ(points[4], kPoints[4]);
    EXPECT_EQ(types[4], 0x83);
    data.Count = 4;
    EXPECT_EQ(GdipGetPathData(path, &data), InsufficientBuffer);
    data.Points = nullptr;
    EXPECT_EQ(GdipGetPathData(path, &data), InvalidParameter);
    EXPECT_EQ(GdipGetPathData(path, nullptr), InvalidParameter);
}

TEST_F(PathObjects, GoOnWhereTheyWereMadeOpen) {
    const BYTE types[] = {0, 1};
    OwnedPath path;
    ASSERT_EQ(GdipCreatePath2(kPoints, types, 2, FillModeAlternate, &path), Ok);
    EXPECT_EQ(GdipAddPathLine(path, 3.5f, 4.4f, 8, 8), Ok);
    ExpectTypes(path, {0, 1, 1});
    const OwnedPath closed = Sample();
    EXPECT_EQ(GdipAddPathLine(closed, 9, 10, 8, 8), Ok);
    ExpectTypes(closed, {0, 1, 3, 3, 0x83, 0, 1});
}

}  // namespace
}  // namespace vxgui::gdiplus
