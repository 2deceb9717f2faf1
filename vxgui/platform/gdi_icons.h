#pragma once

#include "vxgui/platform/gdi_types.h"

/// Icons and cursors.
namespace vxgui::gdi {

struct ICONINFO {
    BOOL fIcon;  ///< false for a cursor
    DWORD xHotspot, yHotspot;
    HBITMAP hbmMask;   ///< 1 keeps what is below; twice as high when there are no colours
    HBITMAP hbmColor;  ///< null for a black and white icon, whose image is the mask's lower half
};

/// An icon with copies of the two bitmaps, which stay the caller's. Null without a mask.
VXPLATFORM_API HICON CreateIconIndirect(const ICONINFO* info);
/// The icon's parts. The two bitmaps are copies that the caller deletes; the colours have 32
/// bits a pixel.
VXPLATFORM_API BOOL GetIconInfo(HICON icon, ICONINFO* info);
VXPLATFORM_API BOOL DestroyIcon(HICON icon);

/// Flags of `DrawIconEx`.
constexpr UINT DI_MASK = 1, DI_IMAGE = 2, DI_NORMAL = 3;
/// Draws the icon in the given size, repeating or dropping pixels; a size of 0 is the icon's own.
/// With `DI_NORMAL`, an icon of which any pixel has alpha is drawn source over, without regard
/// to its mask; any other keeps what is below its mask, inverts it by its colours, and sets
/// alpha to 0 in the whole rectangle. A brush, if given, fills the rectangle first. `step` is
/// for animated cursors, which don't exist here.
VXPLATFORM_API BOOL DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, UINT step,
                               HBRUSH brush, UINT flags);

}  // namespace vxgui::gdi
