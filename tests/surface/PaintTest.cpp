#include "tests/surface/SurfaceSupport.h"
#include "tests/theme/RecordingSurface.h"

namespace vxgui::test {
namespace {

/// Eight columns that count from 1 in blue, one row high, opaque.
Ref<cAlphaDIBSection> MakeRuler() {
    const auto surface = MakeSurface(8, 1);
    FillMemory(surface, [](int i) { return Pixel(static_cast<uint8_t>(i + 1), 0, 0, 255); });
    return surface;
}

std::vector<int> Blues(GuardedTarget& target) {
    std::vector<int> blues;
    for (int x = 0; x < target.width(); ++x) blues.push_back(target.At(x, 0).Blue);
    return blues;
}

TEST(SurfacePaint, AllDefaultsPaintTheWholeSurfaceAtTheOrigin) {
    const auto surface = MakeRuler();
    for (const bool system : {false, true}) {
        const SystemBlend blend(system);
        for (const bool drawDib : {false, true}) {
            surface->UseDrawDib(drawDib);
            GuardedTarget plain(10, 1), keyed(10, 1), alpha(10, 1);
            surface->PaintPicture(plain.dc());
            surface->TransPaintPicture(keyed.dc());
            surface->AlphaPaintPicture(alpha.dc());
            const std::vector<int> whole{1, 2, 3, 4, 5, 6, 7, 8, 0, 0};
            EXPECT_EQ(Blues(plain), whole);
            EXPECT_EQ(Blues(keyed), whole);
            EXPECT_EQ(Blues(alpha), whole);
        }
    }
}

TEST(SurfacePaint, WithASourceWidthAloneTheColourKeyDrawsAtItAndTheOthersStretch) {
    const auto surface = MakeRuler();
    const std::vector<int> narrow{1, 2, 3, 4, 0, 0, 0, 0};
    const std::vector<int> stretched{1, 1, 2, 2, 3, 3, 4, 4};
    for (const bool system : {false, true}) {
        const SystemBlend blend(system);
        GuardedTarget plain(8, 1), keyed(8, 1), alpha(8, 1);
        surface->PaintPicture(plain.dc(), 0, 0, -1, -1, 0, 0, 4);
        surface->TransPaintPicture(keyed.dc(), 0, 0, -1, -1, 0, 0, 4);
        surface->AlphaPaintPicture(alpha.dc(), 0, 0, -1, -1, 0, 0, 4);
        EXPECT_EQ(Blues(plain), stretched);
        EXPECT_EQ(Blues(keyed), narrow);
        EXPECT_EQ(Blues(alpha), stretched);
    }
}

TEST(SurfacePaint, AnyNegativeSizeIsTheDefault) {
    const SystemBlend off(false);
    const auto surface = MakeRuler();
    surface->UseDrawDib(false);
    GuardedTarget target(8, 1);
    surface->PaintPicture(target.dc(), 0, 0, -7, -100, 0, 0, -3, -2);
    EXPECT_EQ(Blues(target), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(SurfacePaint, TheDrawDibPathIgnoresTheRasterOperation) {
    const auto surface = MakeRuler();
    ASSERT_TRUE(surface->UseDrawDib());
    GuardedTarget target(8, 1);
    surface->PaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, gdi::WHITENESS);
    EXPECT_EQ(Blues(target)[7], 8);
    surface->UseDrawDib(false);
    surface->PaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, gdi::WHITENESS);
    EXPECT_EQ(Blues(target)[7], 255);
    surface->PaintPicture(target.dc(), 0, 0, 4, -1, 0, 0, -1, -1, gdi::BLACKNESS);
    EXPECT_EQ(Blues(target), (std::vector<int>{0, 0, 0, 0, 255, 255, 255, 255}));
}

TEST(SurfacePaint, AConstantAlphaOfZeroLeavesTheTarget) {
    const SystemBlend off(false);
    const auto surface = MakeSurface(3, 3, Pixel(200, 200, 200, 200));
    for (const bool hasAlpha : {false, true}) {
        GuardedTarget target(3, 3);
        target.Fill(Pixel(1, 2, 3, 4));
        surface->AlphaPaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, 0, hasAlpha);
        EXPECT_EQ(target.Pixels(), std::vector<ARGB>(9, Pixel(1, 2, 3, 4)));
    }
}

TEST(SurfacePaintDeathTest, AConstantAlphaOfZeroStillWritesTheTargetOut) {
    const SystemBlend off(false);
    const auto surface = MakeSurface(3, 3, Pixel(200, 200, 200, 200));
    GuardedTarget target(3, 3);
    target.Protect();
    EXPECT_DEATH(surface->AlphaPaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, 0), "");
}

