#include <algorithm>

#include "tests/platform/gdiplus_strings/StringCanvas.h"

namespace vxgui::gdiplus {
namespace {

class DrawnStrings : public StringCanvas {
protected:
    // A thin frame around a cell of a sheet.
    void Frame(const GpRectF& cell) {
        GpBrush* brush = nullptr;
        GdipCreateSolidFill(0xFFB0C4DE, &brush);
        GdipFillRectangle(graphics_, brush, cell.X - 1, cell.Y - 1, cell.Width + 2, 1);
        GdipFillRectangle(graphics_, brush, cell.X - 1, cell.Y + cell.Height, cell.Width + 2, 1);
        GdipFillRectangle(graphics_, brush, cell.X - 1, cell.Y, 1, cell.Height);
        GdipFillRectangle(graphics_, brush, cell.X + cell.Width, cell.Y, 1, cell.Height);
        GdipDeleteBrush(brush);
    }
    // Draws in a framed cell.
    void Cell(const char16_t* text, GpFont* font, const GpRectF& cell, GpStringFormat* format) {
        Frame(cell);
        EXPECT_EQ(Draw(text, font, cell, format), Ok);
    }
    // The greys that occur.
    std::vector<uint32_t> Greys() const {
        std::vector<uint32_t> greys(Picture().pixels);
        std::sort(greys.begin(), greys.end());
        greys.erase(std::unique(greys.begin(), greys.end()), greys.end());
        return greys;
    }
    // How dark the picture is, in black pixels.
    double Weight() const {
        double weight = 0;
        for (const uint32_t pixel : Picture().pixels) weight += 255 - (pixel & 255);
        return weight / 255;
    }
};

TEST_F(DrawnStrings, StandInTheirRectangleAsAligned) {
    Resize(310, 160);
    GpFont* font = MakeFont(12);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            GpStringFormat* format = Default();
            GdipSetStringFormatAlign(format, static_cast<StringAlignment>(column));
            GdipSetStringFormatLineAlign(format, static_cast<StringAlignment>(row));
            Cell(u"Aligned text of two lines", font, {4.0f + 102 * column, 4.0f + 52 * row, 98, 48},
                 format);
        }
    }
    test::ExpectGolden("gdiplus/string_alignment", Picture(), 8);
}

TEST_F(DrawnStrings, AreTrimmedInSixWays) {
    Resize(330, 200);
    GpFont* font = MakeFont(12);
    for (int i = 0; i < 6; ++i) {
        GpStringFormat* format = Default();
        GdipSetStringFormatTrimming(format, static_cast<StringTrimming>(i));
        const auto y = static_cast<REAL>(4 + 32 * i);
        Cell(u"Several words that go on and on below the cell", font, {4, y, 150, 28}, format);
        GdipSetStringFormatFlags(format, StringFormatFlagsNoWrap);
        Cell(u"/usr/share/fonts/truetype/name.ttf", font, {164, y, 150, 28}, format);
    }
    test::ExpectGolden("gdiplus/string_trimming", Picture(), 8);
}

TEST_F(DrawnStrings, FollowTheRenderingHint) {
    Resize(230, 150);
    GpFont* font = MakeFont(13.3f, FontStyleRegular, UnitPixel, u"DejaVu Serif");
    for (int hint = 0; hint < 6; ++hint) {
        GdipSetTextRenderingHint(graphics_, static_cast<TextRenderingHint>(hint));
        EXPECT_EQ(Draw(u"Hints of quick brown foxes", font, {4.3f, 4.0f + 24 * hint, 0, 0},
                       Typographic()),
                  Ok);
    }
    test::ExpectGolden("gdiplus/string_hints", Picture(), 8);
}

