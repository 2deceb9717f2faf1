#include <cmath>
#include <limits>

#include "tests/platform/gdiplus_strings/StringCanvas.h"

namespace vxgui::gdiplus {
namespace {

constexpr double kLine = 2384.0 / 2048;  // of DejaVu Sans, in ems

class StringMeasures : public StringCanvas {
protected:
    GpStringFormat* WithFlags(INT flags, GpStringFormat* format) {
        EXPECT_EQ(GdipSetStringFormatFlags(format, flags), Ok);
        return format;
    }
    GpStringFormat* Trimming(StringTrimming trimming, INT flags = 0) {
        GpStringFormat* format = WithFlags(flags, Typographic());
        GdipSetStringFormatTrimming(format, trimming);
        return format;
    }
};

TEST_F(StringMeasures, ALineIsAsWideAsItsAdvances) {
    // Advances of DejaVu Sans in design units: A 1401, space 651, i 569, a full stop 651.
    GpFont* font = MakeFont(20.48f);
    EXPECT_NEAR(Width(u"A", font), 14.01, 1e-3);
    EXPECT_NEAR(Width(u"A i.", font), 14.01 + 6.51 + 5.69 + 6.51, 1e-3);
}

TEST_F(StringMeasures, TheDefaultFormatLeavesASixthOfAnEmOnBothSides) {
    GpFont* font = MakeFont(30);
    const Measured plain = Measure(u"Padding", font, {}, Typographic());
    const Measured padded = Measure(u"Padding", font, {}, Default());
    EXPECT_NEAR(padded.box.Width, plain.box.Width + 30.0 / 3, 1e-3);
    EXPECT_NEAR(padded.box.Height, 30 * kLine, 1e-3);
    EXPECT_EQ(plain.box.Height, padded.box.Height);
    EXPECT_EQ(padded.units, 7);
    EXPECT_EQ(padded.lines, 1);
    EXPECT_EQ(Measure(u"Padding", font, {}, nullptr).box.Width, padded.box.Width)
        << "no format is the default one";
}

TEST_F(StringMeasures, TheBoxStandsWhereTheTextDoes) {
    GpFont* font = MakeFont(10);
    const double width = Width(u"Box", font), height = 10 * kLine;
    for (const bool horizontal : {true, false}) {
        for (int i = 0; i < 3; ++i) {
            GpStringFormat* format = Typographic();
            const auto align = static_cast<StringAlignment>(i);
            horizontal ? GdipSetStringFormatAlign(format, align)
                       : GdipSetStringFormatLineAlign(format, align);
            const GpRectF box = Measure(u"Box", font, {5, 7, 100, 50}, format).box;
            const double x = horizontal ? 5 + (100 - width) * i / 2 : 5;
            const double y = horizontal ? 7 : 7 + (50 - height) * i / 2;
            EXPECT_NEAR(box.X, x, 1e-3) << horizontal << i;
            EXPECT_NEAR(box.Y, y, 1e-3) << horizontal << i;
            EXPECT_NEAR(box.Width, width, 1e-3);
            EXPECT_NEAR(box.Height, height, 1e-3);
        }
    }
}

TEST_F(StringMeasures, WithoutARectangleTextIsAlignedToItsCorner) {
    GpFont* font = MakeFont(10);
    const double width = Width(u"Box", font);
    GpStringFormat* format = Typographic();
    GdipSetStringFormatAlign(format, StringAlignmentFar);
    EXPECT_NEAR(Measure(u"Box", font, {50, 0, 0, 0}, format).box.X, 50 - width, 1e-3);
    GdipSetStringFormatAlign(format, StringAlignmentCenter);
    EXPECT_NEAR(Measure(u"Box", font, {50, 0, 0, 0}, format).box.X, 50 - width / 2, 1e-3);
}

TEST_F(StringMeasures, FontSizesFollowTheirUnit) {
    EXPECT_NEAR(Width(u"A", MakeFont(15.36f, 0, UnitPoint)), 14.01, 1e-3) << "at 96 dots an inch";
    EXPECT_NEAR(Width(u"A", MakeFont(20.48f, 0, UnitWorld)), 14.01, 1e-3);
}

TEST_F(StringMeasures, LinesBreakAtSpacesWhichHangOver) {
    GpFont* font = MakeFont(10);
    const auto width = static_cast<REAL>(Width(u"two words", font));
    const Measured fits = Measure(u"two words", font, {0, 0, width, 0}, Typographic());
    EXPECT_EQ(fits.lines, 1);
    const Measured broken = Measure(u"two words", font, {0, 0, width - 1, 0}, Typographic());
    EXPECT_EQ(broken.lines, 2);
    EXPECT_EQ(broken.units, 9);
    EXPECT_NEAR(broken.box.Width, Width(u"words", font), 1e-3) << "the widest line";
    EXPECT_NEAR(broken.box.Height, 2 * 10 * kLine, 1e-3);
    const auto first = static_cast<REAL>(Width(u"words", font));
    EXPECT_EQ(Measure(u"words   words", font, {0, 0, first, 0}, Typographic()).lines, 2)
        << "however many spaces there are";
}

TEST_F(StringMeasures, AWordThatIsTooLongIsCutAnywhere) {
    GpFont* font = MakeFont(10);
    const auto width = static_cast<REAL>(Width(u"aaaa", font));
    const Measured cut = Measure(u"aaaaaaaaaa", font, {0, 0, width, 0}, Typographic());
    EXPECT_EQ(cut.lines, 3);
    EXPECT_EQ(Measure(u"aaa", font, {0, 0, 1, 0}, Typographic()).lines, 3)
        << "each line has a character at least";
}

TEST_F(StringMeasures, LineEndsStartNewLines) {
    GpFont* font = MakeFont(10);
    struct Row {
        const char16_t* text;
        INT lines;
    };
    const Row rows[] = {{u"a\nb", 2},  {u"a\rb", 2},     {u"a\r\nb", 2}, {u"a\n\nb", 3},
                        {u"a\n", 1},   {u"\n", 1},       {u"", 0},       {u"a", 1},
                        {u"a\n\r", 2}, {u"a\r\n\r\n", 2}};
    for (const Row& row : rows) {
        const Measured measured = Measure(row.text, font, {}, Typographic());
        EXPECT_EQ(measured.lines, row.lines) << String(row.text).Utf8();
        EXPECT_EQ(measured.units, static_cast<INT>(std::u16string(row.text).size()));
    }
    const Measured nothing = Measure(u"", font, {3, 4, 5, 6}, Default());
    EXPECT_EQ(nothing.box.X, 3);
    EXPECT_EQ(nothing.box.Y, 4);
    EXPECT_EQ(nothing.box.Width, 0);
    EXPECT_EQ(nothing.box.Height, 0);
}

TEST_F(StringMeasures, NoWrapKeepsOneLineAParagraph) {
    GpFont* font = MakeFont(10);
    GpStringFormat* format = WithFlags(StringFormatFlagsNoWrap, Trimming(StringTrimmingNone));
    GdipSetStringFormatFlags(format, StringFormatFlagsNoWrap);
    const Measured measured = Measure(u"some words here\nand there", font, {0, 0, 30, 0}, format);
    EXPECT_EQ(measured.lines, 2);
    EXPECT_EQ(measured.units, 25);
    EXPECT_EQ(measured.box.Width, 30) << "what is clipped isn't measured";
}

TEST_F(StringMeasures, LineLimitCountsWholeLinesAlone) {
    GpFont* font = MakeFont(10);
    const auto height = static_cast<REAL>(10 * kLine);
    const char16_t* text = u"1\n2\n3\n4";
    const auto lines = [&](INT flags, REAL room) {
        return Measure(text, font, {0, 0, 50, room}, Trimming(StringTrimmingNone, flags)).lines;
    };
    EXPECT_EQ(lines(0, 2.1f * height), 3) << "a line that is seen in part";
    EXPECT_EQ(lines(StringFormatFlagsLineLimit, 2.1f * height), 2);
    EXPECT_EQ(lines(StringFormatFlagsLineLimit, 2 * height), 2) << "exactly";
    EXPECT_EQ(lines(StringFormatFlagsLineLimit, 0.9f * height), 0);
    EXPECT_EQ(lines(0, 0.1f * height), 1);
    EXPECT_EQ(lines(StringFormatFlagsNoClip, 0.1f * height), 4) << "nothing is clipped";
    const Measured clipped =
        Measure(text, font, {0, 0, 50, 2.1f * height}, Trimming(StringTrimmingNone));
    EXPECT_NEAR(clipped.box.Height, 2.1 * height, 1e-3);
    EXPECT_EQ(clipped.units, 6) << "three lines with their ends";
}

TEST_F(StringMeasures, TrailingSpacesCountWhenAskedFor) {
    GpFont* font = MakeFont(20.48f);
    const double space = 6.51;
    const double without = Measure(u"a  ", font, {}, Typographic()).box.Width;
    EXPECT_NEAR(without, Width(u"a", font), 1e-3);
    EXPECT_NEAR(Width(u"a  ", font), without + 2 * space, 1e-3);
    EXPECT_EQ(Measure(u"a  ", font, {}, Typographic()).units, 3);
}

TEST_F(StringMeasures, TrimmingTellsHowMuchFits) {
    GpFont* font = MakeFont(10);
    const char16_t* text = u"alpha beta gamma";
    const auto room = static_cast<REAL>(Width(u"alpha bet", font));
    struct Row {
        StringTrimming trimming;
        INT units;
    };
    // The ellipsis is wider than "t": what stays is "alpha b", or the last whole word.
    const Row rows[] = {{StringTrimmingNone, 16},
                        {StringTrimmingCharacter, 9},
                        {StringTrimmingWord, 5},
                        {StringTrimmingEllipsisCharacter, 7},
                        {StringTrimmingEllipsisWord, 5}};
    for (const Row& row : rows) {
        const Measured measured =
            Measure(text, font, {0, 0, room, 0}, Trimming(row.trimming, StringFormatFlagsNoWrap));
        EXPECT_EQ(measured.units, row.units) << row.trimming;
        EXPECT_EQ(measured.lines, 1);
        EXPECT_LE(measured.box.Width, room + 1e-3f);
    }
}

TEST_F(StringMeasures, TheLastLineThatIsSeenIsTrimmed) {
    GpFont* font = MakeFont(10);
    const char16_t* text = u"alpha beta gamma delta epsilon";
    const auto room = static_cast<REAL>(Width(u"alpha beta g", font));
    const auto two = static_cast<REAL>(20 * kLine);
    const auto units = [&](StringTrimming trimming) {
        return Measure(text, font, {0, 0, room, two}, Trimming(trimming)).units;
    };
    EXPECT_EQ(units(StringTrimmingNone), 17)
        << "'gamma ' stands alone: delta doesn't fit behind it";
    EXPECT_EQ(units(StringTrimmingWord), 16);
    EXPECT_GT(units(StringTrimmingCharacter), 17) << "filled with letters";
    EXPECT_GT(units(StringTrimmingEllipsisCharacter), 16);
    EXPECT_LT(units(StringTrimmingEllipsisCharacter), units(StringTrimmingCharacter));
    const auto three = static_cast<REAL>(40 * kLine);
    EXPECT_EQ(Measure(text, font, {0, 0, room, three}, Trimming(StringTrimmingCharacter)).units,
              30);
}

TEST_F(StringMeasures, PrefixesDontCountWhenTheyAreMeant) {
    GpFont* font = MakeFont(10);
    GpStringFormat* format = Typographic();
    const double plain = Width(u"File", font), marked = Width(u"&File", font);
    const auto width = [&](INT prefix, const char16_t* text) {
        GdipSetStringFormatHotkeyPrefix(format, prefix);
        return Measure(text, font, {}, format).box.Width;
    };
    EXPECT_NEAR(width(HotkeyPrefixNone, u"&File"), marked, 1e-3);
    EXPECT_NEAR(width(HotkeyPrefixShow, u"&File"), plain, 1e-3);
    EXPECT_NEAR(width(HotkeyPrefixHide, u"&File"), plain, 1e-3);
    EXPECT_NEAR(width(HotkeyPrefixHide, u"&&File"), marked, 1e-3);
    EXPECT_EQ(Measure(u"&File", font, {}, format).units, 5) << "of the text as it was given";
}

TEST_F(StringMeasures, TabsLeadToTheStops) {
    GpFont* font = MakeFont(10);
    GpStringFormat* format = Typographic();
    GdipSetStringFormatFlags(format, StringFormatFlagsMeasureTrailingSpaces);
    const double a = Width(u"a", font);
    const auto width = [&](const char16_t* text) {
        return Measure(text, font, {}, format).box.Width - a;
    };
    EXPECT_NEAR(width(u"\ta"), 40, 1e-3) << "four ems";
    EXPECT_NEAR(width(u"a\t\ta"), 80, 1e-3);
    const REAL stops[] = {10, 20};
    GdipSetStringFormatTabStops(format, 5, 2, stops);
    EXPECT_NEAR(width(u"\ta"), 15, 1e-3);
    EXPECT_NEAR(width(u"\t\ta"), 35, 1e-3);
    EXPECT_NEAR(width(u"\t\t\ta"), 55, 1e-3) << "the last distance goes on";
    EXPECT_NEAR(width(u"iiiiiiii\ta"), 35, 1e-3);
}

TEST_F(StringMeasures, DigitsAreReplacedByTheLanguagesOwn) {
    GpFont* font = MakeFont(20);
    GpStringFormat* format = Typographic();
    const double european = Measure(u"1234", font, {}, format).box.Width;
    GdipSetStringFormatDigitSubstitution(format, 0x401, StringDigitSubstituteNational);
    const double arabic = Measure(u"1234", font, {}, format).box.Width;
    EXPECT_NE(european, arabic);
    EXPECT_NEAR(arabic, Width(u"\u0661\u0662\u0663\u0664", font), 1e-3);
    GdipSetStringFormatDigitSubstitution(format, 0x401, StringDigitSubstituteNone);
    EXPECT_NEAR(Measure(u"1234", font, {}, format).box.Width, european, 1e-3);
    GdipSetStringFormatDigitSubstitution(format, 0x409, StringDigitSubstituteTraditional);
    EXPECT_NEAR(Measure(u"1234", font, {}, format).box.Width, european, 1e-3);
}

TEST_F(StringMeasures, VerticalTextIsMeasuredDownwards) {
    GpFont* font = MakeFont(10);
    const double width = Width(u"down", font);
    GpStringFormat* format = Typographic();
    GdipSetStringFormatFlags(format, StringFormatFlagsDirectionVertical);
    const GpRectF near = Measure(u"down", font, {0, 0, 100, 80}, format).box;
    EXPECT_NEAR(near.X, 0, 1e-3);
    EXPECT_NEAR(near.Y, 0, 1e-3);
    EXPECT_NEAR(near.Width, 10 * kLine, 1e-3);
    EXPECT_NEAR(near.Height, width, 1e-3);
    GdipSetStringFormatFlags(
        format, StringFormatFlagsDirectionVertical | StringFormatFlagsDirectionRightToLeft);
    EXPECT_NEAR(Measure(u"down", font, {0, 0, 100, 80}, format).box.X, 100 - 10 * kLine, 1e-3)
        << "columns begin at the right";
    EXPECT_EQ(Measure(u"down down", font, {0, 0, 100, static_cast<REAL>(width) + 1}, format).lines,
              2)
        << "they are broken at the bottom";
}

TEST_F(StringMeasures, TextFromRightToLeftBeginsAtTheRight) {
    GpFont* font = MakeFont(10);
    GpStringFormat* format = Typographic();
    GdipSetStringFormatFlags(format, StringFormatFlagsDirectionRightToLeft);
    const GpRectF box = Measure(u"near", font, {0, 0, 100, 50}, format).box;
    EXPECT_NEAR(box.X + box.Width, 100, 1e-3);
    GdipSetStringFormatAlign(format, StringAlignmentFar);
    EXPECT_NEAR(Measure(u"near", font, {0, 0, 100, 50}, format).box.X, 0, 1e-3);
}

TEST_F(StringMeasures, ACountCutsTheText) {
    GpFont* font = MakeFont(10);
    GpRectF box{};
    INT units = 0;
    const GpRectF rect{};
    EXPECT_EQ(GdipMeasureString(graphics_, u"abcdef", 3, font, &rect, Typographic(), &box, &units,
                                nullptr),
              Ok);
    EXPECT_EQ(units, 3);
    EXPECT_NEAR(box.Width, Width(u"abc", font), 1e-3);
    EXPECT_EQ(GdipMeasureString(graphics_, u"ab\0def", 6, font, &rect, Typographic(), &box, &units,
                                nullptr),
              Ok);
    EXPECT_EQ(units, 2) << "a zero ends it";
}

TEST_F(StringMeasures, AWrongArgumentIsInvalid) {
    GpFont* font = MakeFont(10);
    const GpRectF rect{}, odd{std::numeric_limits<REAL>::quiet_NaN(), 0, 0, 0};
    GpRectF box;
    const auto measure = [&](GpGraphics* graphics, const char16_t* text, INT length, GpFont* used,
                             const GpRectF* room, GpStringFormat* format, GpRectF* result) {
        return GdipMeasureString(graphics, text, length, used, room, format, result, nullptr,
                                 nullptr);
    };
    EXPECT_EQ(measure(graphics_, u"a", -1, font, &rect, nullptr, &box), Ok);
    EXPECT_EQ(measure(nullptr, u"a", -1, font, &rect, nullptr, &box), InvalidParameter);
    EXPECT_EQ(measure(graphics_, nullptr, -1, font, &rect, nullptr, &box), InvalidParameter);
    EXPECT_EQ(measure(graphics_, u"a", -2, font, &rect, nullptr, &box), InvalidParameter);
    EXPECT_EQ(measure(graphics_, u"a", -1, nullptr, &rect, nullptr, &box), InvalidParameter);
    EXPECT_EQ(measure(graphics_, u"a", -1, font, nullptr, nullptr, &box), InvalidParameter);
    EXPECT_EQ(measure(graphics_, u"a", -1, font, &odd, nullptr, &box), InvalidParameter);
    EXPECT_EQ(
        measure(graphics_, u"a", -1, font, &rect, reinterpret_cast<GpStringFormat*>(font), &box),
        InvalidParameter);
    EXPECT_EQ(measure(graphics_, u"a", -1, font, &rect, nullptr, nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
