#include "tests/surface/BlitReference.h"

namespace vxgui::test {
namespace {

using reference::Canvas;
using reference::Geometry;

constexpr int kKey = 0xFF00FF;

/// A random geometry, a third of them at the source's size, with rectangles that may leave both
/// source and target.
Geometry RandomGeometry(std::mt19937& random, int limit) {
    const auto pick = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    Geometry g{pick(-5, limit), pick(-5, limit), pick(0, limit), pick(0, limit),
               pick(-5, limit), pick(-5, limit), pick(1, limit), pick(1, limit)};
    if (pick(0, 2) == 0) {
        g.sw = g.w;
        g.sh = g.h;
    }
    return g;
}

ARGB KeyedRandomPixel(std::mt19937& random) {
    return random() % 4 ? RandomPixel(random)
                        : Pixel(0xFF, 0, 0xFF, static_cast<uint8_t>(random()));
}

/// Runs a blit on a random surface and a random target, guarded on one side, and compares every
/// byte of the target with the reference.
template <class Paint>
void CompareWithReference(unsigned seed, Paint paint, const std::function<ARGB(ARGB, ARGB)>& rule) {
    std::mt19937 random(seed);
    const int limit = 1 + static_cast<int>(random() % 40);
    const auto size = [&] { return 1 + static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const auto surface = MakeSurface(size(), size());
    FillMemory(surface, [&](int) { return KeyedRandomPixel(random); });
    GuardedTarget target(size(), size(),
                         seed % 2 ? GuardedTarget::Guard::Behind : GuardedTarget::Guard::Before);
    Canvas expected{target.width(), target.height(), {}};
    for (int i = 0; i < target.width() * target.height(); ++i) {
        expected.pixels.push_back(RandomPixel(random));
        target.At(i % target.width(), i / target.width()) = expected.pixels.back();
    }
    const Geometry g = RandomGeometry(random, limit);
    reference::Blit(expected, reference::CanvasOf(surface), g, rule);
    paint(surface, target.dc(), g);
    ASSERT_EQ(target.Pixels(), expected.pixels)
        << "seed " << seed << ": " << g.x << "," << g.y << " " << g.w << "x" << g.h << " from "
        << g.sx << "," << g.sy << " " << g.sw << "x" << g.sh;
}

constexpr unsigned kRounds = 400;

TEST(Blit, AlphaFollowsTheThreeFormulas) {
    const SystemBlend off(false);
    for (unsigned seed = 0; seed < kRounds; ++seed) {
        const auto alpha = static_cast<uint8_t>(seed % 3 ? seed * 37 : 255);
        const bool hasAlpha = seed % 5 < 3;
        CompareWithReference(
            seed,
            [&](const Ref<cAlphaDIBSection>& s, gdi::HDC dc, const Geometry& g) {
                s->AlphaPaintPicture(dc, g.x, g.y, g.w, g.h, g.sx, g.sy, g.sw, g.sh, alpha,
                                     hasAlpha);
            },
            [&](ARGB s, ARGB d) { return reference::Alpha(s, d, alpha, hasAlpha); });
    }
}

TEST(Blit, TheColourKeyLeavesTheTarget) {
    const SystemBlend off(false);
    for (unsigned seed = 0; seed < kRounds; ++seed) {
        CompareWithReference(
            seed,
            [&](const Ref<cAlphaDIBSection>& s, gdi::HDC dc, const Geometry& g) {
                s->TransPaintPicture(dc, g.x, g.y, g.w, g.h, g.sx, g.sy, g.sw, g.sh, kKey);
            },
            [&](ARGB s, ARGB d) { return reference::Keyed(s, d, kKey); });
    }
}

TEST(Blit, ASurfaceWhoseBitmapHasGoneLeavesTheTarget) {
    std::mt19937 random(12);
    const auto surface = MakeRandomSurface(13, 9, random);
    surface->UseDrawDib(true);
    gdi::DeleteObject(surface->ExtractDib());
    GuardedTarget target(20, 20);
    const uint32_t before = ValueFromARGB(target.At(5, 5));
    surface->PaintPicture(target.dc(), 0, 0, 20, 20, 0, 0, 13, 9);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) ASSERT_EQ(ValueFromARGB(target.At(x, y)), before);
    }
}

TEST(Blit, APlainCopyIsTheSameOnBothPathsWhereTheSourceIsWhole) {
    for (const bool drawDib : {false, true}) {
        std::mt19937 random(11);
        const auto surface = MakeRandomSurface(13, 9, random);
        surface->UseDrawDib(drawDib);
        for (const Geometry& g :
             {Geometry{2, 3, 13, 9, 0, 0, 13, 9}, Geometry{-4, -2, 26, 27, 0, 0, 13, 9},
              Geometry{1, 1, 4, 3, 5, 2, 7, 6}}) {
            GuardedTarget target(20, 20);
            Canvas expected{20, 20, std::vector<ARGB>(400)};
            reference::Blit(expected, reference::CanvasOf(surface), g,
                            [](ARGB s, ARGB) { return s; });
            surface->PaintPicture(target.dc(), g.x, g.y, g.w, g.h, g.sx, g.sy, g.sw, g.sh);
            for (int y = 0; y < 20; ++y) {
                for (int x = 0; x < 20; ++x) {
                    ASSERT_EQ(ValueFromARGB(target.At(x, y)) & 0xFFFFFF,
                              ValueFromARGB(expected.At(x, y)) & 0xFFFFFF)
                        << drawDib << " " << x << "," << y;
                }
            }
        }
    }
}

TEST(Blit, HugeAndZeroSizesAreSafe) {
    const auto surface = MakeSurface(4, 4, Pixel(1, 2, 3, 4));
    for (const bool system : {false, true}) {
        const SystemBlend blend(system);
        GuardedTarget target(4, 4);
        target.Fill(Pixel(9, 9, 9, 9));
        for (const int size : {0, 100000, INT32_MAX}) {
            surface->AlphaPaintPicture(target.dc(), 0, 0, size, size, 0, 0, size, size, 0);
            if (size == 4) continue;
            surface->TransPaintPicture(target.dc(), 0, 0, size, 0, 0, 0, size, size);
            surface->PaintPicture(target.dc(), 0, 0, 0, size, 0, 0, size, size);
            surface->TransPaintPicture(target.dc(), INT32_MAX, INT32_MIN, 4, 4);
            surface->AlphaPaintPicture(target.dc(), INT32_MIN, INT32_MAX, 4, 4);
            surface->PaintPicture(target.dc(), INT32_MAX, INT32_MAX, 4, 4);
            surface->PaintPicture(target.dc(), 0, 0, 4, 4, INT32_MAX, INT32_MIN, 4, 4);
        }
    }
}

/// A bitmap of the whole destination would take 40 GB.
TEST(Blit, OfAHugeDestinationOnlyWhatShowsIsWorkedOut) {
    const SystemBlend off(false);
    const auto surface = MakeSurface(4, 4, Pixel(1, 2, 3, 255));
    FillMemory(surface, [](int i) { return Pixel(static_cast<uint8_t>(i), 0, 0, 255); });
    for (const bool keyed : {false, true}) {
        GuardedTarget target(4, 4);
        // The target lies across the middle of the destination, where four source pixels meet.
        const int at = 2 - 50000;
        if (keyed)
            surface->TransPaintPicture(target.dc(), at, at, 100000, 100000, 0, 0, 4, 4);
        else
            surface->AlphaPaintPicture(target.dc(), at, at, 100000, 100000, 0, 0, 4, 4);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 4; ++x) {
                // Rows of the memory run upwards: the upper middle row is the third.
                const int expected = (y < 2 ? 8 : 4) + (x < 2 ? 1 : 2);
                EXPECT_EQ(target.At(x, y).Blue, expected) << x << "," << y << keyed;
            }
        }
    }
}

TEST(Blit, NothingIsDrawnFromAnEmptySurfaceOrOnNoContext) {
    for (const bool system : {false, true}) {
        const SystemBlend blend(system);
        const auto empty = New<cAlphaDIBSection>();
        GuardedTarget target(3, 3);
        target.Fill(Pixel(5, 6, 7, 8));
        empty->PaintPicture(target.dc());
        empty->PaintPicture(target.dc(), 0, 0, 3, 3, 0, 0, 3, 3);
        empty->TransPaintPicture(target.dc());
        empty->AlphaPaintPicture(target.dc());
        EXPECT_EQ(target.Pixels(), std::vector<ARGB>(9, Pixel(5, 6, 7, 8)));
        const auto surface = MakeSurface(3, 3);
        surface->PaintPicture(nullptr);
        surface->TransPaintPicture(nullptr);
        surface->AlphaPaintPicture(nullptr);
    }
}

}  // namespace
}  // namespace vxgui::test
