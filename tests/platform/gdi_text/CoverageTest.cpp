#include <gtest/gtest.h>

#include <set>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

constexpr std::u16string_view kText = u"Rag & bone";

void Write(Canvas& canvas, COLORREF color) {
    SetTextColor(canvas, color);
    TextOutW(canvas, 2, 1, kText.data(), static_cast<int>(kText.size()));
}

/// The coverage of each pixel, from black text on white.
std::vector<int> Coverage(BYTE quality = 0) {
    Canvas canvas(90, 20);
    LOGFONTA font = LogFont("DejaVu Sans", -13);
    font.lfQuality = quality;
    canvas.Font(font);
    Write(canvas, RGB(0, 0, 0));
    std::vector<int> coverage;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 90; ++x)
            coverage.push_back(255 - static_cast<int>(canvas.Word(x, y) & 0xFF));
    }
    return coverage;
}

int Blend(int d, int c, int coverage) {
    return static_cast<int>(std::lround(d + (c - d) * coverage / 255.0));
}

TEST(TextCoverage, BlendsEveryChannelAndClearsTheAlphaOfWhatItTouches) {
    const std::vector<int> coverage = Coverage();
    Canvas canvas(90, 20, 32, 0xC8507FA0);
    canvas.Font("DejaVu Sans", -13);
    Write(canvas, RGB(0xF0, 0x12, 0x80));
    std::set<int> seen;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 90; ++x) {
            const int part = coverage[static_cast<size_t>(y * 90 + x)];
            seen.insert(part);
            const uint32_t expected =
                part == 0
                    ? 0xC8507FA0
                    : static_cast<uint32_t>(Blend(0x50, 0xF0, part) << 16 |
                                            Blend(0x7F, 0x12, part) << 8 | Blend(0xA0, 0x80, part));
            ASSERT_EQ(canvas.Word(x, y), expected) << x << ", " << y << " of " << part;
        }
    }
    EXPECT_GT(seen.size(), 20u) << "the edges are smooth";
}

TEST(TextCoverage, IsTheSameFor24Bits) {
    const std::vector<int> coverage = Coverage();
    Canvas canvas(90, 20, 24, 0x507FA0);
    canvas.Font("DejaVu Sans", -13);
    Write(canvas, RGB(0xF0, 0x12, 0x80));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 90; ++x) {
            const int part = coverage[static_cast<size_t>(y * 90 + x)];
            ASSERT_EQ(canvas.Color(x, y), static_cast<uint32_t>(Blend(0x50, 0xF0, part) << 16 |
                                                                Blend(0x7F, 0x12, part) << 8 |
                                                                Blend(0xA0, 0x80, part)));
        }
    }
}

TEST(TextCoverage, TakesTheNearestColourOfATable) {
    const std::vector<int> coverage = Coverage();
    Canvas canvas(90, 20, 8, 0xFFFFFF);
    canvas.Font("DejaVu Sans", -13);
    Write(canvas, RGB(0, 0, 0));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 90; ++x) {
            const auto grey =
                static_cast<uint32_t>(255 - coverage[static_cast<size_t>(y * 90 + x)]);
            ASSERT_EQ(canvas.Color(x, y), grey * 0x010101);
        }
    }
}

TEST(TextCoverage, OneBitIsPaintedFromHalfCoverageUp) {
    const std::vector<int> coverage = Coverage();
    Canvas canvas(90, 20, 1, 0xFFFFFF);
    canvas.Font("DejaVu Sans", -13);
    Write(canvas, RGB(0, 0, 0));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 90; ++x) {
            const bool painted = coverage[static_cast<size_t>(y * 90 + x)] >= 128;
            ASSERT_EQ(canvas.Color(x, y), painted ? 0u : 0xFFFFFFu);
        }
    }
}

TEST(TextCoverage, WithoutSmoothingIsAllOrNothing) {
    const std::vector<int> mono = Coverage(3);
    const std::set<int> values(mono.begin(), mono.end());
    EXPECT_EQ(values, (std::set<int>{0, 255}));
}

TEST(TextCoverage, DefaultAntialiasedAndClearTypeAreSmoothedAlike) {
    const std::vector<int> plain = Coverage(0);
    EXPECT_EQ(Coverage(4), plain);
    EXPECT_EQ(Coverage(5), plain);
    EXPECT_NE(Coverage(3), plain);
}

TEST(TextCoverage, GlyphsTooLargeToKeepArePaintedAlike) {
    // At 360 pixels a glyph is painted from its outline, at 240 from an image; both fill the same
    // part of their cell.
    double share[2];
    const int ems[] = {240, 360};
    for (int i = 0; i < 2; ++i) {
        Canvas canvas(500, 500);
        canvas.Font("DejaVu Sans", -ems[i]);
        TextOutW(canvas, 0, 0, u"M", 1);
        const Box ink = canvas.Ink();
        EXPECT_FALSE(ink.Empty());
        int painted = 0;
        for (int y = 0; y < 500; ++y) painted += static_cast<int>(canvas.InkOfRow(y).size());
        share[i] = static_cast<double>(painted) / (ems[i] * ems[i]);
    }
    EXPECT_NEAR(share[0], share[1], 0.01);
}

TEST(TextCoverage, LargeGlyphsWithoutSmoothingAreAllOrNothing) {
    Canvas canvas(300, 300);
    LOGFONTA font = LogFont("DejaVu Sans", -400);
    font.lfQuality = 3;
    canvas.Font(font);
    TextOutW(canvas, 0, -60, u"S", 1);
    std::set<uint32_t> colors;
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 300; ++x) colors.insert(canvas.Color(x, y));
    }
    EXPECT_EQ(colors, (std::set<uint32_t>{0, 0xFFFFFF}));
}

}  // namespace
}  // namespace vxgui::gdi
