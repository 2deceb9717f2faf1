#include <gtest/gtest.h>

#include "tests/support/Bitmaps.h"
#include "tests/support/Images.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

bool IsAlive(gdi::HGDIOBJ handle) {
    gdi::BITMAP record;
    return gdi::GetObjectA(handle, gdi::kBitmapRecordSize, &record) != 0;
}

// 3 x 2; pixel (x, y) counted from the top left is 0xA0000000 + 16 * y + x.
gdi::HBITMAP MakeBitmap() {
    uint8_t* bottom = nullptr;
    const gdi::HBITMAP bitmap = gdi::CreateDib(3, 2, 32, &bottom);
    auto* pixels = reinterpret_cast<uint32_t*>(bottom);
    for (uint32_t y = 0; y < 2; ++y) {
        for (uint32_t x = 0; x < 3; ++x) pixels[(1 - y) * 3 + x] = 0xA0000000 + 16 * y + x;
    }
    return bitmap;
}

TEST(Picture, OwnsItsHandleWhenToldTo) {
    const gdi::HBITMAP owned = MakeBitmap(), lent = MakeBitmap();
    {
        const Ref<Picture> owner = OleCreatePictureIndirect(owned, kPictureBitmap, true);
        const Ref<Picture> borrower = OleCreatePictureIndirect(lent, kPictureBitmap, false);
        ASSERT_TRUE(owner && borrower);
        EXPECT_EQ(owner->Handle(), owned);
        EXPECT_EQ(owner->Type(), kPictureBitmap);
    }
    EXPECT_FALSE(IsAlive(owned));
    EXPECT_TRUE(IsAlive(lent));
    gdi::DeleteObject(lent);
}

TEST(Picture, NeedsABitmapToStandFor) {
    const gdi::HBITMAP bitmap = MakeBitmap();
    EXPECT_EQ(OleCreatePictureIndirect(nullptr, kPictureBitmap, true), nullptr);
    EXPECT_EQ(OleCreatePictureIndirect(bitmap, kPictureNone, false), nullptr);
    EXPECT_EQ(OleCreatePictureIndirect(bitmap, 2, false), nullptr);
    gdi::DeleteObject(bitmap);
    EXPECT_EQ(OleCreatePictureIndirect(bitmap, kPictureBitmap, true), nullptr) << "a dead handle";
}

TEST(Picture, MeasuresInHundredthsOfAMillimetre) {
    const Ref<Picture> picture = OleCreatePictureIndirect(MakeBitmap(), kPictureBitmap, true);
    EXPECT_EQ(picture->Width(), 79) << "3 * 2540 / 96 = 79.375";
    EXPECT_EQ(picture->Height(), 53) << "2 * 2540 / 96 = 52.9";
}

struct Target {
    Target() : dc(gdi::CreateHostDC({pixels.data(), 6, 4, 24, false})) {}
    ~Target() { gdi::DeleteDC(dc); }
    std::vector<uint32_t> pixels = std::vector<uint32_t>(24, 7);
    gdi::HDC dc;
};

TEST(Picture, ComesOutUprightFromItsFullHeightDown) {
    const Ref<Picture> picture = OleCreatePictureIndirect(MakeBitmap(), kPictureBitmap, true);
    Target target;
    picture->Render(target.dc, 1, 1, 3, 2, 0, picture->Height(), picture->Width(),
                    -picture->Height());
    const std::vector<uint32_t> expected = {7, 7,          7,          7,          7, 7,  //
                                            7, 0xA0000000, 0xA0000001, 0xA0000002, 7, 7,  //
                                            7, 0xA0000010, 0xA0000011, 0xA0000012, 7, 7,  //
                                            7, 7,          7,          7,          7, 7};
    EXPECT_EQ(target.pixels, expected);
}

TEST(Picture, StretchesToItsPlace) {
    const Ref<Picture> picture = OleCreatePictureIndirect(MakeBitmap(), kPictureBitmap, true);
    Target target;
    picture->Render(target.dc, 0, 0, 6, 4, 0, picture->Height(), picture->Width(),
                    -picture->Height());
    for (size_t y = 0; y < 4; ++y) {
        for (size_t x = 0; x < 6; ++x) {
            EXPECT_EQ(target.pixels[y * 6 + x], 0xA0000000 + 16 * (y / 2) + x / 2);
        }
    }
}

TEST(Picture, CanBeRenderedWhileItIsSelectedNowhereElse) {
    const gdi::HBITMAP bitmap = MakeBitmap();
    const Ref<Picture> picture = OleCreatePictureIndirect(bitmap, kPictureBitmap, true);
    const gdi::HDC other = gdi::CreateCompatibleDC(nullptr);
    const gdi::HGDIOBJ old = gdi::SelectObject(other, bitmap);
    Target target;
    picture->Render(target.dc, 0, 0, 3, 2, 0, 53, 79, -53);
    EXPECT_EQ(target.pixels[0], 7u) << "a bitmap is in one context at a time";
    gdi::SelectObject(other, old);
    picture->Render(target.dc, 0, 0, 3, 2, 0, 53, 79, -53);
    EXPECT_EQ(target.pixels[0], 0xA0000000);
    gdi::DeleteDC(other);
}

