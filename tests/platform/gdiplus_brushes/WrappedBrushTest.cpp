#include <gtest/gtest.h>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/Matrix.h"

namespace vxgui::gdiplus {
namespace {

// The functions of one kind of brush, and a brush of it.
struct Kind {
    const char* name;
    GpBrush* (*make)();
    GpStatus (*getWrap)(GpBrush*, WrapMode*);
    GpStatus (*setWrap)(GpBrush*, WrapMode);
    GpStatus (*get)(GpBrush*, GpMatrix*);
    GpStatus (*set)(GpBrush*, const GpMatrix*);
    GpStatus (*reset)(GpBrush*);
    GpStatus (*multiply)(GpBrush*, const GpMatrix*, MatrixOrder);
    GpStatus (*translate)(GpBrush*, REAL, REAL, MatrixOrder);
    GpStatus (*scale)(GpBrush*, REAL, REAL, MatrixOrder);
    GpStatus (*rotate)(GpBrush*, REAL, MatrixOrder);
};

void PrintTo(const Kind& kind, std::ostream* out) { *out << kind.name; }

GpBrush* MakeLine() {
    GpBrush* brush = nullptr;
    const GpPointF from{0, 0}, to{10, 0};
    GdipCreateLineBrush(&from, &to, 0xFF000000, 0xFFFFFFFF, WrapModeTileFlipX, &brush);
    return brush;
}

GpBrush* MakePath() {
    GpBrush* brush = nullptr;
    const GpPointF points[] = {{0, 0}, {10, 0}, {0, 10}};
    GdipCreatePathGradient(points, 3, WrapModeTileFlipX, &brush);
    return brush;
}

GpBrush* MakeTexture() {
    GpBrush* brush = nullptr;
    auto* image = static_cast<GpImage*>(EnterObject(Bitmap::Create(2, 2, PixelFormat32bppARGB)));
    GdipCreateTexture(image, WrapModeTileFlipX, &brush);
    RetireObject(image);
    return brush;
}

const Kind kKinds[] = {
    {"Line", MakeLine, GdipGetLineWrapMode, GdipSetLineWrapMode, GdipGetLineTransform,
     GdipSetLineTransform, GdipResetLineTransform, GdipMultiplyLineTransform,
     GdipTranslateLineTransform, GdipScaleLineTransform, GdipRotateLineTransform},
    {"PathGradient", MakePath, GdipGetPathGradientWrapMode, GdipSetPathGradientWrapMode,
     GdipGetPathGradientTransform, GdipSetPathGradientTransform, GdipResetPathGradientTransform,
     GdipMultiplyPathGradientTransform, GdipTranslatePathGradientTransform,
     GdipScalePathGradientTransform, GdipRotatePathGradientTransform},
    {"Texture", MakeTexture, GdipGetTextureWrapMode, GdipSetTextureWrapMode,
     GdipGetTextureTransform, GdipSetTextureTransform, GdipResetTextureTransform,
     GdipMultiplyTextureTransform, GdipTranslateTextureTransform, GdipScaleTextureTransform,
     GdipRotateTextureTransform},
};

class GdiplusWrappedBrush : public test::BrushFixture, public testing::WithParamInterface<Kind> {
protected:
    GdiplusWrappedBrush() : brush_(Keep(GetParam().make())) {}
    ~GdiplusWrappedBrush() override { RetireObject(matrix_); }

    void Load(const Affine& value) { Find<Matrix>(matrix_)->value = value; }
    void ExpectTransform(const Affine& expected) {
        Load({9, 9, 9, 9, 9, 9});
        EXPECT_EQ(GetParam().get(brush_, matrix_), Ok);
        const Affine actual = Find<Matrix>(matrix_)->value;
        EXPECT_FLOAT_EQ(actual.m11, expected.m11);
        EXPECT_FLOAT_EQ(actual.m12, expected.m12);
        EXPECT_FLOAT_EQ(actual.m21, expected.m21);
        EXPECT_FLOAT_EQ(actual.m22, expected.m22);
        EXPECT_FLOAT_EQ(actual.dx, expected.dx);
        EXPECT_FLOAT_EQ(actual.dy, expected.dy);
    }

