#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::string kAurora = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";
const std::string kPorcelain = VXGUI_SOURCE_DIR "/skins/porcelain/porcelain.uis";

std::string PageOf(const std::string& skin, const std::vector<std::string>& more = {}) {
    const std::string folder = Folder() + "a/new/folder";
    std::vector<std::string> arguments{"gallery", skin, "--html", folder};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Result result = Call(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.out, HasSubstr("index.html: "));
    const ByteArray bytes = BytesOfFile(folder + "/index.html");
    return {bytes.begin(), bytes.end()};
}

size_t CountOf(const std::string& text, const std::string& what) {
    size_t count = 0;
    for (size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += what.size()) ++count;
    return count;
}

TEST(HtmlGallery, ShowsEachItemInEachStateAtThreeSizes) {
    const std::string page = PageOf(kAurora);
    EXPECT_EQ(CountOf(page, "<article "), 14u);
    EXPECT_EQ(CountOf(page, "<figure "), 14u * 9 * 3);
    EXPECT_THAT(page, HasSubstr("<title>aurora – skin gallery</title>"));
    EXPECT_THAT(page, HasSubstr("Theme set · 14 items"));
    EXPECT_THAT(page, HasSubstr("<dt>Image margins</dt><dd>11, 9, 11, 9</dd>"));
    EXPECT_THAT(page, HasSubstr("No problems."));
    EXPECT_THAT(page, Not(HasSubstr("id=\"desktop-title\"")));
}

TEST(HtmlGallery, ShowsDesktopPaletteAndFontsOfAUisSkin) {
    const std::string page = PageOf(kPorcelain);
    EXPECT_EQ(CountOf(page, "<article "), 44u);
    EXPECT_THAT(page, HasSubstr("Skin in the UIS dialect · 44 items"));
    EXPECT_THAT(page, HasSubstr("id=\"desktop-title\""));
    EXPECT_THAT(page, HasSubstr("<b>Colour 4</b><code>#f3dda0</code>"));
    EXPECT_THAT(page, HasSubstr("<code>#2447a2</code>"));  // a system colour
    EXPECT_THAT(page, HasSubstr("<span>DejaVu Serif, 18 pixels, bold</span>"));
    EXPECT_THAT(page, HasSubstr("<b>System font 1</b>"));
}

TEST(HtmlGallery, WritesWhatASkinSaysAsText) {
    const std::string skin = WriteBytes("odd.theme", {});
    std::ofstream(skin) << "[ThemeSet]\nThemes=1\n[Theme_01]\nName=<b>\"Q\" & Co</b>\n"
                           "Sparkle=</li><script>\n";
    const std::string page = PageOf(skin);
    EXPECT_THAT(page, HasSubstr("&lt;b&gt;&quot;Q&quot; &amp; Co&lt;/b&gt;"));
    EXPECT_THAT(page, HasSubstr("<code>odd.theme:5:1</code>"));
    EXPECT_THAT(page, HasSubstr("<li class=\"warning\">"));
    EXPECT_EQ(CountOf(page, "<script>"), 1u);
    EXPECT_THAT(page, HasSubstr("class=\"picture nothing\""));  // there is no picture to show
    EXPECT_EQ(CountOf(page, "<figure "), 27u);
}

TEST(HtmlGallery, NamesNoFolderOfWhoeverMadeIt) {
    EXPECT_THAT(PageOf(kPorcelain), Not(HasSubstr(VXGUI_SOURCE_DIR)));
}

TEST(HtmlGallery, PaintsAtAScaleAndShowsTheSizeOfScaleOne) {
    const std::string plain = PageOf(kAurora), fine = PageOf(kAurora, {"--scale", "2"});
    EXPECT_EQ(CountOf(plain, "width=\"62\""), CountOf(fine, "width=\"62\""));
    EXPECT_GT(fine.size(), plain.size());
    EXPECT_THAT(fine, HasSubstr("at a scale of 2"));
}

TEST(HtmlGallery, GoesToAFolderOrToAPictureNotToBoth) {
    const std::string folder = Folder() + "page", picture = Folder() + "x.png";
    EXPECT_EQ(Call({"gallery", kAurora, "--html", folder, "-o", picture}).status, 2);
    EXPECT_EQ(Call({"gallery", kPorcelain, "--html", folder, "--desktop"}).status, 2);
}

TEST(HtmlGallery, AFolderThatCantBeMadeIsNamed) {
    const std::string file = WriteBytes("file", {1});
    const Result result = Call({"gallery", kAurora, "--html", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("file/index.html: error: can't be written: "));
}

}  // namespace
}  // namespace vxgui::tool
