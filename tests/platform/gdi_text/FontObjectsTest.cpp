#include <gtest/gtest.h>

#include <cstring>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

TEST(FontObject, GivesItsRecordBack) {
    const HFONT font = CreateFontA(-17, 5, 10, 20, 650, 1, 2, 3, 134, 4, 5, 3, 0x22, "A Face");
    LOGFONTA record{};
    EXPECT_EQ(GetObjectA(font, sizeof record, &record), 60);
    EXPECT_EQ(record.lfHeight, -17);
    EXPECT_EQ(record.lfWidth, 5);
    EXPECT_EQ(record.lfEscapement, 10);
    EXPECT_EQ(record.lfOrientation, 20);
    EXPECT_EQ(record.lfWeight, 650);
    EXPECT_EQ(record.lfItalic, 1);
    EXPECT_EQ(record.lfUnderline, 2);
    EXPECT_EQ(record.lfStrikeOut, 3);
    EXPECT_EQ(record.lfCharSet, 134);
    EXPECT_EQ(record.lfOutPrecision, 4);
    EXPECT_EQ(record.lfClipPrecision, 5);
    EXPECT_EQ(record.lfQuality, 3);
    EXPECT_EQ(record.lfPitchAndFamily, 0x22);
    EXPECT_STREQ(record.lfFaceName, "A Face");
    EXPECT_TRUE(DeleteObject(font));
}

TEST(FontObject, NumbersAboveAByteKeepTheirLowByte) {
    const HFONT font = CreateFontA(1, 0, 0, 0, 0, 257, 0, 0, 0, 0, 0, 0, 0, "");
    LOGFONTA record{};
    GetObjectA(font, sizeof record, &record);
    EXPECT_EQ(record.lfItalic, 1);
    DeleteObject(font);
}

TEST(FontObject, CutsALongNameAndTakesNone) {
    const std::string name(40, 'x');
    LOGFONTA record{};
    const HFONT named = CreateFontA(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, name.c_str());
    GetObjectA(named, sizeof record, &record);
    EXPECT_EQ(std::strlen(record.lfFaceName), 31u);
    DeleteObject(named);
    const HFONT nameless = CreateFontA(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr);
    GetObjectA(nameless, sizeof record, &record);
    EXPECT_STREQ(record.lfFaceName, "");
    DeleteObject(nameless);
    EXPECT_EQ(CreateFontIndirectA(nullptr), nullptr);
}

TEST(FontObject, TheStockFontIsTheUserInterfaceFace) {
    LOGFONTA record{};
    EXPECT_EQ(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof record, &record), 60);
    EXPECT_STREQ(record.lfFaceName, "MS Shell Dlg");
    EXPECT_EQ(record.lfHeight, -11);
    EXPECT_EQ(record.lfWeight, 400);
}

TEST(FontObject, TheStockFontDrawsWithASansFace) {
    Canvas canvas(10, 10);
    SelectObject(canvas, GetStockObject(DEFAULT_GUI_FONT));
    const SIZE stock = Extent(canvas, u"Milk and honey");
    canvas.Font("DejaVu Sans", -11);
    EXPECT_EQ(stock.cx, Extent(canvas, u"Milk and honey").cx);
    EXPECT_EQ(stock.cy, Extent(canvas, u"Milk and honey").cy);
}

TEST(FontObject, OneThatIsSelectedOutlivesItsDeletion) {
    Canvas canvas(60, 30);
    const HFONT font = CreateFontA(-20, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "DejaVu Sans");
    const HGDIOBJ before = SelectObject(canvas, font);
    EXPECT_TRUE(DeleteObject(font));
    EXPECT_EQ(Metrics(canvas).tmHeight, 24);
    EXPECT_EQ(SelectObject(canvas, before), font);
}

}  // namespace
}  // namespace vxgui::gdi
