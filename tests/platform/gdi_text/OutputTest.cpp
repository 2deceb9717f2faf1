#include <gtest/gtest.h>

#include "Canvas.h"
#include "vxgui/platform/gdi/DeviceContext.h"

namespace vxgui::gdi {
namespace {

/// The same picture, pixel by pixel.
void ExpectSame(const Canvas& a, const Canvas& b) {
    for (int y = 0; y < a.Height(); ++y) {
        for (int x = 0; x < a.Width(); ++x) ASSERT_EQ(a.Word(x, y), b.Word(x, y)) << x << ", " << y;
    }
}

TEST(TextOutput, StandsAtTheLeftAndTopOfItsCell) {
    Canvas canvas(60, 40);
    EXPECT_TRUE(TextOutW(canvas, 10, 8, u"H", 1));
    const Box ink = canvas.Ink();
    const TEXTMETRICA metrics = Metrics(canvas);
    EXPECT_EQ(ink.bottom, 8 + metrics.tmAscent) << "H stands on the base line";
    EXPECT_GE(ink.left, 10);
    EXPECT_LT(ink.right, 10 + Extent(canvas, u"H").cx + 1);
}

struct AlignRow {
    UINT align;
    int dx, dy;  ///< from left and top, in widths (halves) and as 0 top, 1 base line, 2 bottom
};
class TextAlignment : public testing::TestWithParam<AlignRow> {};
INSTANTIATE_TEST_SUITE_P(, TextAlignment,
                         testing::Values(AlignRow{TA_LEFT, 0, 0}, AlignRow{TA_RIGHT, 2, 0},
                                         AlignRow{TA_CENTER, 1, 0}, AlignRow{TA_BASELINE, 0, 1},
                                         AlignRow{TA_BOTTOM, 0, 2},
                                         AlignRow{TA_RIGHT | TA_BASELINE, 2, 1},
                                         AlignRow{TA_CENTER | TA_BOTTOM, 1, 2}));

TEST_P(TextAlignment, MovesTheCellAroundThePoint) {
    Canvas plain(120, 60);
    const int width = Extent(plain, u"Align").cx;
    const TEXTMETRICA metrics = Metrics(plain);
    const int down[] = {0, metrics.tmAscent, metrics.tmHeight};
    TextOutW(plain, 60 - GetParam().dx * width / 2, 30 - down[GetParam().dy], u"Align", 5);
    Canvas aligned(120, 60);
    SetTextAlign(aligned, GetParam().align);
    TextOutW(aligned, 60, 30, u"Align", 5);
    ExpectSame(aligned, plain);
}

TEST(TextOutput, AtTheCurrentPositionMovesThePosition) {
    Canvas moving(120, 30);
    SetTextAlign(moving, TA_UPDATECP);
    FindContext(moving)->state.position = {5, 4};
    TextOutW(moving, 77, 77, u"ab", 2);
    TextOutW(moving, 0, 0, u"cd", 2);
    Canvas whole(120, 30);
    TextOutW(whole, 5, 4, u"abcd", 4);
    ExpectSame(moving, whole);
    const POINT at = FindContext(moving)->state.position;
    EXPECT_EQ(at.x, 5 + Extent(moving, u"abcd").cx);
    EXPECT_EQ(at.y, 4);
}

TEST(TextOutput, AnOpaqueBackgroundFillsTheCell) {
    Canvas canvas(80, 40, 32, 0xFF00FF00);
    SetBkMode(canvas, OPAQUE);
    SetBkColor(canvas, RGB(10, 20, 30));
    TextOutW(canvas, 7, 9, u"  ", 2);
    const SIZE cell = Extent(canvas, u"  ");
    EXPECT_EQ(canvas.Ink(),
              (Box{7, 9, 7 + static_cast<int>(cell.cx), 9 + static_cast<int>(cell.cy)}));
    EXPECT_EQ(canvas.Word(7, 9), 0x000A141Eu) << "the alpha byte becomes 0";
}

TEST(TextOutput, ATransparentBackgroundIsLeft) {
    Canvas canvas(80, 40);
    TextOutW(canvas, 7, 9, u"  ", 2);
    EXPECT_TRUE(canvas.Blank());
}

TEST(TextOutput, OptionOpaqueFillsTheRectangleWithoutText) {
    Canvas canvas(40, 40, 32, 0xFFFFFFFF);
    SetBkColor(canvas, RGB(0, 0, 255));
    const RECT rect{3, 4, 20, 30};
    EXPECT_TRUE(ExtTextOutW(canvas, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr));
    EXPECT_EQ(canvas.Ink(), (Box{3, 4, 20, 30}));
    EXPECT_EQ(canvas.Word(3, 4), 0x000000FFu);
}

TEST(TextOutput, ClipsGlyphsAndTheOpaqueCell) {
    Canvas whole(80, 30), cut(80, 30);
    SetBkMode(whole, OPAQUE);
    SetBkMode(cut, OPAQUE);
    SetBkColor(whole, RGB(1, 2, 3));
    SetBkColor(cut, RGB(1, 2, 3));
    const RECT rect{10, 6, 30, 12};
    TextOutW(whole, 5, 2, u"Clipped", 7);
    EXPECT_TRUE(ExtTextOutW(cut, 5, 2, ETO_CLIPPED, &rect, u"Clipped", 7, nullptr));
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 80; ++x) {
            const bool inside = x >= 10 && x < 30 && y >= 6 && y < 12;
            ASSERT_EQ(cut.Word(x, y), inside ? whole.Word(x, y) : 0xFFFFFFFFu);
        }
    }
}

