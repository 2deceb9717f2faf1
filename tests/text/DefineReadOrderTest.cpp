#include <gmock/gmock.h>

#include "ActedDefineFile.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::ActedDefineFile;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST(FontReadOrder, IsThatOfItsKeysEachWithItsDefault) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    New<LFont>()->FromIniFile(file, "S");
    EXPECT_THAT(file->reads,
                ElementsAre("text FontName ", "number size 0", "integer FontHeight 12",
                            "integer FontWidth 0", "integer FontAngle 0", "integer FontWeight 400",
                            "integer Italics 0", "integer Underline 0", "integer StrikeOut 0",
                            "integer CharSet 1", "integer OutPrecision 0",
                            "integer ClipPrecision 0", "integer AntiAlias 0", "integer Quality 0",
                            "integer PitchAndFamily 0", "integer DrawingStyle 0"));
}

TEST(FontReadOrder, SizeAndAntiAliasSkipTheReadsBehindThem) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    file->values = {{"size", "9"}, {"AntiAlias", "1"}};
    New<LFont>()->FromIniFile(file, "S");
    EXPECT_THAT(file->reads, Not(Contains("integer FontHeight 12")));
    EXPECT_THAT(file->reads, Not(Contains("integer FontWidth 0")));
    EXPECT_THAT(file->reads, Not(Contains("integer Quality 0")));
}

/// What is read of a style's shadow, with these values in the file.
std::vector<std::string> ShadowReads(std::map<String, String> values) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    file->values = std::move(values);
    New<TextStyle>()->FromIniFile(file, "S");
    constexpr int kBeforeTheShadow = 6;
    return {file->reads.begin() + kBeforeTheShadow, file->reads.end()};
}

TEST(StyleReadOrder, IsThatOfItsKeysEachWithItsDefault) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    New<TextStyle>()->FromIniFile(file, "S");
    EXPECT_THAT(file->reads, ElementsAre("text TextColor ", "integer TextContrast 4",
                                         "integer TextAlignHorz 0", "integer TextAlignVert 0",
                                         "integer FormatFlags 0", "integer DrawStyle 0",
                                         "integer TextStyle 0", "integer DrawingStyle 0"));
}

TEST(StyleReadOrder, WithoutTheNewKeysOfTheShadowTheOldOnesAreRead) {
    EXPECT_THAT(
        ShadowReads({{"DrawStyle", "5"}}),
        ElementsAre("text ShadowColor ", "integer ShadowB 0", "integer ShadowG 0",
                    "integer ShadowR 0", "text Shadow ", "integer ShadowX 0", "integer ShadowY 0",
                    "text ShadowOffsetY ", "text ShadowOffset ", "integer ShadowThickness 4"));
}

TEST(StyleReadOrder, TheNewKeysOfTheShadowSpareTheOldOnes) {
    EXPECT_THAT(
        ShadowReads(
            {{"DrawStyle", "1"}, {"ShadowColor", "1"}, {"Shadow", "2"}, {"ShadowOffsetY", "3"}}),
        ElementsAre("text ShadowColor ", "text Shadow ", "text ShadowOffsetY ",
                    "integer ShadowOffsetX 0", "integer ShadowOffsetY 0"));
}

}  // namespace
}  // namespace vxgui
