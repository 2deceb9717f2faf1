#include "GdiTestSupport.h"
#include "vxgui/platform/gdi/StockObjects.h"

namespace vxgui::gdi {
namespace {

constexpr DcValues kFreshValues{};

TEST(CreateCompatibleDC, RefusesAStaleModel) {
    HDC dc = CreateCompatibleDC(nullptr);
    HDC copy = CreateCompatibleDC(dc);
    EXPECT_NE(copy, nullptr);
    DeleteDC(dc);
    EXPECT_EQ(CreateCompatibleDC(dc), nullptr);
    DeleteDC(copy);
}

TEST(CreateCompatibleDC, EachFreshContextHasAPixelOfItsOwn) {
    HDC a = CreateCompatibleDC(nullptr);
    HDC b = CreateCompatibleDC(nullptr);
    EXPECT_EQ(GetPixel(a, 0, 0), 0x000000u);
    EXPECT_EQ(SetPixel(a, 0, 0, 0xFFFFFF), 0xFFFFFFu);
    EXPECT_EQ(GetPixel(a, 0, 0), 0xFFFFFFu);
    EXPECT_EQ(GetPixel(b, 0, 0), 0x000000u);
    EXPECT_EQ(GetPixel(a, 1, 0), CLR_INVALID);
    DeleteDC(a);
    DeleteDC(b);
}

/// Changes all that can be changed of a context.
void Spoil(HDC dc, HBITMAP bitmap, HRGN region) {
    SetPixel(dc, 0, 0, 0xFFFFFF);
    SaveDC(dc);
    SelectObject(dc, bitmap);
    SelectObject(dc, GetStockObject(BLACK_BRUSH));
    SelectObject(dc, GetStockObject(WHITE_PEN));
    SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SelectObject(dc, region);
    BeginPath(dc);
    static_cast<DcValues&>(FindContext(dc)->state) = {1, 2,      3,        4, 5, 6, 7,
                                                      4, {8, 9}, {10, 11}, 2, 2, 1};
}

TEST(CreateCompatibleDC, HasNothingLeftOfAContextThatWasDropped) {
    HBITMAP bitmap = CreateBitmap(3, 3, 1, 32, nullptr);
    HRGN region = CreateRectRgn(0, 0, 2, 2);
    HDC spoiled = CreateCompatibleDC(nullptr);
    Spoil(spoiled, bitmap, region);
    const DeviceContext* const place = FindContext(spoiled).get();
    EXPECT_TRUE(DeleteDC(spoiled));

    HDC dc = CreateCompatibleDC(nullptr);
    const GdiRef<DeviceContext> context = FindContext(dc);
    EXPECT_EQ(context.get(), place) << "or this shows nothing";
    EXPECT_NE(dc, spoiled);
    EXPECT_FALSE(DeleteDC(spoiled));
    const DcState& state = context->state;
    EXPECT_EQ(state.bitmap.get(), StockBitmap());
    EXPECT_EQ(state.brush.get(), StockBrush(WHITE_BRUSH));
    EXPECT_EQ(state.pen.get(), StockPen(BLACK_PEN));
    EXPECT_EQ(state.font.get(), StockFont(SYSTEM_FONT));
    EXPECT_FALSE(state.clip.has_value());
    EXPECT_EQ(state.path, nullptr);
    EXPECT_EQ(std::memcmp(static_cast<const DcValues*>(&state), &kFreshValues, sizeof(DcValues)),
              0);
    EXPECT_EQ(GetPixel(dc, 0, 0), 0x000000u);
    EXPECT_FALSE(RestoreDC(dc, -1));
    EXPECT_NE(SelectObject(dc, bitmap), nullptr) << "it is nobody's any more";
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_TRUE(DeleteObject(bitmap));
    EXPECT_TRUE(DeleteObject(region));
}

TEST(HostContext, DrawsInPlaceInEveryRowOrder) {
    for (const bool bottomUp : {false, true}) {
        for (const bool upwards : {false, true}) {
            GuardedHost host(5, 3, bottomUp, upwards);
            EXPECT_EQ(SetPixel(host.dc, 1, 0, 0x0000FF), 0x0000FFu);
            // The first row handed over is the last one in memory when the stride is negative.
            const int32_t row = bottomUp != upwards ? 2 : 0;
            EXPECT_EQ(host.InMemory(1, row), 0x00FF0000u) << bottomUp << upwards;
            EXPECT_TRUE(host.Intact());
        }
    }
}

TEST(HostContext, NothingIsWrittenOutsideTheRows) {
    for (const bool bottomUp : {false, true}) {
        for (const bool upwards : {false, true}) {
            GuardedHost host(7, 5, bottomUp, upwards);
            Canvas source(30, 30);
            source.Fill(0xFFFFFFFF);
            EXPECT_TRUE(BitBlt(host.dc, -5, -5, 30, 30, source.dc, 0, 0, SRCCOPY));
            EXPECT_TRUE(StretchBlt(host.dc, 20, 20, -40, -40, source.dc, 0, 0, 30, 30, SRCCOPY));
            EXPECT_TRUE(PatBlt(host.dc, -100, -100, 1000, 1000, PATCOPY));
            EXPECT_TRUE(PatBlt(host.dc, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, DSTINVERT));
            EXPECT_TRUE(PatBlt(host.dc, -100, -100, 1000, 1000, DSTINVERT));
            EXPECT_TRUE(host.Intact());
            EXPECT_EQ(host.InMemory(3, 2), 0xFF000000u);
        }
    }
}

TEST(HostContext, RefusesWhatCantBe) {
    alignas(4) uint8_t memory[64] = {};
    EXPECT_EQ(CreateHostDC({nullptr, 2, 2, 8, false}), nullptr);
    EXPECT_EQ(CreateHostDC({memory, 0, 2, 8, false}), nullptr);
    EXPECT_EQ(CreateHostDC({memory, 2, -1, 8, false}), nullptr);
    EXPECT_EQ(CreateHostDC({memory, 2, 2, 4, false}), nullptr) << "rows would overlap";
    EXPECT_EQ(CreateHostDC({memory, 2, 2, -7, false}), nullptr);
    EXPECT_EQ(CreateHostDC({memory, 2, 2, 9, false}), nullptr) << "a pixel is an aligned word";
    EXPECT_EQ(CreateHostDC({memory + 1, 2, 2, 8, false}), nullptr);
    EXPECT_EQ(CreateHostDC({memory, INT32_MAX, 2, PTRDIFF_MIN, false}), nullptr);
}

TEST(HostContext, TakesNoOtherBitmapAndKeepsItsOwn) {
    GuardedHost host(4, 4, false, false);
    HBITMAP bitmap = CreateBitmap(4, 4, 1, 32, nullptr);
    EXPECT_EQ(SelectObject(host.dc, bitmap), nullptr);
    DeleteObject(bitmap);
    HGDIOBJ own = GetCurrentObject(host.dc, OBJ_BITMAP);
    EXPECT_TRUE(DeleteObject(own));
    BITMAP record{};
    EXPECT_EQ(GetObjectA(own, sizeof(record), &record), kBitmapRecordSize);
    EXPECT_EQ(record.bmWidth, 4);
    EXPECT_EQ(record.bmBits, nullptr);
    HDC other = CreateCompatibleDC(nullptr);
    EXPECT_EQ(SelectObject(other, own), nullptr) << "a host's pixels stay in its context";
    DeleteDC(other);
}

TEST(HostContext, LeavesNoHandleBehind) {
    StockBitmap();
    HDC warm = CreateCompatibleDC(nullptr);
    DeleteDC(warm);
    const size_t before = HandleTable::LiveCount();
    { GuardedHost host(4, 4, false, false); }
    EXPECT_EQ(HandleTable::LiveCount(), before);
}

TEST(GetDeviceCaps, IsZeroForANullContext) {
    EXPECT_EQ(GetDeviceCaps(nullptr, LOGPIXELSX), 0);
    EXPECT_EQ(GetDeviceCaps(nullptr, LOGPIXELSY), 0);
}

TEST(GetDeviceCaps, TellsTheScreensDpi) {
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 96);
    SetScreenDpi(120);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 120);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSY), 120);
    EXPECT_EQ(ScreenDpi(), 120);
    SetScreenDpi(0);
    EXPECT_EQ(ScreenDpi(), 120) << "no screen has 0 dots an inch";
    SetScreenDpi(96);
    DeleteDC(dc);
}

