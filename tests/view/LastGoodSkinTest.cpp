#include "tools/view/LastGoodSkin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/view/SkinCopy.h"

namespace vxgui::view {
namespace {

using testing::Contains;
using testing::Field;
using testing::HasSubstr;

class Edited : public testing::Test {
protected:
    const SkinCopy copy_{"aurora/aurora.theme"};
    LastGoodSkin skin_{copy_.Path()};

    const SkinItem& Button() const { return skin_.Get()->items[0]; }
};

TEST_F(Edited, SkinHoldsItsItems) {
    ASSERT_TRUE(skin_.Reload());
    EXPECT_EQ(skin_.Get()->items.size(), 14u);
    EXPECT_EQ(skin_.ErrorCount(), 0u);
    EXPECT_TRUE(skin_.IsCurrent());
}

TEST_F(Edited, SkinShowsTheEdit) {
    skin_.Reload();
    copy_.Edit("ImageMargin=11,9,11,9", "ImageMargin=3,4,5,6");
    ASSERT_TRUE(skin_.Reload(false));
    EXPECT_EQ(Button().item->ImageMarginLeft(), 3);
}

TEST_F(Edited, SkinThatCantBeReadLeavesTheLastGoodOneAndSaysWhy) {
    skin_.Reload();
    const std::vector<uint32_t> before = PixelsOf(Button());
    copy_.Edit("Image=button.tga", "Image=buton.tga");
    EXPECT_FALSE(skin_.Reload());
    EXPECT_FALSE(skin_.IsCurrent());
    ASSERT_NE(skin_.Get(), nullptr);
    EXPECT_EQ(PixelsOf(Button()), before);
    EXPECT_GE(skin_.ErrorCount(), 1u);
    EXPECT_THAT(skin_.Messages(),
                Contains(Field(&SkinMessage::text, HasSubstr("aurora.theme:81:1: error: "))));
    copy_.Edit("Image=buton.tga", "Image=button.tga");
    EXPECT_TRUE(skin_.Reload());
    EXPECT_EQ(skin_.ErrorCount(), 0u);
}

TEST_F(Edited, SkinSaysEachErrorOnce) {
    copy_.Edit("Image=button.tga", "Image=buton.tga");
    skin_.Reload();
    size_t lines = 0;
    for (const SkinMessage& message : skin_.Messages())
        lines += message.text.find(":81:1: error") != std::string::npos;
    EXPECT_EQ(lines, 1u);
}

TEST_F(Edited, SkinThatNeverWasGoodIsNoneAndComesWhenItIsMended) {
    const std::string good = copy_.Text();
    copy_.Write("no skin at all\n");
    EXPECT_FALSE(skin_.Reload());
    EXPECT_EQ(skin_.Get(), nullptr);
    EXPECT_GE(skin_.ErrorCount(), 1u);
    copy_.Write(good);
    EXPECT_TRUE(skin_.Reload());
    EXPECT_NE(skin_.Get(), nullptr);
}

TEST_F(Edited, SkinKeepsItsNewColoursOverAnEdit) {
    skin_.Reload();
    const std::vector<uint32_t> plain = PixelsOf(Button());
    ASSERT_TRUE(skin_.Colours({90, 0, 0}));
    const std::vector<uint32_t> turned = PixelsOf(Button());
    EXPECT_NE(turned, plain);
    copy_.Edit("Themes=14", "Themes=13");
    ASSERT_TRUE(skin_.Reload(false));
    EXPECT_EQ(skin_.Get()->items.size(), 13u);
    EXPECT_EQ(PixelsOf(Button()), turned);
    ASSERT_TRUE(skin_.Colours({}));
    EXPECT_EQ(PixelsOf(Button()), plain);
}

TEST_F(Edited, SkinInNewColoursSurvivesABrokenEdit) {
    skin_.Reload();
    skin_.Colours({90, 0, 0});
    const std::vector<uint32_t> turned = PixelsOf(Button());
    copy_.Edit("Image=button.tga", "Image=buton.tga");
    EXPECT_FALSE(skin_.Reload());
    EXPECT_EQ(PixelsOf(Button()), turned);
    ASSERT_TRUE(skin_.Colours({}));  // from the files that were good
    EXPECT_NE(PixelsOf(Button()), turned);
}

}  // namespace
}  // namespace vxgui::view
