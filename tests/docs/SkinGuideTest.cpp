#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "generated/Places.h"
#include "tests/theme/AskedFile.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/SkinParts.h"
#include "vxgui/theme/ThemeSet.h"
#include "vxgui/theme/lint/KeyTable.h"

namespace vxgui::lint {
namespace {

using Cells = std::vector<std::string>;
using Values = std::map<std::string, std::string>;
using Fallbacks = std::map<std::string, std::set<std::string>>;

const char* const kFolder = VXGUI_SOURCE_DIR "/skins/aurora";

std::string Trimmed(const std::string& text) {
    const size_t first = text.find_first_not_of(" `"), last = text.find_last_not_of(" `");
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

Cells CellsOf(const std::string& line) {
    Cells cells;
    std::istringstream parts(line.substr(1));
    for (std::string cell; std::getline(parts, cell, '|');) cells.push_back(Trimmed(cell));
    return cells;
}

/// The rows of the table behind a mark of the guide, without its head.
std::vector<Cells> TableBehind(const std::string& mark) {
    std::ifstream guide(VXGUI_SOURCE_DIR "/docs/skins.md");
    std::string line;
    while (std::getline(guide, line) && line != "<!-- " + mark + " -->") {
    }
    std::vector<Cells> rows;
    while (std::getline(guide, line) && line.starts_with("|")) rows.push_back(CellsOf(line));
    EXPECT_GT(rows.size(), 2u) << mark;
    if (rows.size() >= 2) rows.erase(rows.begin(), rows.begin() + 2);
    return rows;
}

std::string TypeOf(ValueKind kind) {
    switch (kind) {
        case ValueKind::Text:
            return "text";
        case ValueKind::Picture:
            return "picture";
        case ValueKind::Number:
            return "number";
        case ValueKind::Integer:
            return "integer";
        case ValueKind::Flag:
            return "flag";
        case ValueKind::Colour:
            return "colour";
        case ValueKind::Rgb:
            return "three numbers";
        case ValueKind::Pair:
            return "pair";
        case ValueKind::Sides:
            return "sides";
        case ValueKind::Tiles:
            return "tiles";
        case ValueKind::Frames:
            return "frames";
        case ValueKind::Scales:
            return "scales";
        case ValueKind::Pool:
            return "numbers";
        case ValueKind::ColourIndex:
            return "colour number";
        case ValueKind::FontIndex:
            return "font number";
        case ValueKind::FrameIndex:
            return "frame number";
    }
    return "";
}

std::string RangeOf(const KeyRule& rule) {
    if (rule.least == INT_MIN && rule.most == INT_MAX) return "any";
    const std::string least = std::to_string(rule.least);
    return rule.most == INT_MAX ? least + " or more" : least + " to " + std::to_string(rule.most);
}

bool IsNumber(ValueKind kind) {
    return kind == ValueKind::Integer || kind == ValueKind::Number || kind == ValueKind::Flag;
}

/// What the guide says of a key that isn't there, as the readers' own values have it.
std::string DefaultOf(const KeyRule& rule, const std::set<std::string>& fallbacks) {
    if (fallbacks.size() > 1) return "as";
    const std::string fallback = fallbacks.empty() ? "" : *fallbacks.begin();
    if (!fallback.empty()) return fallback;
    return IsNumber(rule.kind) ? "0" : "none";
}

template <class Read>
Fallbacks FallbacksOf(Read read, const std::vector<Values>& files) {
    Fallbacks all;
    for (const Values& values : files) {
        const Ref<test::AskedFile> file = New<test::AskedFile>(values);
        read(file);
        for (const auto& [key, fallbacks] : file->asked)
            all[key].insert(fallbacks.begin(), fallbacks.end());
    }
    return all;
}

void ExpectRow(const Cells& row, const KeyRule& rule, const Fallbacks* fallbacks) {
    ASSERT_EQ(row.size(), 5u) << rule.name;
    EXPECT_EQ(row[0], rule.name);
    EXPECT_EQ(row[1], TypeOf(rule.kind)) << rule.name;
    EXPECT_EQ(row[2], RangeOf(rule)) << rule.name;
    if (!fallbacks) return;
    const auto asked = fallbacks->find(rule.name);
    const std::string expected =
        DefaultOf(rule, asked == fallbacks->end() ? std::set<std::string>{} : asked->second);
    if (expected == "as") {
        EXPECT_THAT(row[3], testing::StartsWith("as ")) << rule.name;
    } else {
        EXPECT_EQ(row[3], expected) << rule.name;
    }
}

/// Key by key, in the order of the readers' table.
void ExpectTable(const std::string& name, KeyTable keys, const Fallbacks* fallbacks) {
    const std::vector<Cells> rows = TableBehind("keys: " + name);
    ASSERT_EQ(rows.size(), keys.size()) << name;
    for (size_t i = 0; i < rows.size(); ++i) ExpectRow(rows[i], keys[i], fallbacks);
}

TEST(SkinGuide, TellsEachKeyOfAThemeSet) {
    const Fallbacks fallbacks = FallbacksOf(
        [](const Ref<core7::DefineFile>& file) {
            ThemeSetFromDefine(New<ThemeSet>(), file, kFolder);
        },
        {{}});
    ExpectTable("ThemeSet", ThemeSetKeys(), &fallbacks);
}

TEST(SkinGuide, TellsEachKeyOfAThemeSetsItem) {
    const Fallbacks fallbacks = FallbacksOf(
        [](const Ref<core7::DefineFile>& file) {
            New<ThemeItem>()->FromThemeDefine(file, "Theme_01", New<ThemeSet>(), kFolder);
        },
        {{{"Image", "button.tga"}, {"GlyphImage", "button.tga"}},
         {{"Image", "button.tga"}, {"GlyphImage", "button.tga"}, {"Frames", "6"}}});
    ExpectTable("ThemeItem", ThemeItemKeys(), &fallbacks);
}

TEST(SkinGuide, TellsEachKeyOfFontsAndTextStyles) {
    const Fallbacks fonts = FallbacksOf(
        [](const Ref<core7::DefineFile>& file) { New<LFont>()->FromIniFile(file, ""); }, {{}});
    ExpectTable("Font", FontKeys(), &fonts);
    const Fallbacks styles = FallbacksOf(
        [](const Ref<core7::DefineFile>& file) { New<TextStyle>()->FromIniFile(file, ""); },
        {{}, {{"DrawStyle", "5"}}, {{"DrawStyle", "5"}, {"ShadowOffsetX", "1"}}});
    ExpectTable("TextStyle", TextStyleKeys(), nullptr);
    for (const Cells& row : TableBehind("keys: TextStyle")) {
        if (row[0] == "TextContrast" || row[0] == "ShadowThickness") {
            EXPECT_EQ(std::set<std::string>{row[3]}, styles.at(row[0])) << row[0];
        }
    }
}

TEST(SkinGuide, TellsEachKeyOfAUisItem) {
    const auto read = [](const char* picture) {
        return [picture](const Ref<core7::DefineFile>& file) {
            New<ThemeItem>()->FromUis(file, String(kFolder), "Button", picture);
        };
    };
    const Values whole{{"Image", "arrow.bmp"}, {"GlyphImage", "arrow.bmp"}, {"FrameCount", "2"}};
    Values coloured = whole;
    coloured.insert({{"FocusColour", "3"}, {"FocusFont", "2"}, {"PressedColour", "4"}});
    Fallbacks fallbacks = FallbacksOf(read(""), {whole, coloured});
    fallbacks["Image"].merge(FallbacksOf(read("Button.bmp"), {whole})["Image"]);
    ExpectTable("UisItem", UisItemKeys(), &fallbacks);
}

TEST(SkinGuide, TellsEachKeyOfTheOtherUisSections) {
    ExpectTable("UisColour", UisColourKeys(), nullptr);
    ExpectTable("UisSystemFonts", UisSystemFontKeys(), nullptr);
    ExpectTable("UisPersonality", UisPersonalityKeys(), nullptr);
    ExpectTable("UisTaskbar", UisTaskbarKeys(), nullptr);
}

TEST(SkinGuide, TellsEachPartWithItsFileAndPicture) {
    const std::vector<Cells> rows = TableBehind("parts");
    ASSERT_EQ(rows.size(), SkinParts().size());
    for (size_t i = 0; i < rows.size(); ++i) {
        const SkinPart& part = SkinParts()[i];
        EXPECT_EQ(rows[i], (Cells{std::string(part.name), part.inUis ? "UIS" : "taskbar",
                                  *part.image ? part.image : "none"}));
    }
}

}  // namespace
}  // namespace vxgui::lint
