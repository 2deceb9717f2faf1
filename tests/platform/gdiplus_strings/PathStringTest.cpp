#include "tests/platform/gdiplus_strings/StringCanvas.h"

namespace vxgui::gdiplus {
namespace {

class PathStrings : public StringCanvas {
protected:
    PathStrings() { EXPECT_EQ(GdipCreatePath(FillModeAlternate, &path_), Ok); }
    ~PathStrings() override { GdipDeletePath(path_); }

    GpRectF Bounds() {
        GpRectF bounds{};
        EXPECT_EQ(GdipGetPathWorldBounds(path_, &bounds, nullptr, nullptr), Ok);
        return bounds;
    }
    INT Count() {
        INT count = 0;
        EXPECT_EQ(GdipGetPointCount(path_, &count), Ok);
        return count;
    }

    GpPath* path_ = nullptr;
};

TEST_F(PathStrings, HoldTheOutlinesOfTheGlyphs) {
    // The "l" of DejaVu Sans is one box: from 193 to 377 across, and 1556 high.
    const GpRectF rect{10, 20, 0, 0};
    ASSERT_EQ(GdipAddPathString(path_, u"l", -1, Family(), 0, 204.8f, &rect, Typographic()), Ok);
    EXPECT_EQ(Count(), 5) << "the font draws the last side too";
    std::vector<BYTE> types(5);
    ASSERT_EQ(GdipGetPathTypes(path_, types.data(), 5), Ok);
    EXPECT_EQ(types, (std::vector<BYTE>{0, 1, 1, 1, 1 | PathPointTypeCloseSubpath}));
    const GpRectF bounds = Bounds();
    EXPECT_NEAR(bounds.X, 10 + 19.3, 1e-3);
    EXPECT_NEAR(bounds.Width, 18.4, 1e-3);
    EXPECT_NEAR(bounds.Y, 20 + 190.1 - 155.6, 1e-3);
    EXPECT_NEAR(bounds.Height, 155.6, 1e-3);
}

TEST_F(PathStrings, TakeIntegersToo) {
    const GpRect whole{10, 20, 300, 0};
    const GpRectF rect{10, 20, 300, 0};
    ASSERT_EQ(GdipAddPathStringI(path_, u"gq", -1, Family(), 0, 50, &whole, nullptr), Ok);
    const GpRectF first = Bounds();
    ASSERT_EQ(GdipResetPath(path_), Ok);
    ASSERT_EQ(GdipAddPathString(path_, u"gq", -1, Family(), 0, 50, &rect, nullptr), Ok);
    const GpRectF second = Bounds();
    EXPECT_EQ(first.X, second.X);
    EXPECT_EQ(first.Width, second.Width);
    EXPECT_EQ(first.Height, second.Height);
}

TEST_F(PathStrings, AddLinesOfTheStyleAsFigures) {
    const GpRectF rect{};
    ASSERT_EQ(GdipAddPathString(path_, u"l", -1, Family(), FontStyleUnderline | FontStyleStrikeout,
                                100, &rect, Typographic()),
              Ok);
    EXPECT_EQ(Count(), 5 + 4 + 4);
}

TEST_F(PathStrings, FilledLookLikeTheDrawnString) {
    Resize(240, 80);
    GpFont* font = MakeFont(48);
    GdipSetTextRenderingHint(graphics_, TextRenderingHintAntiAlias);
    GdipSetSmoothingMode(graphics_, SmoothingModeAntiAlias);
    GdipSetPixelOffsetMode(graphics_, PixelOffsetModeHalf);
    // The base line comes to stand on a whole pixel, as it does when a string is drawn.
    const GpRectF rect{10, 10 + 45 - 48 * 1901.0f / 2048, 0, 0};
    ASSERT_EQ(Draw(u"Paths @", font, rect, Typographic()), Ok);
    const test::TestPicture drawn = Picture();
    Clear();
    ASSERT_EQ(GdipAddPathString(path_, u"Paths @", -1, Family(), 0, 48, &rect, Typographic()), Ok);
    GpBrush* brush = nullptr;
    GdipCreateSolidFill(0xFF000000, &brush);
    GdipSetPathFillMode(path_, FillModeWinding);
    ASSERT_EQ(GdipFillPath(graphics_, brush, path_), Ok);
    GdipDeleteBrush(brush);
    double difference = 0;
    for (size_t i = 0; i < drawn.pixels.size(); ++i) {
        difference += std::abs(static_cast<int>(drawn.pixels[i] & 255) -
                               static_cast<int>(Picture().pixels[i] & 255));
    }
    EXPECT_LT(difference / 255, 60) << "pens are on quarters of a pixel";
}

TEST_F(PathStrings, AWrongArgumentIsInvalid) {
    GpFontFamily* family = Family();
    const GpRectF rect{};
    const GpRect whole{};
    const auto add = [&](GpPath* path, const char16_t* text, GpFontFamily* used, REAL em,
                         const GpRectF* room) {
        return GdipAddPathString(path, text, -1, used, 0, em, room, nullptr);
    };
    EXPECT_EQ(add(nullptr, u"a", family, 10, &rect), InvalidParameter);
    EXPECT_EQ(add(path_, nullptr, family, 10, &rect), InvalidParameter);
    EXPECT_EQ(add(path_, u"a", nullptr, 10, &rect), InvalidParameter);
    EXPECT_EQ(add(path_, u"a", family, 0, &rect), InvalidParameter);
    EXPECT_EQ(add(path_, u"a", family, 10, nullptr), InvalidParameter);
    EXPECT_EQ(GdipAddPathStringI(path_, u"a", -1, family, 0, 10, nullptr, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipAddPathStringI(nullptr, u"a", -1, family, 0, 10, &whole, nullptr),
              InvalidParameter);
    EXPECT_EQ(Count(), 0);
}

}  // namespace
}  // namespace vxgui::gdiplus
