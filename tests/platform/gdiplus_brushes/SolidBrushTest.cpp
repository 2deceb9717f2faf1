#include <gtest/gtest.h>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"

namespace vxgui::gdiplus {
namespace {

class GdiplusSolidBrush : public test::BrushFixture {
protected:
    GpBrush* MakeSolid(ARGB color) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreateSolidFill(color, &brush), Ok);
        return Keep(brush);
    }
};

TEST_F(GdiplusSolidBrush, KeepsItsColour) {
    GpBrush* brush = MakeSolid(0x80402010);
    ARGB color = 0;
    EXPECT_EQ(GdipGetSolidFillColor(brush, &color), Ok);
    EXPECT_EQ(color, 0x80402010u);
    EXPECT_EQ(GdipSetSolidFillColor(brush, 0xFF123456), Ok);
    EXPECT_EQ(GdipGetSolidFillColor(brush, &color), Ok);
    EXPECT_EQ(color, 0xFF123456u);
}

TEST_F(GdiplusSolidBrush, IsOfTheSolidType) {
    BrushType type = BrushTypeHatchFill;
    EXPECT_EQ(GdipGetBrushType(MakeSolid(0), &type), Ok);
    EXPECT_EQ(type, BrushTypeSolidColor);
}

TEST_F(GdiplusSolidBrush, CopyIsIndependent) {
    GpBrush* brush = MakeSolid(0xFF0000FF);
    GpBrush* copy = nullptr;
    ASSERT_EQ(GdipCloneBrush(brush, &copy), Ok);
    GdipSetSolidFillColor(brush, 0xFF00FF00);
    EXPECT_EQ(GdipDeleteBrush(brush), Ok);
    ARGB color = 0;
    EXPECT_EQ(GdipGetSolidFillColor(Keep(copy), &color), Ok);
    EXPECT_EQ(color, 0xFF0000FFu);
}

TEST_F(GdiplusSolidBrush, PaintsItsColourEverywhere) {
    const test::TestPicture picture = Paint(MakeSolid(0x80FF0000), 2, 2);
    for (uint32_t pixel : picture.pixels) EXPECT_EQ(pixel, 0x80800000u);
}

TEST_F(GdiplusSolidBrush, RefusesDeadAndForeignHandles) {
    GpBrush* brush = MakeSolid(0);
    EXPECT_EQ(GdipDeleteBrush(brush), Ok);
    ARGB color;
    BrushType type;
    GpBrush* copy = brush;
    EXPECT_EQ(GdipDeleteBrush(brush), InvalidParameter);
    EXPECT_EQ(GdipDeleteBrush(nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetSolidFillColor(brush, &color), InvalidParameter);
    EXPECT_EQ(GdipSetSolidFillColor(brush, 0), InvalidParameter);
    EXPECT_EQ(GdipGetBrushType(brush, &type), InvalidParameter);
    EXPECT_EQ(GdipCloneBrush(brush, &copy), InvalidParameter);
    EXPECT_EQ(copy, nullptr);
}

TEST_F(GdiplusSolidBrush, RefusesNullResults) {
    GpBrush* brush = MakeSolid(0);
    EXPECT_EQ(GdipCreateSolidFill(0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetSolidFillColor(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetBrushType(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipCloneBrush(brush, nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
