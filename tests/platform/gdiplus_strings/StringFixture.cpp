#include "tests/platform/gdiplus_strings/StringFixture.h"

namespace vxgui::gdiplus {

StringFixture::~StringFixture() {
    for (void* made : made_) RetireObject(made);
}

GpFontFamily* StringFixture::Family(const char16_t* name) {
    GpFontFamily* family = nullptr;
    EXPECT_EQ(GdipCreateFontFamilyFromName(name, nullptr, &family), Ok);
    return Keep(family);
}

GpFont* StringFixture::MakeFont(REAL size, INT style, Unit unit, const char16_t* name) {
    GpFont* font = nullptr;
    EXPECT_EQ(GdipCreateFont(Family(name), size, style, unit, &font), Ok);
    return Keep(font);
}

GpStringFormat* StringFixture::Default() {
    GpStringFormat *shared = nullptr, *format = nullptr;
    EXPECT_EQ(GdipStringFormatGetGenericDefault(&shared), Ok);
    EXPECT_EQ(GdipCloneStringFormat(shared, &format), Ok);
    return Keep(format);
}

GpStringFormat* StringFixture::Typographic() {
    GpStringFormat *shared = nullptr, *format = nullptr;
    EXPECT_EQ(GdipStringFormatGetGenericTypographic(&shared), Ok);
    EXPECT_EQ(GdipCloneStringFormat(shared, &format), Ok);
    return Keep(format);
}

}  // namespace vxgui::gdiplus
