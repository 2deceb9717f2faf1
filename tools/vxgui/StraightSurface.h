#pragma once

#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::tool {

/// A surface of the size; a `ToolError` with the path when it can't be made.
Ref<cAlphaDIBSection> NewSurface(int32_t width, int32_t height, const std::string& path);

/// A copy as every program understands it: 32 bits a pixel, the bottom row first, straight alpha.
/// What has no alpha becomes opaque. The key colour and the ways of painting stay.
Ref<cAlphaDIBSection> StraightCopy(const cAlphaDIBSection& surface, const std::string& path);

/// Whether some pixel isn't opaque.
bool HasTransparency(cAlphaDIBSection& straight);

}  // namespace vxgui::tool
