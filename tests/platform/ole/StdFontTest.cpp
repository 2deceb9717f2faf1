#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "vxgui/base/Error.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A font whose notifications are gathered.
class StdFontTest : public ::testing::Test {
protected:
    StdFontTest() {
        font_->Watch([this](const String& name) { notified_.push_back(name.Utf8()); });
    }

    Ref<StdFont> font_ = New<StdFont>();
    std::vector<std::string> notified_;
};

TEST_F(StdFontTest, StartsWithThePlatformsDefaults) {
    EXPECT_EQ(font_->Name(), "MS Sans Serif");
    EXPECT_EQ(font_->Charset(), 0);
    EXPECT_EQ(font_->Size(), 8.25);
    EXPECT_EQ(font_->Weight(), 400);
    EXPECT_FALSE(font_->Bold());
    EXPECT_FALSE(font_->Italic());
    EXPECT_FALSE(font_->Underline());
    EXPECT_FALSE(font_->Strikethrough());
}

TEST_F(StdFontTest, EachSetterNotifiesItsOwnNameOnce) {
    font_->Name("Arial");
    font_->Charset(134);
    font_->Size(12);
    font_->Bold(true);
    font_->Italic(true);
    font_->Underline(true);
    font_->Strikethrough(true);
    font_->Weight(500);
    EXPECT_THAT(notified_, ElementsAre("Name", "CharSet", "Size", "Bold", "Italic", "Underline",
                                       "Strikethrough", "Weight"));
}

TEST_F(StdFontTest, TheSameValueIsNotNotified) {
    font_->Name("MS Sans Serif");
    font_->Charset(0);
    font_->Size(8.25);
    font_->Size(8.25001);  // the same ten-thousandth
    font_->Bold(false);
    font_->Italic(false);
    font_->Underline(false);
    font_->Strikethrough(false);
    font_->Weight(400);
    EXPECT_THAT(notified_, IsEmpty());
}

TEST_F(StdFontTest, TheValueHasChangedWhenTheWatcherHearsOfIt) {
    bool bold = false;
    font_->Watch([&](const String&) { bold = font_->Bold(); });
    font_->Bold(true);
    EXPECT_TRUE(bold);
}

TEST_F(StdFontTest, BoldBeginsAtWeightSixHundred) {
    font_->Weight(599);
    EXPECT_FALSE(font_->Bold());
    font_->Weight(600);
    EXPECT_TRUE(font_->Bold());
}

TEST_F(StdFontTest, SettingBoldMakesTheWeightSevenOrFourHundred) {
    font_->Bold(true);
    EXPECT_EQ(font_->Weight(), 700);
    font_->Bold(false);
    EXPECT_EQ(font_->Weight(), 400);
}

TEST_F(StdFontTest, SettingBoldToWhatItIsKeepsTheWeight) {
    font_->Weight(800);
    font_->Bold(true);
    EXPECT_EQ(font_->Weight(), 800);
    font_->Weight(300);
    font_->Bold(false);
    EXPECT_EQ(font_->Weight(), 300);
}

TEST_F(StdFontTest, ASizeIsKeptToTheTenThousandth) {
    font_->Size(9.00004);
    EXPECT_EQ(font_->Size(), 9.0);
    font_->Size(9.00006);
    EXPECT_EQ(font_->Size(), 9.0001);
    font_->Size(0);
    EXPECT_EQ(font_->Size(), 0);
}

TEST_F(StdFontTest, WhatIsNoSizeIsRefused) {
    for (const double size : {-0.5, -1e300, 1e300, double(INFINITY), double(NAN)}) {
        EXPECT_THROW(font_->Size(size), Error);
        EXPECT_EQ(font_->Size(), 8.25);
    }
    EXPECT_THAT(notified_, IsEmpty());
}

TEST_F(StdFontTest, OnlyTheLatestWatcherHears) {
    int calls = 0;
    font_->Watch([&calls](const String&) { ++calls; });
    font_->Italic(true);
    font_->Watch({});
    font_->Italic(false);
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(notified_, IsEmpty());
}

TEST_F(StdFontTest, AWatcherMayEndTheWatchAndTheFont) {
    font_->Watch([this](const String&) {
        font_->Watch({});
        font_ = nullptr;
    });
    StdFont* font = font_.get();
    font->Italic(true);
    EXPECT_EQ(font_, nullptr);
}

TEST_F(StdFontTest, TheHandleIsAFontOfTheProperties) {
    font_->Name("Arial");
    font_->Charset(134);
    font_->Size(9);
    font_->Weight(500);
    font_->Italic(true);
    font_->Strikethrough(true);
    gdi::LOGFONTA record{};
    ASSERT_EQ(gdi::GetObjectA(font_->hFont(), sizeof record, &record), 60);
    EXPECT_STREQ(record.lfFaceName, "Arial");
    EXPECT_EQ(record.lfCharSet, 134);
    EXPECT_EQ(record.lfHeight, -12) << "9 points at 96 dots an inch";
    EXPECT_EQ(record.lfWeight, 500);
    EXPECT_NE(record.lfItalic, 0);
    EXPECT_EQ(record.lfUnderline, 0);
    EXPECT_NE(record.lfStrikeOut, 0);
}

TEST_F(StdFontTest, TheHandleIsKeptUntilAPropertyChanges) {
    const gdi::HFONT first = font_->hFont();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(font_->hFont(), first);
    font_->Italic(true);
    gdi::LOGFONTA record{};
    EXPECT_EQ(gdi::GetObjectA(first, sizeof record, &record), 0) << "the old handle has ended";
    ASSERT_EQ(gdi::GetObjectA(font_->hFont(), sizeof record, &record), 60);
    EXPECT_NE(record.lfItalic, 0);
}

TEST_F(StdFontTest, TheHandleEndsWithTheFont) {
    const gdi::HFONT handle = font_->hFont();
    font_ = nullptr;
    gdi::LOGFONTA record{};
    EXPECT_EQ(gdi::GetObjectA(handle, sizeof record, &record), 0);
}

}  // namespace
}  // namespace vxgui::ole
