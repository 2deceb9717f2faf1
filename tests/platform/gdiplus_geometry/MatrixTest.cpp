#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"

namespace vxgui::gdiplus {
namespace {

using testing::ElementsAre;
using testing::FloatNear;

class Matrix : public GeometryTest {};

void ExpectElements(const GpMatrix* matrix, const Elements& expected) {
    EXPECT_THAT(ElementsOf(matrix), testing::Pointwise(testing::FloatNear(1e-5f), expected));
}

TEST_F(Matrix, BeginsAsTheIdentity) {
    OwnedMatrix matrix;
    ASSERT_EQ(GdipCreateMatrix(&matrix), Ok);
    EXPECT_EQ(ElementsOf(matrix), (Elements{1, 0, 0, 1, 0, 0}));
    EXPECT_EQ(GdipCreateMatrix(nullptr), InvalidParameter);
    EXPECT_EQ(GdipCreateMatrix2(1, 0, 0, 1, 0, 0, nullptr), InvalidParameter);
}

TEST_F(Matrix, TakesElementsInTheirOrder) {
    const OwnedMatrix matrix = MatrixOf({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(ElementsOf(matrix), (Elements{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(GdipSetMatrixElements(matrix, 6, 5, 4, 3, 2, 1), Ok);
    EXPECT_EQ(ElementsOf(matrix), (Elements{6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(GdipSetMatrixElements(nullptr, 6, 5, 4, 3, 2, 1), InvalidParameter);
    EXPECT_EQ(GdipGetMatrixElements(matrix, nullptr), InvalidParameter);
    REAL out[6];
    EXPECT_EQ(GdipGetMatrixElements(nullptr, out), InvalidParameter);
}

TEST_F(Matrix, TakesARectangleToAParallelogram) {
    const GpRectF rect{10, 20, 4, 2};
    const GpPointF corners[] = {{0, 0}, {8, 4}, {-2, 6}};
    OwnedMatrix matrix;
    ASSERT_EQ(GdipCreateMatrix3(&rect, corners, &matrix), Ok);
    GpPointF points[] = {{10, 20}, {14, 20}, {10, 22}, {14, 22}};
    EXPECT_EQ(GdipTransformMatrixPoints(matrix, points, 4), Ok);
    EXPECT_THAT(std::vector(points, points + 4),
                IsNear(std::vector<GpPointF>{{0, 0}, {8, 4}, {-2, 6}, {6, 10}}, 1e-4f));
    EXPECT_EQ(GdipCreateMatrix3(nullptr, corners, &matrix), InvalidParameter);
    EXPECT_EQ(GdipCreateMatrix3(&rect, nullptr, &matrix), InvalidParameter);
}

TEST_F(Matrix, TakesAnIntegerRectangleToo) {
    const GpRect rect{0, 0, 2, 4};
    const GpPoint corners[] = {{5, 6}, {9, 6}, {5, 18}};
    OwnedMatrix matrix;
    ASSERT_EQ(GdipCreateMatrix3I(&rect, corners, &matrix), Ok);
    EXPECT_EQ(ElementsOf(matrix), (Elements{2, 0, 0, 3, 5, 6}));
    EXPECT_EQ(GdipCreateMatrix3I(&rect, nullptr, &matrix), InvalidParameter);
}

TEST_F(Matrix, NeedsARectangleWithArea) {
    const GpPoint corners[] = {{5, 6}, {9, 6}, {5, 18}};
    OwnedMatrix matrix;
    for (const GpRect rect : {GpRect{0, 0, 0, 4}, GpRect{0, 0, 4, 0}}) {
        EXPECT_EQ(GdipCreateMatrix3I(&rect, corners, &matrix), OutOfMemory);
        EXPECT_EQ(matrix, nullptr);
    }
}

TEST_F(Matrix, ACloneIsItsOwn) {
    const OwnedMatrix matrix = MatrixOf({1, 2, 3, 4, 5, 6});
    OwnedMatrix clone;
    ASSERT_EQ(GdipCloneMatrix(matrix, &clone), Ok);
    EXPECT_EQ(GdipSetMatrixElements(matrix, 1, 0, 0, 1, 0, 0), Ok);
    EXPECT_EQ(ElementsOf(clone), (Elements{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(GdipCloneMatrix(nullptr, &clone), InvalidParameter);
}

TEST_F(Matrix, IsDeletedOnce) {
    GpMatrix* matrix = nullptr;
    ASSERT_EQ(GdipCreateMatrix(&matrix), Ok);
    EXPECT_EQ(GdipDeleteMatrix(matrix), Ok);
    EXPECT_EQ(GdipDeleteMatrix(matrix), InvalidParameter);
    EXPECT_EQ(GdipInvertMatrix(matrix), InvalidParameter);
    EXPECT_EQ(GdipDeleteMatrix(nullptr), InvalidParameter);
}

struct Change {
    const char* name;
    GpStatus (*apply)(GpMatrix*, MatrixOrder);
    Elements alone;      ///< on the identity
    Elements prepended;  ///< on (2, 0, 0, 3, 10, 20)
    Elements appended;
};

const Change kChanges[] = {
    {"translate",
     [](GpMatrix* m, MatrixOrder o) { return GdipTranslateMatrix(m, 5, 7, o); },
     {1, 0, 0, 1, 5, 7},
     {2, 0, 0, 3, 20, 41},
     {2, 0, 0, 3, 15, 27}},
    {"scale",
     [](GpMatrix* m, MatrixOrder o) { return GdipScaleMatrix(m, 2, 4, o); },
     {2, 0, 0, 4, 0, 0},
     {4, 0, 0, 12, 10, 20},
     {4, 0, 0, 12, 20, 80}},
    {"rotate",
     [](GpMatrix* m, MatrixOrder o) { return GdipRotateMatrix(m, 90, o); },
     {0, 1, -1, 0, 0, 0},
     {0, 3, -2, 0, 10, 20},
     {0, 2, -3, 0, -20, 10}},
    {"shear",
     [](GpMatrix* m, MatrixOrder o) { return GdipShearMatrix(m, 2, 5, o); },
     {1, 5, 2, 1, 0, 0},
     {2, 15, 4, 3, 10, 20},
     {2, 10, 6, 3, 50, 70}},
    {"multiply",
     [](GpMatrix* m, MatrixOrder o) {
         return GdipMultiplyMatrix(m, MatrixOf({1, 2, 3, 4, 5, 6}), o);
     },
     {1, 2, 3, 4, 5, 6},
     {2, 6, 6, 12, 20, 38},
     {2, 4, 9, 12, 75, 106}},
};

TEST_F(Matrix, ChangesComeBeforeOrAfter) {
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.name);
        const OwnedMatrix alone = MatrixOf({1, 0, 0, 1, 0, 0});
        const OwnedMatrix before = MatrixOf({2, 0, 0, 3, 10, 20});
        const OwnedMatrix after = MatrixOf({2, 0, 0, 3, 10, 20});
        EXPECT_EQ(change.apply(alone, MatrixOrderPrepend), Ok);
        EXPECT_EQ(change.apply(before, MatrixOrderPrepend), Ok);
        EXPECT_EQ(change.apply(after, MatrixOrderAppend), Ok);
        ExpectElements(alone, change.alone);
        ExpectElements(before, change.prepended);
        ExpectElements(after, change.appended);
    }
}

TEST_F(Matrix, ChangesNeedAMatrixAndAnOrder) {
    const OwnedMatrix matrix = MatrixOf({1, 2, 3, 4, 5, 6});
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.name);
        EXPECT_EQ(change.apply(nullptr, MatrixOrderAppend), InvalidParameter);
        EXPECT_EQ(change.apply(matrix, static_cast<MatrixOrder>(2)), InvalidParameter);
    }
    EXPECT_EQ(GdipMultiplyMatrix(matrix, nullptr, MatrixOrderAppend), InvalidParameter);
    EXPECT_EQ(ElementsOf(matrix), (Elements{1, 2, 3, 4, 5, 6}));
}

TEST_F(Matrix, MultipliesWithItself) {
    const OwnedMatrix matrix = MatrixOf({2, 0, 0, 3, 1, 1});
    EXPECT_EQ(GdipMultiplyMatrix(matrix, matrix, MatrixOrderAppend), Ok);
    EXPECT_EQ(ElementsOf(matrix), (Elements{4, 0, 0, 9, 3, 4}));
}

TEST_F(Matrix, AnInverseUndoesIt) {
    const OwnedMatrix matrix = MatrixOf({2, 1, -1, 4, 30, -7});
    OwnedMatrix inverse;
    ASSERT_EQ(GdipCloneMatrix(matrix, &inverse), Ok);
    ASSERT_EQ(GdipInvertMatrix(inverse), Ok);
    EXPECT_EQ(GdipMultiplyMatrix(inverse, matrix, MatrixOrderAppend), Ok);
    ExpectElements(inverse, {1, 0, 0, 1, 0, 0});
    EXPECT_EQ(GdipInvertMatrix(nullptr), InvalidParameter);
}

TEST_F(Matrix, WithoutAnInverseStaysAsItIs) {
    const OwnedMatrix flat = MatrixOf({2, 4, 1, 2, 5, 6});
    BOOL result = 1;
    EXPECT_EQ(GdipIsMatrixInvertible(flat, &result), Ok);
    EXPECT_FALSE(result);
    EXPECT_EQ(GdipInvertMatrix(flat), InvalidParameter);
    EXPECT_EQ(ElementsOf(flat), (Elements{2, 4, 1, 2, 5, 6}));
}

TEST_F(Matrix, TellsWhatItIs) {
    const OwnedMatrix identity = MatrixOf({1, 0, 0, 1, 0, 0});
    const OwnedMatrix shifted = MatrixOf({1, 0, 0, 1, 0, 3});
    BOOL result = 0;
    EXPECT_EQ(GdipIsMatrixInvertible(shifted, &result), Ok);
    EXPECT_TRUE(result);
    EXPECT_EQ(GdipIsMatrixIdentity(identity, &result), Ok);
    EXPECT_TRUE(result);
    EXPECT_EQ(GdipIsMatrixIdentity(shifted, &result), Ok);
    EXPECT_FALSE(result);
    EXPECT_EQ(GdipIsMatrixEqual(identity, MatrixOf({1, 0, 0, 1, 0, 0}), &result), Ok);
    EXPECT_TRUE(result);
    EXPECT_EQ(GdipIsMatrixEqual(identity, shifted, &result), Ok);
    EXPECT_FALSE(result);
}

TEST_F(Matrix, QuestionsNeedAMatrixAndAPlaceForTheAnswer) {
    const OwnedMatrix matrix = MatrixOf({1, 0, 0, 1, 0, 0});
    BOOL result = 7;
    EXPECT_EQ(GdipIsMatrixInvertible(matrix, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsMatrixInvertible(nullptr, &result), InvalidParameter);
    EXPECT_EQ(GdipIsMatrixIdentity(matrix, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsMatrixIdentity(nullptr, &result), InvalidParameter);
    EXPECT_EQ(GdipIsMatrixEqual(matrix, matrix, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsMatrixEqual(matrix, nullptr, &result), InvalidParameter);
    EXPECT_EQ(GdipIsMatrixEqual(nullptr, matrix, &result), InvalidParameter);
    EXPECT_EQ(result, 7);
}

TEST_F(Matrix, MovesPointsAndTurnsVectors) {
    const OwnedMatrix matrix = MatrixOf({0, 2, -3, 0, 10, 20});
    GpPointF points[] = {{1, 0}, {0, 1}};
    EXPECT_EQ(GdipTransformMatrixPoints(matrix, points, 2), Ok);
    EXPECT_THAT(points, ElementsAre(GpPointF{10, 22}, GpPointF{7, 20}));
    GpPointF vectors[] = {{1, 0}, {0, 1}};
    EXPECT_EQ(GdipVectorTransformMatrixPoints(matrix, vectors, 2), Ok);
    EXPECT_THAT(vectors, ElementsAre(GpPointF{0, 2}, GpPointF{-3, 0}));
}

TEST_F(Matrix, RoundsIntegerPointsWithHalvesUpwards) {
    const OwnedMatrix matrix = MatrixOf({0.5f, 0, 0, 0.5f, 1, 0});
    GpPoint points[] = {{3, 5}, {-3, -5}};
    EXPECT_EQ(GdipTransformMatrixPointsI(matrix, points, 2), Ok);
    EXPECT_THAT(points, ElementsAre(GpPoint{3, 3}, GpPoint{0, -2}));
    GpPoint vectors[] = {{3, 5}, {-3, -5}};
    EXPECT_EQ(GdipVectorTransformMatrixPointsI(matrix, vectors, 2), Ok);
    EXPECT_THAT(vectors, ElementsAre(GpPoint{2, 3}, GpPoint{-1, -2}));
}

TEST_F(Matrix, PointsNeedAnArrayAndACount) {
    const OwnedMatrix matrix = MatrixOf({1, 0, 0, 1, 1, 1});
    GpPointF point{1, 2};
    GpPoint pointI{1, 2};
    for (const auto transform : {GdipTransformMatrixPoints, GdipVectorTransformMatrixPoints}) {
        EXPECT_EQ(transform(matrix, nullptr, 1), InvalidParameter);
        EXPECT_EQ(transform(matrix, &point, 0), InvalidParameter);
        EXPECT_EQ(transform(nullptr, &point, 1), InvalidParameter);
    }
    for (const auto transform : {GdipTransformMatrixPointsI, GdipVectorTransformMatrixPointsI}) {
        EXPECT_EQ(transform(matrix, nullptr, 1), InvalidParameter);
        EXPECT_EQ(transform(matrix, &pointI, -1), InvalidParameter);
        EXPECT_EQ(transform(nullptr, &pointI, 1), InvalidParameter);
    }
}

}  // namespace
}  // namespace vxgui::gdiplus
