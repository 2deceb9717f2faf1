#include <gtest/gtest.h>

#include "bench/theme/Scene.h"
#include "tests/support/CountedAllocations.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

/// A surface that counts its pieces and paints none.
class CountingSurface : public cAlphaDIBSection {
public:
    CountingSurface() { Create(30, 30); }
    void PaintPicture(gdi::HDC, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t,
                      int32_t, uint32_t) override {
        ++pieces;
    }
    int pieces = 0;
};

TEST(DrawBackground, TheItemTakesNoMemoryWhateverItsTiling) {
    const Ref<CountingSurface> image = New<CountingSurface>(), glyph = New<CountingSurface>();
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(image, 1, 0, Normal);
    item->SetGlyph(glyph, 1, 0, Normal);
    for (int32_t tile = StretchXStretchY; tile <= CopyXYFillRest; ++tile) {
        item->SetTile(tile, 1, 1, 1, 1);
        const int before = test::gAllocations;
        item->DrawBackground(nullptr, 0, 0, 200, 100, 0, 0);
        EXPECT_EQ(test::gAllocations - before, 0) << tile;
    }
    EXPECT_GT(image->pieces, 100);
    EXPECT_EQ(glyph->pieces, 5);
}

TEST(DrawBackground, ARepaintOfAThousandItemsTakesNoNewMemory) {
    const bench::Scene scene;
    const bench::HostTarget target(bench::Scene::kWidth, bench::Scene::kHeight);
    scene.Draw(target.dc);
    const auto once = target.words;
    const int before = test::gAllocations;
    scene.Draw(target.dc);
    EXPECT_EQ(test::gAllocations - before, 0);
    EXPECT_NE(target.words, once);  // translucent pixels over others: it did draw
}

}  // namespace
}  // namespace vxgui