TEST(SurfacePaint, TheNumbersOfTheThreeFormulasComeOutOnATarget) {
    const SystemBlend off(false);
    const auto white = MakeSurface(1, 1, Pixel(255, 255, 255, 255));
    const auto blue = MakeSurface(1, 1, Pixel(200, 0, 0, 128));
    GuardedTarget target(1, 1);
    white->AlphaPaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, 255, false);
    EXPECT_EQ(target.At(0, 0), Pixel(254, 254, 254, 0));
    target.Fill(Pixel(100, 0, 0, 0));
    blue->AlphaPaintPicture(target.dc());
    EXPECT_EQ(target.At(0, 0).Blue, 250);
    target.Fill(Pixel(100, 0, 0, 0));
    blue->AlphaPaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, 128);
    EXPECT_EQ(target.At(0, 0).Blue, 125);
}

TEST(SurfacePaint, ThePlatformBlendsOnlyWhenBothSwitchesAreOn) {
    std::mt19937 random(3);
    const auto surface = MakeRandomSurface(6, 5, random);
    surface->PreMultiplyAlpha();
    for (const bool system : {false, true}) {
        const SystemBlend blend(system);
        for (const bool flag : {false, true}) {
            surface->UseMsImag32(flag);
            GuardedTarget target(6, 5), platform(6, 5);
            target.Fill(Pixel(90, 120, 33, 201));
            platform.Fill(Pixel(90, 120, 33, 201));
            surface->AlphaPaintPicture(target.dc(), 0, 0, -1, -1, 0, 0, -1, -1, 77, true);
            gdi::AlphaBlend(platform.dc(), 0, 0, 6, 5, surface->hDC(), 0, 0, 6, 5, 0x14D0000);
            EXPECT_EQ(target.Pixels() == platform.Pixels(), system && flag);
        }
    }
}

TEST(SurfacePaint, ThePlatformIsGivenTheConstantWithoutTheFormat) {
    const SystemBlend on(true);
    std::mt19937 random(4);
    const auto surface = MakeRandomSurface(6, 5, random);
    GuardedTarget target(12, 5), platform(12, 5);
    surface->AlphaPaintPicture(target.dc(), 0, 0, 12, -1, 0, 0, -1, -1, 99, false);
    gdi::AlphaBlend(platform.dc(), 0, 0, 12, 5, surface->hDC(), 0, 0, 6, 5, 99 << 16);
    EXPECT_EQ(target.Pixels(), platform.Pixels());
}

TEST(SurfacePaint, WithoutMsImg32ThePlatformPathDrawsNothing) {
    const auto surface = MakeSurface(3, 3, Pixel(200, 200, 200, 255));
    const SystemBlend on(true);
    const MissingModule kernel("msimg32.dll");
    GuardedTarget target(3, 3);
    surface->AlphaPaintPicture(target.dc());
    surface->TransPaintPicture(target.dc());
    EXPECT_EQ(target.Pixels(), std::vector<ARGB>(9));
    surface->UseMsImag32(false);
    surface->TransPaintPicture(target.dc());
    EXPECT_EQ(target.Pixels(), std::vector<ARGB>(9, Pixel(200, 200, 200, 255)));
}

