#include <gtest/gtest.h>

#include "tests/support/CountedAllocations.h"
#include "tests/surface/SurfaceSupport.h"
#include "vxgui/pixels/Shadow.h"

namespace vxgui::test {
namespace {

void PaintAll(const Ref<cAlphaDIBSection>& surface, gdi::HDC dc) {
    surface->PaintPicture(dc);
    surface->PaintPicture(dc, 0, 0, 20, 30);
    surface->TransPaintPicture(dc);
    surface->TransPaintPicture(dc, 0, 0, 20, 30);
    surface->AlphaPaintPicture(dc);
    surface->AlphaPaintPicture(dc, 0, 0, 20, 30, 1, 1, 5, 5, 90, false);
    surface->PaintByMode(dc, 0, 0, 9, 9, 0, 0, 9, 9, 0x2FF);
}

TEST(SurfacePaint, ARepaintTakesNoNewMemory) {
    std::mt19937 random(1);
    const auto surface = MakeRandomSurface(40, 30, random);
    GuardedTarget target(64, 64);
    for (const bool system : {false, true}) {
        const SystemBlend blend(system);
        for (int warm = 0; warm < 2; ++warm) PaintAll(surface, target.dc());
        const int before = gAllocations;
        PaintAll(surface, target.dc());
        EXPECT_EQ(gAllocations - before, 0) << (system ? "platform" : "compositor");
    }
}

void FilterAll(const Ref<cAlphaDIBSection>& surface, const Ref<cAlphaDIBSection>& target) {
    surface->GaussianBlur(2, 3);
    surface->GaussianBlur(12, 9);
    surface->blur(5, 40, 0, 0);
    surface->ResampleBilinear(target);
    BoxShadow(surface->Pixels(), surface->Width(), surface->Height(), 4, 4, {1, 2, 3, 200});
}

TEST(SurfaceFilters, AFilterThatRunsAgainTakesNoNewMemory) {
    std::mt19937 random(1);
    const auto surface = MakeRandomSurface(90, 70, random),
               target = MakeRandomSurface(31, 99, random);
    for (int warm = 0; warm < 2; ++warm) FilterAll(surface, target);
    const int before = gAllocations;
    FilterAll(surface, target);
    EXPECT_EQ(gAllocations - before, 0);
}

}  // namespace
}  // namespace vxgui::test
