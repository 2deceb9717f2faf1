#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpBrush.h"

namespace vxgui {
namespace {

using gdiplus::GpPoint;
using gdiplus::GpPointF;
using gdiplus::GpRect;
using gdiplus::GpRectF;

constexpr gdiplus::ARGB kRed = 0xFFFF0000, kBlue = 0xFF0000FF;
constexpr GpPointF kTriangle[] = {{0, 0}, {10, 0}, {0, 10}};
constexpr GpPoint kTriangleI[] = {{0, 0}, {10, 0}, {0, 10}};

class BrushWrapper : public testing::Test {
protected:
    ~BrushWrapper() override {
        gdiplus::GdipDisposeImage(image_);
        gdiplus::GdipDeleteMatrix(matrix_);
    }
    BrushWrapper() {
        gdiplus::GpBitmap* bitmap = nullptr;
        gdiplus::GdipCreateBitmapFromScan0(4, 3, 0, gdiplus::PixelFormat32bppARGB, nullptr,
                                           &bitmap);
        image_ = reinterpret_cast<gdiplus::GpImage*>(bitmap);
        gdiplus::GdipCreateMatrix(&matrix_);
    }

    test::GdiplusSession session_;
    gdiplus::GpImage* image_;
    gdiplus::GpMatrix* matrix_ = nullptr;
    Ref<GpBrush> brush_ = New<GpBrush>();
};

TEST_F(BrushWrapper, StartsWithoutABrush) {
    EXPECT_EQ(brush_->Handle(), nullptr);
    EXPECT_EQ(brush_->Status, gdiplus::Ok);
    EXPECT_EQ(brush_->GetType(), -1);
    EXPECT_EQ(brush_->Status, gdiplus::InvalidParameter) << "it is asked for";
    EXPECT_EQ(brush_->Clone(), nullptr);
    EXPECT_EQ(brush_->Status, gdiplus::InvalidParameter);
}

TEST_F(BrushWrapper, KnowsTheTypeOfWhatItMakes) {
    EXPECT_TRUE(brush_->CreateSolidBrush(kRed));
    EXPECT_EQ(brush_->GetType(), 0);
    EXPECT_TRUE(brush_->CreateHatchBrush(gdiplus::HatchStyleCross, kRed, kBlue));
    EXPECT_EQ(brush_->GetType(), 1);
    EXPECT_TRUE(brush_->CreateTextureBrush(image_));
    EXPECT_EQ(brush_->GetType(), 2);
    EXPECT_TRUE(brush_->CreatePathBrush(kTriangle, 3));
    EXPECT_EQ(brush_->GetType(), 3);
    EXPECT_TRUE(brush_->CreateLineBrush(kRed, kBlue, 0, 0, 10, 10));
    EXPECT_EQ(brush_->GetType(), 4);
    brush_->Dispose();
    EXPECT_EQ(brush_->GetType(), -1);
    EXPECT_EQ(brush_->Handle(), nullptr);
}

TEST_F(BrushWrapper, AFailedCreationKeepsTheBrush) {
    brush_->CreateSolidBrush(kRed);
    gdiplus::GpBrush* const held = brush_->Handle();
    EXPECT_FALSE(brush_->CreateHatchBrush(static_cast<gdiplus::HatchStyle>(99), 0, 0));
    EXPECT_FALSE(brush_->CreateTextureBrushI(nullptr));
    EXPECT_EQ(brush_->Handle(), held);
    EXPECT_EQ(brush_->Status, gdiplus::InvalidParameter);
    EXPECT_TRUE(brush_->SetColor(kBlue));
    EXPECT_EQ(brush_->Status, gdiplus::InvalidParameter);
}

TEST_F(BrushWrapper, SetHandleOwnsTheBrushAndAsksForItsType) {
    gdiplus::GpBrush* hatch = nullptr;
    gdiplus::GdipCreateHatchBrush(gdiplus::HatchStyleWave, kRed, kBlue, &hatch);
    brush_->CreateSolidBrush(kRed);
    gdiplus::GpBrush* const before = brush_->Handle();
    brush_->SetHandle(hatch);
    EXPECT_EQ(brush_->Handle(), hatch);
    EXPECT_EQ(brush_->GetType(), 1);
    EXPECT_EQ(gdiplus::GdipDeleteBrush(before), gdiplus::InvalidParameter);
    brush_ = nullptr;
    EXPECT_EQ(gdiplus::GdipDeleteBrush(hatch), gdiplus::InvalidParameter);
}

TEST_F(BrushWrapper, CloneIsABrushOfItsOwn) {
    brush_->CreateSolidBrush(kRed);
    const Ref<GpBrush> copy = brush_->Clone();
    brush_->SetColor(kBlue);
    ASSERT_TRUE(copy);
    EXPECT_NE(copy->Handle(), brush_->Handle());
    EXPECT_EQ(copy->GetColor(), kRed);
    EXPECT_EQ(copy->GetType(), 0);
}

TEST_F(BrushWrapper, SetColorChangesASolidBrushInPlace) {
    brush_->CreateSolidBrush(kRed);
    gdiplus::GpBrush* const held = brush_->Handle();
    EXPECT_TRUE(brush_->SetColor(kBlue));
    EXPECT_EQ(brush_->Handle(), held);
    EXPECT_EQ(brush_->GetColor(), kBlue);
}

TEST_F(BrushWrapper, SetColorTurnsAHatchBrushIntoASolidOne) {
    brush_->CreateHatchBrush(gdiplus::HatchStyleCross, kRed, kBlue);
    EXPECT_TRUE(brush_->SetColor(kBlue));
    EXPECT_EQ(brush_->GetType(), 0);
    EXPECT_EQ(brush_->GetColor(), kBlue);
}

TEST_F(BrushWrapper, SetColorMakesABrushWhereThereIsNone) {
    EXPECT_TRUE(brush_->SetColor(kRed));
    EXPECT_EQ(brush_->GetColor(), kRed);
}

TEST_F(BrushWrapper, ReadsItsHatch) {
    brush_->CreateHatchBrush(gdiplus::HatchStyleWeave, kRed, kBlue);
    EXPECT_EQ(brush_->GetHatchStyle(), gdiplus::HatchStyleWeave);
    EXPECT_EQ(brush_->GetForegroundColor(), kRed);
    EXPECT_EQ(brush_->GetBackgroundColor(), kBlue);
}

TEST_F(BrushWrapper, GetBlendOfASolidBrushDoesNothing) {
    brush_->CreateSolidBrush(kRed);
    float factor = 7, place = 8;
    EXPECT_EQ(brush_->GetBlend(&factor, &place, 1), gdiplus::Ok);
    EXPECT_EQ(factor, 7);
    EXPECT_EQ(place, 8);
    EXPECT_EQ(brush_->Status, gdiplus::Ok);
}

TEST_F(BrushWrapper, OperationsByTypeDoNothingOnOtherBrushes) {
    brush_->CreateHatchBrush(gdiplus::HatchStyleCross, kRed, kBlue);
    GpRectF rect{1, 2, 3, 4};
    GpRect rectI{1, 2, 3, 4};
    const gdiplus::ARGB colors[] = {1, 2};
    float places[] = {0, 1};
    EXPECT_EQ(brush_->GetRectangle(&rect), gdiplus::Ok);
    EXPECT_EQ(brush_->GetRectangleI(&rectI), gdiplus::Ok);
    EXPECT_EQ(rect.Width, 3);
    EXPECT_EQ(rectI.Width, 3);
    EXPECT_EQ(brush_->SetGammaCorrection(true), gdiplus::Ok);
    EXPECT_FALSE(brush_->GetGammaCorrection());
    EXPECT_EQ(brush_->GetBlendCount(), 0);
    EXPECT_EQ(brush_->SetBlend(places, places, 2), gdiplus::Ok);
    EXPECT_EQ(brush_->GetInterpolationColorCount(), 0);
    EXPECT_TRUE(brush_->SetInterpolationColors(colors, places, 2));
    EXPECT_EQ(brush_->SetBlendBellShape(9), gdiplus::Ok);
    EXPECT_EQ(brush_->SetBlendTriangularShape(9), gdiplus::Ok);
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeTile);
    EXPECT_EQ(brush_->SetWrapMode(gdiplus::WrapModeClamp), gdiplus::Ok);
    EXPECT_EQ(brush_->GetTransform(nullptr), gdiplus::Ok);
    EXPECT_EQ(brush_->SetTransform(nullptr), gdiplus::Ok);
    EXPECT_EQ(brush_->ResetTransform(), gdiplus::Ok);
    EXPECT_EQ(brush_->MultiplyTransform(nullptr), gdiplus::Ok);
    EXPECT_EQ(brush_->TranslateTransform(1, 1), gdiplus::Ok);
    EXPECT_EQ(brush_->ScaleTransform(1, 1), gdiplus::Ok);
    EXPECT_EQ(brush_->RotateTransform(1), gdiplus::Ok);
    EXPECT_EQ(brush_->Status, gdiplus::Ok);
}

TEST_F(BrushWrapper, LineBrushesOfAllForms) {
    EXPECT_TRUE(brush_->CreateLineBrushF({0, 0}, {10, 5}, kRed, kBlue));
    EXPECT_TRUE(brush_->CreateLineBrushI({0, 0}, {10, 5}, kRed, kBlue));
    EXPECT_TRUE(brush_->CreateLineBrushRectF({0, 0, 10, 5}, kRed, kBlue));
    EXPECT_TRUE(brush_->CreateLineBrushRectI({0, 0, 10, 5}, kRed, kBlue));
    EXPECT_TRUE(brush_->CreateLineBrushRectWithAngleI({0, 0, 10, 5}, kRed, kBlue, 30));
    EXPECT_TRUE(brush_->CreateLineBrushRectWithAngleF({1, 2, 10, 5}, kRed, kBlue, 30, true));
    GpRectF rect{};
    GpRect rectI{};
    EXPECT_EQ(brush_->GetRectangle(&rect), gdiplus::Ok);
    EXPECT_EQ(rect.Width, 10);
    EXPECT_EQ(brush_->GetRectangleI(&rectI), gdiplus::Ok);
    EXPECT_EQ(rectI.Y, 2);
    gdiplus::ARGB colors[2];
    EXPECT_EQ(brush_->GetLinearColors(colors), gdiplus::Ok);
    EXPECT_EQ(colors[1], kBlue);
    EXPECT_EQ(brush_->SetLinearColors(1, 2), gdiplus::Ok);
    EXPECT_EQ(brush_->GetLinearColors(colors), gdiplus::Ok);
    EXPECT_EQ(colors[0], 1u);
}

TEST_F(BrushWrapper, CreateLineBrushRunsDownwardsByDefault) {
    EXPECT_TRUE(brush_->CreateLineBrush(0xFF000000, 0xFFFFFFFF, 1, 2, 30, 40));
    GpRectF rect{};
    brush_->GetRectangle(&rect);
    EXPECT_EQ(rect.X, 1);
    EXPECT_EQ(rect.Height, 40);
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeTile);
    gdiplus::GpGraphics* graphics = nullptr;
    gdiplus::GdipGetImageGraphicsContext(image_, &graphics);
    gdiplus::GdipFillRectangleI(graphics, brush_->Handle(), 0, 0, 4, 3);
    gdiplus::GdipDeleteGraphics(graphics);
    auto* const bitmap = reinterpret_cast<gdiplus::GpBitmap*>(image_);
    gdiplus::ARGB left = 0, right = 0, above = 0;
    gdiplus::GdipBitmapGetPixel(bitmap, 0, 2, &left);
    gdiplus::GdipBitmapGetPixel(bitmap, 3, 2, &right);
    gdiplus::GdipBitmapGetPixel(bitmap, 0, 1, &above);
    EXPECT_EQ(left, right);
    EXPECT_NE(left, above);
    EXPECT_FALSE(brush_->CreateLineBrush(kRed, kBlue, 1, 2, 30, 0));
}

