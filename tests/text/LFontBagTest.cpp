#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Ref<LFont> FilledFont() {
    Ref<LFont> font = New<LFont>();
    font->Create("Face", -20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34);
    return font;
}

TEST(LFontBag, ANewFontWritesNothing) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    New<LFont>()->WriteProperties(bag);
    EXPECT_THAT(bag->Names(), IsEmpty());
}

TEST(LFontBag, EachFieldIsWrittenInItsOrder) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    FilledFont()->WriteProperties(bag);
    EXPECT_THAT(bag->Names(),
                ElementsAre("Name", "Height", "Width", "Escapement", "Orientation", "Weight",
                            "Italic", "Underline", "StrikeOut", "CharSet", "OutPrecision",
                            "ClipPrecision", "Quality", "PitchAndFamily"));
    EXPECT_EQ(bag->ReadProperty("Height"), Variant(-20));
    EXPECT_EQ(bag->ReadProperty("CharSet"), Variant(134));
}

TEST(LFontBag, ComesBackAsItWas) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    FilledFont()->WriteProperties(bag);
    const Ref<LFont> font = New<LFont>();
    font->ReadProperties(bag);
    EXPECT_TRUE(font->Equal(FilledFont()));
}

TEST(LFontBag, AnEmptyBagGivesTheDefaultsAndLeavesTheDrawingStyle) {
    const Ref<LFont> font = FilledFont();
    const Ref<TextStyle> style = New<TextStyle>();
    font->DrawingStyle = style;
    font->ReadProperties(New<ole::PropertyBag>());
    EXPECT_TRUE(font->Equal(New<LFont>()));
    EXPECT_EQ(font->DrawingStyle, style);
}

TEST(LFontBag, AByteOutsideItsRangeRaisesTheOverflowError) {
    for (const char* key : {"Italic", "Underline", "StrikeOut", "CharSet", "OutPrecision",
                            "ClipPrecision", "Quality", "PitchAndFamily"}) {
        for (const int32_t value : {-1, 256}) {
            const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
            bag->WriteProperty(key, value);
            EXPECT_EQ(test::RaisedBy([&] { New<LFont>()->ReadProperties(bag); }), 6) << key;
        }
    }
}

TEST(LFontBag, IsReadInTheSameOrderUpToWhatCannotBeRead) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    FilledFont()->WriteProperties(bag);
    const std::vector<String> names = bag->Names();
    for (size_t i = 1; i < names.size(); ++i) {  // any text is a name
        const Ref<ole::PropertyBag> broken = New<ole::PropertyBag>(),
                                    read = New<ole::PropertyBag>();
        FilledFont()->WriteProperties(broken);
        broken->WriteProperty(names[i], "no number");
        const Ref<LFont> font = New<LFont>();
        EXPECT_EQ(test::RaisedBy([&] { font->ReadProperties(broken); }), 13);
        font->WriteProperties(read);
        EXPECT_EQ(read->Names(), std::vector<String>(names.begin(), names.begin() + i));
    }
}

TEST(LFontBag, NoBagRaisesObjectNotSet) {
    EXPECT_EQ(test::RaisedBy([] { New<LFont>()->ReadProperties(nullptr); }), 91);
    EXPECT_EQ(test::RaisedBy([] { New<LFont>()->WriteProperties(nullptr); }), 91);
}

}  // namespace
}  // namespace vxgui
