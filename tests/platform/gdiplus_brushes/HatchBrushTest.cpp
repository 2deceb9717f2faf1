#include <gtest/gtest.h>

#include <set>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kBlack = 0xFF000000, kWhite = 0xFFFFFFFF;

class GdiplusHatchBrush : public test::BrushFixture {
protected:
    GpBrush* MakeHatch(int style, ARGB front = kBlack, ARGB back = kWhite) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreateHatchBrush(static_cast<HatchStyle>(style), front, back, &brush), Ok);
        return Keep(brush);
    }
    test::TestPicture Cell(int style) { return Paint(MakeHatch(style), 8, 8); }
};

int CountOf(const test::TestPicture& picture, uint32_t color) {
    return static_cast<int>(std::ranges::count(picture.pixels, color));
}

TEST_F(GdiplusHatchBrush, KeepsWhatItWasMadeWith) {
    GpBrush* brush = MakeHatch(HatchStyleWave, 0x11223344, 0x55667788);
    HatchStyle style;
    ARGB front, back;
    BrushType type;
    EXPECT_EQ(GdipGetHatchStyle(brush, &style), Ok);
    EXPECT_EQ(GdipGetHatchForegroundColor(brush, &front), Ok);
    EXPECT_EQ(GdipGetHatchBackgroundColor(brush, &back), Ok);
    EXPECT_EQ(GdipGetBrushType(brush, &type), Ok);
    EXPECT_EQ(style, HatchStyleWave);
    EXPECT_EQ(front, 0x11223344u);
    EXPECT_EQ(back, 0x55667788u);
    EXPECT_EQ(type, BrushTypeHatchFill);
}

TEST_F(GdiplusHatchBrush, RefusesUnknownStylesAndOtherBrushes) {
    GpBrush* brush = nullptr;
    for (int style : {-1, 53, 1000}) {
        EXPECT_EQ(GdipCreateHatchBrush(static_cast<HatchStyle>(style), 0, 0, &brush),
                  InvalidParameter);
    }
    EXPECT_EQ(GdipCreateHatchBrush(HatchStyleCross, 0, 0, nullptr), InvalidParameter);
    ASSERT_EQ(GdipCreateSolidFill(0, &brush), Ok);
    Keep(brush);
    HatchStyle style;
    ARGB color;
    EXPECT_EQ(GdipGetHatchStyle(brush, &style), InvalidParameter);
    EXPECT_EQ(GdipGetHatchForegroundColor(brush, &color), InvalidParameter);
    EXPECT_EQ(GdipGetHatchBackgroundColor(brush, &color), InvalidParameter);
    EXPECT_EQ(GdipGetHatchStyle(MakeHatch(0), nullptr), InvalidParameter);
}

TEST_F(GdiplusHatchBrush, EveryStyleHasACellOfItsOwn) {
    std::set<std::vector<uint32_t>> cells;
    for (int style = 0; style < HatchStyleTotal; ++style) cells.insert(Cell(style).pixels);
    EXPECT_EQ(cells.size(), 53u);
}

TEST_F(GdiplusHatchBrush, PercentagesGrowDarker) {
    int last = 0;
    for (int style = HatchStyle05Percent; style <= HatchStyle90Percent; ++style) {
        const int front = CountOf(Cell(style), kBlack);
        EXPECT_GT(front, last) << style;
        last = front;
    }
    EXPECT_EQ(CountOf(Cell(HatchStyle25Percent), kBlack), 16);
    EXPECT_EQ(CountOf(Cell(HatchStyle50Percent), kBlack), 32);
}

TEST_F(GdiplusHatchBrush, LinesRunInTheirDirection) {
    const auto horizontal = Cell(HatchStyleHorizontal);
    const auto vertical = Cell(HatchStyleVertical);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(horizontal.At(i, 0), kBlack);
        EXPECT_EQ(vertical.At(0, i), kBlack);
    }
    EXPECT_EQ(CountOf(horizontal, kBlack), 8);
    EXPECT_EQ(CountOf(vertical, kBlack), 8);
    const auto down = Cell(HatchStyleLightDownwardDiagonal);
    const auto up = Cell(HatchStyleLightUpwardDiagonal);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(down.At(i, i), kBlack);
        EXPECT_EQ(up.At(i, 7 - i), kBlack);
    }
}

TEST_F(GdiplusHatchBrush, PlainDiagonalsHaveSoftEdges) {
    const auto forward = Cell(HatchStyleForwardDiagonal);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(forward.At(i, i) & 255, 255u - 233);
        EXPECT_EQ(forward.At((i + 1) % 8, i) & 255, 255u - 64);
        EXPECT_EQ(forward.At(i, (i + 1) % 8) & 255, 255u - 64);
        EXPECT_EQ(forward.At((i + 4) % 8, i), kWhite);
    }
}

TEST_F(GdiplusHatchBrush, BeginsAtTheRenderingOrigin) {
    GpBrush* brush = MakeHatch(HatchStyleSmallConfetti);
    const auto plain = Paint(brush, 24, 24);
    const auto moved = Paint(brush, 24, 24, {}, {-5, 11});
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            EXPECT_EQ(moved.At(x + 3, y + 3), plain.At(x, y));
        }
    }
}

TEST_F(GdiplusHatchBrush, WorldTransformDoesNotMoveIt) {
    GpBrush* brush = MakeHatch(HatchStyleWeave);
    const auto plain = Paint(brush, 40, 30);
    EXPECT_EQ(Paint(brush, 40, 30, {3, 0.5f, -0.25f, 2, 17.3f, 5.9f}).pixels, plain.pixels);
}

TEST_F(GdiplusHatchBrush, ColoursKeepTheirAlpha) {
    const auto picture = Paint(MakeHatch(HatchStyle50Percent, 0x80FF0000, 0), 8, 8);
    EXPECT_EQ(CountOf(picture, 0x80800000), 32);
    EXPECT_EQ(CountOf(picture, 0), 32);
}

// All 53, nine to a row, each 24 pixels wide with 4 between them.
TEST_F(GdiplusHatchBrush, AllStylesLookAsTheyDid) {
    constexpr int kPitch = 28, kSide = 24, kColumns = 9;
    test::TestPicture sheet{kColumns * kPitch, 6 * kPitch, {}};
    sheet.pixels.assign(static_cast<size_t>(sheet.width * sheet.height), 0xFFC0C0FF);
    for (int style = 0; style < HatchStyleTotal; ++style) {
        const auto swatch = Paint(MakeHatch(style, 0xFF203060, 0xFFFFF8E0), kSide, kSide);
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                sheet.At(style % kColumns * kPitch + 2 + x, style / kColumns * kPitch + 2 + y) =
                    swatch.At(x, y);
            }
        }
    }
    test::ExpectGolden("gdiplus/hatches", sheet);
}

}  // namespace
}  // namespace vxgui::gdiplus
