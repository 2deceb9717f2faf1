#include <cstring>
#include <limits>

#include "tests/platform/gdiplus_strings/StringFixture.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdiplus {
namespace {

class Fonts : public StringFixture {
protected:
    REAL HeightAt(GpFont* font, REAL dpi) {
        REAL height = 0;
        EXPECT_EQ(GdipGetFontHeightGivenDPI(font, dpi, &height), Ok);
        return height;
    }
};

class FontContext {
public:
    explicit FontContext(const gdi::LOGFONTA& record)
        : dc(gdi::CreateCompatibleDC(nullptr)), font_(gdi::CreateFontIndirectA(&record)) {
        gdi::SelectObject(dc, font_);
    }
    ~FontContext() {
        gdi::DeleteDC(dc);
        gdi::DeleteObject(font_);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

    gdi::HDC dc;

private:
    gdi::HFONT font_;
};

gdi::LOGFONTA Record(LONG height, LONG weight, const char* name) {
    gdi::LOGFONTA record{};
    record.lfHeight = height;
    record.lfWeight = weight;
    std::copy_n(name, strlen(name), record.lfFaceName);
    return record;
}

TEST_F(Fonts, KeepWhatTheyAreMadeOf) {
    GpFont* font = MakeFont(12.5f, FontStyleBold | FontStyleUnderline, UnitPoint);
    INT style = 0;
    REAL size = 0;
    Unit unit = UnitWorld;
    GpFontFamily* family = nullptr;
    WCHAR name[32];
    EXPECT_EQ(GdipGetFontStyle(font, &style), Ok);
    EXPECT_EQ(GdipGetFontSize(font, &size), Ok);
    EXPECT_EQ(GdipGetFontUnit(font, &unit), Ok);
    EXPECT_EQ(GdipGetFamily(font, &family), Ok);
    EXPECT_EQ(GdipGetFamilyName(Keep(family), name, 0), Ok);
    EXPECT_EQ(style, FontStyleBold | FontStyleUnderline);
    EXPECT_EQ(size, 12.5f);
    EXPECT_EQ(unit, UnitPoint);
    EXPECT_EQ(std::u16string(name), u"DejaVu Sans");
}

TEST_F(Fonts, NeedASizeAndAUnitOfLength) {
    GpFont* font = nullptr;
    for (const REAL size : {0.0f, -1.0f, std::numeric_limits<REAL>::quiet_NaN(),
                            std::numeric_limits<REAL>::infinity()}) {
        EXPECT_EQ(GdipCreateFont(Family(), size, 0, UnitPixel, &font), InvalidParameter) << size;
    }
    for (const int unit : {-1, 1, 7}) {
        EXPECT_EQ(GdipCreateFont(Family(), 1, 0, static_cast<Unit>(unit), &font), InvalidParameter);
    }
    EXPECT_EQ(GdipCreateFont(nullptr, 1, 0, UnitPixel, &font), InvalidParameter);
    EXPECT_EQ(GdipCreateFont(Family(), 1, 0, UnitPixel, nullptr), InvalidParameter);
    EXPECT_EQ(font, nullptr);
}

TEST_F(Fonts, AreAsHighAsTheirUnitSays) {
    struct Row {
        Unit unit;
        REAL size, dpi;
        double em;
    };
    const Row rows[] = {
        {UnitWorld, 20, 300, 20},        {UnitPixel, 20, 300, 20},  {UnitPoint, 12, 96, 16},
        {UnitPoint, 12, 72, 12},         {UnitInch, 0.5f, 120, 60}, {UnitDocument, 75, 96, 24},
        {UnitMillimeter, 25.4f, 96, 96},
    };
    for (const Row& row : rows) {
        EXPECT_NEAR(HeightAt(MakeFont(row.size, 0, row.unit), row.dpi), row.em * 2384 / 2048, 1e-4)
            << row.unit;
    }
    EXPECT_EQ(HeightAt(MakeFont(12, 0, UnitPoint), 96), HeightAt(MakeFont(16), 96))
        << "equal ems give the very same number";
}

TEST_F(Fonts, ClonesAreHandlesOfTheirOwn) {
    GpFont *font = MakeFont(10), *clone = nullptr;
    ASSERT_EQ(GdipCloneFont(font, &clone), Ok);
    EXPECT_NE(clone, font);
    EXPECT_EQ(GdipDeleteFont(font), Ok);
    EXPECT_EQ(GdipDeleteFont(font), InvalidParameter);
    REAL size = 0;
    EXPECT_EQ(GdipGetFontSize(Keep(clone), &size), Ok);
    EXPECT_EQ(size, 10);
}

TEST_F(Fonts, OfAContextAreInWorldUnits) {
    const FontContext context(Record(-17, 700, "DejaVu Serif"));
    GpFont* font = nullptr;
    ASSERT_EQ(GdipCreateFontFromDC(context.dc, &font), Ok);
    Keep(font);
    INT style = 0;
    REAL size = 0;
    Unit unit = UnitPixel;
    GdipGetFontStyle(font, &style);
    GdipGetFontSize(font, &size);
    GdipGetFontUnit(font, &unit);
    EXPECT_EQ(style, FontStyleBold);
    EXPECT_EQ(size, 17);
    EXPECT_EQ(unit, UnitWorld);
    EXPECT_EQ(GdipCreateFontFromDC(nullptr, &font), InvalidParameter);
    EXPECT_EQ(GdipCreateFontFromDC(context.dc, nullptr), InvalidParameter);
}

TEST_F(Fonts, OfALogFontTakeTheEmWhoseCellFits) {
    const FontContext context(Record(0, 0, ""));
    struct Row {
        LONG height;
        REAL em;
    };
    // The cell is 2384 units of 2048.
    for (const Row& row : {Row{-20, 20}, Row{20, 17}, Row{24, 21}}) {
        GpFont* font = nullptr;
        const gdi::LOGFONTA record = Record(row.height, 400, "DejaVu Sans");
        ASSERT_EQ(GdipCreateFontFromLogfontA(context.dc, &record, &font), Ok);
        REAL size = 0;
        GdipGetFontSize(Keep(font), &size);
        EXPECT_EQ(size, row.em) << row.height;
    }
}

TEST_F(Fonts, OfALogFontTakeItsLooks) {
    const FontContext context(Record(0, 0, ""));
    gdi::LOGFONTA record = Record(-10, 549, "DejaVu Sans");
    record.lfItalic = record.lfUnderline = record.lfStrikeOut = 1;
    GpFont* font = nullptr;
    ASSERT_EQ(GdipCreateFontFromLogfontA(context.dc, &record, &font), Ok);
    INT style = 0;
    GdipGetFontStyle(Keep(font), &style);
    EXPECT_EQ(style, FontStyleItalic | FontStyleUnderline | FontStyleStrikeout);
    EXPECT_EQ(GdipCreateFontFromLogfontA(nullptr, &record, &font), InvalidParameter);
    EXPECT_EQ(GdipCreateFontFromLogfontA(context.dc, nullptr, &font), InvalidParameter);
    EXPECT_EQ(GdipCreateFontFromLogfontA(context.dc, &record, nullptr), InvalidParameter);
}

TEST_F(Fonts, AMissingFaceIsReplacedByItsKind) {
    const FontContext context(Record(0, 0, ""));
    gdi::LOGFONTA record = Record(-10, 400, "No Such Face");
    record.lfPitchAndFamily = 1;
    GpFont* font = nullptr;
    ASSERT_EQ(GdipCreateFontFromLogfontA(context.dc, &record, &font), Ok);
    GpFontFamily* family = nullptr;
    GdipGetFamily(Keep(font), &family);
    WCHAR name[32] = {};
    GdipGetFamilyName(Keep(family), name, 0);
    EXPECT_EQ(std::u16string(name), u"DejaVu Sans Mono");
}

TEST_F(Fonts, AWrongArgumentIsInvalid) {
    INT style;
    REAL number;
    Unit unit;
    GpFont* font;
    GpFontFamily* family;
    for (GpFont* wrong : WrongHandles<GpFont>(Family())) {
        EXPECT_EQ(GdipGetFontStyle(wrong, &style), InvalidParameter);
        EXPECT_EQ(GdipGetFontSize(wrong, &number), InvalidParameter);
        EXPECT_EQ(GdipGetFontUnit(wrong, &unit), InvalidParameter);
        EXPECT_EQ(GdipGetFontHeightGivenDPI(wrong, 96, &number), InvalidParameter);
        EXPECT_EQ(GdipGetFamily(wrong, &family), InvalidParameter);
        EXPECT_EQ(GdipCloneFont(wrong, &font), InvalidParameter);
        EXPECT_EQ(GdipDeleteFont(wrong), InvalidParameter);
    }
    GpFont* live = MakeFont(10);
    EXPECT_EQ(GdipGetFontStyle(live, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFontSize(live, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFontUnit(live, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFontHeightGivenDPI(live, 96, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFamily(live, nullptr), InvalidParameter);
    EXPECT_EQ(GdipCloneFont(live, nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
