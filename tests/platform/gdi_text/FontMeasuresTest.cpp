#include <gtest/gtest.h>

#include <cmath>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

// DejaVu Sans 2.37, in its own units.
constexpr double kUnits = 2048;
constexpr double kAscent = 1901;
constexpr double kDescent = 483;
constexpr double kAverage = 1038;

int Rounded(double units, int em) {
    return static_cast<int>(std::floor(units * em / kUnits + 0.5));
}
int Cell(int em) { return Rounded(kAscent, em) + Rounded(kDescent, em); }

/// The em that has this internal leading and ascent is known by them.
void ExpectEm(const TEXTMETRICA& metrics, int em, int height) {
    EXPECT_EQ(metrics.tmAscent, Rounded(kAscent, em)) << "height " << height;
    EXPECT_EQ(metrics.tmDescent, Rounded(kDescent, em)) << "height " << height;
    EXPECT_EQ(metrics.tmHeight, Cell(em)) << "height " << height;
    EXPECT_EQ(metrics.tmInternalLeading, Rounded(kAscent + kDescent - kUnits, em))
        << "height " << height;
    EXPECT_EQ(metrics.tmAveCharWidth, std::max(1, Rounded(kAverage, em))) << "height " << height;
}

TEST(FontMeasures, AHeightBelowZeroIsTheEm) {
    Canvas canvas(1, 1);
    for (int em = 1; em <= 120; ++em) {
        canvas.Font("DejaVu Sans", -em);
        ExpectEm(Metrics(canvas), em, -em);
    }
}

TEST(FontMeasures, AHeightAboveZeroIsTheLargestEmWhoseCellFits) {
    Canvas canvas(1, 1);
    for (int height = 2; height <= 160; ++height) {
        int em = 1;
        while (Cell(em + 1) <= height) ++em;
        canvas.Font("DejaVu Sans", height);
        ExpectEm(Metrics(canvas), em, height);
    }
}

TEST(FontMeasures, AHeightOfZeroIsACellOfTwelvePixels) {
    Canvas canvas(1, 1);
    canvas.Font("DejaVu Sans", 0);
    const TEXTMETRICA none = Metrics(canvas);
    canvas.Font("DejaVu Sans", 12);
    EXPECT_EQ(none.tmHeight, Metrics(canvas).tmHeight);
    EXPECT_EQ(none.tmAveCharWidth, Metrics(canvas).tmAveCharWidth);
}

TEST(FontMeasures, AbsurdHeightsAreCutToWhatCanBeDrawn) {
    Canvas canvas(1, 1);
    for (const int height : {30000, -30000, INT32_MAX, INT32_MIN, 1, -1}) {
        canvas.Font("DejaVu Sans", height);
        const TEXTMETRICA metrics = Metrics(canvas);
        EXPECT_GE(metrics.tmHeight, 1) << height;
        EXPECT_LE(metrics.tmHeight, 40000) << height;
    }
    canvas.Font("DejaVu Sans", -30000);
    EXPECT_EQ(Metrics(canvas).tmHeight, Cell(30000));
    canvas.Font("DejaVu Sans", 30000);
    EXPECT_LE(Metrics(canvas).tmHeight, 30000);
    EXPECT_GE(Metrics(canvas).tmHeight, 29998);
}

TEST(FontMeasures, AWidthStretchesTheCharacters) {
    Canvas canvas(1, 1);
    LOGFONTA font = LogFont("DejaVu Sans", -40);
    canvas.Font(font);
    const int plain = Extent(canvas, u"nnnn").cx;
    font.lfWidth = 2 * Metrics(canvas).tmAveCharWidth;
    canvas.Font(font);
    EXPECT_NEAR(Extent(canvas, u"nnnn").cx, 2 * plain, 8);
    EXPECT_NEAR(Metrics(canvas).tmAveCharWidth, font.lfWidth, 1);
    EXPECT_EQ(Metrics(canvas).tmHeight, Cell(40));
    font.lfWidth = INT32_MIN;
    canvas.Font(font);
    EXPECT_GT(Extent(canvas, u"n").cx, 0);
}

struct WeightRow {
    int weight, expected;
};
class FontWeight : public testing::TestWithParam<WeightRow> {};
INSTANTIATE_TEST_SUITE_P(, FontWeight,
                         testing::Values(WeightRow{0, 400}, WeightRow{100, 400},
                                         WeightRow{400, 400}, WeightRow{500, 400},
                                         WeightRow{549, 400}, WeightRow{550, 700},
                                         WeightRow{600, 700}, WeightRow{900, 700}));

