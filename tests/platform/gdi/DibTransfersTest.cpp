#include <algorithm>

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

using Words = std::vector<uint32_t>;

// A picture of 2 x 4 whose rows are 1 to 4, counted from the top as it is seen.
struct Rows {
    explicit Rows(bool topDown) : info(DibOf(2, topDown ? -4 : 4, 32)) {
        for (uint32_t i = 0; i < 4; ++i) {
            const uint32_t row = topDown ? i + 1 : 4 - i;
            words.insert(words.end(), {row, row});
        }
    }
    // From a row in memory on.
    const uint32_t* From(uint32_t row) const { return words.data() + row * 2; }

    DibInfo info;
    Words words;
};

Words Column(const Canvas& canvas) {
    Words column;
    for (int32_t y = 0; y < canvas.View().height; ++y) column.push_back(canvas.At(0, y));
    return column;
}

int Send(const Canvas& canvas, const Rows& rows, int y, DWORD height, int sourceY, UINT startScan,
         UINT scanLines, const void* bits) {
    return SetDIBitsToDevice(canvas.dc, 0, y, 2, height, 0, sourceY, startScan, scanLines, bits,
                             rows.info.get(), DIB_RGB_COLORS);
}

TEST(SetDIBitsToDevice, ShowsTheWholePicture) {
    for (const bool topDown : {false, true}) {
        const Rows rows(topDown);
        Canvas canvas(2, 4);
        EXPECT_EQ(Send(canvas, rows, 0, 4, 0, 0, 4, rows.From(0)), 4);
        EXPECT_EQ(Column(canvas), (Words{1, 2, 3, 4})) << topDown;
    }
}

TEST(SetDIBitsToDevice, TheSourceRowCountsFromTheBottomForTopDownPicturesToo) {
    for (const bool topDown : {false, true}) {
        const Rows rows(topDown);
        Canvas canvas(2, 4);
        EXPECT_EQ(Send(canvas, rows, 0, 2, 1, 0, 4, rows.From(0)), 4);
        EXPECT_EQ(Column(canvas), (Words{2, 3, 0, 0})) << topDown;
    }
}

TEST(SetDIBitsToDevice, ThePictureStandsAtTheBottomOfARectangleThatIsTooHigh) {
    for (const bool topDown : {false, true}) {
        const Rows rows(topDown);
        Canvas canvas(2, 6);
        EXPECT_EQ(Send(canvas, rows, 0, 6, 0, 0, 4, rows.From(0)), 4);
        EXPECT_EQ(Column(canvas), (Words{0, 0, 1, 2, 3, 4})) << topDown;
    }
}

TEST(SetDIBitsToDevice, ABandIsCountedFromTheBottomForTopDownPicturesToo) {
    for (const bool topDown : {false, true}) {
        const Rows rows(topDown);
        Canvas canvas(2, 4);
        // Scans 1 and 2 from the bottom: the seen rows 3 and 2.
        EXPECT_EQ(Send(canvas, rows, 0, 4, 0, 1, 2, rows.From(1)), 2);
        EXPECT_EQ(Column(canvas), (Words{0, 2, 3, 0})) << topDown;
    }
}

TEST(SetDIBitsToDevice, MoreScansThanThePictureHasArentRead) {
    const Rows rows(false);
    Canvas canvas(2, 4);
    EXPECT_EQ(Send(canvas, rows, 0, 4, 0, 3, 100, rows.From(3)), 1);
    EXPECT_EQ(Column(canvas), (Words{1, 0, 0, 0}));
    EXPECT_EQ(Send(canvas, rows, 0, 4, 0, 4, 1, rows.From(0)), 0);
    EXPECT_EQ(Send(canvas, rows, 0, 4, 0, 0, 0, rows.From(0)), 0);
    EXPECT_EQ(Send(canvas, rows, 0, 4, 0, UINT32_MAX, UINT32_MAX, rows.From(0)), 0);
}

TEST(SetDIBitsToDevice, KeepsToTheTargetAndTheSource) {
    const Rows rows(false);
    GuardedHost host(2, 3, true, false);
    for (const int at : {-3, -1, 0, 1, 2}) {
        for (const int from : {-2, 0, 1, 5}) {
            EXPECT_EQ(SetDIBitsToDevice(host.dc, at, at, 9, 9, from, from, 0, 4, rows.From(0),
                                        rows.info.get(), DIB_RGB_COLORS),
                      4);
        }
    }
    EXPECT_EQ(SetDIBitsToDevice(host.dc, 0, 0, UINT32_MAX, UINT32_MAX, INT32_MAX, INT32_MIN, 0, 4,
                                rows.From(0), rows.info.get(), DIB_RGB_COLORS),
              4);
    EXPECT_TRUE(host.Intact());
}

