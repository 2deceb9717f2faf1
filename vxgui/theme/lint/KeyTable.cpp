#include "vxgui/theme/lint/KeyTable.h"

#include <algorithm>

#include "vxgui/base/AsciiName.h"

namespace vxgui::lint {
namespace {

using enum ValueKind;
using enum Needs;

constexpr int32_t kAny = INT_MIN;
constexpr int32_t kMax = INT_MAX;

constexpr KeyRule kThemeSet[] = {
    {"Fonts", Integer, 0, kMax},
    {"TextStyles", Integer, 0, kMax},
    {"Themes", Integer, 0, kMax},
};

constexpr KeyRule kFont[] = {
    {"FontName"},
    {"size", Number, 0, 1000},
    {"FontHeight", Integer, -1000, 1000},
    {"FontWidth", Integer, 0, 1000},
    {"FontAngle", Integer, -3600, 3600},
    {"FontWeight", Integer, 0, 1000},
    {"Italics", Flag},
    {"Underline", Flag},
    {"StrikeOut", Flag},
    {"CharSet", Integer, 0, 255},
    {"OutPrecision", Integer, 0, 255},
    {"ClipPrecision", Integer, 0, 255},
    {"AntiAlias", Flag},
    {"Quality", Integer, 0, 5},
    {"PitchAndFamily", Integer, 0, 255},
    {"DrawingStyle", Integer, 0, 5},
};

constexpr KeyRule kTextStyle[] = {
    {"TextColor", Colour},
    {"TextContrast", Integer, 0, 12},
    {"TextAlignHorz", Integer, 0, 4},
    {"TextAlignVert", Integer, 0, 3},
    {"FormatFlags", Integer},
    {"DrawStyle", Integer, 0, 5},
    {"TextStyle", Integer, 0, 5},
    {"DrawingStyle", Integer, 0, 5},
    {"ShadowColor", Colour, kAny, kMax, DrawStyle},
    {"ShadowR", Integer, 0, 255, DrawStyle},
    {"ShadowG", Integer, 0, 255, DrawStyle},
    {"ShadowB", Integer, 0, 255, DrawStyle},
    {"Shadow", Pair, kAny, kMax, DrawStyle},
    {"ShadowX", Integer, 0, 255, DrawStyle},
    {"ShadowY", Integer, 0, 255, DrawStyle},
    {"ShadowOffset", Pair, kAny, kMax, DrawStyle},
    {"ShadowOffsetX", Integer, -255, 255, DrawStyle},
    {"ShadowOffsetY", Integer, -255, 255, DrawStyle},
    {"ShadowThickness", Integer, 0, 255, DrawStyle},
};

constexpr KeyRule kThemeItem[] = {
    {"Name"},  // this one and the next are for people
    {"Caption"},
    {"Image", Picture},
    {"ImageBackColor", Colour, kAny, kMax, Image},
    {"PreMultiplyAlpha", Flag, kAny, kMax, Image},
    {"Frames", Integer, kAny, kMax, Image},
    {"FrameVert", Flag, kAny, kMax, Image},
    {"TransMode", Integer, 0, 2, Image},
    {"ImageAlpha", Integer, 0, 255, Image},
    {"TransColor", Colour, kAny, kMax, Image},
    {"ImageScales", Scales, kAny, kMax, Image},
    {"ImageMargin", Sides, 0, kMax, Image},
    {"ImageTile", Tiles, 0, 4, Image},
    {"FrameOrder", Frames, kAny, kMax, Image},
    {"GlyphImage", Picture},
    {"GlyphBackColor", Colour, kAny, kMax, Glyph},
    {"GlyphPreMultiplyAlpha", Flag, kAny, kMax, Glyph},
    {"GlyphFrames", Integer, kAny, kMax, Glyph},
    {"GlyphFrameVert", Flag, kAny, kMax, Glyph},
    {"GlyphTransMode", Integer, 0, 2, Glyph},
    {"GlyphAlpha", Integer, 0, 255, Glyph},
    {"GlyphTransColor", Colour, kAny, kMax, Glyph},
    {"GlyphScales", Scales, kAny, kMax, Glyph},
    {"GlyphMargin", Sides, kAny, kMax, Glyph},
    {"GlyphAlign", Integer, 0, 8, Glyph},
    {"GlyphFrameOrder", Frames, kAny, kMax, Glyph},
    {"ContentMargin", Sides, 0, kMax},
    {"Fonts", Pool},
    {"TextStyles", Pool},
};

constexpr KeyRule kUisItem[] = {
    {"Image", Picture},
    {"PerPixel", Flag, kAny, kMax, Image},
    {"Trans", Flag, kAny, kMax, Image},
    {"Alpha", Integer, 0, 255, Image},
    {"FrameCount", Integer, kAny, kMax, Image},
    {"ImageScales", Scales, kAny, kMax, Image},
    {"PartWidth", Integer, -1, kMax},
    {"PartHeight", Integer, -1, kMax},
    {"GlyphImage", Picture},
    {"GlyphFrames", Integer, kAny, kMax, Glyph},
    {"GlyphTransMode", Integer, 0, 2, Glyph},
    {"GlyphScales", Scales, kAny, kMax, Glyph},
    {"GlyphVertAlign", Integer, 0, 2, Glyph},
    {"GlyphHorzAlign", Integer, 0, 2, Glyph},
    {"LeftWidth", Integer, 0, kMax, Image},
    {"RightWidth", Integer, 0, kMax, Image},
    {"TopHeight", Integer, 0, kMax, Image},
    {"BottomHeight", Integer, 0, kMax, Image},
    {"Tile", Integer, 0, 4, Image},
    {"TileTop", Flag, kAny, kMax, Image},
    {"TileBottom", Flag, kAny, kMax, Image},
    {"TileLeft", Flag, kAny, kMax, Image},
    {"TileRight", Flag, kAny, kMax, Image},
    {"ContentLeft", Integer, 0, kMax},
    {"ContentRight", Integer, 0, kMax},
    {"ContentTop", Integer, 0, kMax},
    {"ContentBottom", Integer, 0, kMax},
    {"TextColour", ColourIndex, -1, kMax},
    {"TextColourOver", ColourIndex, -1, kMax},
    {"TextHorzAlignNormal", Integer},
    {"TextVertAlignNormal", Integer},
    {"NormalColour", ColourIndex, -1, kMax},
    {"FocusColour", ColourIndex, -1, kMax},
    {"PressedColour", ColourIndex, -1, kMax},
    {"FocusPressedColour", ColourIndex, -1, kMax},
    {"GroupColour", ColourIndex, -1, kMax},
    {"DisabledColour", ColourIndex, -1, kMax},
    {"NormalFont", FontIndex, -1, kMax},
    {"TextFont", FontIndex, -1, kMax},
    {"FocusFont", FontIndex, -1, kMax},
    {"TextFontOver", FontIndex, -1, kMax},
    {"PressedFont", FontIndex, -1, kMax},
    {"FocusPressedFont", FontIndex, -1, kMax},
    {"GroupFont", FontIndex, -1, kMax},
    {"SmartSmallMargins", Integer},
    {"AnimTimerRate", Integer, 0, kMax, Image},
    {"LoopBackDelay", Integer, 0, kMax, Image},
    {"MouseEnterStartFrame", FrameIndex, 0, kMax, Image},
    {"MouseOverStartFrame", FrameIndex, 0, kMax, Image},
    {"MouseOverStopFrame", FrameIndex, 0, kMax, Image},
    {"MouseLeaveStopFrame", FrameIndex, 0, kMax, Image},
    {"MouseLeaveMode", Integer, kAny, kMax, Image},
};

constexpr KeyRule kUisColour[] = {
    {"Colour", Rgb},
    {"R", Integer, 0, 255},
    {"G", Integer, 0, 255},
    {"B", Integer, 0, 255},
};

constexpr KeyRule kUisSystemFonts[] = {
    {"SystemCaption", FontIndex, -1, kMax}, {"SystemSmallCaption", FontIndex, -1, kMax},
    {"SystemMenu", FontIndex, -1, kMax},    {"SystemStatus", FontIndex, -1, kMax},
    {"SystemMessage", FontIndex, -1, kMax}, {"SystemIcon", FontIndex, -1, kMax},
};

constexpr KeyRule kUisPersonality[] = {{"Wallpaper", Picture}};
constexpr KeyRule kUisTaskbar[] = {{"File"}};

}  // namespace

KeyTable ThemeSetKeys() { return kThemeSet; }
KeyTable ThemeItemKeys() { return kThemeItem; }
KeyTable FontKeys() { return kFont; }
KeyTable TextStyleKeys() { return kTextStyle; }
KeyTable UisItemKeys() { return kUisItem; }
KeyTable UisColourKeys() { return kUisColour; }
KeyTable UisSystemFontKeys() { return kUisSystemFonts; }
KeyTable UisPersonalityKeys() { return kUisPersonality; }
KeyTable UisTaskbarKeys() { return kUisTaskbar; }

const KeyRule* FindKey(KeyTable table, const String& name) {
    const auto found = std::ranges::find_if(
        table, [&](const KeyRule& rule) { return IsNamed(name.view(), rule.name); });
    return found == table.end() ? nullptr : &*found;
}

}  // namespace vxgui::lint
