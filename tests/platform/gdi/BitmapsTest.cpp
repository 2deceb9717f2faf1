#include "GdiTestSupport.h"
#include "vxgui/platform/gdi/StockObjects.h"

namespace vxgui::gdi {
namespace {

HBITMAP Section(const DibInfo& info, void** bits, UINT usage = DIB_RGB_COLORS) {
    return CreateDIBSection(nullptr, info.get(), usage, bits, nullptr, 0);
}

TEST(CreateDIBSection, GivesZeroedMemoryInTheFourDepths) {
    const struct {
        int depth;
        size_t rowBytes;
    } rows[] = {{1, 4}, {8, 8}, {24, 16}, {32, 20}};
    for (const auto& row : rows) {
        void* bits = nullptr;
        HBITMAP bitmap = Section(DibOf(5, 3, row.depth), &bits);
        ASSERT_NE(bitmap, nullptr) << row.depth;
        const std::vector<uint8_t> zeros(row.rowBytes * 3, 0);
        EXPECT_EQ(std::memcmp(bits, zeros.data(), zeros.size()), 0);
        std::memset(bits, 0xFF, zeros.size());
        DeleteObject(bitmap);
    }
}

TEST(CreateDIBSection, GivesZeroedMemoryAgainWhenABlockIsReused) {
    for (int i = 0; i < 5; ++i) {
        Canvas canvas(10, 10);
        EXPECT_EQ(canvas.Words(), std::vector<uint32_t>(100, 0));
        canvas.Fill(0xFFFFFFFF);
    }
}

TEST(CreateDIBSection, APositiveHeightHasItsBottomRowFirst) {
    Canvas bottomUp(2, 2);
    bottomUp.Put(0, 1, 7);
    EXPECT_EQ(static_cast<uint32_t*>(bottomUp.bits)[0], 7u);
    Canvas topDown(2, -2);
    topDown.Put(0, 0, 7);
    EXPECT_EQ(static_cast<uint32_t*>(topDown.bits)[0], 7u);
}

TEST(CreateDIBSection, RefusesSizesThatCantBe) {
    const struct {
        int32_t width, height;
    } sizes[] = {{0, 10},
                 {10, 0},
                 {-1, 10},
                 {INT32_MIN, 1},
                 {0, 0},
                 {10, INT32_MIN},
                 {100000, 100000},
                 {INT32_MAX, INT32_MAX},
                 {INT32_MAX, -INT32_MAX}};
    for (const auto& size : sizes) {
        void* bits = &bits;
        EXPECT_EQ(Section(DibOf(size.width, size.height, 32), &bits), nullptr)
            << size.width << " x " << size.height;
        EXPECT_EQ(bits, nullptr);
    }
}

TEST(CreateDIBSection, RefusesFormsThatArentServed) {
    for (const int depth : {0, 2, 4, 16, 33, -1}) {
        void* bits = nullptr;
        EXPECT_EQ(Section(DibOf(2, 2, depth), &bits), nullptr) << depth;
    }
    DibInfo compressed = DibOf(2, 2, 8);
    compressed.header.biCompression = 1;
    DibInfo headless = DibOf(2, 2, 32);
    headless.header.biSize = 12;
    DibInfo zeros;
    DibInfo planes = DibOf(2, 2, 32);
    planes.header.biPlanes = 2;
    void* bits = nullptr;
    for (const DibInfo& info : {compressed, headless, zeros, planes}) {
        EXPECT_EQ(Section(info, &bits), nullptr);
    }
    EXPECT_EQ(CreateDIBSection(nullptr, nullptr, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
    constexpr UINT kPaletteIndices = 1;
    EXPECT_EQ(Section(DibOf(2, 2, 8), &bits, kPaletteIndices), nullptr);
    EXPECT_EQ(CreateDIBSection(nullptr, DibOf(2, 2, 32).get(), DIB_RGB_COLORS, &bits, &bits, 0),
              nullptr)
        << "no memory of a file's mapping";
}

TEST(CreateDIBSection, TakesMasksIfTheyArePlain) {
    DibInfo info = DibOf(2, 2, 32);
    info.header.biCompression = BI_BITFIELDS;
    info.colors[0] = {0x00, 0x00, 0xFF, 0};
    info.colors[1] = {0x00, 0xFF, 0x00, 0};
    info.colors[2] = {0xFF, 0x00, 0x00, 0};
    void* bits = nullptr;
    HBITMAP bitmap = Section(info, &bits);
    EXPECT_NE(bitmap, nullptr);
    DeleteObject(bitmap);
    std::swap(info.colors[0], info.colors[2]);
    EXPECT_EQ(Section(info, &bits), nullptr);
}

TEST(CreateDIBSection, WorksWithoutAPlaceForTheBits) {
    HBITMAP bitmap = Section(DibOf(2, 2, 32), nullptr);
    EXPECT_NE(bitmap, nullptr);
    DeleteObject(bitmap);
}

TEST(CreateDIBSection, ReadsOnlyTheColoursThatAreThere) {
    DibInfo info = DibOf(2, 1, 8);
    info.header.biClrUsed = 2;
    info.colors[0] = {1, 2, 3, 0};
    info.colors[1] = {4, 5, 6, 0};
    info.colors[2] = {7, 8, 9, 0};
    Canvas canvas(info);
    canvas.Put(0, 0, 1);
    canvas.Put(1, 0, 2);
    EXPECT_EQ(GetPixel(canvas.dc, 0, 0), RGB(6, 5, 4));
    EXPECT_EQ(GetPixel(canvas.dc, 1, 0), RGB(0, 0, 0)) << "the rest of the table is black";
}

TEST(CreateFilledDIBSection, HasTheGivenBytesAndZeroesBehindThem) {
    std::vector<uint8_t> bytes(3 * 4 * 8 + 9);
    for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i + 1);
    const size_t size = 3 * 4 * 8;
    for (const size_t given : {size_t{0}, size_t{1}, size - 1, size, bytes.size()}) {
        {
            const Canvas before(3, 8);
            before.Fill(0xFFFFFFFF);
        }  // its memory serves again
        std::vector<uint8_t> expected(size);
        std::copy_n(bytes.begin(), std::min(given, size), expected.begin());
        void* bits = nullptr;
        const Canvas canvas(CreateFilledDIBSection(DibOf(3, 8, 32).get(), DIB_RGB_COLORS,
                                                   std::span(bytes).first(given), &bits));
        ASSERT_NE(bits, nullptr);
        EXPECT_EQ(std::memcmp(bits, expected.data(), size), 0) << given;
        uint32_t first;
        std::memcpy(&first, expected.data(), sizeof first);
        EXPECT_EQ(canvas.At(0, 7), first);  // the bottom row comes first
    }
}

TEST(CreateFilledDIBSection, RefusesWhatCreateDIBSectionRefuses) {
    const std::vector<uint8_t> bytes(64);
    for (const DibInfo& wrong : {DibOf(0, 4, 32), DibOf(4, 0, 32), DibOf(4, 4, 16)}) {
        void* bits = &bits;
        EXPECT_EQ(CreateFilledDIBSection(wrong.get(), DIB_RGB_COLORS, bytes, &bits), nullptr);
        EXPECT_EQ(bits, nullptr);
    }
}

TEST(CreateBitmap, CopiesRowsThatStartAtEvenAddresses) {
    const uint8_t rows[] = {0x80, 0xEE, 0x40, 0xEE};
    Canvas canvas(CreateBitmap(3, 2, 1, 1, rows));
    EXPECT_EQ(canvas.Words(), (std::vector<uint32_t>{1, 0, 0, 0, 1, 0}));
    const uint32_t words[] = {1, 2, 3, 0xFF000004};
    Canvas color(CreateBitmap(2, 2, 1, 32, words));
    EXPECT_EQ(color.Words(), (std::vector<uint32_t>{1, 2, 3, 0xFF000004}));
}

TEST(CreateBitmap, RefusesWhatCantBe) {
    EXPECT_EQ(CreateBitmap(-1, 1, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(1, -1, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(1, 1, 2, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(1, 1, 1, 5, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(100000, 100000, 1, 32, nullptr), nullptr);
}

TEST(CreateBitmap, ASizeOfNothingIsTheStockBitmap) {
    EXPECT_EQ(CreateBitmap(0, 5, 1, 32, nullptr), StockBitmap()->Handle());
    EXPECT_EQ(CreateCompatibleBitmap(nullptr, 5, 0), StockBitmap()->Handle());
}

TEST(CreateCompatibleBitmap, HasTheFormOfWhatIsSelected) {
    HDC fresh = CreateCompatibleDC(nullptr);
    Canvas canvas(4, 4, 24);
    GuardedHost host(4, 4, false, false);
    const struct {
        HDC dc;
        int depth;
        bool dibSection;
    } rows[] = {
        {nullptr, 32, false}, {fresh, 1, false}, {canvas.dc, 24, true}, {host.dc, 32, false}};
    for (const auto& row : rows) {
        HBITMAP bitmap = CreateCompatibleBitmap(row.dc, 3, 2);
        DIBSECTION record{};
        const int size = GetObjectA(bitmap, sizeof(record), &record);
        EXPECT_EQ(size, row.dibSection ? kDibSectionRecordSize : kBitmapRecordSize);
        EXPECT_EQ(record.dsBm.bmBitsPixel, row.depth);
        EXPECT_EQ(record.dsBm.bmWidth, 3);
        EXPECT_EQ(record.dsBm.bmHeight, 2);
        DeleteObject(bitmap);
    }
    DeleteDC(fresh);
    EXPECT_EQ(CreateCompatibleBitmap(fresh, 3, 2), nullptr);
    EXPECT_EQ(CreateCompatibleBitmap(nullptr, -3, 2), nullptr);
    EXPECT_EQ(CreateCompatibleBitmap(nullptr, 100000, 100000), nullptr);
}

TEST(GetPixel, IsInvalidOutsideTheBitmapOrTheClip) {
    Canvas canvas(3, 3);
    for (const POINT at : {POINT{-1, 0}, {0, -1}, {3, 0}, {0, 3}, {INT32_MIN, INT32_MAX}}) {
        EXPECT_EQ(GetPixel(canvas.dc, at.x, at.y), CLR_INVALID);
        EXPECT_EQ(SetPixel(canvas.dc, at.x, at.y, 0), CLR_INVALID);
    }
    EXPECT_EQ(GetPixel(nullptr, 0, 0), CLR_INVALID);
    EXPECT_EQ(SetPixel(nullptr, 0, 0, 0), CLR_INVALID);
    HRGN region = CreateRectRgn(1, 1, 2, 2);
    SelectObject(canvas.dc, region);
    DeleteObject(region);
    EXPECT_EQ(GetPixel(canvas.dc, 0, 0), CLR_INVALID);
    EXPECT_EQ(SetPixel(canvas.dc, 0, 0, 0xFFFFFF), CLR_INVALID);
    EXPECT_EQ(canvas.At(0, 0), 0u);
    EXPECT_EQ(GetPixel(canvas.dc, 1, 1), 0u);
}

TEST(GetPixel, HasRedLowestAndNoAlpha) {
    Canvas canvas(1, 1);
    canvas.Put(0, 0, 0xFF112233);
    EXPECT_EQ(GetPixel(canvas.dc, 0, 0), 0x332211u);
}

TEST(SetPixel, ClearsTheAlphaByte) {
    Canvas canvas(1, 1);
    canvas.Fill(0xFFFFFFFF);
    EXPECT_EQ(SetPixel(canvas.dc, 0, 0, 0x02332211), 0x332211u);
    EXPECT_EQ(canvas.At(0, 0), 0x00112233u);
}

TEST(SetPixel, AnswersTheColourThatTheBitmapHasForIt) {
    DibInfo info = DibOf(1, 1, 8);
    info.colors[3] = {0x30, 0x20, 0x10, 0};
    info.colors[9] = {0xF0, 0xF0, 0xF0, 0};
    Canvas indexed(info);
    EXPECT_EQ(SetPixel(indexed.dc, 0, 0, RGB(0x11, 0x21, 0x31)), RGB(0x10, 0x20, 0x30));
    EXPECT_EQ(indexed.At(0, 0), 3u);
    Canvas mono(CreateBitmap(1, 1, 1, 1, nullptr));
    EXPECT_EQ(SetPixel(mono.dc, 0, 0, RGB(200, 200, 200)), 0xFFFFFFu);
    EXPECT_EQ(mono.At(0, 0), 1u);
    EXPECT_EQ(SetPixel(mono.dc, 0, 0, RGB(20, 20, 20)), 0u);
    Canvas full(1, 1, 24);
    EXPECT_EQ(SetPixel(full.dc, 0, 0, 0x112233), 0x112233u);
}

}  // namespace
}  // namespace vxgui::gdi