TEST(TextOutput, AnEmptyClipDrawsNothing) {
    for (const RECT& rect : {RECT{10, 6, 10, 12}, RECT{30, 12, 10, 6}, RECT{0, 0, 0, 0}}) {
        Canvas canvas(80, 30);
        SetBkMode(canvas, OPAQUE);
        SetBkColor(canvas, 0);
        EXPECT_TRUE(ExtTextOutW(canvas, 5, 2, ETO_CLIPPED, &rect, u"Clipped", 7, nullptr));
        EXPECT_TRUE(canvas.Blank());
    }
}

TEST(TextOutput, StaysInsideTheContextsClip) {
    for (const int em : {12, 400}) {
        Canvas canvas(80, 60);
        canvas.Font("DejaVu Sans", -em);
        const pixman_box32_t boxes[] = {{10, 6, 20, 50}, {25, 6, 40, 50}};
        FindContext(canvas)->state.clip = PixelRegion::FromBoxes(boxes);
        TextOutW(canvas, -20, em > 100 ? -200 : 8, u"MMMMMMMMMM", 10);
        const Box ink = canvas.Ink();
        EXPECT_GE(ink.left, 10);
        EXPECT_GE(ink.top, 6);
        EXPECT_LE(ink.right, 40);
        EXPECT_LE(ink.bottom, 50);
        EXPECT_FALSE(ink.Empty());
        for (int y = 0; y < 60; ++y) {
            for (int x = 20; x < 25; ++x) ASSERT_EQ(canvas.Word(x, y), 0xFFFFFFFFu);
        }
    }
}

TEST(TextOutput, ATabIsAGlyphAndNotExpanded) {
    Canvas canvas(80, 30);
    EXPECT_GT(Extent(canvas, u"\t").cx, 0);
    ExtTextOutW(canvas, 5, 2, 0, nullptr, u"\t", 1, nullptr);
    EXPECT_FALSE(canvas.Blank());
}

TEST(TextOutput, HonoursTheCharacterExtra) {
    Canvas canvas(120, 30);
    TextOutW(canvas, 5, 2, u"||", 2);
    const int plain = canvas.Ink().Width();
    canvas.Clear();
    SetTextCharacterExtra(canvas, 40);
    TextOutW(canvas, 5, 2, u"||", 2);
    EXPECT_EQ(canvas.Ink().Width(), plain + 40);
}

TEST(TextOutput, TakesTheWidthsThatItIsGiven) {
    Canvas canvas(120, 30);
    const int widths[] = {50, 10};
    TextOutW(canvas, 5, 2, u"|", 1);
    const Box one = canvas.Ink();
    ExtTextOutW(canvas, 5, 2, 0, nullptr, u"||", 2, widths);
    EXPECT_EQ(canvas.Ink().right, one.right + 50);
}

TEST(TextOutput, UnderlinesTheWholeWidth) {
    Canvas canvas(80, 60);
    LOGFONTA font = LogFont("DejaVu Sans", -24);
    font.lfUnderline = 1;
    canvas.Font(font);
    TextOutW(canvas, 10, 5, u"    ", 4);
    const Box line = canvas.Ink();
    EXPECT_EQ(line.left, 10);
    EXPECT_EQ(line.Width(), Extent(canvas, u"    ").cx);
    EXPECT_EQ(line.Height(), 1) << "24 * 90 / 2048";
    EXPECT_EQ(line.top, 5 + Metrics(canvas).tmAscent) << "24 * 40 / 2048 rounds to 0";
    EXPECT_EQ(canvas.Word(10, line.top), 0u);
}

