#pragma once

#include "vxgui/platform/gdiplus/Effect.h"

namespace vxgui::gdiplus {

/// A part of a picture blurred by a kernel that is close to a Gaussian and reaches `radius` pixels:
/// premultiplied pixels, row by row. Beyond the picture lies what its edge has, or nothing.
std::vector<ARGB> Blurred(const EffectPicture& picture, const GpRect& area, INT radius,
                          bool clearBeyond);

}  // namespace vxgui::gdiplus
