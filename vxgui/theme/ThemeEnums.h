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

}  // namespace vxgui
