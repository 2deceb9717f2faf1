#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const std::string kBroken = VXGUI_SOURCE_DIR "/tests/data/broken/";

Result Gallery(const std::string& skin) {
    return Call({"gallery", skin, "-o", Folder() + "uis.png"});
}

TEST(UisSkin, WhoseTaskbarIsNotThereIsRefused) {
    const Result result = Gallery(kBroken + "lost/lost.uis");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("lost.uis:7:1: error: the taskbar's file"));
    EXPECT_THAT(result.errors, HasSubstr("nowhere.xp"));
}

TEST(UisSkin, WhoseTaskbarLacksAnImageIsRefusedWithItsPlace) {
    const Result result = Gallery(kBroken + "uis/broken.uis");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors,
                HasSubstr("broken.xp:29:1: error: image \"start.tga\" is not there"));
    EXPECT_THAT(result.errors, HasSubstr("broken.xp:86:1: error: neither a section"));
}

TEST(UisSkin, StyleThatNoModuleHasIsRefused) {
    for (const char* style : {"res:DefaultStyles:nothing", "res:Nowhere:blue", "res:blue"}) {
        const Result result = Gallery(style);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors, HasSubstr(std::string(style) + ": error: "));
    }
}

}  // namespace
}  // namespace vxgui::tool
