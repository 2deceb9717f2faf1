#include <limits>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

using namespace test;
constexpr int kLow = std::numeric_limits<int>::min();
constexpr int kHigh = std::numeric_limits<int>::max();

// A 2 x 2 tile: red, green / blue, white.
HBRUSH ColourTile() {
    Canvas tile(2, 2);
    tile.Word(0, 0) = 0xFFFF0000;
    tile.Word(1, 0) = 0xFF00FF00;
    tile.Word(0, 1) = 0xFF0000FF;
    tile.Word(1, 1) = 0xFFFFFFFF;
    return CreatePatternBrush(tile.bitmap);
}

TEST(PatternBrushes, TileFromTheDeviceOriginNotFromTheRectangle) {
    Canvas canvas(7, 5);
    Owned<HBRUSH> brush(ColourTile());
    const RECT rect{1, 1, 6, 4};
    FillRect(canvas.dc, &rect, brush);
    EXPECT_EQ(canvas.At(2, 2), kRed);
    EXPECT_EQ(canvas.At(1, 2), kGreen);
    EXPECT_EQ(canvas.At(2, 1), kBlue);
    EXPECT_EQ(canvas.At(1, 1), kWhite);
    EXPECT_EQ(canvas.Word(0, 0), Canvas::kUntouched);
}

TEST(PatternBrushes, TileFromTheBrushOrigin) {
    Owned<HBRUSH> brush(ColourTile());
    const COLORREF tile[2][2] = {{kRed, kGreen}, {kBlue, kWhite}};
    for (const POINT& origin : {POINT{1, 0}, POINT{0, 3}, POINT{-1, 4}, POINT{kHigh, kLow},
                                POINT{kLow, kHigh}, POINT{kLow + 1, -7}}) {
        Canvas canvas(4, 4);
        POINT old{9, 9};
        EXPECT_TRUE(SetBrushOrgEx(canvas.dc, origin.x, origin.y, &old));
        EXPECT_EQ(old, (POINT{0, 0}));
        const RECT all{0, 0, 4, 4};
        FillRect(canvas.dc, &all, brush);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 4; ++x) {
                EXPECT_EQ(canvas.At(x, y), tile[(y ^ origin.y) & 1][(x ^ origin.x) & 1]) << origin;
            }
        }
        SetBrushOrgEx(canvas.dc, 0, 0, &old);
        EXPECT_EQ(old, origin);
    }
}

TEST(PatternBrushes, SetTheAlphaByteToZero) {
    Canvas canvas(2, 2);
    Owned<HBRUSH> brush(ColourTile());
    const RECT all{0, 0, 2, 2};
    FillRect(canvas.dc, &all, brush);
    EXPECT_EQ(canvas.Word(0, 0), 0x00FF0000u);
    EXPECT_EQ(canvas.Word(1, 1), 0x00FFFFFFu);
}

TEST(PatternBrushes, AMonochromePictureTakesTheColoursOfTheContext) {
    const uint8_t bits[] = {0x80, 0, 0x40, 0};  // rows of 16 bits: "10", "01"
    Owned<HBITMAP> picture(CreateBitmap(2, 2, 1, 1, bits));
    Owned<HBRUSH> brush(CreatePatternBrush(picture));
    Canvas canvas(4, 4);
    canvas.State().textColor = kRed;
    canvas.State().backColor = kBlue;
    const RECT all{0, 0, 4, 4};
    FillRect(canvas.dc, &all, brush);
    EXPECT_EQ(canvas.Picture(kBlue), (Picture{"#.#.", ".#.#", "#.#.", ".#.#"}));
    EXPECT_EQ(canvas.Count(kRed), 8);
}

TEST(PatternBrushes, APictureWithATableKeepsItsColours) {
    Canvas picture(2, 1, 8);
    SetPixel(picture.dc, 0, 0, kRed);
    SetPixel(picture.dc, 1, 0, kGreen);
    Owned<HBRUSH> brush(CreatePatternBrush(picture.bitmap));
    Canvas canvas(4, 1);
    canvas.State().textColor = kBlue;
    const RECT all{0, 0, 4, 1};
    FillRect(canvas.dc, &all, brush);
    EXPECT_EQ(canvas.Picture(kRed), (Picture{"#.#."}));
    EXPECT_EQ(canvas.Picture(kGreen), (Picture{".#.#"}));
}

TEST(PatternBrushes, OutliveTheirPicture) {
    Canvas canvas(2, 2);
    Owned<HBRUSH> brush(ColourTile());  // the tile's bitmap has gone by now
    Owned<HRGN> region(CreateRectRgn(0, 0, 1, 1));
    EXPECT_TRUE(FillRgn(canvas.dc, region, brush));
    EXPECT_EQ(canvas.At(0, 0), kRed);
}