TEST_F(BrushWrapper, GradientOperationsWorkOnBothGradients) {
    const float factors[] = {0, 0.3f, 1}, places[] = {0, 0.5f, 1};
    const gdiplus::ARGB colors[] = {kRed, kBlue, kRed};
    for (const bool line : {true, false}) {
        ASSERT_TRUE(line ? brush_->CreateLineBrush(kRed, kBlue, 0, 0, 9, 9)
                         : brush_->CreatePathBrush(kTriangle, 3));
        EXPECT_EQ(brush_->SetGammaCorrection(true), gdiplus::Ok);
        EXPECT_TRUE(brush_->GetGammaCorrection());
        EXPECT_EQ(brush_->SetBlend(factors, places, 3), gdiplus::Ok);
        EXPECT_EQ(brush_->GetBlendCount(), 3);
        float gotFactors[3], gotPlaces[3];
        EXPECT_EQ(brush_->GetBlend(gotFactors, gotPlaces, 3), gdiplus::Ok);
        EXPECT_TRUE(std::ranges::equal(factors, gotFactors));
        EXPECT_TRUE(brush_->SetInterpolationColors(colors, places, 3));
        EXPECT_EQ(brush_->GetInterpolationColorCount(), 3);
        gdiplus::ARGB gotColors[3];
        EXPECT_EQ(brush_->GetInterpolationColors(gotColors, gotPlaces, 3), gdiplus::Ok);
        EXPECT_TRUE(std::ranges::equal(colors, gotColors));
        EXPECT_EQ(brush_->SetBlendBellShape(0.5f), gdiplus::Ok);
        EXPECT_EQ(brush_->GetBlendCount(), 511);
        EXPECT_EQ(brush_->SetBlendTriangularShape(0.5f), gdiplus::Ok);
        EXPECT_EQ(brush_->GetBlend(gotFactors, gotPlaces, 3), gdiplus::Ok);
        EXPECT_EQ(gotFactors[1], 1);  // the scale's default
    }
}

