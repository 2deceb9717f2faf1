#pragma once

#include <cstddef>

#include "vxgui/platform/gdi_icons.h"

namespace vxgui::gdi {

/// The icon in the bytes of an icon or cursor file, or null.
HICON IconOfFileBytes(const void* bytes, size_t size);

}  // namespace vxgui::gdi
