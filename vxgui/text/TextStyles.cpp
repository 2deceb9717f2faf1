#include "vxgui/text/TextStyles.h"

#include "vxgui/frame/modUtilities.h"

namespace vxgui {

TextStyles::TextStyles() { SetUpApartment(); }
TextStyles::~TextStyles() = default;

Ref<TextStyle> TextStyles::Add(const String& key, int32_t textColor, int32_t textAlignHorz,
                               int32_t textAlignVert, int32_t textStyle, int32_t textContrast,
                               int32_t shadowColor, int32_t shadowThickness, int32_t shadowX,
                               int32_t shadowY, int32_t shadowOffsetX, int32_t shadowOffsetY) {
    Ref<TextStyle> style = New<TextStyle>();
    style->Create(textColor, textAlignHorz, textAlignVert, textStyle, textContrast, shadowColor,
                  shadowThickness, shadowX, shadowY, shadowOffsetX, shadowOffsetY);
    AddItem(style, key);
    return style;
}

void TextStyles::AddItem(const Ref<TextStyle>& item, const String& key) {
    const KeepAlive keep(this);
    items_.AddReplacing(item, key);
}

Ref<TextStyle> TextStyles::Item(int32_t index) const { return items_.Item(index); }
Ref<TextStyle> TextStyles::Item(const String& key) const { return items_.Item(key); }
int32_t TextStyles::Count() const { return items_.Count(); }

void TextStyles::Remove(int32_t index) {
    const KeepAlive keep(this);
    items_.Remove(index);
}

void TextStyles::Remove(const String& key) {
    const KeepAlive keep(this);
    items_.Remove(key);
}

void TextStyles::Clear() {
    const KeepAlive keep(this);
    items_.Clear();
}

}  // namespace vxgui
