#pragma once

#include <array>
#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui::ole {

/// An identifier as it lies in memory: its first three numbers with the lowest byte first.
using GuidBytes = std::array<uint8_t, 16>;

/// Reads "{01234567-89AB-CDEF-0123-456789ABCDEF}" in either case. False for any other text, and
/// `bytes` are 0.
VXPLATFORM_API bool IIDFromString(const String& text, GuidBytes* bytes);

}  // namespace vxgui::ole
