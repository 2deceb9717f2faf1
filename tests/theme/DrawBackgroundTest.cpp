#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/theme/RecordingSurface.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

using test::RecordingSurface;
using testing::ElementsAre;
using testing::IsEmpty;

struct Painted {
    Ref<ThemeItem> item = New<ThemeItem>();
    Ref<RecordingSurface> image;
    Ref<RecordingSurface> glyph;

    explicit Painted(int32_t width, int32_t height, int32_t frames = 1) {
        image = New<RecordingSurface>(width, height);
        item->SetImage(image, frames, 0, Normal);
    }
    void Glyph(int32_t width, int32_t height, int32_t frames) {
        glyph = New<RecordingSurface>(width, height);
        item->SetGlyph(glyph, frames, 0, Normal);
    }
    std::vector<std::string>& Draw(int32_t x, int32_t y, int32_t w, int32_t h, int32_t frame = 0,
                                   int32_t glyphFrame = -1) {
        image->calls.clear();
        item->DrawBackground(nullptr, x, y, w, h, frame, glyphFrame);
        return image->calls;
    }
};

TEST(DrawBackground, WithoutPicturesDoesNothing) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->DrawBackground(nullptr, 0, 0, 10, 10, 0, 0);
    EXPECT_EQ(item->Image(), nullptr);
}

TEST(DrawBackground, PaintsAGlyphAlone) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<RecordingSurface> glyph = New<RecordingSurface>(8, 6);
    item->SetGlyph(glyph, 1, 0, Normal, 255, DefaultTransColor, Lefttop);
    item->DrawBackground(nullptr, 3, 4, 50, 50, 0, 0);
    EXPECT_THAT(glyph->calls, ElementsAre("copy 3 4 8 6 0 0 8 6"));
}

TEST(DrawBackground, FramesOutsideTheStripPaintNoImageButTheGlyph) {
    Painted p(30, 10, 3);
    p.Glyph(4, 4, 1);
    for (int32_t frame : {255, 3, -2}) {
        EXPECT_THAT(p.Draw(0, 0, 30, 10, frame, 0), IsEmpty()) << frame;
    }
    EXPECT_EQ(p.glyph->calls.size(), 3u);
}

TEST(DrawBackground, FrameNumber255IsAFrameOfAStripThatHasIt) {
    Painted p(300, 10, 300);
    p.item->SetImageMargin();
    EXPECT_THAT(p.Draw(0, 0, 1, 10, 255), ElementsAre("copy 0 0 1 10 255 0 1 10"));
}

TEST(DrawBackground, WithoutFramesPaintsNoImage) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<RecordingSurface> image = New<RecordingSurface>(8, 8);
    item->Image(image);
    for (int32_t frame : {-1, 0, 1}) item->DrawBackground(nullptr, 0, 0, 8, 8, frame, 0);
    EXPECT_THAT(image->calls, IsEmpty());
}

TEST(DrawBackground, LeftoverPixelsOfTheDivisionAreNeverShown) {
    Painted p(40, 10, 3);
    p.item->SetImageMargin();
    EXPECT_THAT(p.Draw(0, 0, 13, 10, 0), ElementsAre("copy 0 0 13 10 0 0 13 10"));
    EXPECT_THAT(p.Draw(0, 0, 13, 10, 1), ElementsAre("copy 0 0 13 10 13 0 13 10"));
    EXPECT_THAT(p.Draw(0, 0, 13, 10, 2), ElementsAre("copy 0 0 13 10 26 0 13 10"));
}

TEST(DrawBackground, VerticalStripsStandBelowEachOther) {
    Painted p(10, 31, 3);
    p.item->FrameVert(1);
    p.item->SetImageMargin();
    EXPECT_THAT(p.Draw(0, 0, 10, 10, 2), ElementsAre("copy 0 0 10 10 0 20 10 10"));
}

TEST(DrawBackground, TheFrameOfTheStateStandsForMinusOne) {
    Painted p(40, 10, 4);
    p.item->SetImageMargin();
    p.item->State(E_ItemStatePressed);
    EXPECT_THAT(p.Draw(0, 0, 10, 10, -1), ElementsAre("copy 0 0 10 10 20 0 10 10"));
}

TEST(DrawBackground, ACentreSmallerThanTheFramesIsCroppedNotSqueezed) {
    Painted p(30, 30);
    EXPECT_THAT(
        p.Draw(0, 0, 100, 20),
        ElementsAre("copy 0 0 4 4 0 0 4 4", "copy 4 0 92 4 4 0 22 4", "copy 96 0 4 4 26 0 4 4",
                    "copy 0 4 4 12 0 4 4 12", "copy 4 4 92 12 4 4 22 12",
                    "copy 96 4 4 12 26 4 4 12", "copy 0 16 4 4 0 26 4 4",
                    "copy 4 16 92 4 4 26 22 4", "copy 96 16 4 4 26 26 4 4"));
}