TEST_F(BrushWrapper, ASetterLeavesTheStatusAlone) {
    brush_->CreateLineBrush(kRed, kBlue, 0, 0, 9, 9);
    EXPECT_EQ(brush_->SetBlendBellShape(2), gdiplus::InvalidParameter);
    EXPECT_EQ(brush_->SetTransform(nullptr), gdiplus::InvalidParameter);
    EXPECT_EQ(brush_->Status, gdiplus::Ok);
}

TEST_F(BrushWrapper, ListsWithoutItemsCallNothing) {
    brush_->CreatePathBrush(kTriangle, 3);
    const gdiplus::ARGB color = kRed;
    const float place = 0;
    for (int32_t count : {0, -3}) {
        EXPECT_FALSE(brush_->CreatePathBrush(kTriangle, count));
        EXPECT_FALSE(brush_->CreatePathBrushI(kTriangleI, count));
        EXPECT_FALSE(brush_->SetSurroundColors(&color, count));
        EXPECT_FALSE(brush_->SetInterpolationColors(&color, &place, count));
    }
    EXPECT_EQ(brush_->Status, gdiplus::Ok);
}

TEST_F(BrushWrapper, TransformsWorkOnAllThreeKinds) {
    for (int kind = 2; kind <= 4; ++kind) {
        ASSERT_TRUE(kind == 2   ? brush_->CreateTextureBrush(image_)
                    : kind == 3 ? brush_->CreatePathBrush(kTriangle, 3)
                                : brush_->CreateLineBrush(kRed, kBlue, 0, 0, 9, 9));
        EXPECT_EQ(brush_->TranslateTransform(5, 6), gdiplus::Ok);
        EXPECT_EQ(brush_->ScaleTransform(2, 3), gdiplus::Ok);
        EXPECT_EQ(brush_->GetTransform(matrix_), gdiplus::Ok);
        float elements[6];
        gdiplus::GdipGetMatrixElements(matrix_, elements);
        EXPECT_EQ(elements[0], 2);
        EXPECT_EQ(elements[3], 3);
        EXPECT_EQ(elements[4], 5);
        EXPECT_EQ(brush_->MultiplyTransform(matrix_, gdiplus::MatrixOrderAppend), gdiplus::Ok);
        EXPECT_EQ(brush_->RotateTransform(90), gdiplus::Ok);
        EXPECT_EQ(brush_->SetTransform(matrix_), gdiplus::Ok);
        EXPECT_EQ(brush_->ResetTransform(), gdiplus::Ok);
        brush_->GetTransform(matrix_);
        gdiplus::GdipGetMatrixElements(matrix_, elements);
        EXPECT_EQ(elements[0], 1);
        EXPECT_EQ(elements[4], 0);
        EXPECT_EQ(brush_->SetWrapMode(gdiplus::WrapModeTileFlipY), gdiplus::Ok);
        EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeTileFlipY);
    }
}

