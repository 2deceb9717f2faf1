#include <gtest/gtest.h>

#include <set>

#include "generated/Places.h"
#include "tests/theme/AskedFile.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSet.h"
#include "vxgui/theme/lint/KeyTable.h"

namespace vxgui::lint {
namespace {

using test::AskedFile;
using Values = std::map<std::string, std::string>;

/// All keys that a reader asks for, over files that lead it down each of its ways.
template <class Read>
std::set<std::string> AskedBy(Read read, const std::vector<Values>& files) {
    std::set<std::string> asked;
    for (const Values& values : files) {
        const Ref<AskedFile> file = New<AskedFile>(values);
        read(file);
        for (const auto& [key, fallbacks] : file->asked) asked.insert(key);
    }
    return asked;
}

std::set<std::string> NamesOf(KeyTable table) {
    std::set<std::string> names;
    for (const KeyRule& rule : table) EXPECT_TRUE(names.insert(rule.name).second) << rule.name;
    return names;
}

const char* const kFolder = VXGUI_SOURCE_DIR "/skins/aurora";

TEST(LintKeys, AreThoseThatAThemeSetsItemsAreReadBy) {
    const auto read = [](const Ref<core7::DefineFile>& file) {
        New<ThemeItem>()->FromThemeDefine(file, "Theme_01", New<ThemeSet>(), kFolder);
    };
    std::set<std::string> asked =
        AskedBy(read, {{{"Image", "button.tga"}, {"GlyphImage", "button.tga"}}});
    asked.insert({"Name", "Caption"});  // the tool's
    EXPECT_EQ(asked, NamesOf(ThemeItemKeys()));
}

TEST(LintKeys, AreThoseThatAThemeSetIsReadBy) {
    const auto read = [](const Ref<core7::DefineFile>& file) {
        ThemeSetFromDefine(New<ThemeSet>(), file, kFolder);
    };
    EXPECT_EQ(AskedBy(read, {{}}), NamesOf(ThemeSetKeys()));
}

TEST(LintKeys, AreThoseThatUisItemsAreReadBy) {
    const auto read = [](const Ref<core7::DefineFile>& file) {
        New<ThemeItem>()->FromUis(file, String(kFolder), "Button", "");
    };
    EXPECT_EQ(
        AskedBy(read, {{{"Image", "arrow.bmp"}, {"GlyphImage", "arrow.bmp"}, {"FrameCount", "2"}}}),
        NamesOf(UisItemKeys()));
}

TEST(LintKeys, AreThoseThatFontsAndStylesAreReadBy) {
    const auto readStyle = [](const Ref<core7::DefineFile>& file) {
        New<TextStyle>()->FromIniFile(file, "");
    };
    const auto readFont = [](const Ref<core7::DefineFile>& file) {
        New<LFont>()->FromIniFile(file, "");
    };
    EXPECT_EQ(AskedBy(readStyle,
                      {{}, {{"DrawStyle", "5"}}, {{"DrawStyle", "5"}, {"ShadowOffsetY", "1"}}}),
              NamesOf(TextStyleKeys()));
    EXPECT_EQ(AskedBy(readFont, {{}}), NamesOf(FontKeys()));
}

TEST(LintKeys, AreFoundInAnyCase) {
    EXPECT_STREQ(FindKey(FontKeys(), "fontNAME")->name, "FontName");
    EXPECT_EQ(FindKey(FontKeys(), "FontNam"), nullptr);
}

}  // namespace
}  // namespace vxgui::lint