TEST(DrawBackground, NarrowerThanBothMarginsTheColumnsOverlap) {
    Painted p(30, 30);
    p.item->SetImageMargin(4, 0, 4, 0);
    EXPECT_THAT(p.Draw(10, 0, 6, 30),
                ElementsAre("copy 10 0 4 30 0 0 4 30", "copy 12 0 4 30 26 0 4 30"));
}

TEST(DrawBackground, AFrameNarrowerThanItsMarginOverhangsATinyTarget) {
    Painted p(2, 10);
    p.item->SetImageMargin(4, 0, 0, 0);
    EXPECT_THAT(p.Draw(0, 0, 1, 10), ElementsAre("copy 0 0 2 10 0 0 2 10"));
}

TEST(DrawBackground, WithoutMarginsTheWholeFrameIsStretched) {
    Painted p(30, 20);
    p.item->SetImageMargin();
    EXPECT_THAT(p.Draw(5, 6, 60, 70), ElementsAre("copy 5 6 60 70 0 0 30 20"));
}

TEST(DrawBackground, ASideWithoutAMarginIsSkipped) {
    Painted p(10, 10);
    p.item->SetImageMargin(0, 0, 3, 0);
    EXPECT_THAT(p.Draw(0, 0, 20, 10),
                ElementsAre("copy 0 0 17 10 0 0 7 10", "copy 17 0 3 10 7 0 3 10"));
}

TEST(DrawBackground, TheFarEdgeKeepsItsOuterEndWhenItIsCropped) {
    Painted p(20, 20);
    p.item->SetImageMargin(0, 0, 8, 8);
    EXPECT_THAT(p.Draw(0, 0, 5, 5), ElementsAre("copy 0 0 5 5 15 15 5 5"));
}

TEST(DrawBackground, ACornerCutInHeightKeepsItsTopEnd) {
    Painted p(20, 20);
    p.item->SetImageMargin(8, 8, 0, 0);
    EXPECT_THAT(p.Draw(0, 0, 5, 5), ElementsAre("copy 0 0 5 5 0 0 5 5"));
}

TEST(DrawBackground, FarOutsideEverythingNumbersWrapInsteadOfFailing) {
    const int32_t huge = 2147483647;
    Painted p(4, 4);
    p.Glyph(4, 4, 1);
    p.item->Tile(CopyXYFillRest);
    p.item->GlyphAlign(RightBottom);
    EXPECT_FALSE(p.Draw(huge, huge, 9, 9, 0, 0).empty());
    EXPECT_EQ(p.glyph->calls.size(), 1u);
}

/// Fails from its third piece on.
class FailingSurface : public RecordingSurface {
public:
    using RecordingSurface::RecordingSurface;
    void PaintPicture(gdi::HDC dc, int32_t x, int32_t y, int32_t w, int32_t h, int32_t sx,
                      int32_t sy, int32_t sw, int32_t sh, uint32_t rop) override {
        if (calls.size() == 2) throw Error(ErrorNumber::OutOfMemory, "surface", "Out of memory");
        RecordingSurface::PaintPicture(dc, x, y, w, h, sx, sy, sw, sh, rop);
    }
};

TEST(DrawBackground, AFailureOfTheSurfaceReachesTheCallerAndWhatWasPaintedStays) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<FailingSurface> image = New<FailingSurface>(30, 30);
    item->SetImage(image, 1, 0, Normal);
    EXPECT_EQ(test::RaisedBy([&] { item->DrawBackground(nullptr, 0, 0, 30, 30, 0, 0); }), 7);
    EXPECT_THAT(image->calls, ElementsAre("copy 0 0 4 4 0 0 4 4", "copy 4 0 22 4 4 0 22 4"));
}

TEST(TiledEdges, RepeatAtTheirSizeAndCutTheLastStep) {
    Painted p(12, 12);
    p.item->SetTile(StretchXStretchY, 1, 1, 1, 1);
    EXPECT_THAT(
        p.Draw(0, 0, 18, 17),
        ElementsAre("copy 0 0 4 4 0 0 4 4", "copy 4 0 4 4 4 0 4 4", "copy 8 0 4 4 4 0 4 4",
                    "copy 12 0 2 4 4 0 2 4", "copy 14 0 4 4 8 0 4 4", "copy 0 4 4 4 0 4 4 4",
                    "copy 0 8 4 4 0 4 4 4", "copy 0 12 4 1 0 4 4 1", "copy 4 4 10 9 4 4 4 4",
                    "copy 14 4 4 4 8 4 4 4", "copy 14 8 4 4 8 4 4 4", "copy 14 12 4 1 8 4 4 1",
                    "copy 0 13 4 4 0 8 4 4", "copy 4 13 4 4 4 8 4 4", "copy 8 13 4 4 4 8 4 4",
                    "copy 12 13 2 4 4 8 2 4", "copy 14 13 4 4 8 8 4 4"));
}