TEST(SetDIBitsToDevice, CopiesAlphaFrom32BitsAndClearsItFromOthers) {
    Canvas canvas(1, 1);
    const uint32_t word = 0x7F112233;
    SetDIBitsToDevice(canvas.dc, 0, 0, 1, 1, 0, 0, 0, 1, &word, DibOf(1, 1, 32).get(), 0);
    EXPECT_EQ(canvas.At(0, 0), word);
    const uint8_t bytes[4] = {0x33, 0x22, 0x11, 0};
    SetDIBitsToDevice(canvas.dc, 0, 0, 1, 1, 0, 0, 0, 1, bytes, DibOf(1, 1, 24).get(), 0);
    EXPECT_EQ(canvas.At(0, 0), 0x00112233u);
    DibInfo indexed = DibOf(1, 1, 8);
    indexed.colors[5] = {1, 2, 3, 0xFF};
    const uint8_t index[4] = {5};
    SetDIBitsToDevice(canvas.dc, 0, 0, 1, 1, 0, 0, 0, 1, index, indexed.get(), 0);
    EXPECT_EQ(canvas.At(0, 0), 0x00030201u);
    DibInfo mono = DibOf(1, 1, 1);
    mono.colors[1] = {9, 8, 7, 0};
    const uint8_t bit[4] = {0x80};
    SetDIBitsToDevice(canvas.dc, 0, 0, 1, 1, 0, 0, 0, 1, bit, mono.get(), 0);
    EXPECT_EQ(canvas.At(0, 0), 0x00070809u);
}

TEST(SetDIBitsToDevice, ThePictureMayLieAtAnyAddress) {
    uint8_t memory[17] = {};
    const uint32_t words[4] = {1, 2, 3, 4};
    std::memcpy(memory + 1, words, sizeof(words));
    Canvas canvas(2, 2);
    EXPECT_EQ(SetDIBitsToDevice(canvas.dc, 0, 0, 2, 2, 0, 0, 0, 2, memory + 1,
                                DibOf(2, -2, 32).get(), DIB_RGB_COLORS),
              2);
    EXPECT_EQ(canvas.Words(), (Words{1, 2, 3, 4}));
}

TEST(SetDIBitsToDevice, RefusesWhatItCantRead) {
    Canvas canvas(2, 2);
    const Rows rows(false);
    EXPECT_EQ(SetDIBitsToDevice(nullptr, 0, 0, 2, 2, 0, 0, 0, 4, rows.From(0), rows.info.get(), 0),
              0);
    EXPECT_EQ(SetDIBitsToDevice(canvas.dc, 0, 0, 2, 2, 0, 0, 0, 4, nullptr, rows.info.get(), 0), 0);
    EXPECT_EQ(SetDIBitsToDevice(canvas.dc, 0, 0, 2, 2, 0, 0, 0, 4, rows.From(0), nullptr, 0), 0);
    DibInfo bad = rows.info;
    bad.header.biBitCount = 16;
    EXPECT_EQ(SetDIBitsToDevice(canvas.dc, 0, 0, 2, 2, 0, 0, 0, 4, rows.From(0), bad.get(), 0), 0);
    EXPECT_EQ(canvas.Words(), (Words{0, 0, 0, 0}));
}

TEST(GetDIBits, GivesRowsInTheOrderThatIsAskedFor) {
    Canvas canvas(2, 2);
    canvas.Number(1);
    for (const bool topDown : {false, true}) {
        DibInfo info = DibOf(2, topDown ? -2 : 2, 32);
        Words words(4);
        EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 2, words.data(), info.get(), 0), 2);
        EXPECT_EQ(words, topDown ? (Words{1, 2, 3, 4}) : (Words{3, 4, 1, 2}));
        EXPECT_EQ(info.header.biSizeImage, 16u);
        Words one(2);
        EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 1, 5, one.data(), info.get(), 0), 1);
        EXPECT_EQ(one, topDown ? (Words{3, 4}) : (Words{1, 2}));
        EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 2, 5, one.data(), info.get(), 0), 0);
    }
}

