#include "tests/support/Images.h"

#include <gtest/gtest.h>

#include <cstring>

#include "generated/Places.h"

namespace vxgui::test {

TestPicture ExpectedImage(const std::string& file) {
    const std::vector<uint8_t> bytes = ReadTestFile("images/" + file + ".bgra");
    TestPicture picture{13, 11, std::vector<uint32_t>(13 * 11)};
    EXPECT_EQ(bytes.size(), picture.pixels.size() * 4) << file;
    std::memcpy(picture.pixels.data(), bytes.data(),
                std::min(bytes.size(), picture.pixels.size() * 4));
    return picture;
}

std::string ImagePath(const std::string& file) {
    return std::string(VXGUI_SOURCE_DIR "/tests/data/images/") + file;
}

}  // namespace vxgui::test
