#include "generated/Places.h"
#include "tests/support/Golden.h"

#include <gtest/gtest.h>

namespace vxgui::test {
namespace {

TestPicture Plain() { return {5, 4, std::vector<uint32_t>(20, 0x80604020)}; }

TEST(GoldenComparator, EqualPicturesAreEqual) {
    EXPECT_TRUE(ComparePictures(Plain(), Plain(), 0).Equal());
}

TEST(GoldenComparator, OneWrongPixelInAnyCornerAndChannelFails) {
    const int corners[4][2] = {{0, 0}, {4, 0}, {0, 3}, {4, 3}};
    for (const auto& corner : corners) {
        for (int channel = 0; channel < 4; ++channel) {
            TestPicture wrong = Plain();
            wrong.At(corner[0], corner[1]) ^= 1u << (8 * channel);
            const PictureDifference found = ComparePictures(wrong, Plain(), 0);
            EXPECT_FALSE(found.Equal());
            EXPECT_EQ(found.pixels, 1);
            EXPECT_EQ(found.firstX, corner[0]);
            EXPECT_EQ(found.firstY, corner[1]);
        }
    }
}

TEST(GoldenComparator, ToleranceIsInclusive) {
    TestPicture other = Plain();
    other.At(2, 2) += 3;
    EXPECT_TRUE(ComparePictures(other, Plain(), 3).Equal());
    EXPECT_FALSE(ComparePictures(other, Plain(), 2).Equal());
}

TEST(GoldenComparator, AnotherSizeIsNeverEqual) {
    const TestPicture wide{20, 1, std::vector<uint32_t>(20, 0x80604020)};
    EXPECT_FALSE(ComparePictures(wide, Plain(), 255).Equal());
}

TEST(GoldenFiles, APictureComesBackFromItsFile) {
    TestPicture picture = Plain();
    picture.At(1, 2) = 0x01FF00FE;
    const std::string path = VXGUI_TEST_OUTPUT_DIR "/golden-round-trip.png";
    ASSERT_TRUE(WritePng(path, picture));
    TestPicture read;
    ASSERT_TRUE(ReadPng(path, &read));
    EXPECT_TRUE(ComparePictures(read, picture, 0).Equal());
}

}  // namespace
}  // namespace vxgui::test
