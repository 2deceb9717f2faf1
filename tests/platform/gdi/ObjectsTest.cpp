#include "GdiTestSupport.h"
#include "vxgui/platform/gdi/StockObjects.h"

namespace vxgui::gdi {
namespace {

HBITMAP Plain32(int width = 4, int height = 4) {
    return CreateBitmap(width, height, 1, 32, nullptr);
}

TEST(SelectObject, AnswersWhatWasSelectedBefore) {
    HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = Plain32();
    HGDIOBJ first = SelectObject(dc, bitmap);
    EXPECT_EQ(first, StockBitmap()->Handle());
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BITMAP), bitmap);
    EXPECT_EQ(SelectObject(dc, GetStockObject(GRAY_BRUSH)), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(SelectObject(dc, GetStockObject(NULL_PEN)), GetStockObject(BLACK_PEN));
    EXPECT_EQ(SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT)), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(SelectObject(dc, first), bitmap);
    DeleteObject(bitmap);
    DeleteDC(dc);
}

TEST(SelectObject, ABitmapSelectedInOneContextCantEnterAnother) {
    Canvas canvas(4, 4);
    HDC other = CreateCompatibleDC(nullptr);
    EXPECT_EQ(SelectObject(other, canvas.bitmap), nullptr);
    EXPECT_EQ(GetCurrentObject(other, OBJ_BITMAP), StockBitmap()->Handle());
    EXPECT_EQ(SelectObject(canvas.dc, canvas.bitmap), canvas.bitmap) << "its own may";
    DeleteDC(other);
}

TEST(SelectObject, ABitmapIsFreeAgainOnceDeselectedOrItsContextIsGone) {
    HBITMAP bitmap = Plain32();
    HDC a = CreateCompatibleDC(nullptr);
    HDC b = CreateCompatibleDC(nullptr);
    HGDIOBJ stock = SelectObject(a, bitmap);
    SelectObject(a, stock);
    EXPECT_NE(SelectObject(b, bitmap), nullptr);
    DeleteDC(b);
    EXPECT_NE(SelectObject(a, bitmap), nullptr);
    DeleteDC(a);
    DeleteObject(bitmap);
}

TEST(SelectObject, ABitmapHeldByASavedStateStaysWithItsContext) {
    HBITMAP bitmap = Plain32();
    HDC a = CreateCompatibleDC(nullptr);
    HDC b = CreateCompatibleDC(nullptr);
    HGDIOBJ stock = SelectObject(a, bitmap);
    SaveDC(a);
    SelectObject(a, stock);
    EXPECT_EQ(SelectObject(b, bitmap), nullptr);
    RestoreDC(a, -1);
    EXPECT_EQ(GetCurrentObject(a, OBJ_BITMAP), bitmap);
    DeleteDC(a);
    DeleteDC(b);
    DeleteObject(bitmap);
}

TEST(SelectObject, FontsBrushesAndPensMayBeSharedByContexts) {
    HDC a = CreateCompatibleDC(nullptr);
    HDC b = CreateCompatibleDC(nullptr);
    for (int index : {GRAY_BRUSH, WHITE_PEN, DEFAULT_GUI_FONT}) {
        EXPECT_NE(SelectObject(a, GetStockObject(index)), nullptr);
        EXPECT_NE(SelectObject(b, GetStockObject(index)), nullptr);
    }
    DeleteDC(a);
    DeleteDC(b);
}

TEST(SelectObject, ARegionIsCopiedAndAnswersItsKind) {
    Canvas canvas(8, 8);
    HRGN region = CreateRectRgn(1, 1, 3, 3);
    EXPECT_EQ(SelectObject(canvas.dc, region), reinterpret_cast<HGDIOBJ>(SIMPLEREGION));
    EXPECT_TRUE(DeleteObject(region));
    EXPECT_EQ(GetPixel(canvas.dc, 0, 0), CLR_INVALID);
    EXPECT_EQ(GetPixel(canvas.dc, 2, 2), 0u);
    HRGN none = CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(SelectObject(canvas.dc, none), reinterpret_cast<HGDIOBJ>(NULLREGION));
    EXPECT_EQ(GetPixel(canvas.dc, 2, 2), CLR_INVALID);
    DeleteObject(none);
}