    GpBrush* brush_;
    GpMatrix* matrix_ = static_cast<GpMatrix*>(EnterObject(New<Matrix>(Affine{})));
};

TEST_P(GdiplusWrappedBrush, KeepsItsWrapMode) {
    WrapMode wrap = WrapModeTile;
    EXPECT_EQ(GetParam().getWrap(brush_, &wrap), Ok);
    EXPECT_EQ(wrap, WrapModeTileFlipX);
    EXPECT_EQ(GetParam().setWrap(brush_, WrapModeTileFlipXY), Ok);
    EXPECT_EQ(GetParam().getWrap(brush_, &wrap), Ok);
    EXPECT_EQ(wrap, WrapModeTileFlipXY);
    EXPECT_EQ(GetParam().setWrap(brush_, static_cast<WrapMode>(5)), InvalidParameter);
    EXPECT_EQ(GetParam().setWrap(nullptr, WrapModeTile), InvalidParameter);
    EXPECT_EQ(GetParam().getWrap(brush_, nullptr), InvalidParameter);
}

TEST_P(GdiplusWrappedBrush, StartsWithoutATransform) { ExpectTransform({}); }

TEST_P(GdiplusWrappedBrush, KeepsAMatrixAndResetsIt) {
    Load({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(GetParam().set(brush_, matrix_), Ok);
    ExpectTransform({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(GetParam().reset(brush_), Ok);
    ExpectTransform({});
}

TEST_P(GdiplusWrappedBrush, CombinesChangesBeforeAndAfter) {
    EXPECT_EQ(GetParam().translate(brush_, 10, 20, MatrixOrderPrepend), Ok);
    EXPECT_EQ(GetParam().scale(brush_, 2, 3, MatrixOrderPrepend), Ok);
    ExpectTransform({2, 0, 0, 3, 10, 20});
    EXPECT_EQ(GetParam().translate(brush_, 1, 1, MatrixOrderAppend), Ok);
    ExpectTransform({2, 0, 0, 3, 11, 21});
    EXPECT_EQ(GetParam().scale(brush_, 2, 2, MatrixOrderAppend), Ok);
    ExpectTransform({4, 0, 0, 6, 22, 42});
    Load({0, 1, 1, 0, 0, 0});
    EXPECT_EQ(GetParam().multiply(brush_, matrix_, MatrixOrderPrepend), Ok);
    ExpectTransform({0, 6, 4, 0, 22, 42});
    EXPECT_EQ(GetParam().reset(brush_), Ok);
    EXPECT_EQ(GetParam().rotate(brush_, 30, MatrixOrderAppend), Ok);
    ExpectTransform(Affine::Rotation(30));
}

TEST_P(GdiplusWrappedBrush, RefusesMatricesWithoutInverseAndUnknownOrders) {
    Load({1, 1, 1, 1, 0, 0});
    EXPECT_EQ(GetParam().set(brush_, matrix_), InvalidParameter);
    EXPECT_EQ(GetParam().multiply(brush_, matrix_, MatrixOrderPrepend), InvalidParameter);
    EXPECT_EQ(GetParam().set(brush_, nullptr), InvalidParameter);
    EXPECT_EQ(GetParam().multiply(brush_, nullptr, MatrixOrderPrepend), InvalidParameter);
    constexpr auto kNoOrder = static_cast<MatrixOrder>(2);
    EXPECT_EQ(GetParam().translate(brush_, 1, 1, kNoOrder), InvalidParameter);
    EXPECT_EQ(GetParam().scale(brush_, 1, 1, kNoOrder), InvalidParameter);
    EXPECT_EQ(GetParam().rotate(brush_, 1, kNoOrder), InvalidParameter);
    ExpectTransform({});
}

TEST_P(GdiplusWrappedBrush, RefusesOtherBrushes) {
    GpBrush* solid = nullptr;
    ASSERT_EQ(GdipCreateSolidFill(0, &solid), Ok);
    Keep(solid);
    EXPECT_EQ(GetParam().get(solid, matrix_), InvalidParameter);
    EXPECT_EQ(GetParam().set(solid, matrix_), InvalidParameter);
    EXPECT_EQ(GetParam().reset(solid), InvalidParameter);
    EXPECT_EQ(GetParam().rotate(solid, 1, MatrixOrderAppend), InvalidParameter);
    EXPECT_EQ(GetParam().get(brush_, nullptr), InvalidParameter);
}

TEST_P(GdiplusWrappedBrush, PaintsNothingUnderATransformWithoutInverse) {
    EXPECT_EQ(GetParam().scale(brush_, 0, 0, MatrixOrderPrepend), Ok);
    EXPECT_EQ(Paint(brush_, 4, 4).pixels, std::vector<uint32_t>(16));
}

INSTANTIATE_TEST_SUITE_P(Kinds, GdiplusWrappedBrush, testing::ValuesIn(kKinds),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace vxgui::gdiplus
