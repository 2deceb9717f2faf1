#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
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

void LFont::ReadProperties(const Ref<ole::PropertyBag>& propBag) try {
    const KeepAlive keep(this);
    const ole::PropertyBag& bag = Require(propBag, kReading);
    Name = TextFrom(bag.ReadProperty("Name", String()), kReading);
    for (const auto& [key, field, fallback] : kIntegers) {
        this->*field = IntegerFrom(bag.ReadProperty(key, fallback), kReading);
    }
    for (const auto& [key, field, fallback] : kBytes) {
        this->*field = ByteFrom(bag.ReadProperty(key, fallback), kReading);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.ReadProperties");
}

void LFont::WriteProperties(const Ref<ole::PropertyBag>& propBag) const try {
    const KeepAlive keep(this);
    ole::PropertyBag& bag = Require(propBag, "LFont.WriteProperties");
    bag.WriteProperty("Name", Name, String());
    for (const auto& [key, field, fallback] : kIntegers) {
        bag.WriteProperty(key, this->*field, fallback);
    }
    for (const auto& [key, field, fallback] : kBytes) {
        bag.WriteProperty(key, int32_t{this->*field}, fallback);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.WriteProperties");
}

}  // namespace vxgui