TEST_F(DrawnStrings, HaveTwoColoursWithASingleBitAPixel) {
    for (const auto hint :
         {TextRenderingHintSingleBitPerPixel, TextRenderingHintSingleBitPerPixelGridFit}) {
        Clear();
        GdipSetTextRenderingHint(graphics_, hint);
        ASSERT_EQ(Draw(u"Two colours", MakeFont(17), {3.4f, 5.7f, 0, 0}, nullptr, 0xFF0000FF), Ok);
        EXPECT_EQ(Greys(), (std::vector<uint32_t>{0xFF0000FF, 0xFFFFFFFF})) << hint;
    }
    Clear();
    GdipSetTextRenderingHint(graphics_, TextRenderingHintAntiAlias);
    Draw(u"Many shades", MakeFont(17), {3.4f, 5.7f, 0, 0}, nullptr);
    EXPECT_GT(Greys().size(), 16u);
}

TEST_F(DrawnStrings, AreHeavierWithMoreContrast) {
    std::vector<double> weights;
    for (const UINT contrast : {0u, 4u, 8u, 12u}) {
        Clear();
        ASSERT_EQ(GdipSetTextContrast(graphics_, contrast), Ok);
        Draw(u"Contrast", MakeFont(15), {3, 5, 0, 0}, nullptr);
        weights.push_back(Weight());
    }
    EXPECT_TRUE(std::is_sorted(weights.begin(), weights.end()));
    EXPECT_LT(weights.front() * 1.05, weights.back());
}

TEST_F(DrawnStrings, AreClippedToTheirRectangle) {
    GpFont* font = MakeFont(30);
    GpStringFormat* format = Default();
    GdipSetStringFormatFlags(format, StringFormatFlagsNoWrap);
    GdipSetStringFormatTrimming(format, StringTrimmingNone);
    const GpRectF rect{20, 10, 50, 20};
    ASSERT_EQ(Draw(u"MMMMMMM", font, rect, format), Ok);
    const GpRect inside = Ink();
    EXPECT_GE(inside.X, 20);
    EXPECT_EQ(inside.X + inside.Width, 70);
    EXPECT_GE(inside.Y, 10);
    EXPECT_EQ(inside.Y + inside.Height, 30);
    Clear();
    GdipSetStringFormatFlags(format, StringFormatFlagsNoWrap | StringFormatFlagsNoClip);
    ASSERT_EQ(Draw(u"MMMMMMM", font, rect, format), Ok);
    EXPECT_GT(Ink().Width, 100);
    EXPECT_GT(Ink().Y + Ink().Height, 30);
}

TEST_F(DrawnStrings, FillTheBoxThatIsMeasured) {
    for (const REAL size : {9.0f, 14.5f, 31.0f, 170.0f}) {
        Resize(700, 230);
        GpFont* font = MakeFont(size);
        const GpRectF at{10, 10, 0, 0};
        GpStringFormat* format = Typographic();
        ASSERT_EQ(Draw(u"HMgH", font, at, format), Ok);
        const GpRectF box = Measure(u"HMgH", font, at, format).box;
        const GpRect ink = Ink();
        EXPECT_NEAR(ink.X, box.X, 0.12 * size + 1);
        EXPECT_NEAR(ink.X + ink.Width, box.X + box.Width, 0.12 * size + 1);
        EXPECT_NEAR(ink.Y, box.Y + (1901.0 - 1493) / 2048 * size, 1.1) << "capitals are 1493 high";
        EXPECT_LE(ink.Y + ink.Height, box.Y + box.Height + 1);
    }
}

TEST_F(DrawnStrings, LookTheSameWhenTheyAreDrawnAgain) {
    GpFont* font = MakeFont(13);
    const GpRectF rect{5, 5, 120, 40};
    GdipSetTextRenderingHint(graphics_, TextRenderingHintAntiAlias);
    Draw(u"Again and again", font, rect, nullptr);
    const test::TestPicture first = Picture();
    Clear();
    Draw(u"Again and again", font, {15, 9, 120, 40}, nullptr);
    Clear();
    Draw(u"Again and again", font, rect, nullptr);
    EXPECT_TRUE(test::ComparePictures(Picture(), first, 0).Equal());
}