TEST_P(FontWeight, IsEitherRegularOrBold) {
    Canvas canvas(1, 1);
    canvas.Font("DejaVu Sans", -20);
    const int regular = Extent(canvas, u"Weight").cx;
    canvas.Font("DejaVu Sans", -20, GetParam().weight);
    EXPECT_EQ(Metrics(canvas).tmWeight, GetParam().expected);
    EXPECT_EQ(Extent(canvas, u"Weight").cx > regular, GetParam().expected == 700);
}

TEST(FontMeasures, TellWhatTheFontWasAskedFor) {
    Canvas canvas(1, 1);
    LOGFONTA font = LogFont("DejaVu Sans Mono", -13);
    font.lfItalic = 1;
    font.lfUnderline = 1;
    font.lfStrikeOut = 1;
    font.lfCharSet = 1;
    font.lfPitchAndFamily = 0x30;
    canvas.Font(font);
    const TEXTMETRICA mono = Metrics(canvas);
    EXPECT_EQ(mono.tmItalic, 1);
    EXPECT_EQ(mono.tmUnderlined, 1);
    EXPECT_EQ(mono.tmStruckOut, 1);
    EXPECT_EQ(mono.tmCharSet, 0);
    EXPECT_EQ(mono.tmPitchAndFamily & 0xF1, 0x30) << "fixed pitch has no bit";
    EXPECT_EQ(mono.tmBreakChar, 32);
    EXPECT_GE(mono.tmMaxCharWidth, mono.tmAveCharWidth);
    font.lfCharSet = 134;
    std::snprintf(font.lfFaceName, sizeof font.lfFaceName, "DejaVu Sans");
    canvas.Font(font);
    EXPECT_EQ(Metrics(canvas).tmCharSet, 134);
    EXPECT_EQ(Metrics(canvas).tmPitchAndFamily & 1, 1);
}

struct FaceRow {
    const char* face;
    int pitchAndFamily;
    const char* expected;
};
class FaceChoice : public testing::TestWithParam<FaceRow> {};
INSTANTIATE_TEST_SUITE_P(, FaceChoice,
                         testing::Values(FaceRow{"No such face", 0, "DejaVu Sans"},
                                         FaceRow{"", 0, "DejaVu Sans"},
                                         FaceRow{"No such face", 0x20, "DejaVu Sans"},
                                         FaceRow{"No such face", 0x10, "DejaVu Serif"},
                                         FaceRow{"No such face", 0x30, "DejaVu Sans Mono"},
                                         FaceRow{"No such face", 0x01, "DejaVu Sans Mono"},
                                         FaceRow{"DejaVu Serif", 0x31, "DejaVu Serif"},
                                         FaceRow{"@DejaVu Serif", 0, "DejaVu Serif"},
                                         FaceRow{"one, two", 0, "DejaVu Sans"}));

TEST_P(FaceChoice, FallsBackOnTheFamily) {
    Canvas canvas(1, 1);
    LOGFONTA font = LogFont(GetParam().face, -15);
    font.lfPitchAndFamily = static_cast<BYTE>(GetParam().pitchAndFamily);
    canvas.Font(font);
    const int asked = Extent(canvas, u"Which face is it?").cx;
    canvas.Font(GetParam().expected, -15);
    EXPECT_EQ(asked, Extent(canvas, u"Which face is it?").cx);
}

TEST(FontMeasures, FailForWhatIsNoContext) {
    TEXTMETRICA metrics{};
    SIZE size{};
    Canvas canvas(1, 1);
    EXPECT_FALSE(GetTextMetricsA(nullptr, &metrics));
    EXPECT_FALSE(GetTextMetricsA(canvas, nullptr));
    EXPECT_FALSE(GetTextExtentPoint32W(nullptr, u"a", 1, &size));
    EXPECT_FALSE(GetTextExtentPoint32W(canvas, u"a", 1, nullptr));
    EXPECT_FALSE(GetTextExtentPoint32W(canvas, u"a", -2, &size));
    EXPECT_FALSE(GetTextExtentPoint32W(canvas, nullptr, 3, &size));
}

}  // namespace
}  // namespace vxgui::gdi
