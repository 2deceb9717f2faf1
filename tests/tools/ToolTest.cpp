#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "generated/Places.h"
#include "tests/support/Golden.h"
#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const std::string kSkin = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";
std::string WriteSkin(const std::string& name, const std::string& text) {
    std::ofstream(Folder() + name, std::ios::binary) << text;
    return Folder() + name;
}

test::TestPicture Rendered(const std::string& item, std::vector<std::string> more) {
    const std::string path = Folder() + item + ".png";
    std::vector<std::string> arguments{"render", kSkin, "--item", item, "-o", path};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Result result = Call(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    test::TestPicture picture;
    EXPECT_TRUE(test::ReadPng(path, &picture));
    return picture;
}

TEST(ToolHelp, ShowsTheCommandsAndExamples) {
    const Result result = Call({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("gallery"));
    EXPECT_THAT(result.out, HasSubstr("render"));
    EXPECT_THAT(result.out, HasSubstr("unpack"));
    EXPECT_THAT(result.out, HasSubstr("Examples:"));
    for (const char* command :
         {"gallery", "render", "check", "compile", "pack", "unpack", "convert", "adjust", "info"}) {
        const Result help = Call({command, "--help"});
        EXPECT_EQ(help.status, 0);
        EXPECT_THAT(help.out, HasSubstr("Example"));
    }
}

TEST(ToolCommandLine, WrongOnesGiveStatusTwo) {
    const std::vector<std::vector<std::string>> wrong = {
        {},
        {"dance"},
        {"gallery"},
        {"gallery", kSkin},
        {"gallery", kSkin, "-o", Folder() + "x.png", "--more"},
        {"render", kSkin, "-o", Folder() + "x.png"},
        {"render", kSkin, "--item", "Tab", "--state", "Asleep", "-o", Folder() + "x.png"},
        {"render", kSkin, "--item", "Tab", "--size", "0x5", "-o", Folder() + "x.png"},
        {"render", kSkin, "--item", "Tab", "--size", "12", "-o", Folder() + "x.png"},
        {"render", kSkin, "--item", "Tab", "--size", "12x4z", "-o", Folder() + "x.png"},
        {"render", kSkin, "--item", "Tab", "--frame", "two", "-o", Folder() + "x.png"},
    };
    for (const auto& arguments : wrong) {
        const Result result = Call(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_FALSE(result.errors.empty());
    }
}

TEST(ToolErrors, AMissingSkinIsNamed) {
    const Result result = Call({"gallery", "/nowhere/x.theme", "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("/nowhere/x.theme"));
}

TEST(ToolErrors, AFileWithoutSectionsIsNoSkin) {
    const std::string path = WriteSkin("plain.theme", "; nothing here\n");
    const Result result = Call({"gallery", path, "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(path + ":1:1: error: no section [ThemeSet]"));
}

TEST(ToolErrors, ABinaryFileIsNoSkin) {
    const Result result =
        Call({"gallery", VXGUI_SOURCE_DIR "/skins/aurora/button.tga", "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("button.tga"));
}

TEST(ToolErrors, EachMissingImageIsNamedWithItsLine) {
    const std::string path = WriteSkin("missing.theme",
                                       "[ThemeSet]\nThemes=2\n[Theme_01]\nFrames=1\nImage=a.png\n["
                                       "Theme_02]\n  GlyphImage=b.bmp\n");
    const Result result = Call({"gallery", path, "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(path + ":5:1: error: image \"a.png\" is not there"));
    EXPECT_THAT(result.errors, HasSubstr(path + ":7:3: error: image \"b.bmp\" is not there"));
}

TEST(ToolErrors, ABrokenImageIsToldFromAMissingOne) {
    WriteSkin("broken.png", "\x89PNG\r\n\x1a\nnonsense");
    const std::string path =
        WriteSkin("broken.theme", "[ThemeSet]\nThemes=1\n[Theme_01]\nImage=broken.png\n");
    const Result result = Call({"gallery", path, "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(path + ":4:1: error: image \"broken.png\" is no picture"));
}

TEST(ToolErrors, AListThatIsTooShortIsNamedWithItsSection) {
    const std::string path =
        WriteSkin("short.theme", "[ThemeSet]\nThemes=1\n\n[Theme_01]\nContentMargin=1,2\n");
    const Result result = Call({"gallery", path, "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(path + ":4:"));
    EXPECT_THAT(result.errors, HasSubstr("1,2"));
}

TEST(ToolErrors, AnUnknownItemListsTheNames) {
    const Result result = Call({"render", kSkin, "--item", "Nothing", "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("PushButton"));
}

TEST(ToolErrors, SizesThatCantBeAreRefused) {
    for (const char* size : {"100000x100000", "32768x1", "32767x32767"}) {
        const Result result =
            Call({"render", kSkin, "--item", "Tab", "--size", size, "-o", Folder() + "x.png"});
        EXPECT_EQ(result.status, 1) << size;
        EXPECT_THAT(result.errors, HasSubstr("can't be made"));
    }
}

TEST(ToolErrors, AnOutputThatCantBeWrittenIsNamed) {
    const Result result = Call({"render", kSkin, "--item", "Tab", "-o", "/nowhere/x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("/nowhere/x.png"));
}

TEST(ToolRender, KeepsTransparency) {
    const test::TestPicture button = Rendered("PushButton", {"--size", "120x34"});
    ASSERT_EQ(button.width, 120);
    ASSERT_EQ(button.height, 34);
    EXPECT_EQ(button.At(0, 0) >> 24, 0u);
    EXPECT_EQ(button.At(60, 17) >> 24, 255u);
    const test::TestPicture thumb = Rendered("ScrollThumb", {});
    EXPECT_EQ(thumb.width, 18);
    EXPECT_EQ(thumb.At(0, 0) >> 24, 0u);
    EXPECT_EQ(thumb.At(9, 20) >> 24, 255u);
}

TEST(ToolRender, TakesSectionsNamesAndFrames) {
    const test::TestPicture a = Rendered("theme_01", {"--state", "pressed"});
    const test::TestPicture b = Rendered("PUSHBUTTON", {"--frame", "2"});
    EXPECT_TRUE(test::ComparePictures(a, b, 0).Equal());
    const test::TestPicture none = Rendered("PushButton", {"--state", "Group"});
    for (uint32_t pixel : none.pixels) EXPECT_EQ(pixel, 0u);
}

int Inked(const test::TestPicture& with, const test::TestPicture& without) {
    return test::ComparePictures(with, without, 0).pixels;
}

TEST(ToolRender, PaintsACaption) {
    const test::TestPicture plain = Rendered("PushButton", {"--size", "120x34"});
    const test::TestPicture captioned =
        Rendered("PushButton", {"--size", "120x34", "--text", "Caption"});
    EXPECT_GT(Inked(captioned, plain), 100);
    // Letters over what is opaque leave it opaque.
    for (size_t i = 0; i < plain.pixels.size(); ++i) {
        if (plain.pixels[i] >> 24 == 255) {
            EXPECT_EQ(captioned.pixels[i] >> 24, 255u);
        }
    }
    const test::TestPicture empty = Rendered("PushButton", {"--size", "120x34", "--text", ""});
    EXPECT_EQ(Inked(empty, plain), 0);
    test::ExpectGolden("tool_render_caption", captioned);
}

TEST(ToolRender, PaintsAnIconWithItsTransparency) {
    const std::string icon = Folder() + "icon.png";
    test::TestPicture picture{4, 4, std::vector<uint32_t>(16, 0xFF2060A0)};
    picture.At(0, 0) = 0;
    picture.At(3, 3) = 0x802060A0;
    ASSERT_TRUE(test::WritePng(icon, picture));
    const test::TestPicture plain = Rendered("Panel", {"--size", "60x40"});
    const test::TestPicture shown = Rendered("Panel", {"--size", "60x40", "--icon", icon});
    EXPECT_GE(Inked(shown, plain), 14);
    EXPECT_LE(Inked(shown, plain), 16 * 16);
    test::ExpectGolden("tool_render_icon", shown);
}

TEST(ToolErrors, AnIconThatIsNoPictureIsNamed) {
    WriteSkin("icon.txt", "no picture");
    for (const std::string& path : {Folder() + "icon.txt", std::string("/nowhere/icon.png")}) {
        const Result result =
            Call({"render", kSkin, "--item", "Tab", "--icon", path, "-o", Folder() + "x.png"});
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors, HasSubstr(path + ": error: no picture that can be read"));
    }
}

TEST(ToolGallery, ThePictureOfTheSampleSkinIsAsItWas) {
    const std::string path = Folder() + "gallery.png";
    const Result result = Call({"gallery", kSkin, "-o", path});
    ASSERT_EQ(result.status, 0) << result.errors;
    test::TestPicture picture;
    ASSERT_TRUE(test::ReadPng(path, &picture));
    test::ExpectGolden("aurora-gallery", picture);
}

TEST(ToolRender, EveryItemOfTheSampleSkinIsAsItWas) {
    for (const char* item : {"PushButton", "CheckBox", "RadioButton", "Tab", "ScrollThumb",
                             "ScrollArrow", "ProgressTrack", "ProgressBar", "EditFrame", "Panel",
                             "Banner", "Tooltip", "Header", "StatusBar"}) {
        test::ExpectGolden(std::string("aurora-") + item,
                           Rendered(item, {"--size", "150x60", "--state", "MouseOver"}));
    }
}

}  // namespace
}  // namespace vxgui::tool