TEST(Picture, SavesItselfAsABmpWithItsAlphaByte) {
    const Ref<Picture> picture = OleCreatePictureIndirect(MakeBitmap(), kPictureBitmap, true);
    ByteArray file;
    ASSERT_TRUE(picture->SaveAsFile(&file));
    EXPECT_EQ(file.size(), 54u + 3 * 2 * 4);
    const Ref<Picture> again = OleLoadPicture(file.data(), file.size());
    ASSERT_TRUE(again);
    const auto pixels = [](const Ref<Picture>& of) {
        return test::PictureOf(static_cast<gdi::HBITMAP>(of->Handle())).pixels;
    };
    EXPECT_EQ(pixels(again), pixels(picture));
}

TEST(Picture, SavesOtherDepthsIn24Bits) {
    const std::vector<uint8_t> bytes = test::ReadTestFile("images/bmp-24.bmp");
    const Ref<Picture> picture = OleLoadPicture(bytes.data(), bytes.size());
    ASSERT_TRUE(picture);
    ByteArray file;
    ASSERT_TRUE(picture->SaveAsFile(&file));
    EXPECT_EQ(file[28], 24);
    EXPECT_EQ(file.size(), 54u + 40 * 11);
    const Ref<Picture> again = OleLoadPicture(file.data(), file.size());
    ASSERT_TRUE(again);
    const test::TestPicture expected =
        test::PictureOf(static_cast<gdi::HBITMAP>(picture->Handle()));
    const test::TestPicture actual = test::PictureOf(static_cast<gdi::HBITMAP>(again->Handle()));
    EXPECT_TRUE(test::ComparePictures(actual, expected, 0).Equal());
}

// The pixels that a file must give, in 24 bits.
test::TestPicture WithoutAlpha(const std::string& file) {
    test::TestPicture picture = test::ExpectedImage(file);
    for (uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
    return picture;
}

TEST(PictureLoader, ReadsBmpGifAndJpeg) {
    struct Case {
        const char* file;
        int tolerance;
    };
    for (const Case& each :
         {Case{"bmp-24.bmp", 0}, Case{"bmp-8-rle.bmp", 0}, Case{"bmp-4-core.bmp", 0},
          Case{"gif-89.gif", 0}, Case{"jpeg-444.jpg", 2}, Case{"jpeg-grey.jpg", 2}}) {
        SCOPED_TRACE(each.file);
        const std::vector<uint8_t> bytes = test::ReadTestFile(std::string("images/") + each.file);
        const Ref<Picture> picture = OleLoadPicture(bytes.data(), bytes.size());
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->Type(), kPictureBitmap);
        const test::TestPicture actual =
            test::PictureOf(static_cast<gdi::HBITMAP>(picture->Handle()));
        EXPECT_TRUE(test::ComparePictures(actual, WithoutAlpha(each.file), each.tolerance).Equal());
        const Ref<Picture> fromFile = LoadPicture(test::ImagePath(each.file));
        ASSERT_TRUE(fromFile);
        EXPECT_EQ(test::PictureOf(static_cast<gdi::HBITMAP>(fromFile->Handle())).pixels,
                  actual.pixels);
    }
}

TEST(PictureLoader, ReadsNoPngNoTiffAndNoTga) {
    for (const char* file : {"png-rgb-8.png", "tiff-rgb.tif", "tga-24.tga"}) {
        const std::vector<uint8_t> bytes = test::ReadTestFile(std::string("images/") + file);
        EXPECT_EQ(OleLoadPicture(bytes.data(), bytes.size()), nullptr) << file;
        EXPECT_EQ(LoadPicture(test::ImagePath(file)), nullptr) << file;
    }
}

TEST(PictureLoader, GivesNoneForWhatCannotBeRead) {
    EXPECT_EQ(OleLoadPicture(nullptr, 10), nullptr);
    EXPECT_EQ(LoadPicture(""), nullptr);
    EXPECT_EQ(LoadPicture(test::ImagePath("none.bmp")), nullptr);
    for (const char* file : {"bmp-24.bmp", "bmp-32.bmp", "gif-89.gif", "jpeg-444.jpg"}) {
        const std::vector<uint8_t> bytes = test::ReadTestFile(std::string("images/") + file);
        EXPECT_EQ(OleLoadPicture(bytes.data(), bytes.size() / 2), nullptr) << file;
    }
}

TEST(PictureLoader, KeepsTheFourthByteOfABmpOf32Bits) {
    const std::vector<uint8_t> bytes = test::ReadTestFile("images/bmp-32.bmp");
    const Ref<Picture> picture = OleLoadPicture(bytes.data(), bytes.size());
    ASSERT_TRUE(picture);
    // The file holds the same bytes as the one that declares them an alpha.
    const test::TestPicture expected = test::ExpectedImage("bmp-32-v4-alpha.bmp");
    const test::TestPicture actual = test::PictureOf(static_cast<gdi::HBITMAP>(picture->Handle()));
    EXPECT_TRUE(test::ComparePictures(actual, expected, 0).Equal());
}

}  // namespace
}  // namespace vxgui::ole