TEST(SurfacePaint, TheExportIsFoundOnceTheModuleIsThere) {
    const auto surface = MakeSurface(3, 3, Pixel(200, 200, 200, 255));
    const SystemBlend on(true);
    GuardedTarget target(3, 3);
    {
        const MissingModule kernel("msimg32.dll");
        surface->AlphaPaintPicture(target.dc());
    }
    EXPECT_EQ(target.At(0, 0), ARGB{});
    surface->AlphaPaintPicture(target.dc());
    EXPECT_EQ(target.At(0, 0), Pixel(200, 200, 200, 255));
}

using Calls = std::vector<std::string>;

TEST(SurfacePaintByMode, TheModeWordPicksTheOperation) {
    const auto surface = New<RecordingSurface>(4, 4);
    surface->hasAlpha = false;
    surface->TransparentColor(7);
    for (const int32_t mode : {0, 0x100, 0x2FF, 0x280, 0x300, 0x1F0000FF, 0x2000, 0x1112}) {
        surface->PaintByMode(nullptr, 1, 2, 3, 4, 5, 6, 7, 8, mode);
    }
    EXPECT_EQ(surface->calls,
              (Calls{"copy 1 2 3 4 5 6 7 8", "key 1 2 3 4 5 6 7 8 7", "ask",
                     "alpha 1 2 3 4 5 6 7 8 255 none", "alpha 1 2 3 4 5 6 7 8 128 none",
                     "copy 1 2 3 4 5 6 7 8", "copy 1 2 3 4 5 6 7 8", "copy 1 2 3 4 5 6 7 8",
                     "key 1 2 3 4 5 6 7 8 7"}));
}

TEST(SurfacePaintByMode, TheAlphaChannelIsAskedForOnce) {
    const auto surface = New<RecordingSurface>(2, 2);
    surface->PaintByMode(nullptr, 0, 0, 1, 1, 0, 0, 1, 1, 0x2FF);
    surface->hasAlpha = false;
    surface->PaintByMode(nullptr, 0, 0, 1, 1, 0, 0, 1, 1, 0x2FF);
    EXPECT_EQ(surface->calls, (Calls{"ask", "alpha 0 0 1 1 0 0 1 1 255 channel",
                                     "alpha 0 0 1 1 0 0 1 1 255 channel"}));
}

/// The pieces that a grid is painted of, each "x y w h sx sy sw sh".
Calls Pieces(const NineGridRecord& grid) {
    const auto surface = New<RecordingSurface>(1, 1);
    surface->PaintNineGrid(grid);
    Calls pieces;
    for (const std::string& call : surface->calls)
        pieces.push_back(call.substr(call.find(' ') + 1));
    return pieces;
}

NineGridRecord Grid(int w, int h, int sw, int sh, uint32_t mode, int left, int top, int right,
                    int bottom) {
    return {0,    100, 200,   w,     h, 10, 20, sw, sh, static_cast<int32_t>(mode),
            left, top, right, bottom};
}

TEST(SurfaceNineGrid, KeepsCornersAndStretchesTheRest) {
    EXPECT_EQ(Pieces(Grid(30, 20, 10, 8, 0x1000000, 2, 1, 3, 2)),
              (Calls{"100 200 2 1 10 20 2 1", "102 200 25 1 12 20 5 1", "127 200 3 1 17 20 3 1",
                     "100 201 2 17 10 21 2 5", "102 201 25 17 12 21 5 5", "127 201 3 17 17 21 3 5",
                     "100 218 2 2 10 26 2 2", "102 218 25 2 12 26 5 2", "127 218 3 2 17 26 3 2"}));
}

