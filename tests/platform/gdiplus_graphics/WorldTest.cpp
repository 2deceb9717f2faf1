#include <array>

#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::gdiplus {
namespace {

using Elements = std::array<REAL, 6>;

class GdiplusWorld : public test::GraphicsFixture {
protected:
    GdiplusWorld() { GdipCreateMatrix(&matrix_); }
    ~GdiplusWorld() override { GdipDeleteMatrix(matrix_); }

    Elements World() {
        Elements elements{};
        EXPECT_EQ(GdipGetWorldTransform(onBitmap_, matrix_), Ok);
        EXPECT_EQ(GdipGetMatrixElements(matrix_, elements.data()), Ok);
        return elements;
    }
    GpMatrix* Matrix(const Elements& e) {
        GdipSetMatrixElements(matrix_, e[0], e[1], e[2], e[3], e[4], e[5]);
        return matrix_;
    }

    GpMatrix* matrix_ = nullptr;
};

TEST_F(GdiplusWorld, IsSetReadAndReset) {
    EXPECT_EQ(World(), (Elements{1, 0, 0, 1, 0, 0}));
    ASSERT_EQ(GdipSetWorldTransform(onBitmap_, Matrix({2, 0, 0, 3, 4, 5})), Ok);
    EXPECT_EQ(World(), (Elements{2, 0, 0, 3, 4, 5}));
    ASSERT_EQ(GdipResetWorldTransform(onBitmap_), Ok);
    EXPECT_EQ(World(), (Elements{1, 0, 0, 1, 0, 0}));
    EXPECT_EQ(GdipSetWorldTransform(onBitmap_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetWorldTransform(onBitmap_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipResetWorldTransform(nullptr), InvalidParameter);
}

TEST_F(GdiplusWorld, ChangesBeforeOrAfterWhatItDoes) {
    GdipScaleWorldTransform(onBitmap_, 2, 3, MatrixOrderPrepend);
    GdipTranslateWorldTransform(onBitmap_, 1, 1, MatrixOrderPrepend);
    EXPECT_EQ(World(), (Elements{2, 0, 0, 3, 2, 3}));
    GdipTranslateWorldTransform(onBitmap_, 1, 1, MatrixOrderAppend);
    EXPECT_EQ(World(), (Elements{2, 0, 0, 3, 3, 4}));
    ASSERT_EQ(GdipMultiplyWorldTransform(onBitmap_, Matrix({0, 1, -1, 0, 0, 0}), MatrixOrderAppend),
              Ok);
    EXPECT_EQ(World(), (Elements{0, 2, -3, 0, -4, 3}));
    GdipResetWorldTransform(onBitmap_);
    ASSERT_EQ(GdipRotateWorldTransform(onBitmap_, 90, MatrixOrderPrepend), Ok);
    const Elements turned = World();
    EXPECT_NEAR(turned[0], 0, 1e-6);
    EXPECT_NEAR(turned[1], 1, 1e-6);
    EXPECT_NEAR(turned[2], -1, 1e-6);
}

TEST_F(GdiplusWorld, RefusesWhatHasNoInverse) {
    EXPECT_EQ(GdipScaleWorldTransform(onBitmap_, 0, 1, MatrixOrderPrepend), InvalidParameter);
    EXPECT_EQ(GdipSetWorldTransform(onBitmap_, Matrix({1, 1, 1, 1, 0, 0})), InvalidParameter);
    EXPECT_EQ(GdipMultiplyWorldTransform(onBitmap_, matrix_, MatrixOrderPrepend), InvalidParameter);
    EXPECT_EQ(World(), (Elements{1, 0, 0, 1, 0, 0}));
}

TEST_F(GdiplusWorld, RefusesOrdersThatThereAreNot) {
    const auto order = static_cast<MatrixOrder>(2);
    EXPECT_EQ(GdipTranslateWorldTransform(onBitmap_, 1, 1, order), InvalidParameter);
    EXPECT_EQ(GdipScaleWorldTransform(onBitmap_, 1, 1, order), InvalidParameter);
    EXPECT_EQ(GdipRotateWorldTransform(onBitmap_, 1, order), InvalidParameter);
    EXPECT_EQ(GdipMultiplyWorldTransform(onBitmap_, matrix_, order), InvalidParameter);
}

TEST_F(GdiplusWorld, PlacesWhatIsDrawn) {
    GdipTranslateWorldTransform(onBitmap_, 2, 1, MatrixOrderPrepend);
    GdipScaleWorldTransform(onBitmap_, 3, 2, MatrixOrderPrepend);
    ASSERT_EQ(GdipFillRectangleI(onBitmap_, Solid(kRed), 1, 1, 2, 3), Ok);
    ExpectSame(OnBitmap(), Box(5, 3, 11, 9, kRed));
}

TEST_F(GdiplusWorld, TurnsRectanglesExactlyByRightAngles) {
    ASSERT_EQ(GdipSetWorldTransform(onBitmap_, Matrix({0, 1, -1, 0, 8, 1})), Ok);
    ASSERT_EQ(GdipFillRectangleI(onBitmap_, Solid(kRed), 0, 0, 4, 2), Ok);
    ExpectSame(OnBitmap(), Box(6, 1, 8, 5, kRed));
}

TEST_F(GdiplusWorld, StandsOnAPageOfUnits) {
    struct {
        Unit unit;
        REAL pixels;
    } const cases[] = {{UnitDisplay, 1}, {UnitPixel, 1},        {UnitPoint, 96 / 72.0f},
                       {UnitInch, 96},   {UnitDocument, 0.32f}, {UnitMillimeter, 96 / 25.4f}};
    for (const auto& c : cases) {
        ASSERT_EQ(GdipSetPageUnit(onBitmap_, c.unit), Ok);
        Unit unit = UnitWorld;
        ASSERT_EQ(GdipGetPageUnit(onBitmap_, &unit), Ok);
        EXPECT_EQ(unit, c.unit);
        GdipGraphicsClear(onBitmap_, 0);
        const REAL one = 1 / c.pixels;
        ASSERT_EQ(
            GdipFillRectangle(onBitmap_, Solid(kRed), 1.9f * one, 0.9f * one, 3 * one, 2 * one),
            Ok);
        ExpectSame(OnBitmap(), Box(2, 1, 5, 3, kRed));
    }
    EXPECT_EQ(GdipSetPageUnit(onBitmap_, UnitWorld), InvalidParameter);
    EXPECT_EQ(GdipSetPageUnit(onBitmap_, static_cast<Unit>(7)), InvalidParameter);
    EXPECT_EQ(GdipGetPageUnit(onBitmap_, nullptr), InvalidParameter);
}

TEST_F(GdiplusWorld, StandsOnAPageWithAScale) {
    ASSERT_EQ(GdipSetPageScale(onBitmap_, 2), Ok);
    REAL scale = 0;
    ASSERT_EQ(GdipGetPageScale(onBitmap_, &scale), Ok);
    EXPECT_EQ(scale, 2);
    GdipFillRectangleI(onBitmap_, Solid(kRed), 1, 1, 2, 3);
    ExpectSame(OnBitmap(), Box(2, 2, 6, 8, kRed));
    for (const REAL bad : {0.0f, -1.0f, 1e10f}) {
        EXPECT_EQ(GdipSetPageScale(onBitmap_, bad), InvalidParameter);
    }
    EXPECT_EQ(GdipGetPageScale(nullptr, &scale), InvalidParameter);
    GdipSetPageUnit(onBitmap_, UnitInch);
    ASSERT_EQ(GdipResetPageTransform(onBitmap_), Ok);
    Unit unit = UnitWorld;
    GdipGetPageUnit(onBitmap_, &unit);
    GdipGetPageScale(onBitmap_, &scale);
    EXPECT_EQ(unit, UnitDisplay);
    EXPECT_EQ(scale, 1);
    EXPECT_EQ(GdipResetPageTransform(nullptr), InvalidParameter);
}

TEST_F(GdiplusWorld, HasTheResolutionOfItsTarget) {
    REAL x = 0, y = 0;
    EXPECT_EQ(GdipGetDpiX(onContext_, &x), Ok);
    EXPECT_EQ(GdipGetDpiY(onContext_, &y), Ok);
    EXPECT_EQ(x, 96);
    EXPECT_EQ(y, 96);
    EXPECT_EQ(GdipGetDpiX(onContext_, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetDpiY(nullptr, &y), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
