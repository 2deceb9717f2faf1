#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/StateText.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

// System colours in their OLE form: grey text and button text.
constexpr int32_t kGrayText = static_cast<int32_t>(0x80000011);
constexpr int32_t kButtonText = static_cast<int32_t>(0x80000012);

const char* const kNormalName = "Normal";

Ref<TextStyle> PlainStyle(int32_t state) {
    Ref<TextStyle> style = New<TextStyle>();
    style->TextColor = state == E_ItemStateDisabled ? kGrayText : kButtonText;
    return style;
}

template <class Collection>
auto Find(const Ref<Collection>& items, const String& key) {
    return items ? items->Item(key) : decltype(items->Item(key))();
}

// None takes the entry away; anything else replaces it.
template <class Collection, class Item>
void Store(const Ref<Collection>& items, const String& key, const Ref<Item>& value) {
    if (value) {
        items->AddItem(value, key);
    } else {
        items->Remove(key);
    }
}

template <class Collection, class Item>
void RemoveIfEqual(StateList<Collection>& items, int32_t state, const Ref<Item>& normal) {
    const StateText text(state);
    const String& name = text.name();
    const Ref<Item> own = items.Get()->Item(name);
    if (own && own->Equal(normal)) items.Own()->Remove(name);
}

}  // namespace

Ref<LFonts> ThemeItem::Fonts() { return fonts_.Own(); }
Ref<vxgui::TextStyles> ThemeItem::TextStyles() { return textStyles_.Own(); }

// The value that these two are given isn't read, on purpose: they leave an empty collection.
void ThemeItem::LetFonts(const Ref<LFonts>&) { fonts_.Own()->Clear(); }
void ThemeItem::LetTextStyles(const Ref<vxgui::TextStyles>&) { textStyles_.Own()->Clear(); }

void ThemeItem::ShareStates(const Ref<LFonts>& fonts, const Ref<vxgui::TextStyles>& styles) {
    if (fonts) fonts_.Share(fonts);
    if (styles) textStyles_.Share(styles);
}

Ref<LFont> ThemeItem::StateFont(int32_t State) const {
    return owner_ ? owner_->Font(FontNumber(State)) : Find(fonts_.Get(), StateText(State).name());
}

void ThemeItem::StateFont(int32_t State, const Ref<LFont>& value) {
    Store(fonts_.Own(), StateText(State).name(), value);
}

Ref<LFont> ThemeItem::GetStateFont(int32_t State) const {
    Ref<LFont> font = StateFont(State);
    if (!font) font = owner_ ? owner_->Font(numbers_.NormalFont) : Find(fonts_.Get(), kNormalName);
    if (font) return font;
    font = New<LFont>();
    font->DefaultGuiFont(DEFAULT_QUALITY);
    font->Height = ScaledLength(font->Height, scale_);
    return font;
}

Ref<TextStyle> ThemeItem::StateTextStyle(int32_t State) const {
    return Find(textStyles_.Get(), StateText(State).name());
}

void ThemeItem::StateTextStyle(int32_t State, const Ref<TextStyle>& value) {
    Store(textStyles_.Own(), StateText(State).name(), value);
}

Ref<TextStyle> ThemeItem::GetStateTextStyle(int32_t State) const {
    if (Ref<TextStyle> own = StateTextStyle(State)) return own;
    const Ref<TextStyle> normal = Find(textStyles_.Get(), kNormalName);
    if (!normal) return PlainStyle(State);
    if (State != E_ItemStateDisabled) return normal;
    Ref<TextStyle> grey = normal->Clone();
    grey->TextColor = kGrayText;
    return grey;
}

void ThemeItem::MinimizeFonts() {
    if (!fonts_) return;
    const Ref<LFont> normal = GetStateFont(E_ItemStateNormal);
    for (int32_t state = E_ItemStateMouseOver; state <= E_ItemStateGroup; ++state) {
        RemoveIfEqual(fonts_, state, normal);
    }
}

void ThemeItem::MinimizeTextStyles() {
    if (!textStyles_) return;
    const Ref<TextStyle> normal = GetStateTextStyle(E_ItemStateNormal);
    for (int32_t state = E_ItemStateMouseOver; state <= E_ItemStateGroup; ++state) {
        const int32_t color = normal->TextColor;
        // A Disabled entry is borrowed in grey, so it is compared with the Normal one in grey.
        if (state == E_ItemStateDisabled) normal->TextColor = kGrayText;
        RemoveIfEqual(textStyles_, state, normal);
        normal->TextColor = color;
    }
}

}  // namespace vxgui
