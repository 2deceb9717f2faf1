#include "vxgui/gdip/GpFont.h"

#include "vxgui/base/Error.h"
#include "vxgui/gdip/MeasuringContext.h"

namespace vxgui {

void GpFont::SetHandle(gdiplus::GpFont*& handle) {
    const KeepAlive keep(this);
    GpOwner::SetHandle(handle);
    Check(flat::GdipGetFontStyle(handle_, &mStyle));
    Check(flat::GdipGetFontUnit(handle_, &mUnit));
    Check(flat::GdipGetFontSize(handle_, &mSize));
    mName = FontFamily()->GetFamilyName();
}

void GpFont::Dispose() {
    mPathEmSize = 0;
    GpOwner::Dispose();
}

bool GpFont::Create(const String& Name, float SIZE, int32_t Style, gdiplus::Unit Unit) {
    const KeepAlive keep(this);
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    family->CreateFontFamily(Name);
    return Check(family->Status) && CreateFromFontFamily(family->Handle(), SIZE, Style, Unit);
}

bool GpFont::CreateFromFontFamily(gdiplus::GpFontFamily* hFontFamily, float SIZE, int32_t Style,
                                  gdiplus::Unit Unit) {
    const KeepAlive keep(this);
    gdiplus::GpFont* made = nullptr;
    return Adopt(flat::GdipCreateFont(hFontFamily, SIZE, Style, Unit, &made), made);
}

bool GpFont::FromLogFontA(const gdi::LOGFONTA* lpLogFontA, gdi::HDC hDC) {
    const KeepAlive keep(this);
    const MeasuringContext context(hDC);
    gdiplus::GpFont* made = nullptr;
    return Adopt(flat::GdipCreateFontFromLogfontA(context.Dc(), lpLogFontA, &made), made);
}

bool GpFont::FromHDC(gdi::HDC lHDC) {
    const KeepAlive keep(this);
    gdiplus::GpFont* made = nullptr;
    return Adopt(flat::GdipCreateFontFromDC(lHDC, &made), made);
}

bool GpFont::FromStdFont(const Ref<ole::StdFont>& oFont) {
    const KeepAlive keep(this);
    if (!oFont) throw Error(ErrorNumber::ObjectNotSet, "GpFont.FromStdFont", "Object not set");
    mName = oFont->Name();
    mUnit = gdiplus::UnitPoint;
    mSize = static_cast<float>(oFont->Size());
    mStyle = (oFont->Bold() ? gdiplus::FontStyleBold : 0) |
             (oFont->Italic() ? gdiplus::FontStyleItalic : 0) |
             (oFont->Underline() ? gdiplus::FontStyleUnderline : 0) |
             (oFont->Strikethrough() ? gdiplus::FontStyleStrikeout : 0);
    return Create(String(mName), mSize, mStyle, gdiplus::UnitPoint);
}

Ref<ole::StdFont> GpFont::StdFont() {
    const KeepAlive keep(this);
    Ref<ole::StdFont> font = New<ole::StdFont>();
    font->Name(mName);
    font->Size(PointSize());
    font->Bold(Bold());
    font->Italic(Italic());
    font->Underline(Underline());
    font->Strikethrough(StrikeOut());
    return font;
}

Ref<GpFontFamily> GpFont::FontFamily() {
    Ref<GpFontFamily> family = New<GpFontFamily>();  // first: without it the handle would stay
    gdiplus::GpFontFamily* made = nullptr;
    Check(flat::GdipGetFamily(handle_, &made));
    family->SetHandle(made, true);
    return family;
}

void GpFont::SetStyleBit(int32_t bit, bool value) {
    const KeepAlive keep(this);
    if (((mStyle & bit) != 0) == value) return;
    mStyle ^= bit;
    Create(String(mName), mSize, mStyle, mUnit);
}

void GpFont::Name(const String& value) {
    if (value != mName) Create(value, mSize, mStyle, mUnit);
}

void GpFont::SIZE(float value) {
    if (value != mSize) Create(String(mName), value, mStyle, mUnit);
}

void GpFont::Style(int32_t value) {
    if (value != mStyle) Create(String(mName), mSize, value, mUnit);
}

void GpFont::Unit(gdiplus::Unit value) {
    if (value != mUnit) Create(String(mName), mSize, mStyle, value);
}

}  // namespace vxgui