TEST(TiledEdges, EachSideHasItsOwnFlag) {
    const struct {
        int32_t left, top, right, bottom;
        size_t calls;
    } cases[] = {
        {0, 0, 0, 0, 9}, {1, 0, 0, 0, 10}, {0, 1, 0, 0, 10}, {0, 0, 1, 0, 10}, {0, 0, 0, 1, 10}};
    for (const auto& c : cases) {
        Painted p(12, 12);
        p.item->SetTile(StretchXStretchY, c.left, c.top, c.right, c.bottom);
        EXPECT_EQ(p.Draw(0, 0, 16, 16).size(), c.calls);
    }
}

TEST(TiledEdges, ASinglePixelIsStretched) {
    Painted p(9, 9);
    p.item->SetTile(TileXTileY, 1, 1, 1, 1);
    EXPECT_EQ(p.Draw(0, 0, 50, 50).size(), 9u);
}

struct TileCase {
    int32_t tile;
    int32_t width, height;
    std::vector<std::string> expected;
};

TEST(TiledCentre, FollowsTheMode) {
    const TileCase cases[] = {
        {StretchXStretchY, 4, 3, {"copy 0 0 6 5 0 0 4 3"}},
        {TileXTileY,
         4,
         3,
         {"copy 0 0 4 3 0 0 4 3", "copy 4 0 2 3 0 0 2 3", "copy 0 3 4 2 0 0 4 2",
          "copy 4 3 2 2 0 0 2 2"}},
        {TileXTileY, 1, 3, {"copy 0 0 6 3 0 0 1 3", "copy 0 3 6 2 0 0 1 2"}},
        {TileXTileY, 4, 1, {"copy 0 0 4 5 0 0 4 1", "copy 4 0 2 5 0 0 2 1"}},
        {TileXTileY, 1, 1, {"copy 0 0 6 5 0 0 1 1"}},
        {TileXStretchY, 4, 3, {"copy 0 0 4 5 0 0 4 3", "copy 4 0 2 5 0 0 2 3"}},
        {TileXStretchY, 1, 3, {"copy 0 0 6 5 0 0 1 3"}},
        {StretchXTileY, 4, 3, {"copy 0 0 6 3 0 0 4 3", "copy 0 3 6 2 0 0 4 2"}},
        {StretchXTileY, 4, 1, {"copy 0 0 6 5 0 0 4 1"}},
    };
    for (const TileCase& c : cases) {
        Painted p(c.width, c.height);
        p.item->SetImageMargin();
        p.item->Tile(c.tile);
        EXPECT_EQ(p.Draw(0, 0, 6, 5), c.expected) << c.tile << " " << c.width << "x" << c.height;
    }
}

TEST(TiledCentre, ValuesFromFiveToFifteenStretch) {
    for (int32_t tile = 5; tile <= 15; ++tile) {
        Painted p(4, 3);
        p.item->SetImageMargin();
        p.item->Tile(tile);
        EXPECT_THAT(p.Draw(0, 0, 6, 5), ElementsAre("copy 0 0 6 5 0 0 4 3")) << tile;
    }
}

TEST(CopyXYFillRest, LargerBothWaysPaintsFivePieces) {
    Painted p(4, 3);
    p.item->SetImageMargin();
    p.item->Tile(CopyXYFillRest);
    // The odd pixel goes to the right and the bottom.
    EXPECT_THAT(
        p.Draw(10, 20, 9, 8),
        ElementsAre("copy 10 20 9 2 0 0 1 1", "copy 10 22 2 3 0 0 1 1", "copy 12 22 4 3 0 0 4 3",
                    "copy 16 22 3 3 0 0 1 1", "copy 10 25 9 3 0 0 1 1"));
}

