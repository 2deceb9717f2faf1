#pragma once

#include <optional>

#include "vxgui/platform/gdiplus/graphics/ImagePart.h"

namespace vxgui::gdiplus {

/// Draws an image whose pixels fall on those of the device one by one, straight out of its own
/// rows: those that `area`, which is `Drawable`, shows when its upper left one goes to `at`. The
/// image isn't the target. None, and nothing drawn, where it takes the way of all others.
std::optional<GpStatus> DrawCopy(Graphics& graphics, const ImagePart& part,
                                 const ImageSource& source, const GpRect& area, GpPoint at);

}  // namespace vxgui::gdiplus