TEST(SurfaceNineGrid, EachPieceIsPaintedByTheWholeModeWord) {
    const struct {
        uint32_t mode;
        Calls expected;
    } cases[] = {{0x1000280, {"ask", "alpha 100 200 3 4 10 20 2 2 128 none"}},
                 {0x1000180, {"key 100 200 3 4 10 20 2 2 7"}},
                 {0x1000080, {"copy 100 200 3 4 10 20 2 2"}}};
    for (const auto& c : cases) {
        const auto surface = New<RecordingSurface>(1, 1);
        surface->hasAlpha = false;
        surface->TransparentColor(7);
        surface->PaintNineGrid(Grid(3, 4, 2, 2, c.mode, 0, 0, 0, 0));
        EXPECT_EQ(surface->calls, c.expected);
    }
}

TEST(SurfaceNineGrid, PaintsOnTheSurfaceItself) {
    const auto surface = MakeSurface(4, 1);
    FillMemory(surface, [](int i) { return Pixel(static_cast<uint8_t>(i), 0, 0, 0); });
    surface->PaintNineGrid({0, 2, 0, 2, 1, 0, 0, 1, 1, 0x1000000, 0, 0, 0, 0});
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>({Pixel(0, 0, 0, 0), Pixel(1, 0, 0, 0),
                                                    Pixel(0, 0, 0, 0), Pixel(0, 0, 0, 0)}));
}

TEST(SurfaceNineGrid, WithoutMarginsThereIsOneCentre) {
    EXPECT_EQ(Pieces(Grid(30, 20, 10, 8, 0, 0, 0, 0, 0)), Calls{"100 200 30 20 10 20 10 8"});
}

TEST(SurfaceNineGrid, InATargetTooSmallForBothMarginsTheFarOneLiesOverTheNear) {
    EXPECT_EQ(Pieces(Grid(6, 8, 20, 8, 0, 4, 0, 4, 0)),
              (Calls{"100 200 4 8 10 20 4 8", "102 200 4 8 26 20 4 8"}));
}

TEST(SurfaceNineGrid, AFarMarginThatIsCutKeepsTheOuterEdgeOfTheSource) {
    EXPECT_EQ(Pieces(Grid(3, 8, 20, 8, 0, 0, 0, 5, 0)), (Calls{"100 200 3 8 27 20 3 8"}));
}

TEST(SurfaceNineGrid, EdgesAreTiledByTheirBitsAndTheLastTileIsCut) {
    EXPECT_EQ(Pieces(Grid(12, 4, 7, 4, 0x20000000, 1, 2, 1, 2)),
              (Calls{"100 200 1 2 10 20 1 2", "101 200 5 2 11 20 5 2", "106 200 5 2 11 20 5 2",
                     "111 200 1 2 16 20 1 2", "100 202 1 2 10 22 1 2", "101 202 10 2 11 22 5 2",
                     "111 202 1 2 16 22 1 2"}));
    EXPECT_EQ(Pieces(Grid(4, 11, 4, 7, 0x10000000, 2, 1, 2, 1)),
              (Calls{"100 200 2 1 10 20 2 1", "102 200 2 1 12 20 2 1", "100 201 2 5 10 21 2 5",
                     "100 206 2 4 10 21 2 4", "102 201 2 9 12 21 2 5", "100 210 2 1 10 26 2 1",
                     "102 210 2 1 12 26 2 1"}));
    EXPECT_EQ(Pieces(Grid(4, 11, 4, 7, 0x40000000, 2, 1, 2, 1))[3], "102 201 2 5 12 21 2 5");
    EXPECT_EQ(Pieces(Grid(12, 4, 7, 4, 0x80000000, 1, 2, 1, 2))[4], "101 202 5 2 11 22 5 2");
}

TEST(SurfaceNineGrid, AnEdgeOfOnePixelIsStretchedEvenWhenItsBitIsSet) {
    EXPECT_EQ(Pieces(Grid(12, 4, 3, 4, 0x20000000, 1, 2, 1, 2))[1], "101 200 10 2 11 20 1 2");
}