TEST(CopyXYFillRest, LargerOneWayPaintsThreePieces) {
    Painted p(4, 4);
    p.item->SetImageMargin();
    p.item->Tile(CopyXYFillRest);
    EXPECT_THAT(p.Draw(0, 0, 9, 3), ElementsAre("copy 0 0 2 3 0 0 1 1", "copy 2 0 4 3 0 0 4 3",
                                                "copy 6 0 3 3 0 0 1 1"));
    EXPECT_THAT(p.Draw(0, 0, 4, 9), ElementsAre("copy 0 0 4 2 0 0 1 1", "copy 0 2 4 4 0 0 4 4",
                                                "copy 0 6 4 3 0 0 1 1"));
}

TEST(CopyXYFillRest, SmallerCopiesFromTheMiddlesCornerWithoutCentring) {
    Painted p(20, 20);
    p.item->SetImageMargin(2, 3, 2, 3);
    p.item->Tile(CopyXYFillRest);
    const auto& calls = p.Draw(0, 0, 10, 12);
    ASSERT_EQ(calls.size(), 9u);
    EXPECT_EQ(calls[4], "copy 2 3 6 6 2 3 6 6");
}

struct PieceCase {
    int32_t mode;
    uint8_t alpha;
    const char* expected;
};

TEST(PaintImagePiece, ModeAndAlphaPickTheOperation) {
    const PieceCase cases[] = {
        {PerPixel, 255, "alpha 0 0 5 5 0 0 5 5 255 channel"},
        {PerPixel, 128, "alpha 0 0 5 5 0 0 5 5 128 channel"},
        {PerPixel, 0, "alpha 0 0 5 5 0 0 5 5 0 channel"},
        {Normal, 1, "alpha 0 0 5 5 0 0 5 5 1 none"},
        {Normal, 252, "alpha 0 0 5 5 0 0 5 5 252 none"},
        {Normal, 253, "copy 0 0 5 5 0 0 5 5"},
        {Normal, 255, "copy 0 0 5 5 0 0 5 5"},
        {Normal, 0, "copy 0 0 5 5 0 0 5 5"},
        {Trans, 128, "alpha 0 0 5 5 0 0 5 5 128 none"},
        {Trans, 255, "key 0 0 5 5 0 0 5 5 4660"},
        {Trans, 0, "key 0 0 5 5 0 0 5 5 4660"},
        {Trans, 253, "key 0 0 5 5 0 0 5 5 4660"},
    };
    for (const PieceCase& c : cases) {
        Painted p(5, 5);
        p.item->SetImageMargin();
        p.image->TransparentColor(0x1234);
        p.item->TransMode(c.mode);
        p.item->ImageAlpha(c.alpha);
        EXPECT_THAT(p.Draw(0, 0, 5, 5), ElementsAre(c.expected)) << c.mode << " " << int{c.alpha};
    }
}

struct AlignCase {
    int32_t align;
    int32_t x, y;
};

TEST(DrawGlyph, IsPlacedByColumnTimesThreePlusRow) {
    const AlignCase cases[] = {{Lefttop, 12, 23},   {LeftCenter, 12, 44},   {LeftBottom, 12, 65},
                               {CenterTop, 54, 23}, {CenterCenter, 54, 44}, {CenterBottom, 54, 65},
                               {RightTop, 97, 23},  {RightCenter, 97, 44},  {RightBottom, 97, 65}};
    for (const AlignCase& c : cases) {
        Painted p(1, 1);
        p.Glyph(10, 10, 1);
        p.item->GlyphAlign(c.align);
        p.item->SetGlyphMargin(2, 3, 4, 5);
        p.Draw(10, 20, 101, 60, 255, 0);
        EXPECT_THAT(p.glyph->calls, ElementsAre("copy " + std::to_string(c.x) + " " +
                                                std::to_string(c.y) + " 10 10 0 0 10 10"));
    }
}

TEST(DrawGlyph, LargerThanItsAreaSticksOut) {
    Painted p(1, 1);
    p.Glyph(20, 20, 1);
    p.item->GlyphAlign(CenterCenter);
    p.Draw(0, 0, 11, 10, 255, 0);
    EXPECT_THAT(p.glyph->calls, ElementsAre("copy -4 -5 20 20 0 0 20 20"));
}

TEST(DrawGlyph, AnAlignmentBeyondTheColumnsStaysAtTheNearEnd) {
    for (const int32_t align : {9, -1}) {
        Painted p(1, 1);
        p.Glyph(4, 4, 1);
        p.item->GlyphAlign(align);
        p.Draw(1, 2, 20, 20, 255, 0);
        EXPECT_THAT(p.glyph->calls, ElementsAre("copy 1 2 4 4 0 0 4 4")) << align;
    }
}

