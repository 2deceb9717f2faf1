#include "vxgui/text/TextStyles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vxgui {
namespace {

using ::testing::ElementsAre;

TEST(TextStyles, AddMakesAStyleOfItsArguments) {
    const Ref<TextStyles> styles = New<TextStyles>();
    const Ref<TextStyle> style = styles->Add("Normal", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
    const Ref<TextStyle> expected = New<TextStyle>();
    expected->Create(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
    EXPECT_TRUE(style->Equal(expected));
    EXPECT_EQ(style->FormatFlags, 0);
    EXPECT_EQ(styles->Item("Normal"), style);
    EXPECT_EQ(styles->Add()->TextContrast, 0);  // as Create, unlike a new object
    EXPECT_EQ(styles->Count(), 2);
}

TEST(TextStyles, AnExistingKeyIsReplacedAtTheEnd) {
    const Ref<TextStyles> styles = New<TextStyles>();
    styles->Add("a");
    const Ref<TextStyle> second = styles->Add("b"), replacing = New<TextStyle>();
    styles->AddItem(replacing, "a");
    EXPECT_EQ(styles->Count(), 2);
    EXPECT_EQ(styles->Item(1), second);
    EXPECT_EQ(styles->Item(2), replacing);
    EXPECT_EQ(styles->Item("a"), replacing);
}

TEST(TextStyles, UnknownItemsReadAsNoneAndAreRemovedInSilence) {
    const Ref<TextStyles> styles = New<TextStyles>();
    styles->Add("a");
    EXPECT_EQ(styles->Item("b"), nullptr);
    EXPECT_EQ(styles->Item(2), nullptr);
    styles->Remove("b");
    styles->Remove(2);
    EXPECT_EQ(styles->Count(), 1);
    styles->Remove(1);
    EXPECT_EQ(styles->Item("a"), nullptr);
}

TEST(TextStyles, AreWalkedInOrderAndCleared) {
    const Ref<TextStyles> styles = New<TextStyles>();
    for (int32_t color : {3, 1, 2}) styles->Add({}, color);
    std::vector<int32_t> colors;
    for (const Ref<TextStyle>& style : *styles) colors.push_back(style->TextColor);
    EXPECT_THAT(colors, ElementsAre(3, 1, 2));
    styles->Clear();
    EXPECT_EQ(styles->Count(), 0);
}

}  // namespace
}  // namespace vxgui
