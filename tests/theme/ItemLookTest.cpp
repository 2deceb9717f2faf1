#include "vxgui/theme/ItemLook.h"

#include <gtest/gtest.h>

#include <utility>

namespace vxgui {
namespace {

using Size = std::pair<int32_t, int32_t>;

Size OwnSizeOf(const Ref<ThemeItem>& item) {
    const gdi::SIZE size = OwnSize(*item);
    return {size.cx, size.cy};
}

Ref<cAlphaDIBSection> Strip(int32_t width, int32_t height) {
    auto strip = New<cAlphaDIBSection>();
    strip->Create(width, height);
    return strip;
}

TEST(OwnSize, IsAFrameOfTheImage) {
    const auto item = New<ThemeItem>();
    item->SetImage(Strip(30, 8), 3, 0, 0);
    EXPECT_EQ(OwnSizeOf(item), Size(10, 8));
}

TEST(OwnSize, WithoutAnImageIsTheGlyphAndItsMargins) {
    const auto item = New<ThemeItem>();
    item->Glyph(Strip(12, 9));
    item->GlyphFrames(3);
    item->SetGlyphMargin(1, 2, 3, 4);
    EXPECT_EQ(OwnSizeOf(item), Size(4 + 1 + 3, 9 + 2 + 4));
    item->GlyphFrameVert(1);
    EXPECT_EQ(OwnSizeOf(item), Size(12 + 1 + 3, 3 + 2 + 4));
}

TEST(OwnSize, OfAnItemWithoutPicturesIsThatOfAButton) {
    EXPECT_EQ(OwnSizeOf(New<ThemeItem>()), Size(64, 24));
}

}  // namespace
}  // namespace vxgui
