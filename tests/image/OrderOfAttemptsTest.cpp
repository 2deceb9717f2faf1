#include <gtest/gtest.h>

#include <functional>

#include "tests/support/GdiplusSession.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/Error.h"
#include "vxgui/image/PictureOperations.h"
#include "vxgui/image/modPicture.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

/// Who was asked, in order: one letter a decoder. `gAnswering` is the one that has a picture.
std::string gAsked;
char gAnswering = 0;
uint32_t gBackground = 0;

gdi::HBITMAP Asked(char who) {
    gAsked += who;
    uint8_t* pixels = nullptr;
    return who == gAnswering ? gdi::CreateDib(2, 2, 32, &pixels) : nullptr;
}
Ref<ole::Picture> AskedForPicture(char who) { return PictureFromHandle(Asked(who), 1, true); }

const PictureDecoders kActed = {
    [](const String&, uint32_t background) {
        gBackground = background;
        return Asked('G');
    },
    [](const void*, int32_t, uint32_t background) {
        gBackground = background;
        return Asked('g');
    },
    [](const void*, int32_t) { return Asked('t'); },
    [](const String&) { return AskedForPicture('P'); },
    [](const void*, size_t) { return AskedForPicture('p'); },
    [](const String&, bool cursor) -> gdi::HGDIOBJ { return Asked(cursor ? 'C' : 'I'); },
};

class OrderOfAttempts : public testing::Test {
protected:
    OrderOfAttempts() { gPictureDecoders = &kActed; }
    ~OrderOfAttempts() override { gPictureDecoders = &kPictureDecoders; }

    /// Who is asked while `answering` alone has a picture.
    static std::string With(char answering, const std::function<bool()>& load) {
        gAsked.clear();
        gAnswering = answering;
        EXPECT_EQ(load(), answering != 0) << gAsked;
        return gAsked;
    }
    String File(const std::string& name) { return folder_.Write(name, "bytes"); }

    test::GdiplusSession session_;
    test::TemporaryFolder folder_;
    const ByteArray bytes_{1, 2, 3};
};

TEST_F(OrderOfAttempts, OfLoadPicture2) {
    const auto load = [&](const char* name) {
        return [this, file = File(name)] { return LoadPicture2(file) != nullptr; };
    };
    EXPECT_EQ(With(0, load("a.png")), "GP");
    EXPECT_EQ(With('G', load("a.png")), "G");
    EXPECT_EQ(With('P', load("a.png")), "GP");
    EXPECT_EQ(With(0, load("a.TGA")), "tP");
    EXPECT_EQ(With(0, load("a.jpeg")), "GP");
    EXPECT_EQ(With(0, load("a.ico")), "IP");
    EXPECT_EQ(With(0, load("a.cur")), "CP");
}

TEST_F(OrderOfAttempts, OfLoadPictureFromFile) {
    EXPECT_EQ(With(0, [&] { return LoadPictureFromFile(File("a.png"), -1) != nullptr; }), "G");
    EXPECT_EQ(gBackground, 0xFFFFFFFFu);
    EXPECT_EQ(With(0, [&] { return LoadPictureFromFile(File("a.png"), 0) != nullptr; }), "G");
    EXPECT_EQ(gBackground, 0xFFFF00FFu);
    EXPECT_EQ(With(0, [&] { return LoadPictureFromFile(File("a.png"), 0xFF00) != nullptr; }), "G");
    EXPECT_EQ(gBackground, 0xFF00FF00u);
}

TEST_F(OrderOfAttempts, OfMemory) {
    EXPECT_EQ(With(0, [&] { return LoadPictureFromByteArray(bytes_, true, -1) != nullptr; }), "t");
    EXPECT_EQ(With(0, [&] { return LoadPictureFromByteArray(bytes_, false, -1) != nullptr; }),
              "gt");
    EXPECT_EQ(With('g', [&] { return LoadPictureFromByteArray(bytes_, false, -1) != nullptr; }),
              "g");
}

TEST_F(OrderOfAttempts, OfTheDigits) {
    struct Row {
        int32_t flags;
        const char* file;
        const char* memory;
    };
    for (const Row& row :
         {Row{0, "", ""}, Row{0x1, "G", "g"}, Row{0x31, "Gt", "gt"}, Row{0x301, "Gt", "gt"},
          Row{0x213, "tGP", "tgp"}, Row{0x4321, "GPt", "gpt"}, Row{0x2222, "PPP", "ppp"}}) {
        SCOPED_TRACE(row.flags);
        EXPECT_EQ(With(0, [&] { return PictureFromFile(File("a.x"), row.flags) != nullptr; }),
                  row.file);
        EXPECT_EQ(With(0, [&] { return PictureFromByteArray(bytes_, row.flags) != nullptr; }),
                  row.memory);
    }
    EXPECT_EQ(With('P', [&] { return PictureFromFile(File("a.x"), 0x321) != nullptr; }), "GP");
}

TEST_F(OrderOfAttempts, OfSurfaces) {
    const auto surface = New<cAlphaDIBSection>();
    const auto load = [&] { return surface->CreateFromPictureFile(File("a.png")); };
    EXPECT_EQ(With(0, load), "PG");
    EXPECT_EQ(gBackground, static_cast<uint32_t>(surface->TransparentColor()) | 0xFF000000);
    EXPECT_EQ(With('P', load), "P");
    EXPECT_EQ(With('G', load), "PG");
    EXPECT_EQ(With(0, [&] { return surface->CreateFromByteArray(bytes_); }), "g");
    EXPECT_EQ(gBackground, static_cast<uint32_t>(surface->TransparentColor()));
}

TEST_F(OrderOfAttempts, OfSurfacesLeavesGdiplusOutForABlockThatEndsInATgaFooter) {
    const std::string signature("TRUEVISION-XFILE.\0", 18);
    ByteArray bytes(27);  // the smallest block that has room for more than a header and a footer
    bytes.insert(bytes.end(), signature.begin(), signature.end());
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_EQ(With(0, [&] { return surface->CreateFromByteArray(bytes); }), "");
    EXPECT_EQ(With(0, [&] { return surface->CreateFromByteArray(bytes_, true); }), "");
    bytes.back() = 1;
    EXPECT_EQ(With(0, [&] { return surface->CreateFromByteArray(bytes); }), "g");
}

TEST_F(OrderOfAttempts, GoesOnBehindALoaderThatRaises) {
    PictureDecoders raising = kActed;
    raising.platformFile = [](const String&) -> Ref<ole::Picture> {
        gAsked += 'P';
        throw Error(ErrorNumber::FileNotFound, "acted", "no file");
    };
    gPictureDecoders = &raising;
    const auto surface = New<cAlphaDIBSection>();
    const auto fill = [&] { return surface->CreateFromPictureFile(File("a.png")); };
    EXPECT_EQ(With('G', fill), "PG");
    EXPECT_EQ(With(0, fill), "PG");
    EXPECT_EQ(With(0, [&] { return LoadPicture2(File("a.png")) != nullptr; }), "GP");
    EXPECT_EQ(With('G', [&] { return PictureFromFile(File("a.x"), 0x12) != nullptr; }), "PG");
    raising.gdipFile = [](const String&, uint32_t) -> gdi::HBITMAP {
        throw Error(ErrorNumber::OutOfMemory, "acted", "no memory");
    };
    EXPECT_EQ(With(0, fill), "P");
}

}  // namespace
}  // namespace vxgui
