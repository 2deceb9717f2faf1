#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <CLI/CLI.hpp>

#include "tests/tools/ToolCall.h"
#include "tools/vxgui/ViewOptions.h"
#include "tools/vxgui/ViewerProgram.h"

namespace vxgui::tool {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string ReasonOf(const std::vector<std::string>& places) {
    try {
        RunViewer(places, {"skin.theme"});
    } catch (const std::exception& error) {
        return error.what();
    }
}

TEST(View, WithoutTheViewersProgramSaysWhatToInstall) {
    const std::string reason = ReasonOf({"/nowhere/vxgui-view", "/else/vxgui-view"});
    EXPECT_THAT(reason, HasSubstr("/nowhere/vxgui-view or /else/vxgui-view"));
    EXPECT_THAT(reason, HasSubstr("vxgui-viewer"));
    EXPECT_THAT(reason, HasSubstr("apt-get install qt6-base-dev"));
}

TEST(View, LooksForItsProgramBesideTheToolAndInLibexec) {
    EXPECT_THAT(ViewerPlaces("/usr/bin"),
                ElementsAre("/usr/bin/vxgui-view", "/usr/libexec/vxgui/vxgui-view"));
}

TEST(View, HelpHasExamples) {
    const Result result = Call({"view", "--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("vxgui view skins/aurora/aurora.theme"));
    EXPECT_THAT(result.out, HasSubstr("--screenshot"));
}

TEST(View, RefusesAWrongCommandLineBeforeAWindowOpens) {
    EXPECT_EQ(Call({"view"}).status, 2);
    EXPECT_EQ(Call({"view", "a.theme", "--zoom", "99"}).status, 2);
}

ViewOptions Parsed(std::vector<std::string> arguments) {
    ViewOptions options;
    CLI::App app;
    AddViewOptions(app, options);
    std::ranges::reverse(arguments);
    app.parse(std::move(arguments));
    return options;
}

TEST(View, HandsItsWholeCommandLineOn) {
    ViewOptions options;
    options.skin = "-odd.theme";
    options.item = "Tab";
    options.caption = "--Save; 'x'";
    options.captioned = true;
    options.background = "#102030";
    options.zoom = 8;
    options.margins = true;
    options.screenshot = "a b.png";
    const ViewOptions again = Parsed(ArgumentsOf(options));
    EXPECT_EQ(again.skin, options.skin);
    EXPECT_EQ(again.item, options.item);
    EXPECT_EQ(again.caption, options.caption);
    EXPECT_TRUE(again.captioned);
    EXPECT_EQ(again.background, options.background);
    EXPECT_EQ(again.zoom, 8);
    EXPECT_TRUE(again.margins);
    EXPECT_EQ(again.screenshot, options.screenshot);
}

TEST(View, HandsOnNoMoreThanItWasGiven) {
    ViewOptions options;
    options.skin = "a.theme";
    EXPECT_THAT(ArgumentsOf(options), ElementsAre("--", "a.theme"));
    const ViewOptions again = Parsed(ArgumentsOf(options));
    EXPECT_FALSE(again.captioned);
    EXPECT_EQ(again.zoom, 1);
}

}  // namespace
}  // namespace vxgui::tool
