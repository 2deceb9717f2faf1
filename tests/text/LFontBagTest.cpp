#include <gmock/gmock.h>

#include "TextTestSupport.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

Ref<ole::PropertyBag> BagOf(const Ref<LFont>& font) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    font->WriteProperties(bag);
    return bag;
}

Ref<LFont> Unusual() {
    const Ref<LFont> font = New<LFont>();
    font->Create("Face", -7, 2, 3, 4, 500, 5, 6, 7, 8, 9, 10, 11, 12);
    return font;
}

TEST(FontBag, HoldsEveryFieldInItsOrder) {
    EXPECT_EQ(BagOf(Unusual())->Names(),
              (std::vector<String>{"Name", "Height", "Width", "Escapement", "Orientation", "Weight",
                                   "Italic", "Underline", "StrikeOut", "CharSet", "OutPrecision",
                                   "ClipPrecision", "Quality", "PitchAndFamily"}));
}

TEST(FontBag, LeavesDefaultsOut) { EXPECT_TRUE(BagOf(New<LFont>())->Names().empty()); }

struct BagRow {
    const char* key;
    Variant value;
    bool (*taken)(const LFont&);
};
class FontBagKey : public testing::TestWithParam<BagRow> {};
INSTANTIATE_TEST_SUITE_P(
    , FontBagKey,
    testing::Values(
        BagRow{"Name", "Face", [](const LFont& f) { return f.Name == String("Face"); }},
        BagRow{"Height", -7, [](const LFont& f) { return f.Height == -7; }},
        BagRow{"Width", 2, [](const LFont& f) { return f.Width == 2; }},
        BagRow{"Escapement", 3, [](const LFont& f) { return f.Escapement == 3; }},
        BagRow{"Orientation", 4, [](const LFont& f) { return f.Orientation == 4; }},
        BagRow{"Weight", 500, [](const LFont& f) { return f.Weight == 500; }},
        BagRow{"Italic", 255, [](const LFont& f) { return f.Italic == 255; }},
        BagRow{"Underline", 6, [](const LFont& f) { return f.Underline == 6; }},
        BagRow{"StrikeOut", 7, [](const LFont& f) { return f.StrikeOut == 7; }},
        BagRow{"CharSet", 0, [](const LFont& f) { return f.CharSet == 0; }},
        BagRow{"OutPrecision", 9, [](const LFont& f) { return f.OutPrecision == 9; }},
        BagRow{"ClipPrecision", 10, [](const LFont& f) { return f.ClipPrecision == 10; }},
        BagRow{"Quality", 5, [](const LFont& f) { return f.Quality == 5; }},
        BagRow{"PitchAndFamily", 12, [](const LFont& f) { return f.PitchAndFamily == 12; }}),
    [](const auto& info) { return std::string(info.param.key); });

TEST_P(FontBagKey, IsReadWithItsDefault) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty(GetParam().key, GetParam().value);
    const Ref<LFont> font = Unusual();
    font->ReadProperties(bag);
    EXPECT_TRUE(GetParam().taken(*font));
    font->ReadProperties(New<ole::PropertyBag>());
    EXPECT_TRUE(font->Equal(New<LFont>())) << "what isn't there has the default";
}

TEST(FontBag, GoesThereAndBackThroughItsBytes) {
    const Ref<ole::PropertyBag> copy = New<ole::PropertyBag>();
    copy->Contents(BagOf(Unusual())->Contents());
    const Ref<LFont> font = New<LFont>();
    font->ReadProperties(copy);
    EXPECT_TRUE(font->Equal(Unusual()));
}

TEST(FontBag, LeavesTheDrawingStyleAndTheHandleAlone) {
    const Ref<LFont> font = New<LFont>();
    font->DrawingStyle = New<TextStyle>();
    font->Name = "DejaVu Sans";
    const gdi::HFONT handle = font->hFont();
    font->ReadProperties(BagOf(Unusual()));
    EXPECT_NE(font->DrawingStyle, nullptr);
    EXPECT_EQ(font->hFont(), handle);
}

class ByteKey : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(, ByteKey,
                         testing::Values("Italic", "Underline", "StrikeOut", "CharSet",
                                         "OutPrecision", "ClipPrecision", "Quality",
                                         "PitchAndFamily"));

TEST_P(ByteKey, OutsideAByteRaisesOverflow) {
    for (const int32_t value : {256, -1, INT32_MAX, INT32_MIN}) {
        const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
        bag->WriteProperty(GetParam(), value);
        EXPECT_EQ(test::ErrorOf([&] { New<LFont>()->ReadProperties(bag); }), 6) << value;
    }
}

TEST(FontBag, ValuesOfAnotherKindAreConvertedOrRaise) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty("Italic", true);
    bag->WriteProperty("Height", " 20 ");
    bag->WriteProperty("Name", 12);
    const Ref<LFont> font = New<LFont>();
    font->ReadProperties(bag);
    EXPECT_EQ(font->Italic, 255);
    EXPECT_EQ(font->Height, 20);
    EXPECT_EQ(font->Name, String("12"));
    bag->WriteProperty("Height", "tall");
    EXPECT_EQ(test::ErrorOf([&] { font->ReadProperties(bag); }), 13);
}

TEST(FontBag, OfNoneRaises) {
    EXPECT_EQ(test::ErrorOf([] { New<LFont>()->ReadProperties(nullptr); }), 91);
    EXPECT_EQ(test::ErrorOf([] { New<LFont>()->WriteProperties(nullptr); }), 91);
}

}  // namespace
}  // namespace vxgui
