#include "tests/gdip/WrapperCalls.h"
#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpMatrix.h"
#include "vxgui/gdip/GpPen.h"

namespace vxgui {
namespace {

using test::Handle;

class PenCalls : public WrapperCalls<GpPen> {};
class MatrixCalls : public WrapperCalls<GpMatrix> {
protected:
    MatrixCalls() {
        auto* handle = Handle<gdiplus::GpMatrix>(2);
        other_->SetHandle(handle);
    }
    const Ref<GpMatrix> other_ = New<GpMatrix>();
};

TEST_F(PenCalls, MakeAPenWhereThereIsNone) {
    EXPECT_EQ(object_->Handle(), Handle<gdiplus::GpPen>(9));
    EXPECT_EQ(spy_.Taken(), "GdipCreatePen1(4278190080, 1, 2, out)");
    EXPECT_EQ(object_->Handle(), Handle<gdiplus::GpPen>(9));
    EXPECT_EQ(spy_.Taken(), "") << "once";
}

TEST_F(PenCalls, OfCreation) {
    const auto brush = Handle<gdiplus::GpBrush>(4);
    Are("GdipCreatePen1(7, 1, 2, out); GdipDeletePen(#1)", [](GpPen& p) { return p.Create(7); });
    Are("GdipCreatePen1(7, 2.5, 6, out); GdipDeletePen(#1)",
        [](GpPen& p) { return p.Create(7, 2.5f, gdiplus::UnitMillimeter); });
    Are("GdipCreatePen2(#4, 1, 2, out); GdipDeletePen(#1)",
        [&](GpPen& p) { return p.CreateWithBrush(brush); });
    Are("GdipCreatePen2(#4, 2.5, 6, out); GdipDeletePen(#1)",
        [&](GpPen& p) { return p.CreateWithBrush(brush, 2.5f, gdiplus::UnitMillimeter); });
    Are("GdipClonePen(#1, out)", [](GpPen& p) { return p.Clone(); });
}

TEST_F(PenCalls, OfTheNib) {
    float width = 0;
    Are("GdipSetPenWidth(#1, 2.5)", [](GpPen& p) { return p.SetWidth(2.5f); });
    Are("GdipGetPenWidth(#1, out)", [&](GpPen& p) { return p.GetWidth(width); });
    Are("GdipGetPenWidth(#1, out)", [](GpPen& p) { return p.Width(); });
    Are("GdipSetPenWidth(#1, 2.5)", [](GpPen& p) { p.Width(2.5f); });
    Are("GdipGetPenUnit(#1, out)", [](GpPen& p) { return p.Unit(); });
    Are("GdipSetPenUnit(#1, 4)", [](GpPen& p) { p.Unit(gdiplus::UnitInch); });
    Are("GdipGetPenLineJoin(#1, out)", [](GpPen& p) { return p.LineJoin(); });
    Are("GdipSetPenLineJoin(#1, 2)", [](GpPen& p) { p.LineJoin(gdiplus::LineJoinRound); });
    Are("GdipGetPenMiterLimit(#1, out)", [](GpPen& p) { return p.MiterLimit(); });
    Are("GdipSetPenMiterLimit(#1, 2.5)", [](GpPen& p) { p.MiterLimit(2.5f); });
    Are("GdipGetPenMode(#1, out)", [](GpPen& p) { return p.Alignment(); });
    Are("GdipSetPenMode(#1, 1)", [](GpPen& p) { p.Alignment(gdiplus::PenAlignmentInset); });
}

TEST_F(PenCalls, OfTheCaps) {
    Are("GdipSetPenLineCap197819(#1, 1, 2, 3)", [](GpPen& p) {
        return p.SetLineCap(gdiplus::LineCapSquare, gdiplus::LineCapRound,
                            gdiplus::DashCapTriangle);
    });
    Are("GdipSetPenStartCap(#1, 2)", [](GpPen& p) { return p.SetStartCap(gdiplus::LineCapRound); });
    Are("GdipSetPenEndCap(#1, 2)", [](GpPen& p) { return p.SetEndCap(gdiplus::LineCapRound); });
    Are("GdipSetPenDashCap197819(#1, 2)",
        [](GpPen& p) { return p.SetDashCap(gdiplus::DashCapRound); });
    Are("GdipGetPenStartCap(#1, out)", [](GpPen& p) { return p.StartCap(); });
    Are("GdipSetPenStartCap(#1, 2)", [](GpPen& p) { p.StartCap(gdiplus::LineCapRound); });
    Are("GdipGetPenEndCap(#1, out)", [](GpPen& p) { return p.EndCap(); });
    Are("GdipSetPenEndCap(#1, 2)", [](GpPen& p) { p.EndCap(gdiplus::LineCapRound); });
    Are("GdipGetPenDashCap197819(#1, out)", [](GpPen& p) { return p.DashCap(); });
    Are("GdipSetPenDashCap197819(#1, 2)", [](GpPen& p) { p.DashCap(gdiplus::DashCapRound); });
}

TEST_F(PenCalls, OfTheTransform) {
    const Ref<GpMatrix> matrix = New<GpMatrix>();
    auto* handle = Handle<gdiplus::GpMatrix>(5);
    matrix->SetHandle(handle);
    Are("GdipSetPenTransform(#1, #5)", [&](GpPen& p) { p.Transform(matrix); });
    Are("GdipSetPenTransform(#1, 0)", [](GpPen& p) { p.Transform(nullptr); });
    Are("GdipResetPenTransform(#1)", [](GpPen& p) { return p.ResetTransform(); });
    Are("GdipMultiplyPenTransform(#1, #5, 0)",
        [&](GpPen& p) { return p.MultiplyTransform(matrix); });
    Are("GdipMultiplyPenTransform(#1, #5, 1)",
        [&](GpPen& p) { return p.MultiplyTransform(matrix, gdiplus::MatrixOrderAppend); });
    Are("GdipTranslatePenTransform(#1, 1, 2, 0)",
        [](GpPen& p) { return p.TranslateTransform(1, 2); });
    Are("GdipTranslatePenTransform(#1, 1, 2, 1)",
        [](GpPen& p) { return p.TranslateTransform(1, 2, gdiplus::MatrixOrderAppend); });
    Are("GdipScalePenTransform(#1, 1, 2, 0)", [](GpPen& p) { return p.ScaleTransform(1, 2); });
    Are("GdipScalePenTransform(#1, 1, 2, 1)",
        [](GpPen& p) { return p.ScaleTransform(1, 2, gdiplus::MatrixOrderAppend); });
    Are("GdipRotatePenTransform(#1, 30, 0)", [](GpPen& p) { return p.RotateTransform(30); });
    Are("GdipRotatePenTransform(#1, 30, 1)",
        [](GpPen& p) { return p.RotateTransform(30, gdiplus::MatrixOrderAppend); });
}

// The matrix that reading answers has no handle until it is asked for, and is an identity then.
TEST_F(PenCalls, ReadTheTransformBySettingNone) {
    for (const gdiplus::Status answer : {gdiplus::Ok, gdiplus::WrongState}) {
        Renew();
        spy_.Answer(answer);
        const Ref<GpMatrix> got = object_->Transform();
        EXPECT_EQ(spy_.Taken(), "GdipSetPenTransform(#1, 0)");
        ASSERT_TRUE(got);
        got->Handle();
        EXPECT_EQ(spy_.Taken(), "GdipCreateMatrix(out)");
        EXPECT_EQ(object_->Status, answer);
    }
}

TEST_F(PenCalls, OfThePaint) {
    const Ref<GpBrush> brush = New<GpBrush>();
    auto* handle = Handle<gdiplus::GpBrush>(5);
    brush->SetHandle(handle);
    Are("GdipGetPenColor(#1, out)", [](GpPen& p) { return p.Color(); });
    Are("GdipSetPenColor(#1, 7)", [](GpPen& p) { p.Color(7); });
    Are("GdipSetPenBrushFill(#1, #5)", [&](GpPen& p) { p.Brush(brush); });
    Are("GdipGetPenBrushFill(#1, out); GdipGetBrushType(#9, out)",
        [](GpPen& p) { return p.Brush(); });
    Are("GdipGetPenFillType(#1, out)", [](GpPen& p) { return p.PenType(); });
}

TEST_F(PenCalls, OfDashesAndStripes) {
    float list[] = {1.5f, 2};
    Are("GdipGetPenDashStyle(#1, out)", [](GpPen& p) { return p.DashStyle(); });
    Are("GdipSetPenDashStyle(#1, 2)", [](GpPen& p) { p.DashStyle(gdiplus::DashStyleDot); });
    Are("GdipGetPenDashOffset(#1, out)", [](GpPen& p) { return p.DashOffset(); });
    Are("GdipSetPenDashOffset(#1, 2.5)", [](GpPen& p) { p.DashOffset(2.5f); });
    Are("GdipGetPenDashCount(#1, out)", [](GpPen& p) { return p.DashPatternCount(); });
    Are("GdipSetPenDashArray(#1, {1.5}, 2)", [&](GpPen& p) { return p.SetDashPattern(list, 2); });
    Are("GdipGetPenCompoundCount(#1, out)", [](GpPen& p) { return p.CompoundArrayCount(); });
    Are("GdipSetPenCompoundArray(#1, {1.5}, 2)",
        [&](GpPen& p) { return p.SetCompoundArray(list, 2); });
    Are("GdipGetPenDashArray(#1, out, 2)", [&](GpPen& p) { return p.GetDashPattern(list, 2); });
    Are("GdipGetPenCompoundArray(#1, out, 2)",
        [&](GpPen& p) { return p.GetCompoundArray(list, 2); });
}

// Only lists of points, rectangles and colours are looked at before the call.
TEST_F(PenCalls, OfListsOfNumbersAreMadeWhateverTheyHold) {
    const float number = 1.5f;
    Are("GdipSetPenDashArray(#1, {1.5}, 0)",
        [&](GpPen& p) { return p.SetDashPattern(&number, 0); });
    Are("GdipSetPenDashArray(#1, 0, 2)", [](GpPen& p) { return p.SetDashPattern(nullptr, 2); });
    Are("GdipSetPenCompoundArray(#1, {1.5}, -1)",
        [&](GpPen& p) { return p.SetCompoundArray(&number, -1); });
    Are("GdipSetPenCompoundArray(#1, 0, 2)",
        [](GpPen& p) { return p.SetCompoundArray(nullptr, 2); });
}

TEST_F(MatrixCalls, MakeAnIdentityWhereThereIsNone) {
    EXPECT_EQ(object_->Handle(), Handle<gdiplus::GpMatrix>(9));
    EXPECT_EQ(spy_.Taken(), "GdipCreateMatrix(out)");
    object_->Dispose();
    spy_.Answer(gdiplus::WrongState);
    EXPECT_EQ(object_->Handle(), nullptr);
    EXPECT_EQ(object_->Status, gdiplus::Ok) << "the status of that isn't kept";
}

TEST_F(MatrixCalls, OfCreation) {
    Are("GdipCreateMatrix2(1, 2, 3, 4, 5, 6.5, out); GdipDeleteMatrix(#1)",
        [](GpMatrix& m) { return m.CreateF(1, 2, 3, 4, 5, 6.5f); });
    Are("GdipCreateMatrix3I({1 2 3 4}, {5 6}, out); GdipDeleteMatrix(#1)",
        [](GpMatrix& m) { return m.CreateI(1, 2, 3, 4, 5, 6); });
    Are("GdipCloneMatrix(#1, out)", [](GpMatrix& m) { return m.Clone(); });
}

TEST_F(MatrixCalls, OfElements) {
    float elements[6];
    Are("GdipSetMatrixElements(#1, 1, 2, 3, 4, 5, 6.5)",
        [](GpMatrix& m) { return m.SetElements(1, 2, 3, 4, 5, 6.5f); });
    Are("GdipGetMatrixElements(#1, out)", [&](GpMatrix& m) { return m.GetElements(elements); });
}

TEST_F(MatrixCalls, OfCombination) {
    constexpr auto kAppend = gdiplus::MatrixOrderAppend;
    Are("GdipMultiplyMatrix(#1, #2, 0)", [&](GpMatrix& m) { return m.Multiply(other_); });
    Are("GdipMultiplyMatrix(#1, #2, 1)", [&](GpMatrix& m) { return m.Multiply(other_, kAppend); });
    Are("GdipTranslateMatrix(#1, 1, 2.5, 0)", [](GpMatrix& m) { return m.Translate(1, 2.5f); });
    Are("GdipTranslateMatrix(#1, 1, 2, 1)", [](GpMatrix& m) { return m.Translate(1, 2, kAppend); });
    Are("GdipScaleMatrix(#1, 1, 2.5, 0)", [](GpMatrix& m) { return m.ScaleMatrix(1, 2.5f); });
    Are("GdipScaleMatrix(#1, 1, 2, 1)", [](GpMatrix& m) { return m.ScaleMatrix(1, 2, kAppend); });
    Are("GdipRotateMatrix(#1, 30, 0)", [](GpMatrix& m) { return m.Rotate(30); });
    Are("GdipRotateMatrix(#1, 30, 1)", [](GpMatrix& m) { return m.Rotate(30, kAppend); });
    Are("GdipShearMatrix(#1, 1, 2.5, 0)", [](GpMatrix& m) { return m.Shear(1, 2.5f); });
    Are("GdipShearMatrix(#1, 1, 2, 1)", [](GpMatrix& m) { return m.Shear(1, 2, kAppend); });
    Are("GdipInvertMatrix(#1)", [](GpMatrix& m) { return m.Invert(); });
}

TEST_F(MatrixCalls, OfPoints) {
    gdiplus::GpPointF points[] = {{1.5f, 2}, {}};
    gdiplus::GpPoint pointsI[] = {{1, 2}, {}};
    Are("GdipTransformMatrixPoints(#1, {1.5 2}, 2)",
        [&](GpMatrix& m) { return m.TransformPoints(points, 2); });
    Are("GdipTransformMatrixPointsI(#1, {1 2}, 2)",
        [&](GpMatrix& m) { return m.TransformPointsI(pointsI, 2); });
    Are("GdipVectorTransformMatrixPoints(#1, {1.5 2}, 2)",
        [&](GpMatrix& m) { return m.TransformVectors(points, 2); });
    Are("GdipVectorTransformMatrixPointsI(#1, {1 2}, 2)",
        [&](GpMatrix& m) { return m.TransformVectorsI(pointsI, 2); });
}

TEST_F(MatrixCalls, OfQuestions) {
    Are("GdipIsMatrixInvertible(#1, out)", [](GpMatrix& m) { return m.IsInvertible(); });
    Are("GdipIsMatrixIdentity(#1, out)", [](GpMatrix& m) { return m.IsIdentity(); });
    Are("GdipIsMatrixEqual(#1, #2, out)", [&](GpMatrix& m) { return m.Equals(other_); });
    Renew();
    spy_.Store(0);
    EXPECT_FALSE(object_->IsInvertible());
    EXPECT_FALSE(object_->IsIdentity());
    EXPECT_FALSE(object_->Equals(other_));
}

}  // namespace
}  // namespace vxgui
