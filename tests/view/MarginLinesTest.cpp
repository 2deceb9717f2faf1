#include "tools/view/MarginLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vxgui::view {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = MarginLine::Kind;

Ref<ThemeItem> Item(int32_t width, int32_t height, int32_t frames) {
    auto image = New<cAlphaDIBSection>();
    image->Create(width * frames, height);
    auto item = New<ThemeItem>();
    item->SetImage(image, frames, 0, Normal);
    return item;
}

TEST(MarginLines, StandBetweenTheNinePieces) {
    const Ref<ThemeItem> item = Item(20, 16, 3);
    item->SetImageMargin(5, 4, 6, 3);
    EXPECT_THAT(MarginLinesOf(*item, {100, 50}),
                ElementsAre(MarginLine{Kind::Slice, true, 5}, MarginLine{Kind::Slice, true, 94},
                            MarginLine{Kind::Slice, false, 4}, MarginLine{Kind::Slice, false, 47}));
}

TEST(MarginLines, ShowTheRoomForTheCaption) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetContentMargin(7, 2, 9, 0);
    EXPECT_THAT(
        MarginLinesOf(*item, {60, 30}),
        ElementsAre(MarginLine{Kind::Content, true, 7}, MarginLine{Kind::Content, true, 51},
                    MarginLine{Kind::Content, false, 2}, MarginLine{Kind::Content, false, 30}));
}

TEST(MarginLines, AreNotThereWithoutMargins) {
    const Ref<ThemeItem> item = Item(20, 16, 1);
    item->SetImageMargin(0, 0, 0, 0);
    EXPECT_THAT(MarginLinesOf(*item, {100, 50}), IsEmpty());
}

TEST(MarginLines, OfAnItemSmallerThanItsMarginsStayInIt) {
    const Ref<ThemeItem> item = Item(20, 20, 1);
    item->SetImageMargin(8, 8, 8, 8);
    for (const MarginLine& line : MarginLinesOf(*item, {10, 6})) {
        EXPECT_GE(line.at, 0);
        EXPECT_LE(line.at, line.vertical ? 10 : 6);
    }
}

}  // namespace
}  // namespace vxgui::view
