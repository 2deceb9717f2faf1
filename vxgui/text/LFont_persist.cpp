#include "vxgui/base/Error.h"
#include "vxgui/base/VariantValue.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

namespace {

struct IntegerProperty {
    const char* key;
    int32_t LFont::*field;
    int32_t fallback;
};
constexpr IntegerProperty kIntegers[] = {
    {"Height", &LFont::Height, 12},        {"Width", &LFont::Width, 0},
    {"Escapement", &LFont::Escapement, 0}, {"Orientation", &LFont::Orientation, 0},
    {"Weight", &LFont::Weight, 400},
};

struct ByteProperty {
    const char* key;
    uint8_t LFont::*field;
    int32_t fallback;
};
constexpr ByteProperty kBytes[] = {
    {"Italic", &LFont::Italic, 0},
    {"Underline", &LFont::Underline, 0},
    {"StrikeOut", &LFont::StrikeOut, 0},
    {"CharSet", &LFont::CharSet, 1},
    {"OutPrecision", &LFont::OutPrecision, 0},
    {"ClipPrecision", &LFont::ClipPrecision, 0},
    {"Quality", &LFont::Quality, 0},
    {"PitchAndFamily", &LFont::PitchAndFamily, 0},
};

constexpr char kReading[] = "LFont.ReadProperties";

}  // namespace

void LFont::ReadProperties(const Ref<ole::PropertyBag>& propBag) {
    const KeepAlive keep(this);
    if (!propBag) throw Error(ErrorNumber::ObjectNotSet, kReading, "Object not set");
    Name = TextFrom(propBag->ReadProperty("Name", String()), kReading);
    for (const auto& [key, field, fallback] : kIntegers) {
        this->*field = IntegerFrom(propBag->ReadProperty(key, fallback), kReading);
    }
    for (const auto& [key, field, fallback] : kBytes) {
        this->*field = ByteFrom(propBag->ReadProperty(key, fallback), kReading);
    }
}

void LFont::WriteProperties(const Ref<ole::PropertyBag>& propBag) const {
    const KeepAlive keep(this);
    if (!propBag) throw Error(ErrorNumber::ObjectNotSet, "LFont.WriteProperties", "Object not set");
    propBag->WriteProperty("Name", Name, String());
    for (const auto& [key, field, fallback] : kIntegers) {
        propBag->WriteProperty(key, this->*field, fallback);
    }
    for (const auto& [key, field, fallback] : kBytes) {
        propBag->WriteProperty(key, int32_t{this->*field}, fallback);
    }
}

}  // namespace vxgui
