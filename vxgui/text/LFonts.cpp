#include "vxgui/text/LFonts.h"

#include "vxgui/frame/modUtilities.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

LFonts::LFonts() { SetUpApartment(); }
LFonts::~LFonts() = default;

Ref<LFont> LFonts::Add(const String& name, const String& key, int32_t height, int32_t width,
                       int32_t escapement, int32_t orientation, int32_t weight, uint8_t italic,
                       uint8_t underline, uint8_t strikeOut, uint8_t charSet, uint8_t outPrecision,
                       uint8_t clipPrecision, uint8_t quality, uint8_t pitchAndFamily) {
    Ref<LFont> font = New<LFont>();
    font->Create(name, height, width, escapement, orientation, weight, italic, underline, strikeOut,
                 charSet, outPrecision, clipPrecision, quality, pitchAndFamily);
    AddItem(font, key);
    return font;
}

Ref<LFont> LFonts::AddStdFont(const Ref<ole::StdFont>& font, uint8_t quality, const String& key) {
    Ref<LFont> added = New<LFont>();
    added->FromStdFont(font, quality);
    AddItem(added, key);
    return added;
}

Ref<LFont> LFonts::AddDefGuiFont(const String& key) {
    Ref<LFont> font = New<LFont>();
    AddItem(font, key);
    return font;
}

void LFonts::AddItem(const Ref<LFont>& item, const String& key) {
    const KeepAlive keep(this);
    items_.AddReplacing(item, key);
}

Ref<LFont> LFonts::Item(int32_t index) const { return items_.Item(index); }
Ref<LFont> LFonts::Item(const String& key) const { return items_.Item(key); }
int32_t LFonts::Count() const { return items_.Count(); }

void LFonts::Remove(int32_t index) {
    const KeepAlive keep(this);
    items_.Remove(index);
}

void LFonts::Remove(const String& key) {
    const KeepAlive keep(this);
    items_.Remove(key);
}

void LFonts::Clear() {
    const KeepAlive keep(this);
    items_.Clear();
}

}  // namespace vxgui