TEST_F(BrushWrapper, PathBrushesKeepWhatTheyAreGiven) {
    EXPECT_TRUE(brush_->CreatePathBrushI(kTriangleI, 3));
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeClamp);
    EXPECT_TRUE(brush_->CreatePathBrush(kTriangle, 3));
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeClamp);
    EXPECT_EQ(brush_->PointCount(), 3);
    EXPECT_EQ(brush_->SurroundColorCount(), 1);
    const gdiplus::ARGB colors[] = {1, 2, 3};
    EXPECT_TRUE(brush_->SetSurroundColors(colors, 3));
    EXPECT_EQ(brush_->SurroundColorCount(), 3);
    gdiplus::ARGB got[5];
    int32_t count = 5;
    EXPECT_EQ(brush_->GetSurroundColors(got, count), gdiplus::Ok);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(got[2], 3u);
    EXPECT_EQ(brush_->Status, gdiplus::Ok);
    EXPECT_FALSE(brush_->SetSurroundColors(got, 4));
    EXPECT_EQ(brush_->Status, gdiplus::InvalidParameter) << "whatever answers a Boolean keeps it";
    brush_->CenterColor(kBlue);
    EXPECT_EQ(brush_->CenterColor(), kBlue);
    brush_->CenterPoint({2.5f, 3});
    EXPECT_EQ(brush_->CenterPoint().X, 2.5f);
    brush_->CenterPointI({7, 8});
    EXPECT_EQ(brush_->CenterPointI().Y, 8);
    EXPECT_EQ(brush_->SetFocusScales(0.25f, 0.75f), gdiplus::Ok);
    float x = 0, y = 0;
    EXPECT_EQ(brush_->GetFocusScales(&x, &y), gdiplus::Ok);
    EXPECT_EQ(y, 0.75f);
}