TEST(DrawGlyph, TheFrameOfTheStateStandsForMinusOne) {
    Painted p(4, 4, 4);
    p.Glyph(16, 4, 4);
    p.item->GlyphAlign(Lefttop);
    p.item->State(E_ItemStateDisabled);
    p.Draw(0, 0, 4, 4, 255, -1);
    EXPECT_THAT(p.glyph->calls, ElementsAre("copy 0 0 4 4 12 0 4 4"));
}

TEST(DrawGlyph, FramesOutsideTheStripPaintNothing) {
    Painted p(4, 4);
    p.Glyph(8, 4, 2);
    for (const int32_t frame : {2, 255, -2}) p.Draw(0, 0, 4, 4, 255, frame);
    EXPECT_THAT(p.glyph->calls, IsEmpty());
}

TEST(DrawGlyph, IsDrawnAfterTheImage) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<RecordingSurface> both = New<RecordingSurface>(4, 4);
    item->SetImage(both, 1, 0, Normal);
    item->SetImageMargin();
    item->SetGlyph(both, 1, 0, Normal, 255, DefaultTransColor, RightTop);
    item->Draw(nullptr, 0, 0, 9, 9, 0);
    EXPECT_THAT(both->calls, ElementsAre("copy 0 0 9 9 0 0 4 4", "copy 5 0 4 4 0 0 4 4"));
}

TEST(DrawGlyph, PerPixelAsksForAnAlphaChannelAndUsesTheGlyphsAlpha) {
    Painted p(1, 1);
    p.Glyph(8, 4, 2);
    p.item->GlyphAlign(Lefttop);
    p.item->GlyphTransMode(PerPixel);
    p.item->GlyphAlpha(100);
    p.glyph->hasAlpha = false;
    p.Draw(0, 0, 8, 4, 255, 1);
    EXPECT_THAT(p.glyph->calls, ElementsAre("ask", "alpha 0 0 4 4 4 0 4 4 100 none"));
    EXPECT_THAT(p.glyph->asked, ElementsAre(0, 0, -1, -1));  // the whole strip
}

TEST(DrawGlyph, ThresholdsOfTheImagesAlphaDoNotApply) {
    for (const int alpha : {0, 253, 255}) {
        Painted p(1, 1);
        p.Glyph(4, 4, 1);
        p.item->GlyphAlign(Lefttop);
        p.item->GlyphTransMode(PerPixel);
        p.item->GlyphAlpha(static_cast<uint8_t>(alpha));
        p.Draw(0, 0, 4, 4, 255, 0);
        EXPECT_EQ(p.glyph->calls.back(),
                  "alpha 0 0 4 4 0 0 4 4 " + std::to_string(alpha) + " channel");
    }
}

TEST(DrawGlyph, AlphaActsInPerPixelModeOnly) {
    Painted p(1, 1);
    p.Glyph(4, 4, 1);
    p.item->GlyphAlign(Lefttop);
    p.item->GlyphAlpha(100);
    p.glyph->TransparentColor(7);
    p.item->GlyphTransMode(Trans);
    p.Draw(0, 0, 4, 4, 255, 0);
    EXPECT_THAT(p.glyph->calls, ElementsAre("key 0 0 4 4 0 0 4 4 7"));
}

TEST(DrawGlyph, VerticalGlyphStripsStandBelowEachOther) {
    Painted p(1, 1);
    p.Glyph(4, 9, 2);
    p.item->GlyphAlign(Lefttop);
    p.item->GlyphFrameVert(1);
    p.Draw(0, 0, 4, 4, 255, 1);
    EXPECT_THAT(p.glyph->calls, ElementsAre("copy 0 0 4 4 0 4 4 4"));
}

TEST(DrawGlyph, WithoutACountTakesTheFrameCount) {
    Painted p(40, 4, 4);
    p.glyph = New<RecordingSurface>(8, 2);
    p.item->Glyph(p.glyph);
    p.item->GlyphAlign(Lefttop);
    p.Draw(0, 0, 4, 4, 255, 3);
    EXPECT_THAT(p.glyph->calls, ElementsAre("copy 0 0 2 2 6 0 2 2"));
    p.item->FrameCount(9);
    EXPECT_EQ(p.item->GlyphFrames(), 4);  // and keeps it
}

TEST(DrawWithOneFrame, SelectsImageAndGlyphByTheSameNumber) {
    Painted p(30, 10, 3);
    p.item->SetImageMargin();
    p.Glyph(8, 4, 2);
    p.item->Draw(nullptr, 0, 0, 10, 10, 2);
    EXPECT_THAT(p.image->calls, ElementsAre("copy 0 0 10 10 20 0 10 10"));
    EXPECT_THAT(p.glyph->calls, IsEmpty());
}

}  // namespace
}  // namespace vxgui
