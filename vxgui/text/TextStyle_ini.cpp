#include <algorithm>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/text/ColorText.h"
#include "vxgui/text/DefineSection.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

namespace {

using Style = class TextStyle;

/// The draw style under its key of today, else under the two that older files use.
int32_t ReadDrawStyle(const DefineSection& section) {
    int32_t style = section.Integer("DrawStyle") % 6;
    if (style == 0) style = section.Integer("TextStyle");
    if (style == 0) style = section.Integer("DrawingStyle");
    return style % 6;
}

int32_t ReadShadowColor(const DefineSection& section) {
    String text = section.Text("ShadowColor");
    if (!text.empty()) return ParseColorText(text);
    const int32_t blue = std::clamp(section.Integer("ShadowB"), 0, 255);
    const int32_t green = std::clamp(section.Integer("ShadowG"), 0, 255);
    const int32_t red = std::clamp(section.Integer("ShadowR"), 0, 255);
    return red | green << 8 | blue << 16;
}

/// Reads "x,y", or one number for both, where the text is a number at all. Only the first is
/// brought into a byte.
bool ParsePair(const String& text, int32_t* x, int32_t* y) {
    if (text.empty() || !IsNumeric(text)) return false;
    *x = RoundHalfEven(LeadingNumber(text)) & 255;
    const size_t comma = text.Find(u',');
    *y = comma == String::npos ? *x : RoundHalfEven(LeadingNumber(text.Mid(comma + 1)));
    return true;
}

void ReadShadowSize(Style& style, const DefineSection& section) {
    if (!ParsePair(section.Text("Shadow"), &style.ShadowX, &style.ShadowY)) {
        style.ShadowX = section.Integer("ShadowX");
        style.ShadowY = section.Integer("ShadowY");
    }
}

void ReadShadowOffset(Style& style, const DefineSection& section) {
    const String y = section.Text("ShadowOffsetY");
    if (!y.empty() && IsNumeric(y)) {
        style.ShadowOffsetX = section.Integer("ShadowOffsetX");
        style.ShadowOffsetY = section.Integer("ShadowOffsetY");
    } else {
        ParsePair(section.Text("ShadowOffset"), &style.ShadowOffsetX, &style.ShadowOffsetY);
    }
}

void ReadShadow(Style& style, const DefineSection& section) {
    style.ShadowColor = ReadShadowColor(section);
    ReadShadowSize(style, section);
    ReadShadowOffset(style, section);
    style.ShadowX = std::max(style.ShadowX, 1);
    style.ShadowY = std::max(style.ShadowY, 1);
    if (style.TextStyle == 5) style.ShadowThickness = section.Integer("ShadowThickness", "4");
}

}  // namespace

void TextStyle::FromIniFile(const Ref<core7::DefineFile>& defineFile, const String& sectionName) try {
    const KeepAlive keep(this);
    const DefineSection section(defineFile, sectionName, "TextStyle.FromIniFile");
    String color = section.Text("TextColor");
    TextColor = ParseColorText(color);
    TextContrast = section.Integer("TextContrast", "4") % 13;
    TextAlignHorz = section.Integer("TextAlignHorz") % 5;
    TextAlignVert = section.Integer("TextAlignVert") % 4;
    FormatFlags = section.Integer("FormatFlags");
    TextStyle = ReadDrawStyle(section);
    if (TextStyle > 0) ReadShadow(*this, section);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("TextStyle.FromIniFile");
}

}  // namespace vxgui