TEST(SurfaceNineGrid, TheCentreFollowsItsMode) {
    EXPECT_EQ(Pieces(Grid(5, 3, 2, 2, 0x2000000, 0, 0, 0, 0)),
              (Calls{"100 200 2 2 10 20 2 2", "102 200 2 2 10 20 2 2", "104 200 1 2 10 20 1 2",
                     "100 202 2 1 10 20 2 1", "102 202 2 1 10 20 2 1", "104 202 1 1 10 20 1 1"}));
    EXPECT_EQ(Pieces(Grid(3, 3, 2, 2, 0x3000000, 0, 0, 0, 0)),
              (Calls{"100 200 2 3 10 20 2 2", "102 200 1 3 10 20 1 2"}));
    EXPECT_EQ(Pieces(Grid(3, 3, 2, 2, 0x4000000, 0, 0, 0, 0)),
              (Calls{"100 200 3 2 10 20 2 2", "100 202 3 1 10 20 2 1"}));
    EXPECT_EQ(Pieces(Grid(3, 3, 2, 2, 0x6000000, 0, 0, 0, 0)), Calls{"100 200 3 3 10 20 2 2"});
}

TEST(SurfaceNineGrid, ACentreOfOnePixelIsNotTiledInThatDirection) {
    EXPECT_EQ(Pieces(Grid(3, 3, 2, 1, 0x2000000, 0, 0, 0, 0)),
              (Calls{"100 200 2 3 10 20 2 1", "102 200 1 3 10 20 1 1"}));
    EXPECT_EQ(Pieces(Grid(3, 3, 1, 2, 0x2000000, 0, 0, 0, 0)),
              (Calls{"100 200 3 2 10 20 1 2", "100 202 3 1 10 20 1 1"}));
    EXPECT_EQ(Pieces(Grid(3, 3, 1, 1, 0x2000000, 0, 0, 0, 0)), Calls{"100 200 3 3 10 20 1 1"});
    EXPECT_EQ(Pieces(Grid(3, 3, 1, 2, 0x3000000, 0, 0, 0, 0)), Calls{"100 200 3 3 10 20 1 2"});
    EXPECT_EQ(Pieces(Grid(3, 3, 2, 1, 0x4000000, 0, 0, 0, 0)), Calls{"100 200 3 3 10 20 2 1"});
}

TEST(SurfaceNineGrid, ACentreShownOnceSitsAmidItsFirstPixel) {
    EXPECT_EQ(Pieces(Grid(7, 6, 2, 3, 0x5000000, 0, 0, 0, 0)),
              (Calls{"100 200 7 1 10 20 1 1", "100 201 2 3 10 20 1 1", "102 201 2 3 10 20 2 3",
                     "104 201 3 3 10 20 1 1", "100 204 7 2 10 20 1 1"}));
}

TEST(SurfaceNineGrid, AMarginCutByTheDestinationKeepsTheOuterEdgeOfTheSource) {
    EXPECT_EQ(Pieces(Grid(5, 5, 10, 10, 0, 3, 3, 4, 4)),
              (Calls{"100 200 3 3 10 20 3 3", "101 200 4 3 16 20 4 3", "100 201 3 4 10 26 3 4",
                     "101 201 4 4 16 26 4 4"}));
}

TEST(SurfaceNineGrid, AMiddleSmallerThanTheSourceIsNotShrunk) {
    EXPECT_EQ(Pieces(Grid(6, 2, 12, 2, 0, 2, 0, 2, 0)),
              (Calls{"100 200 2 2 10 20 2 2", "102 200 2 2 12 20 2 2", "104 200 2 2 20 20 2 2"}));
}

TEST(SurfaceNineGrid, NothingIsPaintedIntoNoRoom) {
    EXPECT_TRUE(Pieces(Grid(0, 5, 4, 4, 0, 1, 1, 1, 1)).empty());
    EXPECT_TRUE(Pieces(Grid(-3, -3, 4, 4, 0x5000000, 1, 1, 1, 1)).empty());
}

}  // namespace
}  // namespace vxgui::test
