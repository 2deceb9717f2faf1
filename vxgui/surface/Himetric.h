#pragma once

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// Hundredths of a millimetre to pixels. The vertical resolution serves both directions; a null
/// context has none, and all is 0 then.
inline int32_t HimetricToPixels(gdi::HDC dc, int32_t value) {
    return gdi::MulDiv(value, gdi::GetDeviceCaps(dc, gdi::LOGPIXELSY), 2540);
}

}  // namespace vxgui
