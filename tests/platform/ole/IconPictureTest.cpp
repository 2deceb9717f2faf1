#include <gtest/gtest.h>

#include "tests/support/Bitmaps.h"
#include "tests/support/Images.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/gdi_images.h"
#include "vxgui/platform/ole.h"

namespace vxgui {
namespace {

using ole::OleLoadPicture;
using ole::Picture;

Ref<Picture> Load(const std::vector<uint8_t>& bytes) {
    return OleLoadPicture(bytes.data(), bytes.size());
}
std::vector<uint8_t> File(const std::string& name) { return test::ReadTestFile("images/" + name); }

gdi::HICON IconOf(const Ref<Picture>& picture) {
    return static_cast<gdi::HICON>(picture->Handle());
}

// Drawn on grey: what a user sees.
test::TestPicture Drawn(const Ref<Picture>& picture) {
    test::TestPicture shown{13, 11, std::vector<uint32_t>(13 * 11, 0xFF808080)};
    const gdi::HDC dc = gdi::CreateHostDC({shown.pixels.data(), 13, 11, 13 * 4, false});
    picture->Render(dc, 0, 0, 13, 11, 0, picture->Height(), picture->Width(), -picture->Height());
    gdi::DeleteDC(dc);
    for (uint32_t& pixel : shown.pixels) pixel |= 0xFF000000;
    return shown;
}

test::TestPicture OnGrey(test::TestPicture picture) {
    for (uint32_t& pixel : picture.pixels) {
        const uint32_t alpha = pixel >> 24;
        uint32_t shown = 0xFF000000;
        for (int shift = 0; shift < 24; shift += 8) {
            const double value = ((pixel >> shift & 255) * alpha + 128.0 * (255 - alpha)) / 255;
            shown |= static_cast<uint32_t>(value + 0.5) << shift;
        }
        pixel = shown;
    }
    return picture;
}

TEST(IconPicture, ShowsWhatTheFileHolds) {
    for (const char* file : {"ico-32.ico", "ico-png.ico", "ico-8.ico", "ico-4.ico", "cur-32.cur"}) {
        SCOPED_TRACE(file);
        const Ref<Picture> picture = Load(File(file));
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->Type(), ole::kPictureIcon);
        EXPECT_EQ(picture->Width(), 344) << "13 * 2540 / 96";
        EXPECT_EQ(picture->Height(), 291) << "11 * 2540 / 96";
        const auto found =
            test::ComparePictures(Drawn(picture), OnGrey(test::ExpectedImage(file)), 1);
        EXPECT_TRUE(found.Equal()) << found.pixels << " differ by up to " << found.largest;
    }
}

TEST(IconPicture, ColoursUnderTheMaskInvertWhatIsBelow) {
    const test::TestPicture shown = Drawn(Load(File("ico-8-mask.ico")));
    const test::TestPicture colours = test::ExpectedImage("ico-8.ico");
    for (int y = 0; y < 11; ++y) {
        for (int x = 0; x < 13; ++x) {
            const uint32_t below = x % 3 == 0 ? 0x808080 : 0;
            ASSERT_EQ(shown.At(x, y), colours.At(x, y) ^ below) << x << "," << y;
        }
    }
}

TEST(IconPicture, OwnsItsIconWhenToldTo) {
    HANDLE lent = gdi::LoadImageA(nullptr, test::ImagePath("ico-32.ico"), gdi::IMAGE_ICON, 0, 0,
                                  gdi::LR_LOADFROMFILE | gdi::LR_CREATEDIBSECTION);
    ASSERT_TRUE(lent);
    EXPECT_TRUE(ole::OleCreatePictureIndirect(lent, ole::kPictureIcon, false));
    EXPECT_TRUE(ole::OleCreatePictureIndirect(lent, ole::kPictureIcon, true));
    EXPECT_FALSE(gdi::DestroyIcon(static_cast<gdi::HICON>(lent))) << "the owner destroyed it";
    EXPECT_EQ(ole::OleCreatePictureIndirect(lent, ole::kPictureIcon, true), nullptr);
}

TEST(IconPicture, SavesItselfAsAnIconFile) {
    for (const char* name : {"ico-32.ico", "ico-8-mask.ico"}) {
        SCOPED_TRACE(name);
        const Ref<Picture> picture = Load(File(name));
        ByteArray file;
        ASSERT_TRUE(picture->SaveAsFile(&file));
        const Ref<Picture> again = Load(file);
        ASSERT_TRUE(again);
        EXPECT_EQ(again->Type(), ole::kPictureIcon);
        EXPECT_EQ(Drawn(again).pixels, Drawn(picture).pixels);
    }
}

TEST(IconPicture, SavesABlackAndWhiteIcon) {
    // 2 x 1: black, and white where the mask keeps what is below: an inversion.
    const uint8_t bits[] = {0x40, 0, 0x40, 0};
    gdi::ICONINFO info{1, 0, 0, gdi::CreateBitmap(2, 2, 1, 1, bits), nullptr};
    const gdi::HICON icon = gdi::CreateIconIndirect(&info);
    gdi::DeleteObject(info.hbmMask);
    const Ref<Picture> picture = ole::OleCreatePictureIndirect(icon, ole::kPictureIcon, true);
    ASSERT_TRUE(picture);
    ByteArray file;
    ASSERT_TRUE(picture->SaveAsFile(&file));
    const Ref<Picture> again = Load(file);
    ASSERT_TRUE(again);
    const test::TestPicture shown = Drawn(again);
    EXPECT_EQ(shown.At(0, 0), 0xFF000000);
    EXPECT_EQ(shown.At(12, 0), 0xFF7F7F7F);
}

// A directory of the images of ico-two.ico, whose first has 13 x 11 pixels and whose second 7 x 6.
TEST(IconFile, TakesTheSizeThatTheFileNamesFirst) {
    std::vector<uint8_t> file = File("ico-two.ico");
    EXPECT_EQ(Load(file)->Width(), 344);
    std::swap_ranges(file.begin() + 6, file.begin() + 22, file.begin() + 22);
    EXPECT_EQ(Load(file)->Width(), 185) << "7 * 2540 / 96";
}

TEST(IconFile, TakesMostColoursOfThatSize) {
    // The images of two files behind one directory.
    const std::vector<uint8_t> few = File("ico-4.ico"), many = File("ico-32.ico");
    std::vector<uint8_t> both = {0, 0, 1, 0, 2, 0};
    both.insert(both.end(), few.begin() + 6, few.begin() + 22);
    both.insert(both.end(), many.begin() + 6, many.begin() + 22);
    StoreLittle<uint32_t>(&both[6 + 12], 38);
    StoreLittle<uint32_t>(&both[22 + 12], static_cast<uint32_t>(38 + few.size() - 22));
    both.insert(both.end(), few.begin() + 22, few.end());
    both.insert(both.end(), many.begin() + 22, many.end());
    const auto found =
        test::ComparePictures(Drawn(Load(both)), OnGrey(test::ExpectedImage("ico-32.ico")), 1);
    EXPECT_TRUE(found.Equal());
}

TEST(IconFile, ACursorHasItsHotSpot) {
    const Ref<Picture> picture = Load(File("cur-32.cur"));
    gdi::ICONINFO info{};
    ASSERT_TRUE(gdi::GetIconInfo(IconOf(picture), &info));
    EXPECT_FALSE(info.fIcon);
    EXPECT_EQ(info.xHotspot, 5u);
    EXPECT_EQ(info.yHotspot, 3u);
    gdi::DeleteObject(info.hbmColor);
    gdi::DeleteObject(info.hbmMask);
}

TEST(IconFile, SurvivesTruncationsAndChangedBytes) {
    for (const char* name :
         {"ico-32.ico", "ico-8-mask.ico", "ico-png.ico", "ico-two.ico", "cur-32.cur"}) {
        std::vector<uint8_t> bytes = File(name);
        for (size_t size = 0; size <= bytes.size(); size += size < 80 ? 1 : 7) {
            const std::vector<uint8_t> part(bytes.begin(), bytes.begin() + size);
            Load(part);
        }
        for (size_t at = 0; at < bytes.size(); at += at < 80 ? 1 : 11) {
            for (const int change : {0x01, 0x80, 0xFF}) {
                bytes[at] = static_cast<uint8_t>(bytes[at] ^ change);
                Load(bytes);
                bytes[at] = static_cast<uint8_t>(bytes[at] ^ change);
            }
        }
    }
}

TEST(LoadImageA, TakesIconFilesAtTheirOwnSizeAlone) {
    const String file = test::ImagePath("ico-32.ico");
    const auto load = [&](UINT type, int width, UINT flags) {
        const HANDLE icon = gdi::LoadImageA(nullptr, file, type, width, 0, flags);
        if (icon) gdi::DestroyIcon(static_cast<gdi::HICON>(icon));
        return icon != nullptr;
    };
    EXPECT_TRUE(load(gdi::IMAGE_ICON, 0, gdi::LR_LOADFROMFILE));
    EXPECT_TRUE(load(gdi::IMAGE_CURSOR, 0, gdi::LR_LOADFROMFILE));
    EXPECT_FALSE(load(0, 0, gdi::LR_LOADFROMFILE));
    EXPECT_FALSE(load(gdi::IMAGE_ICON, 16, gdi::LR_LOADFROMFILE));
    EXPECT_FALSE(load(gdi::IMAGE_ICON, 0, 0)) << "not from a module";
    EXPECT_EQ(gdi::LoadImageA(nullptr, test::ImagePath("none.ico"), 1, 0, 0, gdi::LR_LOADFROMFILE),
              nullptr);
    EXPECT_EQ(
        gdi::LoadImageA(nullptr, test::ImagePath("bmp-24.bmp"), 1, 0, 0, gdi::LR_LOADFROMFILE),
        nullptr);
}

}  // namespace
}  // namespace vxgui
