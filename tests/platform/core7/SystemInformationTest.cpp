#include <gtest/gtest.h>

#include <cerrno>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7/SystemCodes.h"

namespace vxgui::core7 {
namespace {

TEST(SystemInformationTest, TheOwnBlitsArePreferredAtFirst) {
    EXPECT_FALSE(CreateSystemInformation()->PrefersSystemAlphaBlend());
}

TEST(SystemInformationTest, CommonCodesHaveTexts) {
    const auto information = CreateSystemInformation();
    EXPECT_EQ(information->ErrorText(2), "File not found");
    EXPECT_EQ(information->ErrorText(5), "Access denied");
    EXPECT_EQ(information->ErrorText(126), "Module not found");
    EXPECT_EQ(information->ErrorText(1814), "Resource name not found");
}

TEST(SystemInformationTest, AnyOtherCodeGetsAGeneralText) {
    EXPECT_EQ(CreateSystemInformation()->ErrorText(54321), "Unknown system error 54321");
    EXPECT_EQ(CreateSystemInformation()->ErrorText(0xFFFFFFFF), "Unknown system error 4294967295");
}

TEST(SystemCodesTest, ErrorsOfTheSystemHaveACodeWithAText) {
    const struct {
        int error;
        uint32_t code;
    } cases[] = {{0, 0},        {EACCES, 5}, {EPERM, 5},          {ENOENT, 2},
                 {ENOTDIR, 3},  {EMFILE, 4}, {ENOMEM, 8},         {EROFS, 19},
                 {ENOSPC, 112}, {EISDIR, 5}, {ENAMETOOLONG, 206}, {EFBIG, 223},
                 {EIO, 1117},   {EINVAL, 87}};
    for (const auto& c : cases) {
        EXPECT_EQ(SystemCodeFromErrno(c.error), c.code) << c.error;
        EXPECT_FALSE(SystemCodeText(c.code).empty()) << c.code;
    }
    EXPECT_EQ(SystemCodeFromErrno(9999), 31u);
}

}  // namespace
}  // namespace vxgui::core7
