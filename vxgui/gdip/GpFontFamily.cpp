#include "vxgui/gdip/GpFontFamily.h"

namespace vxgui {

void GpFontFamily::SetHandle(gdiplus::GpFontFamily*& FontFamily, const bool& DisposeWhenTerminate) {
    const KeepAlive keep(this);
    Dispose();
    handle_ = FontFamily;
    mDisposeWhenTerminate = DisposeWhenTerminate;
}

void GpFontFamily::Dispose() {
    GpOwner::Dispose();
    mDisposeWhenTerminate = true;
}

bool GpFontFamily::CreateFontFamily(const String& FamilyName) {
    const KeepAlive keep(this);
    Dispose();
    gdiplus::GpFontFamily* made = nullptr;
    return Adopt(flat::GdipCreateFontFamilyFromName(FamilyName.data(), nullptr, &made), made);
}

template <class Create>
bool GpFontFamily::CreateGeneric(const Create& create) {
    const KeepAlive keep(this);
    Dispose();
    gdiplus::GpFontFamily* made = nullptr;
    return Adopt(create(&made), made);
}

bool GpFontFamily::CreateGenericSerifFamily() {
    return CreateGeneric(flat::GdipGetGenericFontFamilySerif);
}

bool GpFontFamily::CreateGenericSansSerifFamily() {
    return CreateGeneric(flat::GdipGetGenericFontFamilySansSerif);
}

bool GpFontFamily::CreateGenericMonospaceFamily() {
    return CreateGeneric(flat::GdipGetGenericFontFamilyMonospace);
}

String GpFontFamily::GetFamilyName() {
    constexpr gdiplus::LANGID kNeutral = 0;
    char16_t name[32 + 1] = {};  // the function fills 32, and nothing promises a zero among them
    return Check(flat::GdipGetFamilyName(handle_, name, kNeutral)) ? String(name) : String();
}

bool GpFontFamily::IsStyleAvailable(int32_t Style) {
    BOOL available = 0;
    return Check(flat::GdipIsStyleAvailable(handle_, Style, &available)) && available;
}

template <class Get>
int32_t GpFontFamily::Measure(const Get& get, int32_t style) {
    WORD measure = 0;
    return Check(get(handle_, style, &measure)) ? measure : 0;
}

int32_t GpFontFamily::GetEmHeight(int32_t Style) { return Measure(flat::GdipGetEmHeight, Style); }

int32_t GpFontFamily::GetCellAscent(int32_t Style) {
    return Measure(flat::GdipGetCellAscent, Style);
}

int32_t GpFontFamily::GetCellDescent(int32_t Style) {
    return Measure(flat::GdipGetCellDescent, Style);
}

int32_t GpFontFamily::GetLineSpacing(int32_t Style) {
    return Measure(flat::GdipGetLineSpacing, Style);
}

}  // namespace vxgui