TEST_F(DrawnStrings, FollowTheWorld) {
    Resize(260, 260);
    GpFont* font = MakeFont(14, FontStyleUnderline);
    for (int i = 0; i < 8; ++i) {
        GdipResetWorldTransform(graphics_);
        GdipTranslateWorldTransform(graphics_, 130, 130, MatrixOrderPrepend);
        GdipRotateWorldTransform(graphics_, static_cast<REAL>(45 * i), MatrixOrderPrepend);
        GdipScaleWorldTransform(graphics_, i % 2 ? 1 : 1.4f, 1, MatrixOrderPrepend);
        EXPECT_EQ(Draw(u"Turned \u4f60", font, {22, -9, 0, 0}, Typographic()), Ok);
    }
    test::ExpectGolden("gdiplus/string_turned", Picture(), 8);
}

TEST_F(DrawnStrings, ShowLinesStylesAndPrefixes) {
    Resize(250, 170);
    struct Row {
        const char16_t* text;
        INT style;
        const char16_t* family;
        INT prefix;
    };
    const Row rows[] = {
        {u"Underline gjy", FontStyleUnderline, u"DejaVu Sans", 0},
        {u"Strike-out and both", FontStyleStrikeout | FontStyleUnderline, u"DejaVu Sans", 0},
        {u"Bold", FontStyleBold, u"DejaVu Sans", 0},
        {u"Bold that is made", FontStyleBold, u"DejaVu Serif", 0},
        {u"Italic that is made", FontStyleItalic, u"DejaVu Serif", 0},
        {u"&Hot key && sign", 0, u"DejaVu Sans", HotkeyPrefixShow},
        {u"&Hidden key", 0, u"DejaVu Sans", HotkeyPrefixHide},
    };
    REAL y = 4;
    for (const Row& row : rows) {
        GpStringFormat* format = Default();
        GdipSetStringFormatHotkeyPrefix(format, row.prefix);
        Draw(row.text, MakeFont(15, row.style, UnitPixel, row.family), {4, y, 0, 0}, format);
        y += 23;
    }
    test::ExpectGolden("gdiplus/string_styles", Picture(), 8);
}

TEST_F(DrawnStrings, RunInEveryDirection) {
    Resize(300, 170);
    GpFont* font = MakeFont(14);
    const char16_t* text = u"Columns \u6f22\u5b57 of text";
    GpStringFormat* format = Default();
    GdipSetStringFormatFlags(format, StringFormatFlagsDirectionVertical);
    Cell(text, font, {4, 4, 60, 90}, format);
    GdipSetStringFormatFlags(
        format, StringFormatFlagsDirectionVertical | StringFormatFlagsDirectionRightToLeft);
    Cell(text, font, {74, 4, 60, 90}, format);
    GdipSetStringFormatFlags(format, StringFormatFlagsDirectionRightToLeft);
    Cell(u"\u0645\u0631\u062d\u0628\u0627 (world) 12, first!", font, {144, 4, 150, 40}, format);
    GdipSetStringFormatAlign(format, StringAlignmentFar);
    Cell(u"a\tb\tc", font, {144, 54, 150, 40}, format);
    GpStringFormat* digits = Default();
    GdipSetStringFormatDigitSubstitution(digits, 0x401, StringDigitSubstituteNational);
    Cell(u"0123456789", font, {4, 104, 130, 28}, digits);
    GpStringFormat* tabs = Default();
    const REAL stops[] = {30, 50};
    GdipSetStringFormatTabStops(tabs, 0, 2, stops);
    Cell(u"a\tb\tc\nlong\ttab\tstop", font, {144, 104, 150, 50}, tabs);
    test::ExpectGolden("gdiplus/string_directions", Picture(), 8);
}

