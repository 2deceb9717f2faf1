#include <gtest/gtest.h>

#include "tests/image/TgaBytes.h"
#include "tests/support/Bitmaps.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/Stub.h"
#include "vxgui/image/PictureOperations.h"
#include "vxgui/image/modPicture.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui {
namespace {

using Bytes = std::vector<uint8_t>;

// A TGA picture that neither GDI+ nor the platform reads, and one that both do.
Bytes TgaFile() { return test::ReadTestFile("images/tga-32.tga"); }
Bytes BmpFile() { return test::ReadTestFile("images/bmp-24.bmp"); }
Bytes PngFile() { return test::ReadTestFile("images/png-rgba-8.png"); }

class PictureLoading : public testing::Test {
protected:
    String MakeFile(const std::string& name, const Bytes& bytes) {
        return folder_.Write(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    test::GdiplusSession session_;
    test::TemporaryFolder folder_;
};

test::TestPicture PictureOf(const Ref<ole::Picture>& picture) {
    EXPECT_TRUE(picture);
    if (!picture) return {};
    return test::PictureOf(static_cast<gdi::HBITMAP>(picture->Handle()));
}

// Of the pictures of the test, TGA keeps straight alpha, GDI+ gives it premultiplied over white,
// and the platform gives 24 bits.
enum class Loader { None, Gdiplus, Platform, Tga };
Loader LoaderOf(const Ref<ole::Picture>& picture) {
    if (!picture) return Loader::None;
    gdi::BITMAP record{};
    gdi::GetObjectA(picture->Handle(), gdi::kBitmapRecordSize, &record);
    if (record.bmBitsPixel == 24) return Loader::Platform;
    const uint32_t first = PictureOf(picture).At(0, 0);
    return first == test::ExpectedImage("tga-32.tga").At(0, 0) ? Loader::Tga : Loader::Gdiplus;
}

TEST_F(PictureLoading, APictureFromAHandleNeedsAHandle) {
    EXPECT_EQ(PictureFromHandle(nullptr, 1, true), nullptr);
    uint8_t* pixels = nullptr;
    const gdi::HBITMAP bitmap = gdi::CreateDib(1, 1, 32, &pixels);
    const Ref<ole::Picture> picture = PictureFromHandle(bitmap, 1, true);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Handle(), bitmap);
}

TEST_F(PictureLoading, AStreamNeedsBytes) {
    const uint8_t bytes[] = {1, 2, 3};
    EXPECT_EQ(MemoryToStream(nullptr, 3), nullptr);
    EXPECT_EQ(MemoryToStream(bytes, 0), nullptr);
    EXPECT_EQ(MemoryToStream(bytes, -1), nullptr);
    const Ref<ole::IStream> stream = MemoryToStream(bytes, 3);
    ASSERT_TRUE(stream);
    EXPECT_EQ(stream->Size(), 3u);
    uint8_t first = 0;
    EXPECT_EQ(stream->Read(&first, 1), 1u) << "it stands at its start";
    EXPECT_EQ(first, 1);
}

TEST_F(PictureLoading, TheLastFourCharactersChooseTheDecoder) {
    struct Case {
        const char* name;
        Bytes bytes;
        int16_t type;
        bool loads;
    };
    const Case cases[] = {
        {"a.tga", TgaFile(), 1, true},
        {"a.TGA", TgaFile(), 1, true},
        {"a.Tga", TgaFile(), 1, true},
        {"a.tga", PngFile(), 1, false},
        {"a.png", PngFile(), 1, true},
        {"a.png", TgaFile(), 1, false},
        {"a.jpeg", PngFile(), 1, true},
        {"tga", TgaFile(), 1, false},
        {"a.xtga", TgaFile(), 1, false},
        {"a.bmp", BmpFile(), 1, true},
        {"a.ico", PngFile(), 3, false},
        {"a.CUR", PngFile(), 3, false},
        {"a.ico", test::ReadTestFile("images/ico-32.ico"), 3, true},
        {"a.Cur", test::ReadTestFile("images/cur-32.cur"), 3, true},
    };
    for (const Case& each : cases) {
        int16_t type = 77;
        const gdi::HGDIOBJ handle = LoadPictureHandle(MakeFile(each.name, each.bytes), type, 0);
        EXPECT_EQ(handle != nullptr, each.loads) << each.name;
        EXPECT_EQ(type, each.type) << each.name;
        PictureFromHandle(handle, type, true);  // which deletes it
    }
}

TEST_F(PictureLoading, AnIconStaysAnIcon) {
    const String file = MakeFile("a.ico", test::ReadTestFile("images/ico-32.ico"));
    for (const Ref<ole::Picture>& picture :
         {LoadPicture2(file), LoadPictureFromFile(file), PictureFromFile(file, 2)}) {
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->Type(), ole::kPictureIcon);
    }
    EXPECT_EQ(LoaderOf(PictureFromFile(file, 1)), Loader::Gdiplus) << "there it is a bitmap";
}

TEST_F(PictureLoading, AFileThatIsNotThereGivesNothing) {
    const String missing = folder_.Path("none.png");
    int16_t type = 0;
    EXPECT_EQ(LoadPictureHandle(missing, type, 0), nullptr);
    EXPECT_EQ(GdipFileToHBitmap(missing, 0), nullptr);
    EXPECT_EQ(TgaFileToHBitmap(missing), nullptr);
    EXPECT_EQ(LoadPicture2(missing), nullptr);
    EXPECT_EQ(LoadPictureFromFile(missing), nullptr);
    EXPECT_EQ(PictureFromFile(missing, 0x321), nullptr);
}

// The pixel of the test's picture that is clear: the background alone is seen there.
uint32_t ClearPixel(gdi::HBITMAP bitmap) {
    const uint32_t pixel = test::PictureOf(bitmap).At(0, 0);
    gdi::DeleteObject(bitmap);
    return pixel;
}

TEST_F(PictureLoading, ABackgroundOf0IsMagentaAndNeedsNoTopByteInAFile) {
    const String file = MakeFile("clear.png", PngFile());
    struct Case {
        int32_t background;
        uint32_t shown;
    };
    for (const Case& each :
         {Case{0, 0xFF00FF}, Case{-1, 0xFFFFFF}, Case{0x00FF00, 0x00FF00},
          Case{0x12345678, 0x345678}, Case{static_cast<int32_t>(0xFF000000), 0}}) {
        EXPECT_EQ(ClearPixel(GdipFileToHBitmap(file, each.background)), each.shown);
    }
    const Bytes png = PngFile();
    const auto size = static_cast<int32_t>(png.size());
    for (const Case& each : {Case{0, 0xFF00FF}, Case{-1, 0xFFFFFF}, Case{0x00FF00, 0x00FF00}}) {
        EXPECT_EQ(ClearPixel(GdipMemoryToHBitmap(png.data(), size, each.background)), each.shown);
    }
}

TEST_F(PictureLoading, LoadPictureFromFileFlattensAgainstItsBackground) {
    const String file = MakeFile("clear.png", PngFile());
    EXPECT_EQ(PictureOf(LoadPictureFromFile(file)).At(0, 0), 0xFFFFFFu) << "white by default";
    EXPECT_EQ(PictureOf(LoadPictureFromFile(file, 0)).At(0, 0), 0xFF00FFu);
    EXPECT_EQ(PictureOf(LoadPictureFromFile(file, 0x00FF00)).At(0, 0), 0x00FF00u);
}

TEST_F(PictureLoading, MemoryDecodesNeedMemory) {
    const Bytes png = PngFile();
    EXPECT_EQ(GdipMemoryToHBitmap(nullptr, 10, 0), nullptr);
    EXPECT_EQ(GdipMemoryToHBitmap(png.data(), 0, 0), nullptr);
    EXPECT_EQ(GdipMemoryToHBitmap(png.data(), 20, 0), nullptr) << "not the whole";
    EXPECT_EQ(OleMemoryToPicture(nullptr, 10), nullptr);
    EXPECT_EQ(OleMemoryToPicture(png.data(), 0), nullptr);
}

TEST_F(PictureLoading, LoadPicture2AsksThePlatformLast) {
    EXPECT_EQ(LoaderOf(LoadPicture2(MakeFile("a.bmp", BmpFile()))), Loader::Gdiplus);
    EXPECT_EQ(LoaderOf(LoadPicture2(MakeFile("b.tga", TgaFile()))), Loader::Tga);
    EXPECT_EQ(LoaderOf(LoadPicture2(MakeFile("c.tga", BmpFile()))), Loader::Platform)
        << "no TGA picture, but the platform reads it";
    EXPECT_EQ(LoaderOf(LoadPicture2(MakeFile("d.png", TgaFile()))), Loader::None);
    EXPECT_EQ(PictureOf(LoadPicture2(MakeFile("e.png", PngFile()))).At(0, 0), 0xFF00FFu);
}

TEST_F(PictureLoading, LoadPictureFromFileMakesNoOtherAttempt) {
    EXPECT_EQ(LoaderOf(LoadPictureFromFile(MakeFile("a.bmp", BmpFile()))), Loader::Gdiplus);
    EXPECT_EQ(LoaderOf(LoadPictureFromFile(MakeFile("c.tga", BmpFile()))), Loader::None);
}

TEST_F(PictureLoading, FromMemoryItIsGdiplusThenTga) {
    const auto from = [](const Bytes& bytes, bool tga, int32_t background = -1) {
        const Ref<ole::Picture> array = LoadPictureFromByteArray(bytes, tga, background);
        const Ref<ole::Picture> memory = LoadPictureFromMemAddr(
            bytes.data(), static_cast<int32_t>(bytes.size()), tga, background);
        EXPECT_EQ(LoaderOf(array), LoaderOf(memory));
        return array;
    };
    EXPECT_EQ(LoaderOf(from(PngFile(), false)), Loader::Gdiplus);
    EXPECT_EQ(LoaderOf(from(TgaFile(), false)), Loader::Tga);
    EXPECT_EQ(LoaderOf(from(TgaFile(), true)), Loader::Tga);
    EXPECT_EQ(LoaderOf(from(PngFile(), true)), Loader::None) << "TGA alone";
    EXPECT_EQ(LoaderOf(from({}, false)), Loader::None);
    EXPECT_EQ(LoaderOf(from({}, true)), Loader::None);
    EXPECT_EQ(PictureOf(from(PngFile(), false)).At(0, 0), 0xFFFFFFu);
    EXPECT_EQ(PictureOf(from(PngFile(), false, 0)).At(0, 0), 0xFF00FFu);
}

TEST_F(PictureLoading, AGdiHandleBecomesAPictureAsItIs) {
    uint8_t* pixels = nullptr;
    const gdi::HBITMAP bitmap = gdi::CreateDib(1, 1, 32, &pixels);
    gdi::BITMAP record;
    EXPECT_TRUE(LoadPictureFromGdiHandle(bitmap, 1, false));
    EXPECT_NE(gdi::GetObjectA(bitmap, gdi::kBitmapRecordSize, &record), 0) << "it was lent";
    EXPECT_TRUE(LoadPictureFromGdiHandle(bitmap));
    EXPECT_EQ(gdi::GetObjectA(bitmap, gdi::kBitmapRecordSize, &record), 0) << "it was handed over";
    EXPECT_EQ(LoadPictureFromGdiHandle(nullptr), nullptr);
}

// What the digits find in a picture that all but TGA read, and in one that TGA alone does.
struct DigitCase {
    int32_t flags;
    Loader bmp, tga;
};
constexpr DigitCase kDigits[] = {
    {0, Loader::None, Loader::None},
    {0x1, Loader::Gdiplus, Loader::None},
    {0x2, Loader::Platform, Loader::None},
    {0x3, Loader::None, Loader::Tga},
    {0x4, Loader::None, Loader::None},
    {0xF, Loader::None, Loader::None},
    {0x321, Loader::Gdiplus, Loader::Tga},
    {0x312, Loader::Platform, Loader::Tga},
    {0x123, Loader::Platform, Loader::Tga},
    {0x13, Loader::Gdiplus, Loader::Tga},
    {0x31, Loader::Gdiplus, Loader::Tga},
    {0x301, Loader::Gdiplus, Loader::Tga},
    {0x300, Loader::None, Loader::Tga},
    {0x200, Loader::Platform, Loader::None},
    {0x3000, Loader::None, Loader::None},
    {0x1000, Loader::None, Loader::None},
    {0x7FF1, Loader::Gdiplus, Loader::None},
    // Divided by truncating: the digits of -0xF2 are 0xE, then 1 (of -15), then 0.
    {-0xF2, Loader::Gdiplus, Loader::None},
    {-0xFD, Loader::Gdiplus, Loader::Tga},
    {-0xE2, Loader::Platform, Loader::None},
};

TEST_F(PictureLoading, TheDigitsOfTheFlagsNameTheAttempts) {
    const String bmp = MakeFile("a.bmp", BmpFile()), tga = MakeFile("a.dat", TgaFile());
    for (const DigitCase& each : kDigits) {
        SCOPED_TRACE(each.flags);
        EXPECT_EQ(LoaderOf(PictureFromFile(bmp, each.flags)), each.bmp);
        EXPECT_EQ(LoaderOf(PictureFromFile(tga, each.flags)), each.tga);
        for (const Bytes& bytes : {BmpFile(), TgaFile()}) {
            const Loader expected = bytes[0] == 'B' ? each.bmp : each.tga;
            EXPECT_EQ(LoaderOf(PictureFromByteArray(bytes, each.flags)), expected);
            EXPECT_EQ(LoaderOf(PictureFromMemAddr(bytes.data(), static_cast<int32_t>(bytes.size()),
                                                  each.flags)),
                      expected);
        }
    }
    EXPECT_EQ(LoaderOf(PictureFromByteArray({}, 0x321)), Loader::None);
}

TEST_F(PictureLoading, TheDigitOfGdiplusFlattensAgainstWhite) {
    EXPECT_EQ(PictureOf(PictureFromFile(MakeFile("a.png", PngFile()), 1)).At(0, 0), 0xFFFFFFu);
    EXPECT_EQ(PictureOf(PictureFromByteArray(PngFile(), 1)).At(0, 0), 0xFFFFFFu);
}

TEST_F(PictureLoading, TheNameDoesNotMatterToTheDigits) {
    EXPECT_EQ(LoaderOf(PictureFromFile(MakeFile("a.tga", BmpFile()), 0x1)), Loader::Gdiplus);
    EXPECT_EQ(LoaderOf(PictureFromFile(MakeFile("a.png", TgaFile()), 0x3)), Loader::Tga);
}

// A kernel that knows no module.
class KernelWithoutModules : public kernel::Kernel {
public:
    kernel::HMODULE GetModuleHandleA(const char*) override { return nullptr; }
    kernel::HMODULE LoadLibraryA(const char*) override { return nullptr; }
    BOOL FreeLibrary(kernel::HMODULE) override { return 0; }
    kernel::FARPROC GetProcAddress(kernel::HMODULE, const char*) override { return nullptr; }
    String GetModuleFileNameA(kernel::HMODULE) override { return {}; }
    int MessageBox(const String&, const String&, UINT) override { return 0; }
    void ExitProcess(UINT) override {}
};

TEST_F(PictureLoading, WithoutGdiplusTheOtherLoadersServe) {
    const auto forget = [](kernel::Kernel* kernel) {
        UnbindAllStubs();
        gGdiplusModule = nullptr;
        kernel::SetKernel(kernel);
    };
    KernelWithoutModules kernel;
    forget(&kernel);
    const String bmp = MakeFile("a.bmp", BmpFile());
    EXPECT_EQ(GdipFileToHBitmap(bmp, 0), nullptr);
    EXPECT_EQ(LoaderOf(PictureFromFile(bmp, 0x21)), Loader::Platform);
    EXPECT_EQ(LoaderOf(PictureFromByteArray(TgaFile(), 0x321)), Loader::Tga);
    EXPECT_EQ(LoaderOf(LoadPictureFromByteArray(TgaFile())), Loader::Tga);
    EXPECT_EQ(LoaderOf(LoadPicture2(bmp)), Loader::Platform);
    forget(nullptr);
    EXPECT_EQ(LoaderOf(PictureFromFile(bmp, 0x21)), Loader::Gdiplus);
}

}  // namespace
}  // namespace vxgui