TEST(PatternBrushes, FillTargetsOfEveryDepth) {
    Owned<HBRUSH> brush(ColourTile());
    const RECT all{0, 0, 300, 2};
    for (const int depth : {8, 24, 32}) {
        Canvas canvas(300, 2, depth);
        FillRect(canvas.dc, &all, brush);
        EXPECT_EQ(canvas.Count(kRed), 150) << depth;
        EXPECT_EQ(canvas.At(299, 1), kWhite) << depth;
    }
    Canvas canvas(300, 2, 1);
    FillRect(canvas.dc, &all, brush);
    EXPECT_EQ(canvas.Picture(kWhite)[1].substr(0, 4), ".#.#");
}

TEST(Brushes, DescribeThemselves) {
    Owned<HBRUSH> solid(CreateSolidBrush(RGB(1, 2, 3)));
    LOGBRUSH record{};
    EXPECT_EQ(GetObjectA(solid, 0, nullptr), static_cast<int>(sizeof(record)));
    EXPECT_EQ(GetObjectA(solid, sizeof(record), &record), static_cast<int>(sizeof(record)));
    EXPECT_EQ(record.lbStyle, BS_SOLID);
    EXPECT_EQ(record.lbColor, RGB(1, 2, 3));
    EXPECT_EQ(GetObjectA(solid, sizeof(record) - 1, &record), 0);
    Owned<HBITMAP> picture(CreateBitmap(2, 2, 1, 1, nullptr));
    Owned<HBRUSH> pattern(CreatePatternBrush(picture));
    GetObjectA(pattern, sizeof(record), &record);
    EXPECT_EQ(record.lbStyle, BS_PATTERN);
    EXPECT_EQ(record.lbHatch, reinterpret_cast<uintptr_t>(static_cast<HBITMAP>(picture)));
    GetObjectA(GetStockObject(NULL_BRUSH), sizeof(record), &record);
    EXPECT_EQ(record.lbStyle, BS_NULL);
}

TEST(Brushes, WrongArgumentsFail) {
    EXPECT_EQ(CreatePatternBrush(nullptr), nullptr);
    EXPECT_EQ(CreatePatternBrush(static_cast<HBITMAP>(GetStockObject(WHITE_BRUSH))), nullptr);
    EXPECT_FALSE(SetBrushOrgEx(nullptr, 0, 0, nullptr));
}

struct StockBrushCase {
    int index;
    COLORREF color;
};

TEST(Brushes, StockBrushesHaveTheirPublishedColours) {
    Canvas canvas(1, 1);
    const RECT all{0, 0, 1, 1};
    for (const auto& [index, color] :
         {StockBrushCase{WHITE_BRUSH, 0xFFFFFF}, StockBrushCase{LTGRAY_BRUSH, 0xC0C0C0},
          StockBrushCase{GRAY_BRUSH, 0x808080}, StockBrushCase{DKGRAY_BRUSH, 0x404040},
          StockBrushCase{BLACK_BRUSH, 0x000000}}) {
        const auto brush = static_cast<HBRUSH>(GetStockObject(index));
        FillRect(canvas.dc, &all, brush);
        EXPECT_EQ(canvas.At(0, 0), color) << index;
        EXPECT_TRUE(DeleteObject(brush));
        EXPECT_TRUE(FillRect(canvas.dc, &all, brush)) << "deleting a stock object does nothing";
    }
}

TEST(SystemColours, ComeWithBrushesThatCannotBeDeleted) {
    Canvas canvas(1, 1);
    const RECT all{0, 0, 1, 1};
    for (int index = 0; index <= 30; ++index) {
        HBRUSH brush = GetSysColorBrush(index);
        ASSERT_NE(brush, nullptr);
        EXPECT_TRUE(DeleteObject(brush));
        EXPECT_EQ(GetSysColorBrush(index), brush);
        FillRect(canvas.dc, &all, brush);
        EXPECT_EQ(canvas.At(0, 0), GetSysColor(index));
    }
}

TEST(SystemColours, AreThoseOfTheClassicScheme) {
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), RGB(0xD4, 0xD0, 0xC8));
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), RGB(0x80, 0x80, 0x80));
    EXPECT_EQ(GetSysColor(COLOR_BTNHIGHLIGHT), kWhite);
    EXPECT_EQ(GetSysColor(COLOR_3DDKSHADOW), RGB(0x40, 0x40, 0x40));
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), kWhite);
    EXPECT_EQ(GetSysColor(COLOR_WINDOWTEXT), kBlack);
    EXPECT_EQ(GetSysColor(COLOR_GRAYTEXT), RGB(0x80, 0x80, 0x80));
}

TEST(SystemColours, UnknownIndexesHaveNone) {
    for (const int index : {-1, 31, kHigh, kLow}) {
        EXPECT_EQ(GetSysColor(index), 0u);
        EXPECT_EQ(GetSysColorBrush(index), nullptr);
    }
}

}  // namespace
}  // namespace vxgui::gdi
