#include "vxgui/base/OutOfMemory.h"
#include "vxgui/text/DefineSection.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

namespace {

/// The low byte of a number, whatever its range.
uint8_t LowByte(int32_t value) { return static_cast<uint8_t>(value); }

void ReadSize(LFont& font, const DefineSection& section) {
    const double points = section.Number("size");
    if (points != 0) return font.SIZE(static_cast<float>(points));
    font.Height = section.Integer("FontHeight", "12");
    font.Width = section.Integer("FontWidth");
}

void ReadQuality(LFont& font, const DefineSection& section) {
    if (section.Integer("AntiAlias") != 0) {
        font.Quality = ANTIALIASED_QUALITY;
    } else {
        font.Quality = LowByte(section.Integer("Quality"));
    }
}

}  // namespace

void LFont::FromIniFile(const Ref<core7::DefineFile>& defineFile, const String& sectionName) try {
    const KeepAlive keep(this);
    Dispose();
    const DefineSection section(defineFile, sectionName, "LFont.FromIniFile");
    Name = section.Text("FontName");
    ReadSize(*this, section);
    Orientation = Escapement = section.Integer("FontAngle");
    Weight = section.Integer("FontWeight", "400");
    Italic = LowByte(section.Integer("Italics"));
    Underline = LowByte(section.Integer("Underline"));
    StrikeOut = LowByte(section.Integer("StrikeOut"));
    CharSet = LowByte(section.Integer("CharSet", "1"));
    OutPrecision = LowByte(section.Integer("OutPrecision"));
    ClipPrecision = LowByte(section.Integer("ClipPrecision"));
    ReadQuality(*this, section);
    PitchAndFamily = LowByte(section.Integer("PitchAndFamily"));
    DrawingStyle = nullptr;
    if (section.Integer("DrawingStyle") < 1) return;
    DrawingStyle = New<TextStyle>();
    DrawingStyle->FromIniFile(section.File(), section.Name());
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("LFont.FromIniFile");
}

}  // namespace vxgui
