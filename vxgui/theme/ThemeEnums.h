#pragma once

#include <cstdint>

namespace vxgui {

/// The states of a control. Their names are keys of the per-state collections and parts of
/// persisted keys.
enum E_ITEMSTATE : int32_t {
    E_ItemStateNormal = 0,
    E_ItemStateMouseOver = 1,
    E_ItemStatePressed = 2,
    E_ItemStateDisabled = 3,
    E_ItemStateDefault = 4,
    E_ItemStateFocus = 5,
    E_ItemStateFocusPressed = 6,
    E_ItemStateGroup = 7,
    E_ItemStateFocusMouseOver = 8,
    E_ItemStateMax = 9,
};

/// How the pixels of a picture reach the target.
enum E_TRANSMODE : int32_t {
    Normal = 0,    ///< opaque
    Trans = 1,     ///< one colour is transparent
    PerPixel = 2,  ///< the alpha channel counts
};

/// How the centre of the nine pieces fills its area.
enum E_IMAGETILE : int32_t {
    StretchXStretchY = 0,
    TileXTileY = 1,
    TileXStretchY = 2,
    StretchXTileY = 3,
    CopyXYFillRest = 4,
};

/// A place in a rectangle: column times 3 plus row.
enum E_ALGINMENT : int32_t {
    Lefttop = 0,
    LeftCenter = 1,
    LeftBottom = 2,
    CenterTop = 3,
    CenterCenter = 4,
    CenterBottom = 5,
    RightTop = 6,
    RightCenter = 7,
    RightBottom = 8,
};

/// The order of the frames in a strip. The interface writes the names with blanks, as
/// "Normal Pressed Disabled MouseOver Default&Focus"; -1 stands for the item's own table.
enum E_FRAMEORDER : int32_t {
    Normal_Pressed_Disabled_MouseOver_DefaultFocus = 0,
    Normal_MouseOver_Pressed_Disabled_DefaultFocus = 1,
};

/// What `CopyTo` copies.
enum E_COPYTOFLAGS : uint32_t {
    COPYTO_Image = 0x80000000,
    COPYTO_ImageProp = 0x40000000,
    COPYTO_ImageMargin = 0x20000000,
    COPYTO_ContentMargin = 0x10000000,
    COPYTO_Glyph = 0x08000000,
    COPYTO_GlyphProp = 0x04000000,
    COPYTO_FontsMask = 0x03000000,
    COPYTO_FontsSet = 0x02000000,  ///< by reference: both items share one collection
    COPYTO_FontsLet = 0x01000000,  ///< by value: leaves the target's collection empty
    COPYTO_TextStylesMask = 0x00C00000,
    COPYTO_TextStylesSet = 0x00800000,
    COPYTO_TextStylesLet = 0x00400000,
    COPYTO_NoImage = 0x7E800000,
    COPYTO_NoGlyph = 0xF6800000,
};

}  // namespace vxgui
