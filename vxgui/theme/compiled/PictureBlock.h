#pragma once

#include "vxgui/base/Variant.h"

namespace vxgui::compiled {

/// Whether a serialized surface has as many bytes as its header says: otherwise a few bytes could
/// have gigabytes made for them.
VXGUI_LOCAL bool IsWholePicture(const ByteArray& block);

}  // namespace vxgui::compiled
