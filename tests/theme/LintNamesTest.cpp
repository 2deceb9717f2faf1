#include <gtest/gtest.h>

#include "vxgui/theme/lint/NearestName.h"

namespace vxgui::lint {
namespace {

TEST(LintNames, DistanceCountsLettersAndSwaps) {
    const struct {
        const char *a, *b;
        size_t distance;
    } kCases[] = {
        {"", "", 0},
        {"Image", "image", 0},
        {"", "abc", 3},
        {"abc", "", 3},
        {"Theme", "Themes", 1},
        {"FontHieght", "FontHeight", 1},
        {"kitten", "sitting", 3},
        {"ca", "abc", 3},
        {"UserPain", "UserPane", 2},
    };
    for (const auto& [a, b, distance] : kCases) {
        EXPECT_EQ(DistanceOf(a, b), distance) << a << " " << b;
        EXPECT_EQ(DistanceOf(b, a), distance) << b << " " << a;
    }
}

TEST(LintNames, TheNearestIsNearEnoughForTheNamesLength) {
    const std::vector<String> names{"Frames", "FrameVert", "Image", "Tile"};
    EXPECT_EQ(NearestName("frame", names), String("Frames"));
    EXPECT_EQ(NearestName("FrameVrt", names), String("FrameVert"));
    EXPECT_EQ(NearestName("Tlie", names), String("Tile"));
    EXPECT_EQ(NearestName("Til", names), String("Tile"));
    EXPECT_EQ(NearestName("Ti", names), String(""));
    EXPECT_EQ(NearestName("Sparkle", names), String(""));
    EXPECT_EQ(NearestName("", names), String(""));
    EXPECT_EQ(NearestName("Frames", {}), String(""));
}

TEST(LintNames, NamesOfAnyLengthAreTaken) {
    const String longName(std::string(100000, 'a'));
    EXPECT_EQ(NearestName(longName, {"aaaa", longName}), String(""));
}

}  // namespace
}  // namespace vxgui::lint
