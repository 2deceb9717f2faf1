#pragma once

#include "vxgui/theme/ThemeItem.h"

namespace vxgui::test {

/// A surface whose pixels all differ, with an alpha that does too.
inline Ref<cAlphaDIBSection> SurfaceOf(int32_t width, int32_t height) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->Create(width, height);
    auto* pixels = static_cast<uint32_t*>(surface->DIBSectionBitsPtr());
    for (int32_t i = 0; i < width * height; ++i) {
        pixels[i] = 0x10203040u + static_cast<uint32_t>(i) * 0x01010101u;
    }
    return surface;
}

inline Ref<LFont> FontOf(int32_t height) {
    const Ref<LFont> font = New<LFont>();
    font->Height = height;
    font->Name = "DejaVu Sans";
    return font;
}

inline Ref<TextStyle> StyleOf(int32_t color) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->TextColor = color;
    return style;
}

/// An item with something under every key.
inline Ref<ThemeItem> FullItem() {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(SurfaceOf(12, 5), 3, -1, PerPixel, 200);
    item->SetGlyph(SurfaceOf(6, 2), 3, 0, Trans, 100, DefaultTransColor, RightBottom);
    item->FrameCount(4);
    item->SetTile(TileXStretchY, 1, 0, 1, 0);
    item->StateFrames(ByteArray{3, 2, 1, 0, 255, 2, 1, 0, 1});
    item->GlyphStateFrames(ByteArray{2, 1, 0, 255, 1, 2, 1, 0, 0});
    item->SetImageMargin(1, 2, 3, 4);
    item->SetGlyphMargin(5, 6, 7, 8);
    item->SetContentMargin(9, 10, 11, 12);
    item->SetIconMargin(13, 14, 15, 16);
    item->BackgroundEffect(17);
    item->IconAlign(RightTop);
    item->IconTransMode(1);
    item->IconWidth(18);
    item->IconHeight(18);
    for (int32_t state = E_ItemStateNormal; state <= E_ItemStateGroup; ++state) {
        item->StateFont(state, FontOf(20 + state));
        item->StateTextStyle(state, StyleOf(30 + state));
    }
    return item;
}

/// The contents of a bag that the item writes itself to.
inline ByteArray BagOf(const Ref<ThemeItem>& item) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    item->WriteProperties(bag);
    return bag->Contents();
}

/// The bag that is stored under a key.
inline Ref<ole::PropertyBag> InnerBag(const Ref<ole::PropertyBag>& bag, const String& key) {
    const Ref<ole::PropertyBag> inner = New<ole::PropertyBag>();
    const Variant value = bag->ReadProperty(key);
    if (const auto* bytes = value.As<ByteArray>()) inner->Contents(*bytes);
    return inner;
}

/// -1000 where there is no integer.
inline int32_t IntegerIn(const Ref<ole::PropertyBag>& bag, const String& key) {
    const Variant value = bag->ReadProperty(key);
    const auto* number = value.As<int32_t>();
    return number ? *number : -1000;
}

}  // namespace vxgui::test