TEST(TextOutput, StrikesOutTheWholeWidth) {
    Canvas canvas(80, 60);
    LOGFONTA font = LogFont("DejaVu Sans", -24);
    font.lfStrikeOut = 1;
    canvas.Font(font);
    TextOutW(canvas, 10, 5, u"    ", 4);
    const Box line = canvas.Ink();
    EXPECT_EQ(line.left, 10);
    EXPECT_EQ(line.Width(), Extent(canvas, u"    ").cx);
    EXPECT_EQ(line.top, 5 + Metrics(canvas).tmAscent - 6) << "24 * 530 / 2048";
}

TEST(TextOutput, SlantsAFaceThatHasNoItalic) {
    Canvas upright(60, 60), slanted(60, 60);
    LOGFONTA font = LogFont("DejaVu Sans", -40);
    upright.Font(font);
    font.lfItalic = 1;
    slanted.Font(font);
    TextOutW(upright, 10, 2, u"l", 1);
    TextOutW(slanted, 10, 2, u"l", 1);
    EXPECT_GT(slanted.Ink().Width(), upright.Ink().Width() + 4);
    EXPECT_NEAR(slanted.Ink().bottom, upright.Ink().bottom, 1);
}

TEST(TextOutput, EmboldensAFaceThatHasNoBold) {
    Canvas regular(60, 60), bold(60, 60);
    regular.Font("DejaVu Serif", -40);
    bold.Font("DejaVu Serif", -40, 700);
    TextOutW(regular, 10, 2, u"l", 1);
    TextOutW(bold, 10, 2, u"l", 1);
    int sums[2] = {0, 0};
    for (int y = 0; y < 60; ++y) {
        sums[0] += static_cast<int>(regular.InkOfRow(y).size());
        sums[1] += static_cast<int>(bold.InkOfRow(y).size());
    }
    EXPECT_GT(sums[1], sums[0] * 11 / 10);
}

TEST(TextOutput, EscapementTurnsTheLineAnticlockwise) {
    Canvas level(200, 200);
    TextOutW(level, 100, 100, u"Turned", 6);
    const Box flat = level.Ink();
    Canvas upward(200, 200);
    LOGFONTA font = LogFont("DejaVu Sans", -12);
    font.lfEscapement = 900;
    upward.Font(font);
    TextOutW(upward, 100, 100, u"Turned", 6);
    const Box up = upward.Ink();
    // A quarter turn takes (x, y) from the reference point to (y, -x).
    EXPECT_NEAR(up.left, 100 + (flat.top - 100), 2);
    EXPECT_NEAR(up.right, 100 + (flat.bottom - 100), 2);
    EXPECT_NEAR(up.bottom, 100 - (flat.left - 100), 2);
    EXPECT_NEAR(up.top, 100 - (flat.right - 100), 2);
    EXPECT_EQ(Extent(upward, u"Turned").cx, Extent(level, u"Turned").cx);
}

TEST(TextOutput, EscapementTurnsTheBackgroundAndTheLinesToo) {
    Canvas canvas(200, 200);
    LOGFONTA font = LogFont("DejaVu Sans", -20);
    font.lfEscapement = 1800 + 3600;
    font.lfUnderline = 1;
    canvas.Font(font);
    SetBkMode(canvas, OPAQUE);
    SetBkColor(canvas, RGB(0, 200, 0));
    TextOutW(canvas, 150, 100, u"    ", 4);
    const SIZE cell = Extent(canvas, u"    ");
    const Box ink = canvas.Ink();
    EXPECT_EQ(ink,
              (Box{150 - static_cast<int>(cell.cx), 100 - static_cast<int>(cell.cy), 150, 100}));
    const int underline = 100 - Metrics(canvas).tmAscent - 1;
    EXPECT_EQ(canvas.Word(140, underline), 0u);
    EXPECT_EQ(canvas.Word(140, underline + 3), 0x0000C800u);
}

TEST(TextOutput, CountsAreChecked) {
    Canvas canvas(60, 30);
    EXPECT_FALSE(TextOutW(canvas, 0, 0, nullptr, 2));
    EXPECT_FALSE(TextOutW(canvas, 0, 0, u"a", -2));
    EXPECT_FALSE(ExtTextOutW(canvas, 0, 0, 0, nullptr, nullptr, 2, nullptr));
    EXPECT_TRUE(TextOutW(canvas, 0, 0, nullptr, 0));
    EXPECT_TRUE(canvas.Blank());
    EXPECT_TRUE(TextOutW(canvas, 0, 0, u"a", -1));
    EXPECT_FALSE(canvas.Blank());
}

}  // namespace
}  // namespace vxgui::gdi