TEST_F(DrawnStrings, FallBackOnOtherFonts) {
    Resize(260, 50);
    GpFont* font = MakeFont(16);
    GpStringFormat* format = Default();
    Draw(u"\u4e2d\u6587 \u0e44\u0e17\u0e22 \u0639\u0631\u0628", font, {4, 2, 0, 0}, format);
    GdipSetStringFormatFlags(format, StringFormatFlagsNoFontFallback);
    Draw(u"\u4e2d\u6587 \u0e44\u0e17\u0e22 ok", font, {4, 26, 0, 0}, format);
    test::ExpectGolden("gdiplus/string_fallback", Picture(), 8);
}

TEST_F(DrawnStrings, UseFontsOfAPrivateCollection) {
    GpFontCollection* collection = nullptr;
    GpFontFamily* family = nullptr;
    GpFont* font = nullptr;
    ASSERT_EQ(GdipNewPrivateFontCollection(&collection), Ok);
    Keep(collection);
    ASSERT_EQ(GdipPrivateAddFontFile(collection,
                                     u"/usr/share/fonts/truetype/noto/NotoSansThaana-Regular.ttf"),
              Ok);
    ASSERT_EQ(GdipCreateFontFamilyFromName(u"Noto Sans Thaana", collection, &family), Ok);
    Keep(family);
    ASSERT_EQ(GdipCreateFont(family, 30, 0, UnitPixel, &font), Ok);
    Keep(font);
    GdipSetTextRenderingHint(graphics_, TextRenderingHintAntiAlias);
    // Thaana from the private file, and Latin, which that lacks, from the system.
    ASSERT_EQ(Draw(u"\u078b\u07a8\u0788\u07ac\u0780\u07a8 A", font, {10, 5, 0, 0}, Default()), Ok);
    test::ExpectGolden("gdiplus/string_private", Picture(), 8);
}

TEST_F(DrawnStrings, FitTheirInkIntoTheRectangle) {
    // The tail of this letter reaches left of its pen.
    GpFont* font = MakeFont(80, FontStyleItalic, UnitPixel, u"DejaVu Serif");
    Resize(120, 110);
    GpStringFormat* format = Typographic();
    const GpRectF rect{30, 5, 80, 100};
    Draw(u"j", font, rect, format);
    EXPECT_LT(Ink().X, 30);
    Clear();
    GdipSetStringFormatFlags(format, StringFormatFlagsNoClip);
    Draw(u"j", font, rect, format);
    EXPECT_GE(Ink().X, 30);
}

TEST_F(DrawnStrings, TakeAnyBrush) {
    Resize(200, 60);
    const GpPointF from{0, 0}, to{200, 0};
    GpBrush* brush = nullptr;
    ASSERT_EQ(GdipCreateLineBrush(&from, &to, 0xFFFF0000, 0xFF0000FF, WrapModeTile, &brush), Ok);
    const GpRectF rect{0, 0, 200, 0};
    ASSERT_EQ(GdipDrawString(graphics_, u"MMMM", -1, MakeFont(50), &rect, Typographic(), brush),
              Ok);
    GdipDeleteBrush(brush);
    const auto channel = [&](int x, int shift) {
        int least = 255;
        for (int y = 0; y < 60; ++y) {
            for (int at = x; at < x + 20; ++at)
                least = std::min(least, static_cast<int>(Picture().At(at, y) >> shift & 255));
        }
        return least;
    };
    EXPECT_GT(channel(2, 16), 200) << "red at the left";
    EXPECT_LT(channel(2, 0), 60);
    EXPECT_LT(channel(160, 16), 80);
    EXPECT_GT(channel(160, 0), 150) << "and blue at the right";
}

