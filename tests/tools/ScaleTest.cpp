#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "tests/support/Golden.h"
#include "tests/tools/ToolCall.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const std::string kAurora = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";
const std::string kPorcelain = VXGUI_SOURCE_DIR "/skins/porcelain/porcelain.uis";

gdi::SIZE SizeOfPicture(std::vector<std::string> arguments) {
    const std::string path = Folder() + "scaled.png";
    arguments.insert(arguments.end(), {"-o", path});
    const Result result = Call(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    test::TestPicture picture;
    EXPECT_TRUE(test::ReadPng(path, &picture));
    return {picture.width, picture.height};
}

TEST(ScaleOption, SizesAreThoseOfScaleOneTimesTheScale) {
    const gdi::SIZE given = SizeOfPicture(
        {"render", kAurora, "--item", "PushButton", "--size", "121x35", "--scale", "1.5"});
    EXPECT_EQ(given.cx, 182);
    EXPECT_EQ(given.cy, 53);
    const gdi::SIZE own = SizeOfPicture({"render", kAurora, "--item", "PushButton"});
    const gdi::SIZE twice =
        SizeOfPicture({"render", kAurora, "--item", "PushButton", "--scale", "2"});
    EXPECT_EQ(twice.cx, 2 * own.cx);
    EXPECT_EQ(twice.cy, 2 * own.cy);
}

TEST(ScaleOption, AGalleryAndADesktopAreAsManyTimesLarger) {
    for (const bool desktop : {false, true}) {
        std::vector<std::string> arguments{"gallery", kPorcelain};
        if (desktop) arguments.push_back("--desktop");
        const gdi::SIZE plain = SizeOfPicture(arguments);
        arguments.insert(arguments.end(), {"--scale", "1.5"});
        const gdi::SIZE larger = SizeOfPicture(arguments);
        EXPECT_NEAR(larger.cx, 1.5 * plain.cx, 1);
        EXPECT_NEAR(larger.cy, 1.5 * plain.cy, 1);
    }
}

TEST(ScaleOption, TakesNumbersFromAQuarterToSixteen) {
    for (const char* scale : {"0", "0.2", "17", "-1", "two", "nan"}) {
        EXPECT_EQ(Call({"gallery", kAurora, "-o", Folder() + "x.png", "--scale", scale}).status, 2)
            << scale;
        EXPECT_EQ(
            Call({"render", kAurora, "--item", "Tab", "-o", Folder() + "x.png", "--scale", scale})
                .status,
            2)
            << scale;
    }
}

}  // namespace
}  // namespace vxgui::tool
