#pragma once

#include <climits>
#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

/// What the readers of define files know: each section's keys, and what their values may be.
namespace vxgui::lint {

enum class ValueKind {
    Text,
    Picture,  ///< a file's name
    Number,   ///< a number with or without a fraction
    Integer,
    Flag,         ///< 0 or 1
    Colour,       ///< "red,green,blue", with an alpha, or a number
    Rgb,          ///< "red green blue"
    Pair,         ///< one number, or two with a comma
    Sides,        ///< four numbers: left, top, right, bottom
    Tiles,        ///< five numbers: the centre's way to tile, and four flags
    Frames,       ///< a frame for each state
    Scales,       ///< scales for which there are strips
    Pool,         ///< a number of a font or style for each state
    ColourIndex,  ///< a number of the palette
    FontIndex,    ///< a number of a font
    FrameIndex,   ///< a frame of the item's own strip
};

/// Without which a key has no effect.
enum class Needs { Nothing, Image, Glyph, DrawStyle };

struct KeyRule {
    const char* name;
    ValueKind kind = ValueKind::Text;
    int32_t least = INT_MIN;
    int32_t most = INT_MAX;
    Needs needs = Needs::Nothing;
};

using KeyTable = std::span<const KeyRule>;

// The dialect of theme sets.
VXGUI_LOCAL KeyTable ThemeSetKeys();
VXGUI_LOCAL KeyTable ThemeItemKeys();
// Both dialects.
VXGUI_LOCAL KeyTable FontKeys();
VXGUI_LOCAL KeyTable TextStyleKeys();
// The UIS dialect.
VXGUI_LOCAL KeyTable UisItemKeys();
VXGUI_LOCAL KeyTable UisColourKeys();
VXGUI_LOCAL KeyTable UisSystemFontKeys();
VXGUI_LOCAL KeyTable UisPersonalityKeys();
VXGUI_LOCAL KeyTable UisTaskbarKeys();

/// The rule of a key, in any case; null for an unknown one.
VXGUI_LOCAL const KeyRule* FindKey(KeyTable table, const String& name);

}  // namespace vxgui::lint