TEST_F(BrushWrapper, PathIsHandedOutAsACopy) {
    brush_->CreatePathBrush(kTriangle, 3);
    gdiplus::GpPath* path = brush_->Path();
    ASSERT_TRUE(path);
    const Ref<GpBrush> other = New<GpBrush>();
    EXPECT_TRUE(other->CreatePathBrushFromPath(path));
    EXPECT_EQ(other->PointCount(), 3);
    const GpPointF square[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    other->CreatePathBrush(square, 4);
    other->Path(path);
    EXPECT_EQ(other->PointCount(), 3);
    gdiplus::GdipDeletePath(path);
    brush_->CreateSolidBrush(0);
    EXPECT_EQ(brush_->Path(), nullptr);
}

TEST_F(BrushWrapper, TextureCreationLeavesTheTypeUnknown) {
    EXPECT_TRUE(brush_->CreateTextureBrushI(image_, 0, 0, 0, 0, gdiplus::WrapModeTileFlipX));
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeTile);  // nothing was called
    EXPECT_EQ(brush_->GetType(), 2);
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeTileFlipX);
    EXPECT_TRUE(brush_->CreateTextureBrushF(image_, 0, 0, 1, 1, gdiplus::WrapModeClamp));
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeTile);
    EXPECT_EQ(brush_->GetType(), 2);
    EXPECT_EQ(brush_->GetWrapMode(), gdiplus::WrapModeClamp);
}

// The size of a brush's texture, which tells how it was made.
std::pair<uint32_t, uint32_t> SizeOf(GpBrush& brush) {
    gdiplus::GpImage* image = brush.GetImage();
    uint32_t width = 0, height = 0;
    gdiplus::GdipGetImageWidth(image, &width);
    gdiplus::GdipGetImageHeight(image, &height);
    gdiplus::GdipDisposeImage(image);
    return {width, height};
}

TEST_F(BrushWrapper, TexturesOfIntegersTakeTheWholeImageWithoutARectangle) {
    using Size = std::pair<uint32_t, uint32_t>;
    brush_->CreateTextureBrushI(image_);
    EXPECT_EQ(SizeOf(*brush_), Size(4, 3));
    brush_->CreateTextureBrushI(image_, 1, 1, 2, 1);
    EXPECT_EQ(SizeOf(*brush_), Size(2, 1));
    EXPECT_FALSE(brush_->CreateTextureBrushI(image_, 1));  // a rectangle without area
    EXPECT_EQ(brush_->Status, gdiplus::OutOfMemory);
    gdiplus::GpImageAttributes* attributes = nullptr;
    gdiplus::GdipCreateImageAttributes(&attributes);
    constexpr auto kTile = gdiplus::WrapModeTile;
    EXPECT_FALSE(brush_->CreateTextureBrushI(image_, 0, 0, 0, 0, kTile, attributes));
    EXPECT_TRUE(brush_->CreateTextureBrushI(image_, 0, 0, 3, 2, kTile, attributes));
    EXPECT_EQ(SizeOf(*brush_), Size(3, 2));
    EXPECT_TRUE(brush_->CreateTextureBrushF(image_, 0, 0, 1, 2, kTile, attributes));
    EXPECT_EQ(SizeOf(*brush_), Size(1, 2));
    gdiplus::GdipDisposeImageAttributes(attributes);
    EXPECT_FALSE(brush_->CreateTextureBrushF(image_));  // floats always take the rectangle
    EXPECT_TRUE(brush_->CreateTextureBrushF(image_, 0, 0, 2, 2));
    EXPECT_EQ(SizeOf(*brush_), Size(2, 2));
}

}  // namespace
}  // namespace vxgui
