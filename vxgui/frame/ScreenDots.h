#pragma once

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// The screen's dots an inch, by way of its twips a pixel.
inline double ScreenDotsPerInch() {
    const float twipsPerPixel = 1440.0f / static_cast<float>(gdi::ScreenDpi());
    return 1440.0 / twipsPerPixel;
}

}  // namespace vxgui
