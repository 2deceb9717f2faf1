#include <cstring>

#include "vxgui/base/Error.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

namespace {

/// Sets one property; one that the object refuses is left as it is.
template <class Setter>
void TrySet(Setter&& set) {
    try {
        set();
    } catch (const Error&) {
    }
}

int16_t Checked16(int32_t value) {
    if (value != static_cast<int16_t>(value)) {
        throw Error(ErrorNumber::Overflow, "LFont.StdFont", "Overflow");
    }
    return static_cast<int16_t>(value);
}

constexpr int32_t kBoldWeight = 600;
constexpr int32_t kRegularWeight = 400;

}  // namespace

void LFont::FromLogFont(const gdi::LOGFONTA& font) try {
    const KeepAlive keep(this);
    Dispose();
    Height = font.lfHeight;
    Width = font.lfWidth;
    Escapement = font.lfEscapement;
    Orientation = font.lfOrientation;
    Weight = font.lfWeight;
    Italic = font.lfItalic;
    Underline = font.lfUnderline;
    StrikeOut = font.lfStrikeOut;
    CharSet = font.lfCharSet;
    OutPrecision = font.lfOutPrecision;
    ClipPrecision = font.lfClipPrecision;
    Quality = font.lfQuality;
    PitchAndFamily = font.lfPitchAndFamily;
    const size_t length = strnlen(font.lfFaceName, sizeof font.lfFaceName);
    Name = kernel::TextFromAnsi(std::string_view(font.lfFaceName, length));
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.FromLogFont");
}

void LFont::FromStdFont(const Ref<ole::StdFont>& font, uint8_t quality) try {
    const KeepAlive keep(this);
    if (!font) return DefaultGuiFont(quality);
    gdi::LOGFONTA record{};
    gdi::GetObjectA(font->hFont(), sizeof record, &record);
    record.lfQuality = quality;
    FromLogFont(record);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.FromStdFont");
}

void LFont::DefaultGuiFont(uint8_t quality) {
    const KeepAlive keep(this);
    gdi::LOGFONTA record{};
    gdi::GetObjectA(gdi::GetStockObject(gdi::DEFAULT_GUI_FONT), sizeof record, &record);
    record.lfQuality = quality;
    FromLogFont(record);
}

Ref<ole::StdFont> LFont::StdFont() try {
    const KeepAlive keep(this);
    Ref<ole::StdFont> font = New<ole::StdFont>();
    TrySet([&] { font->Name(Name); });
    TrySet([&] { font->Charset(CharSet); });
    TrySet([&] { font->Size(SIZE()); });
    TrySet([&] { font->Bold(Weight >= kBoldWeight); });
    TrySet([&] { font->Italic(Italic != 0); });
    TrySet([&] { font->Underline(Underline != 0); });
    TrySet([&] { font->Strikethrough(StrikeOut != 0); });
    TrySet([&] { font->Weight(Checked16(Weight)); });
    Unwatch();
    watched_ = font;
    font->Watch([this](const String& propertyName) { Follow(propertyName); });
    return font;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.StdFont");
}

void LFont::Follow(const String& propertyName) {
    const KeepAlive keep(this);
    Dispose();
    if (propertyName == "Name") Name = watched_->Name();
    // The notified name and the property differ in case, and the match is exact.
    if (propertyName == "CharSet") CharSet = static_cast<uint8_t>(watched_->Charset());
    if (propertyName == "Size") SIZE(static_cast<float>(watched_->Size()));
    if (propertyName == "Bold") Weight = watched_->Bold() ? kBoldWeight : kRegularWeight;
    if (propertyName == "Italic") Italic = watched_->Italic();
    if (propertyName == "Underline") Underline = watched_->Underline();
    if (propertyName == "Strikethrough") StrikeOut = watched_->Strikethrough();
    if (propertyName == "Weight") Weight = watched_->Weight();
}

void LFont::Unwatch() {
    if (watched_) watched_->Watch({});
    watched_ = nullptr;
}

}  // namespace vxgui
