#include <gtest/gtest.h>

#include "tests/image/TgaBytes.h"
#include "tests/support/Bitmaps.h"
#include "tests/support/Images.h"
#include "vxgui/image/cTgaPicture.h"
#include "vxgui/image/modTGA.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {
namespace {

using test::TgaBytes;

// 2 x 3: a picture that comes out sheared where width and height are taken for each other.
TgaBytes Tall() {
    return {.width = 2,
            .height = 3,
            .depth = 24,
            .pixels = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 5, 5, 5, 6, 6, 6}};
}

TEST(TgaToDib, MakesABottomUpDibSectionOf32Bits) {
    const std::vector<uint8_t> bytes = Tall().Bytes();
    bool hasFooter = true;
    const gdi::HBITMAP bitmap =
        TgaToDib(bytes.data(), static_cast<int32_t>(bytes.size()), hasFooter);
    ASSERT_TRUE(bitmap);
    EXPECT_FALSE(hasFooter);
    gdi::DIBSECTION section{};
    ASSERT_EQ(gdi::GetObjectA(bitmap, sizeof section, &section), gdi::kDibSectionRecordSize);
    EXPECT_EQ(section.dsBm.bmWidth, 2);
    EXPECT_EQ(section.dsBm.bmHeight, 3);
    EXPECT_EQ(section.dsBm.bmBitsPixel, 32);
    EXPECT_EQ(section.dsBmih.biHeight, 3) << "the bottom row first";
    const auto* pixels = static_cast<const ARGB*>(section.dsBm.bmBits);
    for (uint8_t i = 0; i < 6; ++i) {
        const auto value = static_cast<uint8_t>(i + 1);
        EXPECT_EQ(pixels[i], (ARGB{value, value, value, 255}));
    }
    gdi::DeleteObject(bitmap);
}

TEST(TgaToDib, ReportsNoFooterWhereThereIsOne) {
    TgaBytes tga = Tall();
    tga.footer = true;
    const std::vector<uint8_t> bytes = tga.Bytes();
    const auto size = static_cast<int32_t>(bytes.size());
    ASSERT_TRUE(TgaHasFooter(bytes.data(), size));
    bool hasFooter = true;
    const gdi::HBITMAP bitmap = TgaToDib(bytes.data(), size, hasFooter);
    EXPECT_TRUE(bitmap);
    EXPECT_FALSE(hasFooter);
    gdi::DeleteObject(bitmap);
}

TEST(TgaToDib, AFailureGivesNoBitmap) {
    bool hasFooter = true;
    EXPECT_EQ(TgaToDib(nullptr, 100, hasFooter), nullptr);
    EXPECT_FALSE(hasFooter);
    const std::vector<uint8_t> odd = TgaBytes{.depth = 15, .pixels = {1, 2}}.Bytes();
    EXPECT_EQ(TgaToDib(odd.data(), static_cast<int32_t>(odd.size()), hasFooter), nullptr);
}

TEST(TgaArrayToDib, TakesTheWholeArray) {
    EXPECT_EQ(TgaArrayToDib({}), nullptr);
    const gdi::HBITMAP bitmap = TgaArrayToDib(test::ReadTestFile("images/tga-32-rle.tga"));
    ASSERT_TRUE(bitmap);
    const test::TestPicture expected = test::ExpectedImage("tga-32-rle.tga");
    EXPECT_TRUE(test::ComparePictures(test::PictureOf(bitmap), expected, 0).Equal());
    gdi::DeleteObject(bitmap);
}

TEST(cTgaPicture, ReadsPixelsOfItsArray) {
    cTgaPicture picture;
    ASSERT_TRUE(picture.SetData(Tall().Bytes()));
    EXPECT_EQ(picture.Width(), 2);
    EXPECT_EQ(picture.Height(), 3);
    uint8_t blue = 0, green = 0, red = 0, alpha = 0;
    picture.GetPixel(1, 2, blue, green, red, alpha);
    EXPECT_EQ((ARGB{blue, green, red, alpha}), (ARGB{6, 6, 6, 255}));
    picture.GetPixel(0, 1, blue, green, red, alpha);
    EXPECT_EQ((ARGB{blue, green, red, alpha}), (ARGB{3, 3, 3, 255}));
}

TEST(cTgaPicture, LeavesTheOutputsAloneOutsideThePicture) {
    cTgaPicture picture;
    ASSERT_TRUE(picture.SetData(Tall().Bytes()));
    for (const auto& [x, y] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 3}}) {
        uint8_t blue = 21, green = 22, red = 23, alpha = 24;
        picture.GetPixel(x, y, blue, green, red, alpha);
        EXPECT_EQ((ARGB{blue, green, red, alpha}), (ARGB{21, 22, 23, 24})) << x << "," << y;
    }
}

TEST(cTgaPicture, SetDataFailsWithTheParserOrTheDecoder) {
    cTgaPicture picture;
    EXPECT_FALSE(picture.SetData({}));
    EXPECT_FALSE(picture.SetData(TgaBytes{.depth = 15}.Bytes()));
    EXPECT_FALSE(picture.SetData(TgaBytes{.imageType = 4}.Bytes()));
    uint8_t blue = 21, green = 22, red = 23, alpha = 24;
    picture.GetPixel(0, 0, blue, green, red, alpha);
    EXPECT_EQ(blue, 21) << "there are no pixels";
}

TEST(cTgaPicture, DrawsItsFirstRowAtTheTop) {
    TgaBytes tga = Tall();
    tga.pixels[2] = 99;  // the red of the bottom row's first pixel
    cTgaPicture picture;
    ASSERT_TRUE(picture.SetData(tga.Bytes()));
    std::vector<ARGB> host(4 * 4, ARGB{7, 7, 7, 7});
    const gdi::HDC dc = gdi::CreateHostDC({host.data(), 4, 4, 16, false});
    picture.DrawPic(dc);
    EXPECT_EQ(gdi::GetPixel(dc, 0, 0), gdi::RGB(99, 1, 1));
    EXPECT_EQ(gdi::GetPixel(dc, 1, 0), gdi::RGB(2, 2, 2));
    EXPECT_EQ(gdi::GetPixel(dc, 0, 2), gdi::RGB(5, 5, 5));
    EXPECT_EQ(gdi::GetPixel(dc, 2, 0), gdi::RGB(7, 7, 7));
    EXPECT_EQ(gdi::GetPixel(dc, 0, 3), gdi::RGB(7, 7, 7));
    gdi::DeleteDC(dc);
}

}  // namespace
}  // namespace vxgui