TEST(SelectObject, WrongHandlesAreRefused) {
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(SelectObject(dc, nullptr), nullptr);
    EXPECT_EQ(SelectObject(dc, dc), nullptr);
    EXPECT_EQ(SelectObject(nullptr, GetStockObject(WHITE_BRUSH)), nullptr);
    DeleteDC(dc);
    EXPECT_EQ(SelectObject(dc, GetStockObject(WHITE_BRUSH)), nullptr);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), nullptr);
}

TEST(GetCurrentObject, KnowsNoOtherKinds) {
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PAL), nullptr);
    EXPECT_EQ(GetCurrentObject(dc, 99), nullptr);
    DeleteDC(dc);
}

TEST(DeleteObject, OfASelectedBitmapTakesEffectWhenItIsDeselected) {
    HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = Plain32();
    HGDIOBJ old = SelectObject(dc, bitmap);
    EXPECT_TRUE(DeleteObject(bitmap));
    EXPECT_EQ(SetPixel(dc, 1, 1, 0x123456), 0x123456u) << "it can still be drawn on";
    EXPECT_EQ(GetObjectA(bitmap, 0, nullptr), kBitmapRecordSize);
    EXPECT_EQ(SelectObject(dc, old), bitmap);
    EXPECT_EQ(GetObjectA(bitmap, 0, nullptr), 0);
    EXPECT_FALSE(DeleteObject(bitmap));
    DeleteDC(dc);
}

TEST(DeleteObject, OfASelectedObjectTakesEffectWithItsContextToo) {
    DeleteDC(CreateCompatibleDC(nullptr));  // enters the stock objects that a fresh context has
    const size_t before = HandleTable::LiveCount();
    HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = Plain32();
    SelectObject(dc, bitmap);
    DeleteObject(bitmap);
    DeleteDC(dc);
    EXPECT_EQ(HandleTable::LiveCount(), before);
}

TEST(DeleteObject, OfAStockObjectSucceedsAndDoesNothing) {
    for (int index : {WHITE_BRUSH, NULL_BRUSH, BLACK_PEN, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        HGDIOBJ stock = GetStockObject(index);
        EXPECT_TRUE(DeleteObject(stock));
        EXPECT_EQ(GetStockObject(index), stock);
        EXPECT_GT(GetObjectA(stock, 0, nullptr), 0);
    }
    HGDIOBJ bitmap = StockBitmap()->Handle();
    EXPECT_TRUE(DeleteObject(bitmap));
    EXPECT_EQ(GetObjectA(bitmap, 0, nullptr), kBitmapRecordSize);
}

TEST(DeleteObject, EndsAContextToo) {
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_TRUE(DeleteObject(dc));
    EXPECT_FALSE(DeleteDC(dc));
}

TEST(DeleteObject, LeavesADrawerOfPicturesAlone) {
    HDRAWDIB drawer = DrawDibOpen();
    EXPECT_FALSE(DeleteObject(drawer));
    EXPECT_TRUE(DrawDibClose(drawer));
}

TEST(GetStockObject, UnknownNumbersGiveNull) {
    EXPECT_EQ(GetStockObject(-1), nullptr);
    EXPECT_EQ(GetStockObject(99), nullptr);
}

TEST(GetStockObject, TheBrushesHaveTheirPublishedColours) {
    const COLORREF colors[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0x000000};
    for (int index = WHITE_BRUSH; index <= BLACK_BRUSH; ++index) {
        LOGBRUSH record{};
        EXPECT_EQ(GetObjectA(GetStockObject(index), sizeof(record), &record),
                  static_cast<int>(sizeof(record)));
        EXPECT_EQ(record.lbStyle, BS_SOLID);
        EXPECT_EQ(record.lbColor, colors[index]);
    }
}

TEST(GetObjectA, ARecordOfFixedSizeNeedsItsWholeSize) {
    LOGPEN pen{};
    EXPECT_EQ(GetObjectA(GetStockObject(WHITE_PEN), sizeof(pen), &pen),
              static_cast<int>(sizeof(pen)));
    EXPECT_EQ(pen.lopnColor, 0xFFFFFFu);
    EXPECT_EQ(GetObjectA(GetStockObject(WHITE_PEN), sizeof(pen) - 1, &pen), 0);
    EXPECT_EQ(GetObjectA(GetStockObject(WHITE_BRUSH), sizeof(LOGBRUSH) - 1, &pen), 0);
}

TEST(GetObjectA, AFontsRecordMayBeCut) {
    LOGFONTA font{};
    EXPECT_EQ(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), 60, &font), 60);
    EXPECT_EQ(font.lfWeight, 400);
    LOGFONTA cut;
    std::memset(&cut, 0xEE, sizeof(cut));
    EXPECT_EQ(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), 4, &cut), 4);
    EXPECT_EQ(cut.lfHeight, font.lfHeight);
    EXPECT_EQ(static_cast<uint32_t>(cut.lfWidth), 0xEEEEEEEEu);
    EXPECT_EQ(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), 0, nullptr), 60);
}