TEST(GetDIBits, ConvertsDepths) {
    Canvas canvas(3, 1);
    canvas.Put(0, 0, 0x80112233);
    canvas.Put(1, 0, 0x00FFFFFF);
    DibInfo info = DibOf(3, 1, 24);
    uint8_t bytes[12] = {};
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 1, bytes, info.get(), 0), 1);
    EXPECT_EQ((std::vector<uint8_t>(bytes, bytes + 6)),
              (std::vector<uint8_t>{0x33, 0x22, 0x11, 0xFF, 0xFF, 0xFF}));
    info = DibOf(3, 1, 1);
    uint8_t bits[4] = {};
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 1, bits, info.get(), 0), 1);
    EXPECT_EQ(bits[0] & 0xE0, 0x40) << "the nearest of black and white";
    EXPECT_EQ(info.colors[0].rgbRed, 0);
    EXPECT_EQ(info.colors[1].rgbRed, 255);
    info = DibOf(3, 1, 8);
    uint8_t numbers[4] = {};
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 1, numbers, info.get(), 0), 1);
    const RGBQUAD white = info.colors[numbers[1]];
    EXPECT_EQ(white.rgbRed & white.rgbGreen & white.rgbBlue, 255);
}

TEST(GetDIBits, GivesABitmapsOwnColours) {
    DibInfo own = DibOf(2, 1, 8);
    own.colors[7] = {1, 2, 3, 0};
    Canvas canvas(own);
    canvas.Put(1, 0, 7);
    DibInfo info = DibOf(2, 1, 8);
    uint8_t numbers[4] = {};
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 1, numbers, info.get(), 0), 1);
    EXPECT_EQ(numbers[1], 7);
    EXPECT_EQ(info.colors[7].rgbRed, 3);
    EXPECT_EQ(info.colors[7].rgbBlue, 1);
}

TEST(GetDIBits, WithoutBitsItDescribesTheBitmap) {
    Canvas canvas(5, 3, 24);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    EXPECT_GT(GetDIBits(canvas.dc, canvas.bitmap, 0, 0, nullptr, &info, 0), 0);
    EXPECT_EQ(info.bmiHeader.biWidth, 5);
    EXPECT_EQ(info.bmiHeader.biHeight, 3);
    EXPECT_EQ(info.bmiHeader.biBitCount, 24);
    EXPECT_EQ(info.bmiHeader.biSizeImage, 48u);
    info.bmiHeader.biBitCount = 32;
    EXPECT_GT(GetDIBits(nullptr, canvas.bitmap, 0, 0, nullptr, &info, 0), 0);
    EXPECT_EQ(info.bmiHeader.biSizeImage, 60u);
}

TEST(GetDIBits, WritesNoPixelBeyondTheBitmap) {
    Canvas canvas(2, 1);
    canvas.Fill(5);
    DibInfo wide = DibOf(4, 1, 32);
    Words words(4, 9);
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 1, words.data(), wide.get(), 0), 1);
    EXPECT_EQ(words, (Words{5, 5, 9, 9}));
    DibInfo narrow = DibOf(1, 1, 32);
    words.assign(4, 9);
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 1, words.data(), narrow.get(), 0), 1);
    EXPECT_EQ(words, (Words{5, 9, 9, 9}));
}

TEST(GetDIBits, RefusesWrongHandlesAndHeaders) {
    Canvas canvas(2, 2);
    DibInfo info = DibOf(2, 2, 32);
    uint32_t words[4];
    HBITMAP wrong = reinterpret_cast<HBITMAP>(canvas.dc);
    EXPECT_EQ(GetDIBits(canvas.dc, wrong, 0, 2, words, info.get(), 0), 0);
    EXPECT_EQ(
        GetDIBits(reinterpret_cast<HDC>(canvas.bitmap), canvas.bitmap, 0, 2, words, info.get(), 0),
        0);
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 2, words, nullptr, 0), 0);
    info.header.biBitCount = 4;
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 2, words, info.get(), 0), 0);
    info.header.biSize = 0;
    EXPECT_EQ(GetDIBits(canvas.dc, canvas.bitmap, 0, 2, nullptr, info.get(), 0), 0);
}

}  // namespace
}  // namespace vxgui::gdi
