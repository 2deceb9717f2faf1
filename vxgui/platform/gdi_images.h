#pragma once

#include "vxgui/base/String.h"
#include "vxgui/platform/gdi_icons.h"

namespace vxgui::gdi {

/// Kinds and flags of `LoadImageA`.
constexpr UINT IMAGE_ICON = 1, IMAGE_CURSOR = 2;
constexpr UINT LR_LOADFROMFILE = 0x10, LR_CREATEDIBSECTION = 0x2000;

/// An icon or cursor from its file, which the caller destroys with `DestroyIcon`: the image of
/// the size that the file names first, of several of that size the one of most colours. Null for
/// anything but a file (`LR_LOADFROMFILE`, no module), for a width or height other than 0, the
/// image's own, and for what cannot be read. An icon's file gives a cursor too, with its hot spot
/// at 0, and the other way round.
VXPLATFORM_API HANDLE LoadImageA(HANDLE module, const String& filename, UINT type, int width,
                                 int height, UINT flags);

}  // namespace vxgui::gdi