TEST(GetObjectA, ADeviceBitmapHasTheShortRecordWithoutItsBits) {
    HBITMAP bitmap = CreateBitmap(5, 3, 1, 24, nullptr);
    DIBSECTION record{};
    EXPECT_EQ(GetObjectA(bitmap, kDibSectionRecordSize, &record), kBitmapRecordSize);
    EXPECT_EQ(record.dsBm.bmType, 0);
    EXPECT_EQ(record.dsBm.bmWidth, 5);
    EXPECT_EQ(record.dsBm.bmHeight, 3);
    EXPECT_EQ(record.dsBm.bmWidthBytes, 16) << "rows start at even addresses";
    EXPECT_EQ(record.dsBm.bmPlanes, 1);
    EXPECT_EQ(record.dsBm.bmBitsPixel, 24);
    EXPECT_EQ(record.dsBm.bmBits, nullptr);
    EXPECT_EQ(GetObjectA(bitmap, kBitmapRecordSize - 1, &record), 0);
    EXPECT_EQ(GetObjectA(bitmap, 0, nullptr), kBitmapRecordSize);
    DeleteObject(bitmap);
}

TEST(GetObjectA, ADibSectionTellsItsHeaderWhenThereIsRoom) {
    Canvas canvas(5, 3);
    DIBSECTION record{};
    EXPECT_EQ(GetObjectA(canvas.bitmap, kDibSectionRecordSize, &record), kDibSectionRecordSize);
    EXPECT_EQ(record.dsBm.bmWidth, 5);
    EXPECT_EQ(record.dsBm.bmHeight, 3);
    EXPECT_EQ(record.dsBm.bmWidthBytes, 20);
    EXPECT_EQ(record.dsBm.bmBits, canvas.bits);
    EXPECT_EQ(record.dsBmih.biSize, 40u);
    EXPECT_EQ(record.dsBmih.biHeight, 3);
    EXPECT_EQ(record.dsBmih.biBitCount, 32);
    EXPECT_EQ(record.dsBmih.biSizeImage, 60u);
    EXPECT_EQ(record.dshSection, nullptr);
    DIBSECTION small{};
    EXPECT_EQ(GetObjectA(canvas.bitmap, kDibSectionRecordSize - 1, &small), kBitmapRecordSize);
    EXPECT_EQ(small.dsBm.bmBits, canvas.bits);
    EXPECT_EQ(small.dsBmih.biSize, 0u);
    EXPECT_EQ(GetObjectA(canvas.bitmap, kBitmapRecordSize - 1, &small), 0);
    EXPECT_EQ(GetObjectA(canvas.bitmap, 0, nullptr), kBitmapRecordSize);
}

TEST(GetObjectA, ATopDownDibSectionKeepsTheSignOfItsHeight) {
    Canvas canvas(2, -3);
    DIBSECTION record{};
    GetObjectA(canvas.bitmap, kDibSectionRecordSize, &record);
    EXPECT_EQ(record.dsBm.bmHeight, 3);
    EXPECT_EQ(record.dsBmih.biHeight, -3);
}

TEST(GetObjectA, AContextHasNoRecord) {
    HDC dc = CreateCompatibleDC(nullptr);
    BITMAP record;
    EXPECT_EQ(GetObjectA(dc, sizeof(record), &record), 0);
    DeleteDC(dc);
}

}  // namespace
}  // namespace vxgui::gdi
