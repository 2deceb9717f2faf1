#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpMatrix.h"
#include "vxgui/gdip/GpPen.h"

namespace vxgui {
namespace {

class PenWrapper : public testing::Test {
protected:
    /// The flat transform, which the wrapper never reads.
    float FlatScale() {
        float elements[6]{};
        const Ref<GpMatrix> matrix = New<GpMatrix>();
        EXPECT_EQ(gdiplus::GdipGetPenTransform(pen_->Handle(), matrix->Handle()), gdiplus::Ok);
        EXPECT_TRUE(matrix->GetElements(elements));
        return elements[0];
    }

    test::GdiplusSession session_;
    Ref<GpPen> pen_ = New<GpPen>();
};

TEST_F(PenWrapper, IsBlackAndOnePixelWideWhenItsHandleIsRead) {
    EXPECT_NE(pen_->Handle(), nullptr);
    EXPECT_EQ(pen_->Width(), 1);
    EXPECT_EQ(pen_->Color(), 0xFF000000u);
    EXPECT_EQ(pen_->Unit(), gdiplus::UnitPixel);
    EXPECT_EQ(pen_->Status, gdiplus::Ok);
}

TEST_F(PenWrapper, IsAPixelWideByDefault) {
    ASSERT_TRUE(pen_->Create(0x80FF0000));
    EXPECT_EQ(pen_->Width(), 1);
    EXPECT_EQ(pen_->Unit(), gdiplus::UnitPixel);
    EXPECT_EQ(pen_->Color(), 0x80FF0000u);
    EXPECT_FALSE(pen_->Create(0, 1, static_cast<gdiplus::Unit>(77)));
    EXPECT_EQ(pen_->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(pen_->Color(), 0x80FF0000u);
}

TEST_F(PenWrapper, IsMadeOfABrush) {
    const Ref<GpBrush> brush = New<GpBrush>();
    ASSERT_TRUE(brush->CreateHatchBrush(gdiplus::HatchStyleCross, 0xFF112233, 0));
    ASSERT_TRUE(pen_->CreateWithBrush(brush->Handle()));
    EXPECT_EQ(pen_->Width(), 1);
    EXPECT_EQ(pen_->Unit(), gdiplus::UnitPixel);
    EXPECT_EQ(pen_->PenType(), gdiplus::PenTypeHatchFill);
    const Ref<GpBrush> got = pen_->Brush();
    ASSERT_TRUE(got);
    EXPECT_EQ(got->GetForegroundColor(), 0xFF112233u);
    EXPECT_EQ(pen_->Color(), 0u);
    EXPECT_EQ(pen_->Status, gdiplus::WrongState);
}

TEST_F(PenWrapper, TakesABrush) {
    const Ref<GpBrush> brush = New<GpBrush>();
    ASSERT_TRUE(brush->CreateSolidBrush(0xFF445566));
    pen_->Brush(brush);
    EXPECT_EQ(pen_->Color(), 0xFF445566u);
    pen_->Color(0xFF010101);
    EXPECT_EQ(pen_->Brush()->GetColor(), 0xFF010101u);
    pen_->Brush(nullptr);
    EXPECT_EQ(pen_->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(pen_->Color(), 0xFF010101u);
}

TEST_F(PenWrapper, KeepsItsProperties) {
    pen_->Width(3);
    pen_->Unit(gdiplus::UnitPoint);
    pen_->StartCap(gdiplus::LineCapRound);
    pen_->EndCap(gdiplus::LineCapArrowAnchor);
    pen_->DashCap(gdiplus::DashCapTriangle);
    pen_->LineJoin(gdiplus::LineJoinBevel);
    pen_->MiterLimit(4);
    pen_->Alignment(gdiplus::PenAlignmentInset);
    pen_->DashStyle(gdiplus::DashStyleDash);
    pen_->DashOffset(1.5f);
    float width = 0;
    EXPECT_TRUE(pen_->GetWidth(width));
    EXPECT_EQ(width, 3);
    EXPECT_EQ(pen_->Unit(), gdiplus::UnitPoint);
    EXPECT_EQ(pen_->StartCap(), gdiplus::LineCapRound);
    EXPECT_EQ(pen_->EndCap(), gdiplus::LineCapArrowAnchor);
    EXPECT_EQ(pen_->DashCap(), gdiplus::DashCapTriangle);
    EXPECT_EQ(pen_->LineJoin(), gdiplus::LineJoinBevel);
    EXPECT_EQ(pen_->MiterLimit(), 4);
    EXPECT_EQ(pen_->Alignment(), gdiplus::PenAlignmentInset);
    EXPECT_EQ(pen_->DashStyle(), gdiplus::DashStyleDash);
    EXPECT_EQ(pen_->DashOffset(), 1.5f);
    EXPECT_EQ(pen_->DashPatternCount(), 2);
    EXPECT_EQ(pen_->Status, gdiplus::Ok);
}

TEST_F(PenWrapper, SetsCapsOneByOneAndTogether) {
    EXPECT_TRUE(
        pen_->SetLineCap(gdiplus::LineCapSquare, gdiplus::LineCapTriangle, gdiplus::DashCapRound));
    EXPECT_EQ(pen_->StartCap(), gdiplus::LineCapSquare);
    EXPECT_EQ(pen_->DashCap(), gdiplus::DashCapRound);
    EXPECT_TRUE(pen_->SetStartCap(gdiplus::LineCapRound));
    EXPECT_TRUE(pen_->SetEndCap(gdiplus::LineCapSquare));
    EXPECT_TRUE(pen_->SetDashCap(gdiplus::DashCapFlat));
    EXPECT_EQ(pen_->StartCap(), gdiplus::LineCapRound);
    EXPECT_EQ(pen_->EndCap(), gdiplus::LineCapSquare);
    EXPECT_EQ(pen_->DashCap(), gdiplus::DashCapFlat);
    EXPECT_FALSE(pen_->SetStartCap(static_cast<gdiplus::LineCap>(99)));
    EXPECT_EQ(pen_->Status, gdiplus::InvalidParameter);
}

TEST_F(PenWrapper, ReadingTheTransformLosesIt) {
    ASSERT_TRUE(pen_->ScaleTransform(3, 3));
    EXPECT_EQ(FlatScale(), 3);
    const Ref<GpMatrix> got = pen_->Transform();
    ASSERT_TRUE(got);
    EXPECT_TRUE(got->IsIdentity());
    EXPECT_EQ(FlatScale(), 1);
}

TEST_F(PenWrapper, TakesATransform) {
    const Ref<GpMatrix> matrix = New<GpMatrix>();
    ASSERT_TRUE(matrix->CreateF(5, 0, 0, 5, 0, 0));
    pen_->Transform(matrix);
    EXPECT_EQ(FlatScale(), 5);
    EXPECT_TRUE(pen_->MultiplyTransform(matrix));
    EXPECT_EQ(FlatScale(), 25);
    EXPECT_TRUE(pen_->ResetTransform());
    EXPECT_EQ(FlatScale(), 1);
    EXPECT_TRUE(pen_->RotateTransform(180));
    EXPECT_NEAR(FlatScale(), -1, 1e-6);
    EXPECT_TRUE(pen_->TranslateTransform(1, 1));
    EXPECT_FALSE(pen_->MultiplyTransform(nullptr));
    pen_->Transform(nullptr);
    EXPECT_EQ(FlatScale(), 1);
}

TEST_F(PenWrapper, KeepsItsArrays) {
    const float dashes[] = {2, 1, 4, 1}, shares[] = {0, 0.25f, 0.75f, 1};
    EXPECT_TRUE(pen_->SetDashPattern(dashes, 4));
    EXPECT_TRUE(pen_->SetCompoundArray(shares, 4));
    EXPECT_EQ(pen_->DashPatternCount(), 4);
    EXPECT_EQ(pen_->CompoundArrayCount(), 4);
    float got[4]{};
    EXPECT_TRUE(pen_->GetDashPattern(got, 4));
    EXPECT_THAT(got, testing::ElementsAreArray(dashes));
    EXPECT_TRUE(pen_->GetCompoundArray(got, 4));
    EXPECT_THAT(got, testing::ElementsAreArray(shares));
    EXPECT_EQ(pen_->Status, gdiplus::Ok);
    EXPECT_FALSE(pen_->GetDashPattern(got, 1));
    EXPECT_EQ(pen_->Status, gdiplus::InvalidParameter);
}

TEST_F(PenWrapper, RefusesArraysWithoutNumbers) {
    const float dashes[] = {2, 1};
    for (const int32_t count : {0, -1}) {
        pen_->Status = gdiplus::Ok;
        EXPECT_FALSE(pen_->SetDashPattern(dashes, count));
        EXPECT_EQ(pen_->Status, gdiplus::InvalidParameter);
        pen_->Status = gdiplus::Ok;
        EXPECT_FALSE(pen_->SetCompoundArray(dashes, count));
        EXPECT_EQ(pen_->Status, gdiplus::InvalidParameter);
    }
    EXPECT_FALSE(pen_->SetDashPattern(nullptr, 2));
    EXPECT_FALSE(pen_->SetCompoundArray(nullptr, 2));
    EXPECT_EQ(pen_->DashStyle(), gdiplus::DashStyleSolid);
}

TEST_F(PenWrapper, AHandleIsAdoptedAndDisposedOf) {
    gdiplus::GpPen* flat = nullptr;
    ASSERT_EQ(gdiplus::GdipCreatePen1(0xFF00FF00, 5, gdiplus::UnitWorld, &flat), gdiplus::Ok);
    pen_->SetHandle(flat);
    EXPECT_EQ(pen_->Width(), 5);
    const Ref<GpPen> clone = pen_->Clone();
    pen_->Dispose();
    pen_->Dispose();
    EXPECT_EQ(gdiplus::GdipDeletePen(flat), gdiplus::InvalidParameter);
    EXPECT_EQ(clone->Width(), 5);
    EXPECT_EQ(pen_->Width(), 1);
}

}  // namespace
}  // namespace vxgui
