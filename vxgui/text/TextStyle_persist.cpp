#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
#include "vxgui/base/VariantValue.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

namespace {

using Style = class TextStyle;

struct Property {
    const char* key;
    int32_t Style::*field;
    int32_t fallback;
};
constexpr Property kText[] = {
    {"TextColor", &Style::TextColor, 0},
    {"TextContrast", &Style::TextContrast, 4},
    {"TextAlignHorz", &Style::TextAlignHorz, 0},
    {"TextAlignVert", &Style::TextAlignVert, 0},
};
constexpr Property kDrawStyle = {"TextStyle", &Style::TextStyle, 0};
constexpr Property kFormatFlags = {"FormatFlags", &Style::FormatFlags, 0};
constexpr Property kShadow[] = {
    {"ShadowColor", &Style::ShadowColor, 0},
    {"ShadowThickness", &Style::ShadowThickness, 4},
    {"ShadowX", &Style::ShadowX, 1},
    {"ShadowY", &Style::ShadowY, 1},
    {"ShadowOffsetX", &Style::ShadowOffsetX, 0},
    {"ShadowOffsetY", &Style::ShadowOffsetY, 0},
};

constexpr char kReading[] = "TextStyle.ReadProperties";

}  // namespace

void TextStyle::ReadProperties(const Ref<ole::PropertyBag>& propBag) try {
    const KeepAlive keep(this);
    const ole::PropertyBag& bag = Require(propBag, kReading);
    const auto read = [&](const Property& property) {
        const Variant stored = bag.ReadProperty(property.key, property.fallback);
        this->*property.field = IntegerFrom(stored, kReading);
    };
    for (const Property& property : kText) read(property);
    read(kFormatFlags);  // ahead of the draw style here, and behind it in writing
    read(kDrawStyle);
    if (TextStyle <= 0) return;
    for (const Property& property : kShadow) read(property);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("TextStyle.ReadProperties");
}

void TextStyle::WriteProperties(const Ref<ole::PropertyBag>& propBag) const try {
    const KeepAlive keep(this);
    ole::PropertyBag& bag = Require(propBag, "TextStyle.WriteProperties");
    const auto write = [&](const Property& property) {
        bag.WriteProperty(property.key, this->*property.field, property.fallback);
    };
    for (const Property& property : kText) write(property);
    write(kDrawStyle);
    write(kFormatFlags);
    if (TextStyle <= 0) return;
    for (const Property& property : kShadow) write(property);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("TextStyle.WriteProperties");
}

}  // namespace vxgui