TEST(GetDeviceCaps, TellsTheSizeAndFormOfTheTarget) {
    Canvas canvas(7, 5, 24);
    EXPECT_EQ(GetDeviceCaps(canvas.dc, HORZRES), 7);
    EXPECT_EQ(GetDeviceCaps(canvas.dc, VERTRES), 5);
    EXPECT_EQ(GetDeviceCaps(canvas.dc, BITSPIXEL), 24);
    EXPECT_EQ(GetDeviceCaps(canvas.dc, PLANES), 1);
    EXPECT_EQ(GetDeviceCaps(canvas.dc, 9999), 0);
}

TEST(SaveDC, BringsBackEverythingOfTheState) {
    Canvas canvas(8, 8);
    const GdiRef<DeviceContext> dc = FindContext(canvas.dc);
    DcState& state = dc->state;
    HRGN region = CreateRectRgn(1, 1, 2, 2);
    EXPECT_EQ(SaveDC(canvas.dc), 1);

    HBITMAP other = CreateBitmap(2, 2, 1, 32, nullptr);
    SelectObject(canvas.dc, other);
    SelectObject(canvas.dc, GetStockObject(BLACK_BRUSH));
    SelectObject(canvas.dc, GetStockObject(WHITE_PEN));
    SelectObject(canvas.dc, GetStockObject(DEFAULT_GUI_FONT));
    SelectObject(canvas.dc, region);
    SetStretchBltMode(canvas.dc, HALFTONE);
    state.textColor = 1;
    state.backColor = 2;
    state.backMode = TRANSPARENT;
    state.textAlign = 6;
    state.characterExtra = 3;
    state.breakExtra = 4;
    state.breakCount = 5;
    state.brushOrigin = {6, 7};
    state.position = {8, 9};
    state.arcDirection = 2;
    state.polyFillMode = WINDING;

    EXPECT_TRUE(RestoreDC(canvas.dc, -1));
    EXPECT_EQ(GetCurrentObject(canvas.dc, OBJ_BITMAP), canvas.bitmap);
    EXPECT_EQ(GetCurrentObject(canvas.dc, OBJ_BRUSH), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(canvas.dc, OBJ_PEN), GetStockObject(BLACK_PEN));
    EXPECT_EQ(GetCurrentObject(canvas.dc, OBJ_FONT), GetStockObject(SYSTEM_FONT));
    EXPECT_FALSE(state.clip.has_value());
    EXPECT_EQ(GetStretchBltMode(canvas.dc), BLACKONWHITE);
    EXPECT_EQ(state.textColor, 0u);
    EXPECT_EQ(state.backColor, 0xFFFFFFu);
    EXPECT_EQ(state.backMode, OPAQUE);
    EXPECT_EQ(state.textAlign, 0u);
    EXPECT_EQ(state.characterExtra, 0);
    EXPECT_EQ(state.breakExtra, 0);
    EXPECT_EQ(state.breakCount, 0);
    EXPECT_EQ(state.brushOrigin.x, 0);
    EXPECT_EQ(state.position.y, 0);
    EXPECT_EQ(state.arcDirection, 1);
    EXPECT_EQ(state.polyFillMode, ALTERNATE);
    EXPECT_TRUE(DeleteObject(other));
    EXPECT_EQ(GetObjectA(other, 0, nullptr), 0) << "nothing holds it any more";
    DeleteObject(region);
}

