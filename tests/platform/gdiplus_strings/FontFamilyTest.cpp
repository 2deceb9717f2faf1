#include "tests/platform/gdiplus_strings/StringFixture.h"

namespace vxgui::gdiplus {
namespace {

class FontFamilies : public StringFixture {};

std::u16string NameOf(GpFontFamily* family) {
    WCHAR name[32];
    EXPECT_EQ(GdipGetFamilyName(family, name, 0), Ok);
    return name;
}

TEST_F(FontFamilies, AreFoundByNameWhateverTheCase) {
    EXPECT_EQ(NameOf(Family(u"dejavu SERIF")), u"DejaVu Serif");
    auto* family = reinterpret_cast<GpFontFamily*>(1);
    EXPECT_EQ(GdipCreateFontFamilyFromName(u"No Such Font", nullptr, &family), FontFamilyNotFound);
    EXPECT_EQ(family, nullptr);
    EXPECT_EQ(GdipCreateFontFamilyFromName(nullptr, nullptr, &family), InvalidParameter);
    EXPECT_EQ(GdipCreateFontFamilyFromName(u"DejaVu Sans", nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipCreateFontFamilyFromName(u"DejaVu Sans",
                                           reinterpret_cast<GpFontCollection*>(Family()), &family),
              InvalidParameter);
}

TEST_F(FontFamilies, FollowWhatTheConfigurationNamesAsTheSame) {
    EXPECT_EQ(NameOf(Family(u"Monospace")), u"DejaVu Sans Mono");
}

TEST_F(FontFamilies, ThreeAreGeneric) {
    using Create = GpStatus (*)(GpFontFamily**);
    const std::pair<Create, const char16_t*> rows[] = {
        {GdipGetGenericFontFamilySansSerif, u"DejaVu Sans"},
        {GdipGetGenericFontFamilySerif, u"DejaVu Serif"},
        {GdipGetGenericFontFamilyMonospace, u"DejaVu Sans Mono"},
    };
    for (const auto& [create, name] : rows) {
        GpFontFamily* family = nullptr;
        ASSERT_EQ(create(&family), Ok);
        EXPECT_EQ(NameOf(family), name);
        EXPECT_EQ(GdipDeleteFontFamily(family), Ok);
        EXPECT_EQ(GdipDeleteFontFamily(family), InvalidParameter);
        EXPECT_EQ(create(nullptr), InvalidParameter);
    }
}

TEST_F(FontFamilies, HaveTheMeasuresOfTheirFiles) {
    struct Row {
        const char16_t* name;
        INT style;
        WORD em, ascent, descent, spacing;
    };
    const Row rows[] = {
        {u"DejaVu Sans", 0, 2048, 1901, 483, 2384},
        {u"DejaVu Sans", FontStyleBold, 2048, 1901, 483, 2384},
        // The one with a leading of its own: 1589 from line to line, of which the cell has 1554.
        {u"Noto Sans Tai Tham", 0, 1000, 1034, 520, 1589},
    };
    for (const Row& row : rows) {
        GpFontFamily* family = Family(row.name);
        WORD em = 0, ascent = 0, descent = 0, spacing = 0;
        EXPECT_EQ(GdipGetEmHeight(family, row.style, &em), Ok);
        EXPECT_EQ(GdipGetCellAscent(family, row.style, &ascent), Ok);
        EXPECT_EQ(GdipGetCellDescent(family, row.style, &descent), Ok);
        EXPECT_EQ(GdipGetLineSpacing(family, row.style, &spacing), Ok);
        EXPECT_EQ(em, row.em);
        EXPECT_EQ(ascent, row.ascent);
        EXPECT_EQ(descent, row.descent);
        EXPECT_EQ(spacing, row.spacing);
    }
}

TEST_F(FontFamilies, GainBoldAndSlantAndCannotLoseThem) {
    BOOL available = 0;
    for (const INT style : {0, 1, 2, 3, 4, 15}) {
        EXPECT_EQ(GdipIsStyleAvailable(Family(u"DejaVu Serif"), style, &available), Ok);
        EXPECT_TRUE(available) << style;
    }
}

TEST_F(FontFamilies, AWrongArgumentIsInvalid) {
    WORD measure = 0;
    BOOL available = 0;
    WCHAR name[32];
    for (GpFontFamily* wrong : WrongHandles<GpFontFamily>(MakeFont(12))) {
        EXPECT_EQ(GdipGetEmHeight(wrong, 0, &measure), InvalidParameter);
        EXPECT_EQ(GdipGetCellAscent(wrong, 0, &measure), InvalidParameter);
        EXPECT_EQ(GdipGetCellDescent(wrong, 0, &measure), InvalidParameter);
        EXPECT_EQ(GdipGetLineSpacing(wrong, 0, &measure), InvalidParameter);
        EXPECT_EQ(GdipIsStyleAvailable(wrong, 0, &available), InvalidParameter);
        EXPECT_EQ(GdipGetFamilyName(wrong, name, 0), InvalidParameter);
        EXPECT_EQ(GdipDeleteFontFamily(wrong), InvalidParameter);
    }
    GpFontFamily* family = Family();
    EXPECT_EQ(GdipGetEmHeight(family, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetCellAscent(family, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetCellDescent(family, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetLineSpacing(family, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipIsStyleAvailable(family, 0, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFamilyName(family, nullptr, 0), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
