#pragma once

#include "vxgui/platform/codecs/ImageEncoder.h"

namespace vxgui::codecs {

/// A palette, 24 bits, or 32 with alpha, with resolution, gamma and texts. Empty on failure.
Written EncodePng(const PictureToWrite& picture);

}  // namespace vxgui::codecs
