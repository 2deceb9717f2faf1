#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpMatrix.h"

namespace vxgui {
namespace {

using Elements = std::array<float, 6>;

class MatrixWrapper : public testing::Test {
protected:
    static Elements ElementsOf(const Ref<GpMatrix>& matrix) {
        Elements elements{};
        EXPECT_TRUE(matrix->GetElements(elements.data()));
        return elements;
    }

    test::GdiplusSession session_;
    Ref<GpMatrix> matrix_ = New<GpMatrix>();
};

TEST_F(MatrixWrapper, IsAnIdentityWhenItsHandleIsRead) {
    EXPECT_NE(matrix_->Handle(), nullptr);
    EXPECT_TRUE(matrix_->IsIdentity());
    EXPECT_EQ(ElementsOf(matrix_), (Elements{1, 0, 0, 1, 0, 0}));
}

TEST_F(MatrixWrapper, TakesElements) {
    EXPECT_TRUE(matrix_->CreateF(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(ElementsOf(matrix_), (Elements{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(matrix_->SetElements(6, 5, 4, 3, 2, 1));
    EXPECT_EQ(ElementsOf(matrix_), (Elements{6, 5, 4, 3, 2, 1}));
    EXPECT_FALSE(matrix_->GetElements(nullptr));
    EXPECT_EQ(matrix_->Status, gdiplus::InvalidParameter);
}

TEST_F(MatrixWrapper, CreateIReadsItsArgumentsAsARectangleAndThreePoints) {
    ASSERT_TRUE(matrix_->CreateI(1, 2, 3, 4, 50, 60));
    // The rectangle (1, 2, 3, 4) goes to (50, 60), (0, 1), (2, 3).
    gdiplus::GpPointF points[] = {{1, 2}, {4, 2}, {1, 6}};
    ASSERT_TRUE(matrix_->TransformPoints(points, 3));
    EXPECT_NEAR(points[0].X, 50, 1e-3);
    EXPECT_NEAR(points[0].Y, 60, 1e-3);
    EXPECT_NEAR(points[1].X, 0, 1e-3);
    EXPECT_NEAR(points[1].Y, 1, 1e-3);
    EXPECT_NEAR(points[2].X, 2, 1e-3);
    EXPECT_NEAR(points[2].Y, 3, 1e-3);
}

TEST_F(MatrixWrapper, AFailedCreationKeepsTheMatrix) {
    ASSERT_TRUE(matrix_->CreateF(1, 2, 3, 4, 5, 6));
    gdiplus::GpMatrix* const handle = matrix_->Handle();
    EXPECT_FALSE(matrix_->CreateI(1, 0, 0, 1, 0, 0));  // a rectangle without area
    EXPECT_EQ(matrix_->Handle(), handle);
    EXPECT_EQ(matrix_->Status, gdiplus::OutOfMemory);
    EXPECT_TRUE(matrix_->Invert());
    EXPECT_EQ(matrix_->Status, gdiplus::OutOfMemory);
}

TEST_F(MatrixWrapper, CombinesInOrder) {
    EXPECT_TRUE(matrix_->Translate(1, 2));
    EXPECT_TRUE(matrix_->ScaleMatrix(2, 3, gdiplus::MatrixOrderAppend));
    EXPECT_EQ(ElementsOf(matrix_), (Elements{2, 0, 0, 3, 2, 6}));
    EXPECT_TRUE(matrix_->Shear(1, 0));
    EXPECT_EQ(ElementsOf(matrix_), (Elements{2, 0, 2, 3, 2, 6}));
    const Ref<GpMatrix> other = New<GpMatrix>();
    ASSERT_TRUE(other->CreateF(0, 1, -1, 0, 0, 0));
    EXPECT_TRUE(matrix_->Multiply(other));
    EXPECT_EQ(ElementsOf(matrix_), (Elements{2, 3, -2, 0, 2, 6}));
    const Ref<GpMatrix> turned = New<GpMatrix>();
    EXPECT_TRUE(turned->Rotate(90));
    EXPECT_NEAR(ElementsOf(turned)[1], 1, 1e-6);
    EXPECT_FALSE(matrix_->Multiply(nullptr));
    EXPECT_EQ(matrix_->Status, gdiplus::InvalidParameter);
}

TEST_F(MatrixWrapper, InvertsAndTellsWhatItIs) {
    ASSERT_TRUE(matrix_->CreateF(2, 0, 0, 4, 0, 0));
    EXPECT_TRUE(matrix_->IsInvertible());
    EXPECT_FALSE(matrix_->IsIdentity());
    EXPECT_TRUE(matrix_->Invert());
    EXPECT_EQ(ElementsOf(matrix_), (Elements{0.5f, 0, 0, 0.25f, 0, 0}));
    ASSERT_TRUE(matrix_->CreateF(0, 0, 0, 0, 0, 0));
    EXPECT_FALSE(matrix_->IsInvertible());
    EXPECT_EQ(matrix_->Status, gdiplus::Ok);
    EXPECT_FALSE(matrix_->Invert());
    EXPECT_EQ(matrix_->Status, gdiplus::InvalidParameter);
}

TEST_F(MatrixWrapper, EqualsAnother) {
    ASSERT_TRUE(matrix_->CreateF(1, 2, 3, 4, 5, 6));
    const Ref<GpMatrix> clone = matrix_->Clone();
    EXPECT_NE(clone->Handle(), matrix_->Handle());
    EXPECT_TRUE(matrix_->Equals(clone));
    EXPECT_TRUE(clone->Translate(1, 0));
    EXPECT_FALSE(matrix_->Equals(clone));
    EXPECT_EQ(matrix_->Status, gdiplus::Ok);
    EXPECT_FALSE(matrix_->Equals(nullptr));
    EXPECT_EQ(matrix_->Status, gdiplus::InvalidParameter);
}

TEST_F(MatrixWrapper, TransformsArraysInPlace) {
    ASSERT_TRUE(matrix_->CreateF(2, 0, 0, 2, 10, 0));
    gdiplus::GpPointF points[] = {{1, 1}, {2, 2}}, vectors[] = {{1, 1}};
    gdiplus::GpPoint pointsI[] = {{1, 1}}, vectorsI[] = {{3, 4}};
    EXPECT_TRUE(matrix_->TransformPoints(points, 2));
    EXPECT_EQ(points[1].X, 14);
    EXPECT_TRUE(matrix_->TransformVectors(vectors, 1));
    EXPECT_EQ(vectors[0].X, 2);
    EXPECT_TRUE(matrix_->TransformPointsI(pointsI, 1));
    EXPECT_EQ(pointsI[0].X, 12);
    EXPECT_TRUE(matrix_->TransformVectorsI(vectorsI, 1));
    EXPECT_EQ(vectorsI[0].Y, 8);
}

TEST_F(MatrixWrapper, WithoutPointsCallsNothing) {
    gdiplus::GpPointF point{1, 1};
    gdiplus::GpPoint pointI{1, 1};
    EXPECT_FALSE(matrix_->TransformPoints(&point, 0));
    EXPECT_FALSE(matrix_->TransformVectors(&point, -1));
    EXPECT_FALSE(matrix_->TransformPointsI(&pointI, 0));
    EXPECT_FALSE(matrix_->TransformVectorsI(&pointI, -5));
    EXPECT_EQ(matrix_->Status, gdiplus::Ok);
}

}  // namespace
}  // namespace vxgui
