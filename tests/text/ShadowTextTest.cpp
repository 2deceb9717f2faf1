#include "vxgui/text/ShadowText.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "tests/text/TextCanvas.h"
#include "vxgui/text/AlphaShadow.h"

namespace vxgui {
namespace {

using test::TextCanvas;
using test::TextRecorder;

constexpr int32_t kWhite = 0xFFFFFF;
constexpr int32_t kAlpha128 = static_cast<int32_t>(0x80000000);

using Painter = int32_t (*)(gdi::HDC, gdi::RECT&, const ShadowTextArguments&);
constexpr Painter kPainters[] = {DrawShadowTextA, DrawShadowTextBlur, DrawShadowTextGlow};

ShadowTextArguments Arguments(int32_t text, int32_t shadow, int32_t x = 3, int32_t y = 3,
                              int32_t offsetX = 0, int32_t offsetY = 0) {
    return {"Ill", -1, gdi::DT_SINGLELINE, text, shadow, x, y, offsetX, offsetY};
}

/// The darkest blue-green-red pixel, each channel for itself.
int Darkest(const TextCanvas& canvas) {
    int darkest = 255;
    for (uint32_t pixel : canvas.picture.pixels) {
        for (int shift : {0, 8, 16})
            darkest = std::min(darkest, static_cast<int>(pixel >> shift & 255));
    }
    return darkest;
}

TEST(ShadowText, MeasuringPaintsNothing) {
    for (const Painter paint : kPainters) {
        TextCanvas canvas(200, 100, -40);
        ShadowTextArguments a = Arguments(0, 0);
        a.dwFormat |= gdi::DT_CALCRECT;
        gdi::RECT rect{10, 20, 11, 21}, expected = rect;
        const int height = gdi::DrawTextA(canvas.dc, "Ill", -1, &expected, a.dwFormat);
        EXPECT_EQ(paint(canvas.dc, rect, a), height);
        EXPECT_EQ(rect.right, expected.right);
        EXPECT_EQ(rect.bottom, expected.bottom);
        EXPECT_TRUE(canvas.IsBlank());
    }
}

TEST(ShadowText, AStyleThatIsNoneOfTheThreePaintsNotEvenTheText) {
    for (int32_t style : {0, 4, -1}) {
        TextCanvas canvas(200, 100, -40);
        gdi::RECT rect{0, 0, 200, 100};
        DrawShadowTextByStyle(canvas.dc, rect, style, Arguments(0, 0));
        EXPECT_TRUE(canvas.IsBlank());
    }
}

TEST(ShadowText, AStyleChoosesItsPainter) {
    for (int32_t style : {1, 2, 3}) {
        TextCanvas chosen(200, 100, -40), direct(200, 100, -40);
        gdi::RECT rect{20, 20, 180, 80};
        const ShadowTextArguments a = Arguments(0x204060, 0x3050F0, 4, 5, 2, 3);
        DrawShadowTextByStyle(chosen.dc, rect, style, a);
        kPainters[style - 1](direct.dc, rect, a);
        EXPECT_EQ(chosen.picture.pixels, direct.picture.pixels);
        EXPECT_FALSE(chosen.IsBlank());
    }
}

TEST(ShadowText, TheContextIsGivenBackAsItWas) {
    for (const Painter paint : kPainters) {
        TextCanvas canvas(200, 100, -40);
        gdi::SetTextColor(canvas.dc, 0x123456);
        gdi::SetBkMode(canvas.dc, gdi::OPAQUE);
        gdi::RECT rect{20, 20, 180, 80};
        paint(canvas.dc, rect, Arguments(0x204060, 0x3050F0));
        EXPECT_EQ(gdi::GetTextColor(canvas.dc), 0x123456u);
        EXPECT_EQ(gdi::GetBkMode(canvas.dc), gdi::OPAQUE);
        EXPECT_EQ(gdi::GetCurrentObject(canvas.dc, gdi::OBJ_FONT), canvas.font->hFont());
    }
}

TEST(SoftShadow, AnswersTheHeightOfTheText) {
    TextCanvas canvas(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80}, same = rect;
    const int32_t height = DrawShadowTextA(canvas.dc, rect, Arguments(0x204060, 0));
    EXPECT_EQ(height, gdi::DrawTextA(canvas.dc, "Ill", -1, &same, gdi::DT_SINGLELINE));
}

TEST(SoftShadow, ComposesWithoutAReach) {
    TextCanvas canvas(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    DrawShadowTextA(canvas.dc, rect, Arguments(kWhite, 0, 0, 0));
    EXPECT_EQ(Darkest(canvas), 1);  // each channel of a shadow is one more
}

TEST(SoftShadow, TakesItsAlphaFromTheTopByte) {
    TextCanvas half(200, 100, -40), whole(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    DrawShadowTextA(half.dc, rect, Arguments(kWhite, kAlpha128, 1, 1, 40, 0));
    EXPECT_NEAR(Darkest(half), 255 - 128, 2);
    DrawShadowTextA(whole.dc, rect, Arguments(kWhite, 0xFF, 1, 1, 40, 0));
    EXPECT_LE(Darkest(whole), 1);
}

TEST(SoftShadow, ShowsWithRedAndBlueExchanged) {
    TextCanvas canvas(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    DrawShadowTextA(canvas.dc, rect, Arguments(kWhite, 0xFF, 1, 1, 40, 0));
    EXPECT_GT(canvas.Count(0x0101FF) + canvas.Count(0x0000FF), 20);
}

TEST(SoftShadow, FromRightToLeftItLiesUnderTheText) {
    TextCanvas canvas(200, 100, -40), twice(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    gdi::SetLayout(canvas.dc, gdi::LAYOUT_RTL);
    DrawShadowTextA(canvas.dc, rect, Arguments(0x204060, 0xFF, 3, 3, 40, 20));
    gdi::SetBkMode(twice.dc, gdi::TRANSPARENT);
    for (COLORREF color : {0xFFu, 0x204060u}) {
        gdi::SetTextColor(twice.dc, color);
        gdi::DrawTextA(twice.dc, "Ill", -1, &rect, gdi::DT_SINGLELINE);
    }
    EXPECT_EQ(canvas.picture.pixels, twice.picture.pixels);
}

TEST(BlackShadow, IsBlackWhateverItsColour) {
    TextCanvas black(200, 100, -40), red(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    DrawShadowTextBlur(black.dc, rect, Arguments(kWhite, 0, 3, 3, 30, 0));
    DrawShadowTextBlur(red.dc, rect, Arguments(kWhite, 0xFF, 3, 3, 30, 0));
    EXPECT_LT(Darkest(red), 160);
    for (uint32_t pixel : red.picture.pixels) EXPECT_EQ(pixel & 255, pixel >> 16 & 255);
}

TEST(BlackShadow, AWhiteOneIsNone) {
    TextCanvas canvas(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    DrawShadowTextBlur(canvas.dc, rect, Arguments(kWhite, kWhite, 3, 3, 30, 0));
    EXPECT_TRUE(canvas.IsBlank());
}

TEST(BlackShadow, ReachesFourPixelsUpAndDownWhateverIsAsked) {
    TextCanvas low(200, 100, -40), high(200, 100, -40);
    gdi::RECT rect{20, 20, 180, 80};
    gdi::SetBkMode(low.dc, gdi::TRANSPARENT);
    gdi::SetBkMode(high.dc, gdi::TRANSPARENT);
    DrawShadowTextBlur(low.dc, rect, Arguments(kWhite, 0, 3, 10));
    DrawShadowTextBlur(high.dc, rect, Arguments(kWhite, 0, 3, 15));
    EXPECT_FALSE(low.IsBlank());
    EXPECT_EQ(low.picture.pixels, high.picture.pixels);
}

TEST(Glow, WritesTheTextTwiceWithATabBetween) {
    TextCanvas canvas(300, 100, -40);
    const TextRecorder recorder;
    gdi::SetTextCharacterExtra(canvas.dc, 5);
    gdi::RECT rect{20, 20, 280, 80};
    ShadowTextArguments a = Arguments(0x204060, 0x3050F0, 4, 6, 50, 50);
    a.cch = 1;  // not looked at
    EXPECT_EQ(DrawShadowTextGlow(canvas.dc, rect, a), 0);
    ASSERT_EQ(recorder.calls.size(), 2u);
    for (const test::WideCall& call : recorder.calls) {
        EXPECT_EQ(call.text, u"Ill\tIll");
        EXPECT_EQ(call.extra, 5);
    }
    EXPECT_EQ(recorder.calls[0].flags, 0u);
    EXPECT_EQ(recorder.calls[0].color, static_cast<COLORREF>(kWhite));
    EXPECT_EQ(recorder.calls[0].rect.left, 4);
    EXPECT_EQ(recorder.calls[0].rect.top, 6);
    EXPECT_EQ(recorder.calls[0].rect.right, 4 + 260);
    EXPECT_EQ(recorder.calls[0].rect.bottom, 6 + 60);
    EXPECT_EQ(recorder.calls[1].flags, gdi::ETO_CLIPPED);
    EXPECT_EQ(recorder.calls[1].color, 0x204060u);
    EXPECT_EQ(recorder.calls[1].rect.left, 20);
}

TEST(ShadowText, AnEmptyRectangleOnlyDropsTheShadow) {
    TextCanvas canvas(200, 100, -40);
    gdi::RECT rect{20, 20, 20, 20};
    ShadowTextArguments a = Arguments(0, 0, 0, 0, 40);
    a.dwFormat |= gdi::DT_NOCLIP;
    EXPECT_GT(DrawShadowTextA(canvas.dc, rect, a), 0);
    EXPECT_EQ(Darkest(canvas), 0);
}

TEST(AlphaShadow, AClearPixelOfASoftShadowHasColourBytesOfOne) {
    std::vector<uint32_t> pixels(16);
    MakeAlphaShadowXP(pixels.data(), 4, 4, 1, 1, {10, 20, 30, 255});
    for (int i = 0; i < 12; ++i) EXPECT_EQ(pixels[i], 0x00010101u);
    for (int i = 12; i < 16; ++i) EXPECT_EQ(pixels[i], 0u);  // the last row stays
}

TEST(AlphaShadow, AForwardShadowWithoutAlphaHasThatOf192) {
    std::vector<uint32_t> none(9, 1), given(9, 1);
    MakeAlphaShadow2(none.data(), 3, 3, 1, 1, 0x00102030);
    MakeAlphaShadow2(given.data(), 3, 3, 1, 1, static_cast<int32_t>(0xC0102030));
    EXPECT_EQ(none, given);
    EXPECT_EQ(none[0] >> 24, 192u);
}

TEST(AlphaShadow, AMaskIsTheFirstByteOfEachPixel) {
    const uint32_t pixels[] = {0x11223344, 0, 0xFFFFFF01, 0x00FF00FF};
    Coverage mask;
    MaskFromBits(mask, pixels, 2, 2);
    EXPECT_EQ(mask.bytes, (std::vector<uint8_t>{0x44, 0, 1, 0xFF}));
    for (const auto& [w, h] : {std::pair{0, 2}, {2, 0}, {-1, 2}}) {
        MaskFromBits(mask, pixels, w, h);
        EXPECT_TRUE(mask.bytes.empty());
    }
    MaskFromBits(mask, nullptr, 2, 2);
    EXPECT_TRUE(mask.bytes.empty());
}

TEST(AlphaShadow, AMaskIsPaintedPremultiplied) {
    for (int m = 0; m < 256; ++m) {
        uint32_t pixel = 0x12345678;
        Coverage mask{1, 1, {static_cast<uint8_t>(m)}};
        PaintFromMask(mask, &pixel, 1, 1, static_cast<int32_t>(0xFFC86403));
        const uint32_t c = static_cast<uint32_t>(m) + 1;
        const uint32_t expected = static_cast<uint32_t>(m) << 24 | (0xC8 * c / 256) << 16 |
                                  (0x64 * c / 256) << 8 | (3 * c / 256);
        EXPECT_EQ(pixel, m ? expected : 0x12345678u);
    }
}

TEST(ShadowTextPicture, TheThreePaintersAreAsTheyWere) {
    TextCanvas canvas(300, 240, -36);
    gdi::SetBkMode(canvas.dc, gdi::TRANSPARENT);
    for (int32_t i = 0; i < 3; ++i) {
        gdi::RECT rect{20, 20 + 70 * i, 290, 80 + 70 * i};
        ShadowTextArguments a = Arguments(0x803010, 0x20A0F0, 4, 4, 4, 3);
        a.Text = "Shadow";
        DrawShadowTextByStyle(canvas.dc, rect, i + 1, a);
    }
    canvas.ExpectGolden("text_shadow_painters");
}

TEST(ShadowTextHostile, UnusualRectanglesAndReachesAreSurvived) {
    TextCanvas canvas(60, 20);
    const gdi::RECT rects[] = {{0, 0, 60, 20},
                               {50, 10, 0, 0},
                               {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                               {INT_MAX, 0, INT_MIN, 0},
                               {0, 0, INT_MAX, 1}};
    for (const gdi::RECT& rect : rects) {
        for (const Painter paint : kPainters) {
            for (int32_t reach : {0, 1, 300, -5, INT_MAX, INT_MIN}) {
                gdi::RECT copy = rect;
                paint(canvas.dc, copy, Arguments(0, 0, reach, reach == 300 ? 2 : reach, reach, 0));
            }
        }
    }
    gdi::RECT rect{0, 0, 60, 20};
    EXPECT_GT(DrawShadowTextA(canvas.dc, rect, Arguments(0, 0)), 0);
}

}  // namespace
}  // namespace vxgui
