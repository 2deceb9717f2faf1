#include "tests/limits/LimitsTest.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/platform/gdi.h"

namespace vxgui::test {
namespace {

using DrawingLimitsTest = LimitsTest;
using gdi::HRGN;

TEST_F(DrawingLimitsTest, PixelMemoryOfABitmapAndNoMore) {
    ExpectBound(&Limits::bitmapBytes, size_t{64}, [] {
        const gdi::HBITMAP bitmap = gdi::CreateBitmap(4, 4, 1, 32, nullptr);
        return bitmap && gdi::DeleteObject(bitmap);
    });
    ExpectBound(&Limits::bitmapBytes, size_t{64}, [] {
        gdi::BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 4, 4, 1, 32, gdi::BI_RGB, 0, 0, 0, 0, 0};
        const gdi::HBITMAP bitmap =
            gdi::CreateDIBSection(nullptr, &info, gdi::DIB_RGB_COLORS, nullptr, nullptr, 0);
        return bitmap && gdi::DeleteObject(bitmap);
    });
}

TEST_F(DrawingLimitsTest, PixelMemoryOfAnImageAndNoMore) {
    const GdiplusSession session;
    ExpectBound(&Limits::imageBytes, size_t{64}, [] {
        gdiplus::GpBitmap* bitmap = nullptr;
        const gdiplus::GpStatus status = gdiplus::GdipCreateBitmapFromScan0(
            4, 4, 0, gdiplus::PixelFormat32bppARGB, nullptr, &bitmap);
        EXPECT_TRUE(status == gdiplus::Ok || status == gdiplus::OutOfMemory) << status;
        return bitmap && gdiplus::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap)) ==
                             gdiplus::Ok;
    });
}

TEST_F(DrawingLimitsTest, RowsThatAPathCrossesAndNoMore) {
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    ExpectBound(&Limits::regionSteps, int64_t{20}, [&] {
        gdi::BeginPath(dc);
        gdi::MoveToEx(dc, 0, 0, nullptr);
        gdi::LineTo(dc, 0, 10);
        gdi::LineTo(dc, 10, 10);
        gdi::LineTo(dc, 10, 0);
        gdi::CloseFigure(dc);
        gdi::EndPath(dc);
        const HRGN region = gdi::PathToRegion(dc);
        return region && gdi::DeleteObject(region);
    });
    gdi::DeleteDC(dc);
}

// Two columns over the rows 0 to 10, and two rows: together five bands of at most
// 2 + 3 + 2 + 3 + 2 rectangles.
TEST_F(DrawingLimitsTest, RectanglesOfARegionAndNoMore) {
    const HRGN columns = gdi::CreateRectRgn(0, 0, 2, 10), rows = gdi::CreateRectRgn(0, 2, 9, 4);
    const HRGN other = gdi::CreateRectRgn(5, 0, 7, 10), lower = gdi::CreateRectRgn(0, 6, 9, 8);
    gdi::CombineRgn(columns, columns, other, gdi::RGN_OR);
    gdi::CombineRgn(rows, rows, lower, gdi::RGN_OR);
    const HRGN result = gdi::CreateRectRgn(1, 1, 2, 2);
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    for (const int mode : {gdi::RGN_AND, gdi::RGN_OR, gdi::RGN_XOR, gdi::RGN_DIFF}) {
        ExpectBound(&Limits::regionRectangles, size_t{12}, [&] {
            gdi::SetRectRgn(result, 1, 1, 2, 2);
            const bool done = gdi::CombineRgn(result, columns, rows, mode) != gdi::ERROR;
            gdi::RECT box{};
            gdi::GetRgnBox(result, &box);
            EXPECT_EQ(box.left == 1, !done) << "what fails changes nothing";
            return done;
        });
        ExpectBound(&Limits::regionRectangles, size_t{12}, [&] {
            gdi::SelectClipRgn(dc, columns);
            return gdi::ExtSelectClipRgn(dc, rows, mode) != gdi::ERROR;
        });
    }
    gdi::DeleteDC(dc);
    for (const HRGN region : {columns, rows, other, lower, result}) gdi::DeleteObject(region);
}

TEST_F(DrawingLimitsTest, ACrossingOfManyColumnsAndRowsIsRefusedAtOnce) {
    const HRGN columns = gdi::CreateRectRgn(0, 0, 0, 0), rows = gdi::CreateRectRgn(0, 0, 0, 0);
    for (int i = 0; i < 2500; ++i) {
        const HRGN column = gdi::CreateRectRgn(2 * i, 0, 2 * i + 1, 5000);
        const HRGN row = gdi::CreateRectRgn(0, 2 * i, 5000, 2 * i + 1);
        gdi::CombineRgn(columns, columns, column, gdi::RGN_OR);
        gdi::CombineRgn(rows, rows, row, gdi::RGN_OR);
        gdi::DeleteObject(column);
        gdi::DeleteObject(row);
    }
    const HRGN result = gdi::CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(gdi::CombineRgn(result, columns, rows, gdi::RGN_AND), gdi::ERROR);
    for (const HRGN region : {columns, rows, result}) gdi::DeleteObject(region);
}

TEST_F(DrawingLimitsTest, UnitsOfATextAndNoMore) {
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    char16_t text[] = u"ABCDE";
    gdi::RECT rect{0, 0, 100, 20};
    gdi::SIZE size{};
    const size_t length = 5;
    ExpectBound(&Limits::textUnits, length,
                [&] { return gdi::DrawTextW(dc, text, -1, &rect, gdi::DT_CALCRECT) != 0; });
    ExpectBound(&Limits::textUnits, length,
                [&] { return gdi::DrawTextA(dc, "ABCDE", 5, &rect, gdi::DT_CALCRECT) != 0; });
    ExpectBound(&Limits::textUnits, length,
                [&] { return gdi::GetTextExtentPoint32W(dc, text, 5, &size) != 0; });
    ExpectBound(&Limits::textUnits, length, [&] { return gdi::TextOutW(dc, 0, 0, text, 5) != 0; });
    ExpectBound(&Limits::textUnits, length,
                [&] { return gdi::ExtTextOutW(dc, 0, 0, 0, nullptr, text, 5, nullptr) != 0; });
    ExpectBound(&Limits::textUnits, length,
                [&] { return gdi::TabbedTextOutW(dc, 0, 0, text, 5, 0, nullptr, 0) != 0; });
    gdi::DeleteDC(dc);
}

TEST_F(DrawingLimitsTest, UnitsOfAStringOfTheObjectLayerAndNoMore) {
    const GdiplusSession session;
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    gdiplus::GpGraphics* graphics = nullptr;
    gdiplus::GpFont* font = nullptr;
    gdiplus::GpFontFamily* family = nullptr;
    gdiplus::GdipCreateFromHDC(dc, &graphics);
    gdiplus::GdipGetGenericFontFamilySansSerif(&family);
    gdiplus::GdipCreateFont(family, 10, 0, gdiplus::UnitPixel, &font);
    const gdiplus::GpRectF room{0, 0, 100, 100};
    ExpectBound(&Limits::textUnits, size_t{5}, [&] {
        gdiplus::GpRectF box;
        return gdiplus::GdipMeasureString(graphics, u"ABCDE", -1, font, &room, nullptr, &box,
                                          nullptr, nullptr) == gdiplus::Ok;
    });
    gdiplus::GdipDeleteFont(font);
    gdiplus::GdipDeleteFontFamily(family);
    gdiplus::GdipDeleteGraphics(graphics);
    gdi::DeleteDC(dc);
}

}  // namespace
}  // namespace vxgui::test
