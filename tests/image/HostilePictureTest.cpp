#include <gtest/gtest.h>
#include <zlib.h>

#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"
#include "tests/support/MemoryUse.h"
#include "vxgui/frame/VxGuiGlobal.h"

namespace vxgui {
namespace {

using Bytes = std::vector<uint8_t>;
constexpr uint32_t kClaim = 60000;

void PutLow(Bytes& bytes, size_t at, uint32_t value, size_t size) {
    for (size_t i = 0; i < size; ++i) bytes[at + i] = static_cast<uint8_t>(value >> 8 * i);
}
void PutHigh(Bytes& bytes, size_t at, uint32_t value, size_t size) {
    for (size_t i = 0; i < size; ++i)
        bytes[at + size - 1 - i] = static_cast<uint8_t>(value >> 8 * i);
}

/// A sample whose header is made to claim 60,000 by 60,000 pixels.
struct Claim {
    const char* file;
    void (*lie)(Bytes& bytes);
};

void LieInBmp(Bytes& bytes) {
    PutLow(bytes, 18, kClaim, 4);
    PutLow(bytes, 22, kClaim, 4);
}
void LieInPng(Bytes& bytes) {
    PutHigh(bytes, 16, kClaim, 4);
    PutHigh(bytes, 20, kClaim, 4);
    // The checksum of the header chunk is put right, so that the lie is believed.
    PutHigh(bytes, 29, static_cast<uint32_t>(crc32(0, bytes.data() + 12, 17)), 4);
}
void LieInGif(Bytes& bytes) {
    PutLow(bytes, 6, kClaim, 2);
    PutLow(bytes, 8, kClaim, 2);
}
void LieInTga(Bytes& bytes) {
    PutLow(bytes, 12, kClaim, 2);
    PutLow(bytes, 14, kClaim, 2);
}
// The frame header of a JPEG: FF C0, length, depth, height, width.
void LieInJpeg(Bytes& bytes) {
    for (size_t i = 0; i + 9 < bytes.size(); ++i) {
        if (bytes[i] != 0xFF || bytes[i + 1] != 0xC0) continue;
        PutHigh(bytes, i + 5, kClaim, 2);
        PutHigh(bytes, i + 7, kClaim, 2);
        return;
    }
    FAIL() << "no frame header";
}

class HostilePicture : public testing::TestWithParam<Claim> {
protected:
    test::GdiplusSession session_;
};

TEST_P(HostilePicture, OfAbsurdSizeGivesNothingAndTakesNoMemory) {
    Bytes bytes = test::ReadTestFile(std::string("images/") + GetParam().file);
    GetParam().lie(bytes);
    const size_t before = test::PeakMemory();
    const bool tga = std::string(GetParam().file).starts_with("tga");
    EXPECT_EQ(Global().LoadPictureFromByteArray(bytes, tga), nullptr);
    EXPECT_EQ(Global().PictureFromByteArray(bytes, 0x321), nullptr);
    EXPECT_LT(test::PeakMemory() - before, size_t{64} << 20);
}

TEST_P(HostilePicture, CutOffAnywhereIsReadOrRefused) {
    const Bytes bytes = test::ReadTestFile(std::string("images/") + GetParam().file);
    for (size_t size = 0; size < bytes.size(); size += 1 + bytes.size() / 60) {
        const Bytes part(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size));
        for (const int32_t flags : {1, 2, 3}) {
            const Ref<ole::Picture> picture = Global().PictureFromByteArray(part, flags);
            EXPECT_TRUE(!picture || picture->Width() > 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, HostilePicture,
                         testing::Values(Claim{"bmp-24.bmp", LieInBmp},
                                         Claim{"png-rgba-8.png", LieInPng},
                                         Claim{"gif-89.gif", LieInGif},
                                         Claim{"tga-32.tga", LieInTga},
                                         Claim{"jpeg-444.jpg", LieInJpeg}),
                         [](const auto& info) {
                             const std::string file = info.param.file;
                             return file.substr(0, file.find('-'));
                         });

}  // namespace
}  // namespace vxgui