TEST(RestoreDC, TakesALevelOrADistanceBack) {
    Canvas canvas(8, 8);
    for (int mode = 1; mode <= 4; ++mode) {
        SetStretchBltMode(canvas.dc, mode);
        EXPECT_EQ(SaveDC(canvas.dc), mode);
    }
    EXPECT_TRUE(RestoreDC(canvas.dc, -2));
    EXPECT_EQ(GetStretchBltMode(canvas.dc), 3);
    EXPECT_FALSE(RestoreDC(canvas.dc, 3)) << "that level is gone";
    EXPECT_FALSE(RestoreDC(canvas.dc, 0));
    EXPECT_FALSE(RestoreDC(canvas.dc, -3));
    EXPECT_TRUE(RestoreDC(canvas.dc, 1));
    EXPECT_EQ(GetStretchBltMode(canvas.dc), 1);
    EXPECT_FALSE(RestoreDC(canvas.dc, -1));
    EXPECT_FALSE(RestoreDC(nullptr, -1));
    EXPECT_EQ(SaveDC(nullptr), 0);
}

TEST(StretchMode, OnlyThePublishedModesAreTaken) {
    Canvas canvas(1, 1);
    EXPECT_EQ(SetStretchBltMode(canvas.dc, COLORONCOLOR), BLACKONWHITE);
    EXPECT_EQ(SetStretchBltMode(canvas.dc, 0), 0);
    EXPECT_EQ(SetStretchBltMode(canvas.dc, 5), 0);
    EXPECT_EQ(GetStretchBltMode(canvas.dc), COLORONCOLOR);
    EXPECT_EQ(GetStretchBltMode(nullptr), 0);
}

TEST(GdiFlush, Succeeds) { EXPECT_TRUE(GdiFlush()); }

TEST(MulDiv, RoundsHalvesAwayFromZero) {
    const struct {
        int value, numerator, denominator, result;
    } rows[] = {{5, 1, 2, 3},
                {-5, 1, 2, -3},
                {5, -1, 2, -3},
                {5, 1, -2, -3},
                {-5, 1, -2, 3},
                {7, 1, 3, 2},
                {8, 1, 3, 3},
                {2540, 96, 2540, 96},
                {0, 5, 7, 0},
                {INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX},
                {INT32_MAX, 2, 2, INT32_MAX},
                {INT32_MIN, 1, 2, -1073741824},
                {-INT32_MAX, 1, 1, -INT32_MAX}};
    for (const auto& row : rows) {
        EXPECT_EQ(MulDiv(row.value, row.numerator, row.denominator), row.result)
            << row.value << " * " << row.numerator << " / " << row.denominator;
    }
}

TEST(MulDiv, IsMinusOneForDivisionByZeroAndOverflow) {
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
    EXPECT_EQ(MulDiv(INT32_MAX, 2, 1), -1);
    EXPECT_EQ(MulDiv(INT32_MIN, INT32_MIN, 1), -1);
    EXPECT_EQ(MulDiv(INT32_MIN, 1, -1), -1);
    EXPECT_EQ(MulDiv(INT32_MIN, 1, 1), -1);
}

}  // namespace
}  // namespace vxgui::gdi