TEST_F(DrawnStrings, AWrongArgumentIsInvalid) {
    GpFont* font = MakeFont(10);
    GpBrush* brush = nullptr;
    GdipCreateSolidFill(0xFF000000, &brush);
    const GpRectF rect{0, 0, 50, 20};
    const auto draw = [&](GpGraphics* graphics, const char16_t* text, INT length, GpFont* used,
                          const GpRectF* room, GpStringFormat* format, GpBrush* paint) {
        return GdipDrawString(graphics, text, length, used, room, format, paint);
    };
    EXPECT_EQ(draw(nullptr, u"a", -1, font, &rect, nullptr, brush), InvalidParameter);
    EXPECT_EQ(draw(graphics_, nullptr, -1, font, &rect, nullptr, brush), InvalidParameter);
    EXPECT_EQ(draw(graphics_, u"a", -2, font, &rect, nullptr, brush), InvalidParameter);
    EXPECT_EQ(draw(graphics_, u"a", -1, nullptr, &rect, nullptr, brush), InvalidParameter);
    EXPECT_EQ(draw(graphics_, u"a", -1, font, nullptr, nullptr, brush), InvalidParameter);
    EXPECT_EQ(draw(graphics_, u"a", -1, font, &rect, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(
        draw(graphics_, u"a", -1, font, &rect, reinterpret_cast<GpStringFormat*>(font), brush),
        InvalidParameter);
    EXPECT_EQ(Ink().Width, 0);
    gdi::HDC dc = nullptr;
    ASSERT_EQ(GdipGetDC(graphics_, &dc), Ok);
    EXPECT_EQ(draw(graphics_, u"a", -1, font, &rect, nullptr, brush), ObjectBusy);
    GdipReleaseDC(graphics_, dc);
    EXPECT_EQ(draw(graphics_, u"", -1, font, &rect, nullptr, brush), Ok) << "nothing to draw";
    GdipDeleteBrush(brush);
}

TEST_F(DrawnStrings, GraphicsTellTheHeightOfFonts) {
    REAL height = 0;
    ASSERT_EQ(GdipGetFontHeight(MakeFont(12, 0, UnitPoint), graphics_, &height), Ok);
    EXPECT_NEAR(height, 16.0 * 2384 / 2048, 1e-4);
    GdipSetPageUnit(graphics_, UnitPoint);
    ASSERT_EQ(GdipGetFontHeight(MakeFont(12, 0, UnitPoint), graphics_, &height), Ok);
    EXPECT_NEAR(height, 12.0 * 2384 / 2048, 1e-4) << "in page units";
    GpFont* font = MakeFont(10);
    EXPECT_EQ(GdipGetFontHeight(nullptr, graphics_, &height), InvalidParameter);
    EXPECT_EQ(GdipGetFontHeight(font, nullptr, &height), InvalidParameter);
    EXPECT_EQ(GdipGetFontHeight(font, graphics_, nullptr), InvalidParameter);
}

TEST_F(DrawnStrings, GraphicsTellTheLogFont) {
    GpFont* font = MakeFont(12, FontStyleBold | FontStyleStrikeout, UnitPoint, u"DejaVu Serif");
    gdi::LOGFONTA record{};
    ASSERT_EQ(GdipGetLogFontA(font, graphics_, &record), Ok);
    EXPECT_EQ(record.lfHeight, -16);
    EXPECT_EQ(record.lfWeight, 700);
    EXPECT_EQ(record.lfItalic, 0);
    EXPECT_EQ(record.lfUnderline, 0);
    EXPECT_EQ(record.lfStrikeOut, 1);
    EXPECT_EQ(record.lfEscapement, 0);
    EXPECT_STREQ(record.lfFaceName, "DejaVu Serif");
    GdipScaleWorldTransform(graphics_, 2, 2, MatrixOrderPrepend);
    GdipRotateWorldTransform(graphics_, 90, MatrixOrderPrepend);
    ASSERT_EQ(GdipGetLogFontA(font, graphics_, &record), Ok);
    EXPECT_EQ(record.lfHeight, -32) << "as it appears";
    EXPECT_EQ(record.lfEscapement, 2700) << "clockwise by a quarter";
    EXPECT_EQ(GdipGetLogFontA(nullptr, graphics_, &record), InvalidParameter);
    EXPECT_EQ(GdipGetLogFontA(font, nullptr, &record), InvalidParameter);
    EXPECT_EQ(GdipGetLogFontA(font, graphics_, nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
